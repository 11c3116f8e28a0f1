#include "component/store.h"

#include "platform/path.h"

namespace nvrandom {

namespace {
size_t NorvikFolderAt(const std::string& dll_path) {
  return dll_path.find(std::string(1, path::kSeparator) + "NORVIK");
}
}  // namespace

std::string InstallRootOf(const std::string& dll_path) {
  const size_t at = NorvikFolderAt(dll_path);
  return at == std::string::npos ? std::string() : dll_path.substr(0, at + 1);
}

std::string DataPathOf(const std::string& dll_path) {
  const size_t at = NorvikFolderAt(dll_path);
  return at == std::string::npos ? dll_path : dll_path.substr(0, at);
}

}  // namespace nvrandom
