#include "platform/win32/installed_country_decipher.h"

#include <windows.h>

#include <algorithm>

#include "platform/path.h"
#include "platform/win32/ansi_text.h"
#include "platform/win32/installed_library.h"
#include "platform/win32/wide_text.h"

namespace nvrandom {

namespace {

using DecipherEntry = int32_t(WINAPI*)(const char* enciphered_path, const char* plain_path);

// Deletes the file when it goes out of scope, read-only or not.
class RemovedAtEnd {
 public:
  explicit RemovedAtEnd(std::wstring path) : path_(std::move(path)) { Remove(); }
  RemovedAtEnd(const RemovedAtEnd&) = delete;
  RemovedAtEnd& operator=(const RemovedAtEnd&) = delete;
  ~RemovedAtEnd() { Remove(); }

 private:
  void Remove() const {
    ::SetFileAttributesW(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
    ::DeleteFileW(path_.c_str());
  }
  std::wstring path_;
};

// Text as a country list holds it: no control characters but tab, line feed and carriage return.
bool IsPlainText(std::string_view data) {
  return std::none_of(data.begin(), data.end(), [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t' && c != '\n' && c != '\r') || byte == 0x7f;
  });
}

std::wstring FolderOf(const std::wstring& path) {
  const size_t end = path.find_last_of(L"\\/");
  return end == std::wstring::npos ? std::wstring() : path.substr(0, end + 1);
}

}  // namespace

std::optional<std::string> InstalledCountryFileDecipher::Decipher(const std::string& path) {
  const std::wstring wide_path = wide::FromUtf8(path);
  const InstalledLibrary library = InstalledLibrary::Find(L"kvd8rq3x.dll", FolderOf(wide_path));
  if (!library) return fallback_ ? fallback_->Decipher(path) : std::nullopt;
  const auto entry = library.Export<DecipherEntry>({"_DES_decrypt_file@8", "DES_decrypt_file"});
  if (entry == nullptr) return std::nullopt;
  if (::GetFileAttributesW(wide_path.c_str()) == INVALID_FILE_ATTRIBUTES) return std::nullopt;

  const std::wstring plain_path = wide_path + L".dec";
  const RemovedAtEnd plain_copy(plain_path);
  const auto enciphered_8bit = ansi::PathFor8BitEntry(wide_path);
  const auto plain_8bit = ansi::PathFor8BitEntry(plain_path);
  if (!enciphered_8bit || !plain_8bit) return std::nullopt;
  entry(enciphered_8bit->c_str(), plain_8bit->c_str());

  const auto text =
      path::ReadFile(wide::ToUtf8(plain_path), BuiltinCountryFileDecipher::kMaxFileSize);
  if (!text || text->empty() || !IsPlainText(*text)) return std::nullopt;
  return ansi::ToUtf8(*text);
}

}  // namespace nvrandom
