#pragma once

#include <windows.h>

namespace nvrandom::win32 {

// The module (EXE or DLL) this view is linked into: its window classes are registered for it.
HINSTANCE ViewModule();

// The view's window classes (form, frame, data-list drop-down), registered while at least one
// view exists: a DLL that is unloaded must leave no class whose procedure points into it.
void RegisterWindowClasses();
void UnregisterWindowClasses();

// The window procedure of a class whose windows belong to a C++ object: the object is handed to
// CreateWindowExW as its parameter, kept in GWLP_USERDATA from WM_NCCREATE (when `handle` is set)
// until WM_NCDESTROY (when `handle` is cleared), and given every message in between; messages
// without an object go to DefWindowProcW.
template <typename Owner>
LRESULT DispatchToOwner(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam, HWND Owner::*handle,
                        LRESULT (Owner::*handler)(UINT, WPARAM, LPARAM)) {
  if (message == WM_NCCREATE) {
    auto* owner =
        static_cast<Owner*>(reinterpret_cast<const CREATESTRUCTW*>(lparam)->lpCreateParams);
    owner->*handle = hwnd;
    ::SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(owner));
  }
  auto* owner = reinterpret_cast<Owner*>(::GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (message == WM_NCDESTROY && owner != nullptr) {
    ::SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
    owner->*handle = nullptr;
    owner = nullptr;
  }
  if (owner == nullptr) return ::DefWindowProcW(hwnd, message, wparam, lparam);
  return (owner->*handler)(message, wparam, lparam);
}

inline constexpr const wchar_t* kFrameClass = L"NVRandomFrame";
inline constexpr const wchar_t* kDropDownClass = L"NVRandomDropDown";

}  // namespace nvrandom::win32
