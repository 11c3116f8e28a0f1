#include "platform/win32/class_registry.h"

#include <objbase.h>

namespace nvrandom::registry {

bool SetClassesValue(HKEY root, const std::wstring& key, const wchar_t* name,
                     const std::wstring& value) {
  HKEY handle = nullptr;
  const std::wstring full = L"Software\\Classes\\" + key;
  if (::RegCreateKeyExW(root, full.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &handle,
                        nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const LSTATUS status =
      ::RegSetValueExW(handle, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                       static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  ::RegCloseKey(handle);
  return status == ERROR_SUCCESS;
}

void DeleteClassesKey(HKEY root, const std::wstring& key) {
  ::RegDeleteTreeW(root, (L"Software\\Classes\\" + key).c_str());
}

std::wstring GuidText(REFGUID guid) {
  wchar_t text[40] = {};
  ::StringFromGUID2(guid, text, 40);
  return text;
}

}  // namespace nvrandom::registry
