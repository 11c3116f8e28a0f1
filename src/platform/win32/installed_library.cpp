#include "platform/win32/installed_library.h"

#include "platform/win32/module_file.h"

namespace nvrandom {

namespace {

// The folder of the module this code is linked into, with a trailing separator.
std::wstring OwnModuleFolder() {
  const HMODULE self = ModuleHolding(reinterpret_cast<const void*>(&OwnModuleFolder));
  const std::wstring path = self == nullptr ? std::wstring() : ModuleFileName(self);
  const size_t end = path.find_last_of(L"\\/");
  return end == std::wstring::npos ? std::wstring() : path.substr(0, end + 1);
}

// The library's own folder is searched for what it imports, as for a program started there.
HMODULE LoadFrom(const std::wstring& folder, const std::wstring& name) {
  if (folder.empty()) return nullptr;
  std::wstring path = folder;
  if (path.back() != L'\\' && path.back() != L'/') path += L'\\';
  path += name;
  if (::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES) return nullptr;
  return ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

}  // namespace

InstalledLibrary InstalledLibrary::Find(const std::wstring& name, const std::wstring& folder) {
  // A missing library is an answer here, not an error for the user to dismiss.
  DWORD previous = 0;
  const bool quiet =
      ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &previous) != 0;
  HMODULE module = LoadFrom(folder, name);
  if (module == nullptr) module = LoadFrom(OwnModuleFolder(), name);
  if (module == nullptr) module = ::LoadLibraryW(name.c_str());
  if (quiet) ::SetThreadErrorMode(previous, nullptr);
  return InstalledLibrary(module);
}

}  // namespace nvrandom
