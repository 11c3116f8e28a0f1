#pragma once

#include <windows.h>
// windows.h first: the generated header uses its types.
#include "NVRandom_h.h"

// The server's names and the identifiers its type library declares (NVRandom.idl, made by
// make_idl.cpp).
namespace nvrandom::com {

inline constexpr const wchar_t* kProgId = L"NVRandom.ClsRandom";
inline constexpr const wchar_t* kVersionedProgId = L"NVRandom.ClsRandom.1";
inline constexpr const wchar_t* kClassName = L"NVRandom.ClsRandom";

// Objects and locks alive in this module: DllCanUnloadNow answers S_OK only at zero.
void AddModuleReference();
void ReleaseModuleReference();
long ModuleReferences();

// The type library embedded in this module (resource 1), loaded once and kept until
// ReleaseModuleTypeLib (DllCanUnloadNow calls it when nothing of the module is alive).
HRESULT ModuleTypeLib(ITypeLib** out);
void ReleaseModuleTypeLib();
HRESULT ModuleTypeInfo(REFGUID guid, ITypeInfo** out);

}  // namespace nvrandom::com
