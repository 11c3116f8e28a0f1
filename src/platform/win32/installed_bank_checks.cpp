#include "platform/win32/installed_bank_checks.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "platform/runtime_error.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/installed_library.h"

namespace nvrandom {

namespace {

using CheckBankIdEntry = int16_t(WINAPI*)(const char* bank_id);
using CheckBankAccount2Entry = int16_t(WINAPI*)(const char* bank_id, const char* transit,
                                                const char* account, char* message,
                                                int32_t* message_length, int32_t flag);

constexpr wchar_t kLibraryName[] = L"Acctvfy.dll";

template <typename F>
F RequiredExport(const InstalledLibrary& library, const char* decorated, const char* plain) {
  const F entry = library.Export<F>({decorated, plain});
  if (entry == nullptr) {
    throw RuntimeError(vb_error::kDllEntryPointNotFound,
                       std::string("Can't find DLL entry point ") + decorated + " in Acctvfy.dll");
  }
  return entry;
}

std::string Ansi(std::string_view text) {
  auto converted = ansi::FromUtf8(text);
  if (!converted) throw RuntimeError(vb_error::kInvalidProcedureCall);
  return std::move(*converted);
}

}  // namespace

int16_t InstalledBankCheckLibrary::Check_bank_id(std::string_view bank_id) {
  const InstalledLibrary library = InstalledLibrary::Find(kLibraryName);
  if (!library) return fallback_->Check_bank_id(bank_id);
  const auto entry = RequiredExport<CheckBankIdEntry>(library, "_Check_bank_id@4", "Check_bank_id");
  return entry(Ansi(bank_id).c_str());
}

int16_t InstalledBankCheckLibrary::Check_bank_account2(std::string_view bank_id,
                                                       std::string_view transit,
                                                       std::string_view account,
                                                       std::string& message,
                                                       int32_t& message_length, bool flag) {
  const InstalledLibrary library = InstalledLibrary::Find(kLibraryName);
  if (!library) {
    return fallback_->Check_bank_account2(bank_id, transit, account, message, message_length, flag);
  }
  const auto entry = RequiredExport<CheckBankAccount2Entry>(library, "_Check_bank_account2@24",
                                                            "Check_bank_account2");
  // The caller's buffer, 8-bit, with a zero after its room in case the library terminates it.
  std::string buffer(message.size() + 1, '\0');
  std::copy(message.begin(), message.end(), buffer.begin());
  int32_t written = 0;
  const int16_t result = entry(Ansi(bank_id).c_str(), Ansi(transit).c_str(), Ansi(account).c_str(),
                               buffer.data(), &written, flag ? -1 : 0);
  written = std::clamp<int32_t>(written, 0, static_cast<int32_t>(message.size()));
  const std::string text = ansi::ToUtf8(std::string_view(buffer).substr(0, written));
  const size_t room = std::min(text.size(), message.size());
  std::copy_n(text.begin(), room, message.begin());
  message_length = static_cast<int32_t>(room);
  return result;
}

}  // namespace nvrandom
