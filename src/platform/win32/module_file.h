#pragma once

#include <windows.h>

#include <string>

namespace nvrandom {

// The full path of a loaded module's file, however long; empty when it cannot be read.
std::wstring ModuleFileName(HMODULE module);

// The module (DLL or program) whose image holds `address`: pass the address of a function of
// one's own to find the module one is linked into. Null when there is none.
HMODULE ModuleHolding(const void* address);

}  // namespace nvrandom
