#include "window_classes.h"

#include <commctrl.h>

#include <mutex>

#include "data_list_popup.h"
#include "form_window.h"
#include "frame_window.h"

namespace nvrandom::win32 {

namespace {

std::mutex g_mutex;
int g_views = 0;

void Register(const wchar_t* name, WNDPROC procedure, HBRUSH background, UINT style) {
  WNDCLASSEXW window_class{};
  window_class.cbSize = sizeof(window_class);
  window_class.style = style;
  window_class.lpfnWndProc = procedure;
  window_class.hInstance = ViewModule();
  window_class.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = background;
  window_class.lpszClassName = name;
  ::RegisterClassExW(&window_class);
}

}  // namespace

HINSTANCE ViewModule() {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(reinterpret_cast<const void*>(&ViewModule)), &module);
  return module;
}

void RegisterWindowClasses() {
  std::lock_guard lock(g_mutex);
  if (g_views++ > 0) return;
  INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES};
  ::InitCommonControlsEx(&controls);
  Register(FormWindow::kClassName, &FormWindow::WindowProc, nullptr, CS_DBLCLKS);
  Register(kFrameClass, &FrameWindowProc, nullptr, CS_DBLCLKS);
  Register(kDropDownClass, &DataListPopup::WindowProc, nullptr, CS_DROPSHADOW);
}

void UnregisterWindowClasses() {
  std::lock_guard lock(g_mutex);
  if (--g_views > 0) return;
  for (const wchar_t* name : {FormWindow::kClassName, kFrameClass, kDropDownClass}) {
    ::UnregisterClassW(name, ViewModule());
  }
}

}  // namespace nvrandom::win32
