// Stands in for a person at a dialog of another process: waits (at most SECONDS) for a shown
// NVRandom form with the caption CAPTION, then clicks its button captioned BUTTON.
// Usage: close_dialog CAPTION BUTTON SECONDS. Exits 0 once it clicked, 1 when it gave up.
#include <windows.h>

#include <cwchar>
#include <string>

namespace {

struct Search {
  const wchar_t* caption;
  HWND found;
};

BOOL CALLBACK MatchCaption(HWND hwnd, LPARAM data) {
  auto* search = reinterpret_cast<Search*>(data);
  wchar_t text[256] = {};
  ::GetWindowTextW(hwnd, text, 256);
  if (std::wcscmp(text, search->caption) != 0 || !::IsWindowVisible(hwnd)) return TRUE;
  search->found = hwnd;
  return FALSE;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc != 4) return 2;
  const DWORD limit = static_cast<DWORD>(std::wcstoul(argv[3], nullptr, 10)) * 1000;
  const DWORD start = ::GetTickCount();
  while (::GetTickCount() - start < limit) {
    const HWND form = ::FindWindowW(L"NVRandomForm", argv[1]);
    if (form != nullptr && ::IsWindowVisible(form) && ::IsWindowEnabled(form)) {
      Search button{argv[2], nullptr};
      ::EnumChildWindows(form, &MatchCaption, reinterpret_cast<LPARAM>(&button));
      if (button.found != nullptr) {
        ::PostMessageW(button.found, BM_CLICK, 0, 0);
        return 0;
      }
    }
    ::Sleep(100);
  }
  return 1;
}
