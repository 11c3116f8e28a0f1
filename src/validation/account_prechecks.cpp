#include "validation/account_prechecks.h"

#include <algorithm>
#include <array>

#include "platform/ascii.h"
#include "validation/number_text.h"
#include "validation/text.h"

namespace nvrandom::validation {

AccountFault FindAccountFault(std::string_view account) {
  if (account.find(' ') != std::string_view::npos) return AccountFault::kContainsBlank;
  // Without blanks the account is its own trimmed form.
  if (CharacterCount(account) < 4) return AccountFault::kTooShort;
  const bool valid = std::all_of(account.begin(), account.end(),
                                 [](char c) { return ascii::IsDigit(c) || ascii::IsUpper(c); });
  return valid ? AccountFault::kNone : AccountFault::kInvalidCharacters;
}

std::string_view AccountCheckBankId(std::string_view bank_id, int bank_id_length) {
  const std::string_view trimmed = TrimBlanks(bank_id);
  if (CharacterCount(trimmed) == static_cast<size_t>(bank_id_length) + 1)
    return LeftCharacters(trimmed, bank_id_length);
  return bank_id;
}

std::optional<std::string> BusinessNumberAccount(std::string_view number) {
  // Made-up numbers people type when they have none; only the first eight digits are compared.
  static constexpr std::array<std::string_view, 11> kDummyNumbers = {
      "12345678", "11111111", "22222222", "33333333", "44444444", "55555555",
      "66666666", "77777777", "88888888", "99999999", "00000000"};
  const std::string_view trimmed = TrimBlanks(number);
  if (trimmed.empty() || CharacterCount(trimmed) < 9) return std::nullopt;
  const std::string_view first9 = LeftCharacters(number, 9);
  if (!IsGeneralNumber(first9)) return std::nullopt;
  // A numeric text is ASCII, so its first eight characters are its first eight bytes.
  const std::string_view first8 = first9.substr(0, 8);
  if (std::find(kDummyNumbers.begin(), kDummyNumbers.end(), first8) != kDummyNumbers.end()) {
    return std::nullopt;
  }
  std::string account(first9);
  account += "RT0001";
  return account;
}

}  // namespace nvrandom::validation
