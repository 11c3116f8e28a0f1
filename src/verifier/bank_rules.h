#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "verifier/institutions.h"

namespace nvrandom::verifier {

// Results of the built-in checks, as the acceptance chain reads them.
namespace check_result {
inline constexpr int16_t kRefused = 0;
// The bank id is a known institution; an account is confirmed and needs no re-keying.
inline constexpr int16_t kValid = 1;
// The account is well-formed but nobody asked the institution: the user confirms it by typing
// it a second time.
inline constexpr int16_t kToBeConfirmed = 2;
// The bank id is well-formed but no known institution has that number (a cheque number typed
// by mistake, or an institution newer than the table): the user is asked whether to keep it.
inline constexpr int16_t kDoubtful = 3;
}  // namespace check_result

struct CheckOutcome {
  int16_t result = check_result::kRefused;
  std::string message;  // why, when the result is not kValid or kToBeConfirmed
};

// A bank id as the component passes it, read as an institution number. Blanks around it are
// ignored (the account check pads it to six characters). Accepted forms: the three digits typed
// in the Bank ID box ("001"), the same preceded by a zero as in electronic routing numbers
// ("0001"), and the six digits of a pseudo-institution such as the business-number registry
// (kBusinessNumberBankId).
struct BankIdReading {
  std::string number;                        // empty when the id is malformed
  const Institution* institution = nullptr;  // null when the number is not in the table
  std::string error;                         // why the id is malformed
};
BankIdReading ReadBankId(std::string_view bank_id);

// The institution number alone: kValid, kDoubtful for a well-formed unknown number, kRefused.
CheckOutcome CheckBankId(std::string_view bank_id);

// Institution, branch transit (five digits) and account: kToBeConfirmed for a well-formed bank
// account, kValid for a verified business-number account (which has no transit), else kRefused.
// An unknown but well-formed institution is checked with the general account rule.
CheckOutcome CheckBankAccount(std::string_view bank_id, std::string_view transit,
                              std::string_view account);

// The same without a transit, as the account verification of a padded bank id and account.
CheckOutcome CheckAccount(std::string_view bank_id, std::string_view account);

// The account rule of one institution (null: the general rule), on the trimmed account.
CheckOutcome CheckAccountNumber(const Institution* institution, std::string_view account);

// The business-number program account: nine digits whose last is their check digit (the
// doubling mod-10 scheme), a program identifier (RC, RM, RP, RR, RT or RZ) and a reference
// number other than 0000.
CheckOutcome CheckBusinessProgramAccount(std::string_view account);

// The mod-10 check of a digit string whose last digit is the check digit: from the right, every
// second digit is doubled and the digits of the products added.
bool LuhnValid(std::string_view digits);

}  // namespace nvrandom::verifier
