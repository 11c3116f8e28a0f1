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
}  // namespace nvrandom::com
