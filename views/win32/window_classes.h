#pragma once

#include <windows.h>

namespace nvrandom::win32 {

// The module (EXE or DLL) this view is linked into: its window classes are registered for it.
HINSTANCE ViewModule();

// The view's window classes (form, frame, data-list drop-down), registered while at least one
// view exists: a DLL that is unloaded must leave no class whose procedure points into it.
void RegisterWindowClasses();
void UnregisterWindowClasses();

inline constexpr const wchar_t* kFrameClass = L"NVRandomFrame";
inline constexpr const wchar_t* kDropDownClass = L"NVRandomDropDown";

}  // namespace nvrandom::win32
