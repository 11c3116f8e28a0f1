#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/path.h"

namespace nvrandom::testing {

// A fresh folder below the system's temporary folder, removed with its content (whatever
// permissions a test gave it) at the end.
class TempFolder {
 public:
  TempFolder() {
    static int counter = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("nvrandom-test-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // The folder with a trailing separator, as gstrInstallRoot holds it.
  std::string root() const { return path_.string() + path::kSeparator; }
  // A DLLPath inside the NORVIK folder of this root.
  std::string DllPath() const { return root() + "NORVIK" + path::kSeparator + "Bin"; }

 private:
  std::filesystem::path path_;
};

// The file's bytes, empty when it cannot be read.
inline std::string ReadFile(const std::filesystem::path& file) {
  return path::ReadFile(file.string()).value_or("");
}

}  // namespace nvrandom::testing
