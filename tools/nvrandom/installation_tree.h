#pragma once

#include <string>

namespace nvrandom::scenario {

// A fresh temporary installation: <root>/Apps/NORVIK/Bin/ holding the sample country file. The
// folder and everything in it are removed when the tree goes out of scope.
class InstallationTree {
 public:
  InstallationTree();
  ~InstallationTree();
  InstallationTree(const InstallationTree&) = delete;
  InstallationTree& operator=(const InstallationTree&) = delete;

  bool ok() const { return !root_.empty(); }
  // Both end in a separator, as $ROOT and $INSTALL expand.
  const std::string& root() const { return root_; }
  const std::string& install() const { return install_; }

 private:
  std::string root_;
  std::string install_;
};

// The sample country list (heading first), as plain rows.
std::string_view SampleCountries();

// Writes `plain_rows` (one row a line) enciphered to `file`, rows ending in CR LF.
bool WriteCountryFile(const std::string& file, std::string_view plain_rows);

}  // namespace nvrandom::scenario
