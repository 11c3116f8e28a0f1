#include "platform/path.h"

#include <strings.h>
#include <sys/stat.h>

#include <dirent.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace nvrandom::path {

std::string Join(std::string_view root, std::string_view name) {
  std::string joined(root);
  if (!joined.empty() && joined.back() != kSeparator) joined += kSeparator;
  joined += name;
  return joined;
}

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

std::optional<std::string> ReadFile(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  std::string content((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) return std::nullopt;
  return content;
}

bool CopyFile(const std::string& from, const std::string& to) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::path target(to);
  if (target.has_parent_path()) fs::create_directories(target.parent_path(), error);
  if (error) return false;
  return fs::copy_file(from, target, fs::copy_options::overwrite_existing, error) && !error;
}

bool FileExists(const std::string& file) {
  struct stat st {};
  return ::stat(file.c_str(), &st) == 0;
}

}  // namespace nvrandom::path
