#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/account_verifier.h"

namespace nvrandom::verifier {

// How the accounts of an institution are formed.
enum class AccountRule : uint8_t {
  kDigits,           // an all-digit account whose length is one of `account_lengths`
  kBusinessProgram,  // a business number, program identifier and reference: 123456782RT0001
};

// Account lengths as a set: bit n stands for n digits.
using LengthSet = uint32_t;
constexpr LengthSet Lengths(int n) {
  return LengthSet{1} << n;
}
constexpr LengthSet LengthRange(int from, int to) {
  LengthSet set = 0;
  for (int n = from; n <= to; ++n) set |= Lengths(n);
  return set;
}
// What any Canadian account may look like (7 to 12 digits, as gocardless/ibandit reads them):
// the rule of an institution the table does not know.
inline constexpr LengthSet kAnyAccountLength = LengthRange(7, 12);

struct Institution {
  std::string_view number;  // 3 digits; the business-number registry has 6
  std::string_view name;
  AccountRule rule;
  LengthSet account_lengths;
};

// The institutions the built-in verifier knows, ordered by number: the rows of
// data/institutions.csv, compiled in and read on first use.
std::span<const Institution> KnownInstitutions();

// The institution with this number, or null.
const Institution* FindInstitution(std::string_view number);

// The pseudo-institution under which business numbers are verified as accounts.
inline constexpr std::string_view kBusinessNumberRegistry = kBusinessNumberBankId;

}  // namespace nvrandom::verifier
