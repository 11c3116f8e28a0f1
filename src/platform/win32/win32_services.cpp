#include "platform/win32/win32_services.h"

#include <windows.h>
// windows.h first: shellapi.h uses its types.
#include <shellapi.h>
#include <shlobj.h>
// windows.h maps AddFontResource to its -A/-W form, which would rename FontService's member here.
#undef AddFontResource

#include <cstring>
#include <ctime>
#include <memory>
#include <string>

#include "platform/ascii.h"
#include "platform/general_date.h"
#include "platform/win32/wide_text.h"

namespace nvrandom {

namespace {

bool HasWebScheme(std::string_view address) {
  return ascii::StartsWithIgnoreCase(address, "http://") ||
         ascii::StartsWithIgnoreCase(address, "https://");
}

// Owned by the window that is active in this thread, so the box is modal to the dialog.
class Win32MessageBox final : public MessageBoxService {
 public:
  int Show(std::string_view text, int style, std::string_view caption) override {
    const std::wstring wide_text = wide::FromUtf8(text);
    const std::wstring wide_caption = wide::FromUtf8(caption);
    const int answer = ::MessageBoxW(::GetActiveWindow(), wide_text.c_str(), wide_caption.c_str(),
                                     static_cast<UINT>(style) | MB_SETFOREGROUND);
    return answer == 0 ? DefaultAnswer(style) : answer;
  }
};

// Web addresses only: anything else is refused as "file not found", never executed.
class Win32Shell final : public ShellService {
 public:
  int32_t Execute(std::string_view verb, std::string_view file, int show_mode) override {
    constexpr int32_t kFileNotFound = 2;
    if (verb != "open" || !HasWebScheme(file)) return kFileNotFound;
    const std::wstring wide_verb = wide::FromUtf8(verb);
    const std::wstring wide_file = wide::FromUtf8(file);
    const HINSTANCE result =
        ::ShellExecuteW(nullptr, wide_verb.c_str(), wide_file.c_str(), nullptr, nullptr, show_mode);
    return static_cast<int32_t>(reinterpret_cast<INT_PTR>(result));
  }
};

// The HTML Help viewer, loaded when first asked for: a system without it shows no help and the
// component carries on.
class HtmlHelpViewer final : public HelpService {
 public:
  ~HtmlHelpViewer() override {
    if (library_ != nullptr) ::FreeLibrary(library_);
  }
  void ShowTopic(std::string_view help_path, uint32_t topic) override {
    if (html_help_ == nullptr && !Load()) return;
    constexpr UINT kHelpContext = 0x000F;  // HH_HELP_CONTEXT
    const std::wstring path = wide::FromUtf8(help_path);
    html_help_(::GetActiveWindow(), path.c_str(), kHelpContext, topic);
  }

 private:
  using HtmlHelpW = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
  bool Load() {
    if (library_ == nullptr) library_ = ::LoadLibraryW(L"hhctrl.ocx");
    if (library_ == nullptr) return false;
    html_help_ = reinterpret_cast<HtmlHelpW>(
        reinterpret_cast<void*>(::GetProcAddress(library_, "HtmlHelpW")));
    return html_help_ != nullptr;
  }
  HMODULE library_ = nullptr;
  HtmlHelpW html_help_ = nullptr;
};

class Win32Clipboard final : public ClipboardService {
 public:
  std::string Text() override {
    if (!::OpenClipboard(nullptr)) return {};
    std::string text;
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT); data != nullptr) {
      if (const auto* chars = static_cast<const wchar_t*>(::GlobalLock(data))) {
        text = wide::ToUtf8(chars);
        ::GlobalUnlock(data);
      }
    }
    ::CloseClipboard();
    return text;
  }
  void SetText(const std::string& text) override {
    const std::wstring wide_text = wide::FromUtf8(text);
    const size_t bytes = (wide_text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory == nullptr) return;
    if (void* target = ::GlobalLock(memory)) {
      std::memcpy(target, wide_text.c_str(), bytes);
      ::GlobalUnlock(memory);
    }
    if (::OpenClipboard(nullptr)) {
      ::EmptyClipboard();
      // On success the clipboard owns the memory.
      if (::SetClipboardData(CF_UNICODETEXT, memory) != nullptr) {
        ::CloseClipboard();
        return;
      }
      ::CloseClipboard();
    }
    ::GlobalFree(memory);
  }
  void Clear() override {
    if (!::OpenClipboard(nullptr)) return;
    ::EmptyClipboard();
    ::CloseClipboard();
  }
};

class Win32Directories final : public DirectoryService {
 public:
  std::string WindowsDirectory() override { return Folder(&::GetWindowsDirectoryW); }
  std::string SystemDirectory() override { return Folder(&::GetSystemDirectoryW); }

 private:
  static std::string Folder(UINT(WINAPI* query)(LPWSTR, UINT)) {
    std::wstring buffer(MAX_PATH, L'\0');
    UINT length = query(buffer.data(), static_cast<UINT>(buffer.size()));
    if (length > buffer.size()) {
      buffer.resize(length);
      length = query(buffer.data(), static_cast<UINT>(buffer.size()));
    }
    buffer.resize(length <= buffer.size() ? length : 0);
    return wide::ToUtf8(buffer);
  }
};

// Font files copied with the wide API (non-ASCII paths) and added for this session with
// AddFontResourceW.
class Win32Fonts final : public FontService {
 public:
  bool CopyFontFile(const std::string& source, const std::string& target) override {
    const std::wstring wide_target = wide::FromUtf8(target);
    const size_t folder_end = wide_target.find_last_of(L"\\/");
    if (folder_end != std::wstring::npos && folder_end > 0) {
      ::SHCreateDirectoryExW(nullptr, wide_target.substr(0, folder_end).c_str(), nullptr);
    }
    return ::CopyFileW(wide::FromUtf8(source).c_str(), wide_target.c_str(), FALSE) != 0;
  }
  int AddFontResource(const std::string& font_file) override {
    const int added = ::AddFontResourceW(wide::FromUtf8(font_file).c_str());
    if (added > 0)
      ::SendMessageTimeoutW(HWND_BROADCAST, WM_FONTCHANGE, 0, 0, SMTO_ABORTIFHUNG, 1000, nullptr);
    return added;
  }
};

class LocalClock final : public Clock {
 public:
  std::string Now() override {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    std::tm local{};
    local.tm_year = now.wYear - 1900;
    local.tm_mon = now.wMonth - 1;
    local.tm_mday = now.wDay;
    local.tm_hour = now.wHour;
    local.tm_min = now.wMinute;
    local.tm_sec = now.wSecond;
    return GeneralDate(local);
  }
};

}  // namespace

Services MakeWin32Services() {
  Services s;
  s.message_box = std::make_unique<Win32MessageBox>();
  s.shell = std::make_unique<Win32Shell>();
  s.help = std::make_unique<HtmlHelpViewer>();
  s.clipboard = std::make_unique<Win32Clipboard>();
  s.directories = std::make_unique<Win32Directories>();
  s.fonts = std::make_unique<Win32Fonts>();
  s.clock = std::make_unique<LocalClock>();
  s.regex = MakeSystemRegex();
  return s;
}

}  // namespace nvrandom
