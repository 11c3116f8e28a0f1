#include "platform/win32/ansi_text.h"

#include <windows.h>

#include "platform/win32/wide_text.h"

namespace nvrandom::ansi {

namespace {

std::optional<std::string> WideToAnsi(std::wstring_view wide) {
  if (wide.empty()) return std::string();
  const int size = static_cast<int>(wide.size());
  BOOL lossy = FALSE;
  const int bytes = ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), size, nullptr,
                                          0, nullptr, &lossy);
  if (bytes <= 0 || lossy) return std::nullopt;
  std::string out(static_cast<size_t>(bytes), '\0');
  ::WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), size, out.data(), bytes, nullptr,
                        nullptr);
  return out;
}

bool IsUtf8(std::string_view text) {
  return text.empty() || ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(),
                                               static_cast<int>(text.size()), nullptr, 0) > 0;
}

}  // namespace

std::optional<std::string> FromUtf8(std::string_view utf8) {
  return WideToAnsi(wide::FromUtf8(utf8));
}

std::string ToUtf8(std::string_view text) {
  if (IsUtf8(text)) return std::string(text);
  const int size = static_cast<int>(text.size());
  const int chars = ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<size_t>(chars > 0 ? chars : 0), L'\0');
  if (chars > 0) ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), chars);
  return wide::ToUtf8(wide);
}

std::optional<std::string> PathFor8BitEntry(const std::wstring& path) {
  if (auto direct = WideToAnsi(path)) return direct;
  const size_t name_start = path.find_last_of(L"\\/");
  if (name_start == std::wstring::npos) return std::nullopt;
  const auto name = WideToAnsi(std::wstring_view(path).substr(name_start));
  if (!name) return std::nullopt;
  const std::wstring folder = path.substr(0, name_start + 1);
  std::wstring short_folder(MAX_PATH, L'\0');
  DWORD length = ::GetShortPathNameW(folder.c_str(), short_folder.data(),
                                     static_cast<DWORD>(short_folder.size()));
  if (length > short_folder.size()) {
    short_folder.resize(length);
    length = ::GetShortPathNameW(folder.c_str(), short_folder.data(), length);
  }
  if (length == 0 || length > short_folder.size()) return std::nullopt;
  short_folder.resize(length);
  while (!short_folder.empty() && (short_folder.back() == L'\\' || short_folder.back() == L'/')) {
    short_folder.pop_back();
  }
  const auto folder_text = WideToAnsi(short_folder);
  if (!folder_text) return std::nullopt;
  return *folder_text + *name;
}

}  // namespace nvrandom::ansi
