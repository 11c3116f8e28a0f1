#pragma once

#include "platform/bank_check_library.h"

namespace nvrandom::verifier {

// The bank-check library that ships with the component: the built-in verifier's rules behind the
// library's two entry points. Check_bank_id answers 1 for a known institution, 3 for a
// well-formed unknown one (doubtful) and 0 for a malformed id.
class BuiltinBankCheckLibrary final : public BankCheckLibrary {
 public:
  int16_t Check_bank_id(std::string_view bank_id) override;
  int16_t Check_bank_account2(std::string_view bank_id, std::string_view transit,
                              std::string_view account, std::string& message,
                              int32_t& message_length, bool flag) override;
};

}  // namespace nvrandom::verifier
