#include "verifier/builtin_account_verifier.h"

#include <algorithm>
#include <charconv>

#include "verifier/bank_rules.h"

namespace nvrandom::verifier {

namespace {

std::string_view FirstOf(std::string_view text, int16_t length) {
  return length > 0 ? text.substr(0, static_cast<size_t>(length)) : text;
}

int16_t LengthOf(const std::string& message) {
  return static_cast<int16_t>(std::min<size_t>(message.size(), INT16_MAX));
}

int16_t NumberOf(const std::string& digits) {
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return static_cast<int16_t>(std::clamp(value, 0, static_cast<int>(INT16_MAX)));
}

}  // namespace

void BuiltinAccountVerifier::VerifyAccount(std::string_view bank_id, std::string_view account,
                                           bool /*flag*/, std::string& error_message,
                                           int16_t& second_result, int16_t& result) {
  const std::string_view id = FirstOf(bank_id, bank_id_length_);
  const BankIdReading reading = ReadBankId(id);
  second_result = NumberOf(reading.number);
  CheckOutcome outcome = CheckAccount(id, FirstOf(account, account_length_));
  error_message = std::move(outcome.message);
  result = outcome.result;
}

void BuiltinAccountVerifier::ValidateBankId(std::string_view bank_id, bool /*flag*/,
                                            std::string& error_message, int16_t& error_length,
                                            int16_t& result) {
  CheckOutcome outcome = CheckBankId(bank_id);
  error_message = std::move(outcome.message);
  error_length = LengthOf(error_message);
  result = outcome.result;
}

void BuiltinAccountVerifier::ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                                                 std::string_view account,
                                                 std::string& error_message, int16_t& error_length,
                                                 bool /*flag*/, int16_t& result) {
  CheckOutcome outcome = CheckBankAccount(bank_id, transit, account);
  error_message = std::move(outcome.message);
  error_length = LengthOf(error_message);
  result = outcome.result;
}

}  // namespace nvrandom::verifier
