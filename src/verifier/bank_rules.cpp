#include "verifier/bank_rules.h"

#include <algorithm>
#include <array>

#include "platform/ascii.h"

namespace nvrandom::verifier {

namespace {

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), ascii::IsDigit);
}

bool AllZeros(std::string_view text) {
  return !text.empty() && text.find_first_not_of('0') == std::string_view::npos;
}

CheckOutcome Refused(std::string message) {
  return CheckOutcome{check_result::kRefused, std::move(message)};
}

// "7", "7 or 12", "7 to 12", "7, 9 or 12".
std::string DescribeLengths(LengthSet set) {
  std::array<int, 32> lengths{};
  size_t count = 0;
  for (int n = 0; n < 32; ++n) {
    if ((set & Lengths(n)) != 0) lengths[count++] = n;
  }
  if (count == 0) return "no";
  const bool contiguous = lengths[count - 1] - lengths[0] + 1 == static_cast<int>(count);
  if (count > 2 && contiguous) {
    return std::to_string(lengths[0]) + " to " + std::to_string(lengths[count - 1]);
  }
  std::string text;
  for (size_t i = 0; i < count; ++i) {
    if (i > 0) text += (i + 1 == count) ? " or " : ", ";
    text += std::to_string(lengths[i]);
  }
  return text;
}

bool LengthAllowed(LengthSet set, size_t length) {
  return length < 32 && (set & Lengths(static_cast<int>(length))) != 0;
}

constexpr std::array<std::string_view, 6> kProgramIdentifiers = {"RC", "RM", "RP",
                                                                 "RR", "RT", "RZ"};

CheckOutcome CheckTransit(std::string_view transit) {
  const std::string_view t = ascii::TrimBlanks(transit);
  if (t.empty()) return Refused("Please enter the transit number of the branch.");
  if (t.size() != 5 || !AllDigits(t)) return Refused("The transit number must have 5 digits.");
  if (AllZeros(t)) return Refused("The transit number cannot be 00000.");
  return CheckOutcome{check_result::kValid, {}};
}

}  // namespace

BankIdReading ReadBankId(std::string_view bank_id) {
  BankIdReading reading;
  const std::string_view id = ascii::TrimBlanks(bank_id);
  if (id.empty()) {
    reading.error = "Please enter the Bank ID.";
  } else if (!AllDigits(id)) {
    reading.error = "The Bank ID may contain digits only.";
  } else if (id.size() == 3) {
    reading.number = id;
  } else if (id.size() == 4 && id.front() == '0') {
    reading.number = id.substr(1);
  } else if (id.size() == 6 && FindInstitution(id) != nullptr) {
    reading.number = id;
  } else {
    reading.error = "The Bank ID must have 3 digits.";
  }
  if (!reading.number.empty()) reading.institution = FindInstitution(reading.number);
  return reading;
}

CheckOutcome CheckBankId(std::string_view bank_id) {
  BankIdReading reading = ReadBankId(bank_id);
  if (!reading.error.empty()) return Refused(std::move(reading.error));
  if (reading.institution == nullptr) {
    return CheckOutcome{check_result::kDoubtful,
                        "Bank ID " + reading.number +
                            " is not the number of a known Canadian financial institution."};
  }
  return CheckOutcome{check_result::kValid, {}};
}

CheckOutcome CheckBankAccount(std::string_view bank_id, std::string_view transit,
                              std::string_view account) {
  BankIdReading reading = ReadBankId(bank_id);
  if (!reading.error.empty()) return Refused(std::move(reading.error));
  const bool has_branches =
      reading.institution == nullptr || reading.institution->rule == AccountRule::kDigits;
  if (has_branches) {
    CheckOutcome branch = CheckTransit(transit);
    if (branch.result != check_result::kValid) return branch;
  }
  return CheckAccountNumber(reading.institution, ascii::TrimBlanks(account));
}

CheckOutcome CheckAccount(std::string_view bank_id, std::string_view account) {
  BankIdReading reading = ReadBankId(bank_id);
  if (!reading.error.empty()) return Refused(std::move(reading.error));
  return CheckAccountNumber(reading.institution, ascii::TrimBlanks(account));
}

CheckOutcome CheckAccountNumber(const Institution* institution, std::string_view account) {
  if (institution != nullptr && institution->rule == AccountRule::kBusinessProgram) {
    return CheckBusinessProgramAccount(account);
  }
  if (account.empty()) return Refused("Please enter the account number.");
  if (!AllDigits(account)) return Refused("The account number may contain digits only.");
  const LengthSet lengths =
      institution != nullptr ? institution->account_lengths : kAnyAccountLength;
  if (!LengthAllowed(lengths, account.size())) {
    std::string message = "An account number";
    if (institution != nullptr) {
      message += " at ";
      message += institution->name;
    }
    message += " has " + DescribeLengths(lengths) + " digits.";
    return Refused(std::move(message));
  }
  if (AllZeros(account)) return Refused("The account number cannot be all zeros.");
  return CheckOutcome{check_result::kToBeConfirmed, {}};
}

CheckOutcome CheckBusinessProgramAccount(std::string_view account) {
  constexpr size_t kNumberDigits = 9;
  constexpr size_t kProgramAt = 9;
  constexpr size_t kReferenceAt = 11;
  constexpr size_t kLength = 15;
  const bool shaped = account.size() == kLength && AllDigits(account.substr(0, kNumberDigits)) &&
                      ascii::IsUpper(account[kProgramAt]) &&
                      ascii::IsUpper(account[kProgramAt + 1]) &&
                      AllDigits(account.substr(kReferenceAt));
  if (!shaped) {
    return Refused(
        "A business number account is 9 digits, a 2-letter program identifier and a 4-digit "
        "reference number, as in 123456789RT0001.");
  }
  const std::string_view number = account.substr(0, kNumberDigits);
  const std::string_view program = account.substr(kProgramAt, 2);
  const std::string_view reference = account.substr(kReferenceAt);
  if (AllZeros(number) || !LuhnValid(number)) {
    return Refused("The business number " + std::string(number) + " is not valid.");
  }
  if (std::find(kProgramIdentifiers.begin(), kProgramIdentifiers.end(), program) ==
      kProgramIdentifiers.end()) {
    return Refused("The program identifier " + std::string(program) + " is not known.");
  }
  if (AllZeros(reference)) return Refused("The reference number cannot be 0000.");
  return CheckOutcome{check_result::kValid, {}};
}

bool LuhnValid(std::string_view digits) {
  if (digits.empty() || !AllDigits(digits)) return false;
  int sum = 0;
  bool doubled = false;
  for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
    int d = *it - '0';
    if (doubled) {
      d *= 2;
      if (d > 9) d -= 9;
    }
    sum = (sum + d) % 10;
    doubled = !doubled;
  }
  return sum == 0;
}

}  // namespace nvrandom::verifier
