#include "platform/path.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#endif

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace nvrandom::path {

namespace {

#ifdef _WIN32
std::wstring Wide(std::string_view utf8) {
  if (utf8.empty()) return {};
  const int size =
      ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
  std::wstring wide(static_cast<size_t>(size), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), size);
  return wide;
}

std::string Narrow(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int size = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()),
                                         nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<size_t>(size), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), utf8.data(), size,
                        nullptr, nullptr);
  return utf8;
}
#endif

}  // namespace

std::string Join(std::string_view root, std::string_view name) {
  std::string joined(root);
  if (!joined.empty() && joined.back() != kSeparator) joined += kSeparator;
  joined += name;
  return joined;
}

#ifdef _WIN32

std::string ResolveFolder(const std::string& dir, std::string_view name) {
  // The file system ignores case itself; the entry's own spelling keeps paths alike on both
  // platforms.
  std::string exact = dir + std::string(name);
  WIN32_FIND_DATAW found{};
  const HANDLE search = ::FindFirstFileW(Wide(exact).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return exact;
  ::FindClose(search);
  return dir + Narrow(found.cFileName);
}

bool FileExists(const std::string& file) {
  return ::GetFileAttributesW(Wide(file).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool WriteToFile(const std::string& file, std::string_view data, bool truncate) {
  const HANDLE handle =
      ::CreateFileW(Wide(file).c_str(), truncate ? GENERIC_WRITE : FILE_APPEND_DATA,
                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    truncate ? CREATE_ALWAYS : OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  size_t written = 0;
  while (written < data.size()) {
    DWORD n = 0;
    const DWORD chunk = static_cast<DWORD>(std::min<size_t>(data.size() - written, 1U << 30));
    if (!::WriteFile(handle, data.data() + written, chunk, &n, nullptr) || n == 0) break;
    written += n;
  }
  ::CloseHandle(handle);
  return written == data.size();
}

std::string MakeTemporaryFolder(std::string_view prefix) {
  wchar_t base[MAX_PATH + 1];
  const DWORD length = ::GetTempPathW(MAX_PATH + 1, base);
  if (length == 0 || length > MAX_PATH) return {};
  for (unsigned attempt = 0; attempt < 100; ++attempt) {
    const std::wstring folder = std::wstring(base, length) + Wide(prefix) +
                                std::to_wstring(::GetCurrentProcessId()) + L"-" +
                                std::to_wstring(::GetTickCount64() + attempt);
    if (::CreateDirectoryW(folder.c_str(), nullptr)) return Narrow(folder) + kSeparator;
    if (::GetLastError() != ERROR_ALREADY_EXISTS) return {};
  }
  return {};
}

#else

std::string ResolveFolder(const std::string& dir, std::string_view name) {
  std::string exact = dir + std::string(name);
  struct stat st {};
  if (::stat(exact.c_str(), &st) == 0) return exact;
  DIR* d = ::opendir(dir.empty() ? "." : dir.c_str());
  if (d == nullptr) return exact;
  std::string found;
  const std::string wanted(name);
  while (const dirent* entry = ::readdir(d)) {
    if (::strcasecmp(entry->d_name, wanted.c_str()) == 0) {
      found = dir + entry->d_name;
      break;
    }
  }
  ::closedir(d);
  return found.empty() ? exact : found;
}

bool FileExists(const std::string& file) {
  struct stat st {};
  return ::stat(file.c_str(), &st) == 0;
}

bool WriteToFile(const std::string& file, std::string_view data, bool truncate) {
  const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | (truncate ? O_TRUNC : O_APPEND);
  const int fd = ::open(file.c_str(), flags, 0644);
  if (fd < 0) return false;
  size_t written = 0;
  while (written < data.size()) {
    const ssize_t n = ::write(fd, data.data() + written, data.size() - written);
    if (n <= 0) break;
    written += static_cast<size_t>(n);
  }
  ::close(fd);
  return written == data.size();
}

std::string MakeTemporaryFolder(std::string_view prefix) {
  std::error_code ec;
  const std::filesystem::path base = std::filesystem::temp_directory_path(ec);
  if (ec) return {};
  std::string pattern = (base / std::string(prefix)).string() + "XXXXXX";
  std::vector<char> buffer(pattern.begin(), pattern.end());
  buffer.push_back('\0');
  if (::mkdtemp(buffer.data()) == nullptr) return {};
  return std::string(buffer.data()) + kSeparator;
}

#endif

std::optional<std::string> ReadFile(const std::string& file, size_t max_size) {
#ifdef _WIN32
  std::ifstream in(std::filesystem::path(Wide(file)), std::ios::binary);
#else
  std::ifstream in(file, std::ios::binary);
#endif
  if (!in) return std::nullopt;
  in.seekg(0, std::ios::end);
  const std::streamoff size = in.tellg();
  if (size >= 0) {
    if (static_cast<unsigned long long>(size) > max_size) return std::nullopt;
    std::string content(static_cast<size_t>(size), '\0');
    in.seekg(0);
    if (!in.read(content.data(), size)) return std::nullopt;
    return content;
  }
  // A pipe or device has no size to ask: read it through, up to the limit.
  in.clear();
  std::string content;
  char buffer[4096];
  while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
    content.append(buffer, static_cast<size_t>(in.gcount()));
    if (content.size() > max_size) return std::nullopt;
  }
  if (in.bad()) return std::nullopt;
  return content;
}

bool CopyFileReplacing(const std::string& from, const std::string& to) {
  namespace fs = std::filesystem;
  std::error_code error;
#ifdef _WIN32
  const fs::path source(Wide(from)), target(Wide(to));
#else
  const fs::path source(from), target(to);
#endif
  if (target.has_parent_path()) fs::create_directories(target.parent_path(), error);
  if (error) return false;
  return fs::copy_file(source, target, fs::copy_options::overwrite_existing, error) && !error;
}

}  // namespace nvrandom::path
