#pragma once

#include <memory>

#include "platform/bank_check_library.h"

namespace nvrandom {

// The installation's bank-check library Acctvfy.dll when it is installed (beside the component or
// on the DLL search path, see InstalledLibrary), else `fallback` (the built-in one). Looked for at
// each check.
//
// Its entry points, stdcall with 8-bit texts (undecorated names in a 64-bit build):
//   int16 _Check_bank_id@4(const char* bank_id)
//   int16 _Check_bank_account2@24(const char* bank_id, const char* transit, const char* account,
//                                 char* message, int32* message_length, int32 flag)
// `message` is a buffer of the caller's room plus a terminating zero; the library writes its
// message at its start and the message's length through `message_length`.
//
// An installed library without the entry point raises RuntimeError 453 ("Can't find DLL entry
// point ... in Acctvfy.dll"), as a declared library function does; a text that the ANSI code page
// cannot hold raises 5 (invalid argument). The callers trap both.
class InstalledBankCheckLibrary final : public BankCheckLibrary {
 public:
  explicit InstalledBankCheckLibrary(std::shared_ptr<BankCheckLibrary> fallback)
      : fallback_(std::move(fallback)) {}

  int16_t Check_bank_id(std::string_view bank_id) override;
  int16_t Check_bank_account2(std::string_view bank_id, std::string_view transit,
                              std::string_view account, std::string& message,
                              int32_t& message_length, bool flag) override;

 private:
  std::shared_ptr<BankCheckLibrary> fallback_;
};

}  // namespace nvrandom
