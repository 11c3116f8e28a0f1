#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <utility>

namespace nvrandom {

// One of the host installation's own libraries, loaded for as long as the object lives. Loaded
// afresh for each use, so a library installed or removed while the host runs is noticed.
class InstalledLibrary {
 public:
  // Looks for `name` (e.g. L"Acctvfy.dll") in `folder` first when one is given (the installation
  // folder, with or without a trailing separator), then beside the module that holds this code
  // (NVRandom.dll, or the program it is linked into), then on the system's search path for DLLs.
  // An empty object when it is found nowhere.
  static InstalledLibrary Find(const std::wstring& name, const std::wstring& folder = {});

  InstalledLibrary() = default;
  InstalledLibrary(const InstalledLibrary&) = delete;
  InstalledLibrary& operator=(const InstalledLibrary&) = delete;
  InstalledLibrary(InstalledLibrary&& other) noexcept
      : module_(std::exchange(other.module_, nullptr)) {}
  InstalledLibrary& operator=(InstalledLibrary&& other) noexcept {
    std::swap(module_, other.module_);
    return *this;
  }
  ~InstalledLibrary() {
    if (module_ != nullptr) ::FreeLibrary(module_);
  }

  explicit operator bool() const { return module_ != nullptr; }

  // The first of `names` that the library exports, as a function of type F; null when none is.
  // The closed libraries were built for 32-bit hosts with stdcall names ("_Check_bank_id@4");
  // a 64-bit build of them has no decoration, so callers list the decorated name, then the plain.
  template <typename F>
  F Export(std::initializer_list<const char*> names) const {
    for (const char* name : names) {
      if (const FARPROC entry = ::GetProcAddress(module_, name)) {
        return reinterpret_cast<F>(reinterpret_cast<void*>(entry));
      }
    }
    return nullptr;
  }

 private:
  explicit InstalledLibrary(HMODULE module) : module_(module) {}
  HMODULE module_ = nullptr;
};

}  // namespace nvrandom
