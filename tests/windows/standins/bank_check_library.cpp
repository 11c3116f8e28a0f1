// A bank-check library for the tests of the Windows build: the installation's Acctvfy.dll as the
// component calls it, deciding by the published institution rules of the built-in verifier but
// answering in its own words, so that a test can tell which of the two answered. Unlike the
// built-in checks it knows no doubtful institution: an institution missing from its table is not
// valid.
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/ascii.h"
#include "verifier/bank_rules.h"

namespace {

namespace rules = nvrandom::verifier;

std::string_view Text(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

// Written over the start of the caller's buffer, which holds `room` characters.
void Report(const std::string& message, char* buffer, size_t room, int32_t* length) {
  const size_t written = buffer == nullptr ? 0 : std::min(message.size(), room);
  if (written > 0) std::memcpy(buffer, message.data(), written);
  if (length != nullptr) *length = static_cast<int32_t>(written);
}

}  // namespace

extern "C" int16_t WINAPI Check_bank_id(const char* bank_id) {
  return rules::ReadBankId(Text(bank_id)).institution != nullptr ? 1 : 0;
}

// The older account check, without a message.
extern "C" int16_t WINAPI Check_bank_account(const char* bank_id, const char* transit,
                                             const char* account) {
  return rules::CheckBankAccount(Text(bank_id), Text(transit), Text(account)).result;
}

// The buffer's room is what the caller filled it with: its text up to the terminating zero.
extern "C" int16_t WINAPI Check_bank_account2(const char* bank_id, const char* transit,
                                              const char* account, char* message,
                                              int32_t* message_length, int32_t /*flag*/) {
  const size_t room = message == nullptr ? 0 : std::strlen(message);
  const rules::BankIdReading reading = rules::ReadBankId(Text(bank_id));
  if (reading.institution == nullptr) {
    Report("ACCTVFY: institution " + std::string(nvrandom::ascii::TrimBlanks(Text(bank_id))) +
               " is not in the bank-check table.",
           message, room, message_length);
    return 0;
  }
  const rules::CheckOutcome outcome =
      rules::CheckBankAccount(Text(bank_id), Text(transit), Text(account));
  Report(outcome.message.empty() ? std::string() : "ACCTVFY: " + outcome.message, message, room,
         message_length);
  return outcome.result;
}
