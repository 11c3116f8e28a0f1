#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nvrandom::validation {

inline constexpr std::string_view kBlankInAccountMessage =
    "Please do not enter any blank characters in the account number.";
inline constexpr std::string_view kShortAccountMessage =
    "Account number should not be less than four characters.";
inline constexpr std::string_view kInvalidAccountCharactersMessage =
    "The account entered contains invalid characters.  Valid accounts uppercase alpha and/or "
    "numeric characters.";

// What the local checks find wrong with an account before the verifier is asked, in the order
// they look: a blank anywhere, fewer than four characters, a character other than 0-9 and A-Z.
enum class AccountFault { kNone, kContainsBlank, kTooShort, kInvalidCharacters };
AccountFault FindAccountFault(std::string_view account);

// The bank id the account verification pads: a trimmed id one character longer than
// `bank_id_length` loses its last character; any other id is kept as given.
std::string_view AccountCheckBankId(std::string_view bank_id, int bank_id_length);

// The account value under which a business number is verified: its first nine characters and
// "RT0001"; nothing when the number is refused before that (empty, shorter than nine characters,
// first nine not numeric, first eight a made-up number such as 12345678 or 11111111).
std::optional<std::string> BusinessNumberAccount(std::string_view number);

}  // namespace nvrandom::validation
