// Stands in for a person at a dialog of another process: waits (at most 20 s) for a shown, enabled
// NVRandom form with the caption CAPTION, then closes it with its close box.
// Usage: close_dialog CAPTION. Exits 0 once it closed it, 1 when it gave up.
#include <windows.h>

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) return 2;
  for (int tries = 0; tries < 200; ++tries, ::Sleep(100)) {
    const HWND form = ::FindWindowW(L"NVRandomForm", argv[1]);
    if (form != nullptr && ::IsWindowVisible(form) && ::IsWindowEnabled(form)) {
      return ::PostMessageW(form, WM_CLOSE, 0, 0) ? 0 : 1;
    }
  }
  return 1;
}
