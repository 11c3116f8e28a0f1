#include "installation_tree.h"

#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "platform/country_file_cipher.h"
#include "platform/path.h"

namespace nvrandom::scenario {

namespace fs = std::filesystem;

extern const char* const kSampleCountries;  // generated from data/FXCountries.csv

std::string_view SampleCountries() {
  return kSampleCountries;
}

bool WriteCountryFile(const std::string& file, std::string_view plain_rows) {
  std::string text;
  for (const char c : plain_rows) {
    if (c == '\r') continue;
    if (c == '\n') {
      text += "\r\n";
    } else {
      text += c;
    }
  }
  const auto enciphered = country_file::Encipher(text);
  if (!enciphered) return false;
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  return static_cast<bool>(out << *enciphered);
}

InstallationTree::InstallationTree() {
  const std::string root = path::MakeTemporaryFolder("nvrandom-");
  if (root.empty()) return;
  std::error_code ec;
  // The platform's separator: the component finds its installation root by "<sep>NORVIK".
  const std::string install =
      path::Join(path::Join(path::Join(root, "Apps"), "NORVIK"), "Bin") + path::kSeparator;
  fs::create_directories(install, ec);
  if (ec || !WriteCountryFile(install + "FXCountries", SampleCountries())) {
    fs::remove_all(root, ec);
    return;
  }
  root_ = root;
  install_ = install;
}

InstallationTree::~InstallationTree() {
  if (root_.empty()) return;
  std::error_code ec;
  // Files a scenario made read-only must not keep the tree behind.
  for (auto it = fs::recursive_directory_iterator(root_, ec); !ec && it != fs::end(it);
       it.increment(ec)) {
    fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
  }
  fs::permissions(root_, fs::perms::owner_all, fs::perm_options::add, ec);
  fs::remove_all(root_, ec);
}

}  // namespace nvrandom::scenario
