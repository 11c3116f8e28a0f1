#include "verifier/builtin_bank_check_library.h"

#include <algorithm>

#include "verifier/bank_rules.h"

namespace nvrandom::verifier {

int16_t BuiltinBankCheckLibrary::Check_bank_id(std::string_view bank_id) {
  return CheckBankId(bank_id).result;
}

int16_t BuiltinBankCheckLibrary::Check_bank_account2(std::string_view bank_id,
                                                     std::string_view transit,
                                                     std::string_view account, std::string& message,
                                                     int32_t& message_length, bool /*flag*/) {
  const CheckOutcome outcome = CheckBankAccount(bank_id, transit, account);
  // Written into the caller's buffer like a fixed-length string: cut to its room, the rest of
  // the buffer left as it was.
  const size_t written = std::min(outcome.message.size(), message.size());
  std::copy_n(outcome.message.begin(), written, message.begin());
  message_length = static_cast<int32_t>(written);
  return outcome.result;
}

}  // namespace nvrandom::verifier
