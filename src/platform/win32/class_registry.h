#pragma once

#include <windows.h>

#include <string>

// COM class registration under <root>\Software\Classes: HKEY_CURRENT_USER for a registration
// without administrator rights, HKEY_LOCAL_MACHINE for the whole machine.
namespace nvrandom::registry {

// <root>\Software\Classes\<key>, created when missing, with the value `name` (null: the key's
// default value) set to `value`. False when either fails.
bool SetClassesValue(HKEY root, const std::wstring& key, const wchar_t* name,
                     const std::wstring& value);

// Removes <root>\Software\Classes\<key> with everything below it; nothing when it is missing.
void DeleteClassesKey(HKEY root, const std::wstring& key);

// The text form of a GUID, "{xxxxxxxx-...}".
std::wstring GuidText(REFGUID guid);

}  // namespace nvrandom::registry
