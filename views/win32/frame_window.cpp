#include "frame_window.h"

#include <string>

#include "control_record.h"
#include "form_window.h"
#include "platform/win32/wide_text.h"
#include "win32_units.h"

namespace nvrandom::win32 {

namespace {

ControlRecord* RecordOf(HWND hwnd) {
  return reinterpret_cast<ControlRecord*>(::GetWindowLongPtrW(hwnd, GWLP_USERDATA));
}

void Paint(HWND hwnd, const ControlRecord& record) {
  PAINTSTRUCT paint;
  const HDC dc = ::BeginPaint(hwnd, &paint);
  RECT client;
  ::GetClientRect(hwnd, &client);
  FormWindow& window = *record.window;
  const forms::Control* control = record.control;
  const COLORREF back =
      control != nullptr ? ToColorRef(control->BackColor()) : ::GetSysColor(COLOR_BTNFACE);
  ::FillRect(dc, &client, window.Brush(back));
  if (control == nullptr) {
    ::EndPaint(hwnd, &paint);
    return;
  }
  const HGDIOBJ old_font = ::SelectObject(dc, window.Font(control->FontName()));
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(dc, &metrics);
  // The etched line runs through the middle of the caption's line.
  RECT border = client;
  border.top += metrics.tmHeight / 2;
  ::DrawEdge(dc, &border, EDGE_ETCHED, BF_RECT);
  const std::wstring caption = wide::FromUtf8(control->Caption());
  if (!caption.empty()) {
    RECT text{client.left + 8, client.top, client.right - 8, client.top + metrics.tmHeight};
    ::SetBkColor(dc, back);
    ::SetBkMode(dc, OPAQUE);
    ::SetTextColor(
        dc, control->Enabled() ? ToColorRef(control->ForeColor()) : ::GetSysColor(COLOR_GRAYTEXT));
    RECT measured = text;
    ::DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &measured,
                DT_SINGLELINE | DT_CALCRECT);
    text.right = std::min(text.right, measured.right + 2);
    text.left -= 2;
    ::DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &text,
                DT_SINGLELINE | DT_CENTER | DT_END_ELLIPSIS);
  }
  ::SelectObject(dc, old_font);
  ::EndPaint(hwnd, &paint);
}

}  // namespace

LRESULT CALLBACK FrameWindowProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  ControlRecord* record = RecordOf(hwnd);
  if (record == nullptr) return ::DefWindowProcW(hwnd, message, wparam, lparam);
  switch (message) {
    case WM_PAINT:
      Paint(hwnd, *record);
      return 0;
    case WM_ERASEBKGND:
      return 1;  // WM_PAINT fills the whole frame
    case WM_ENABLE:
      ::InvalidateRect(hwnd, nullptr, FALSE);
      break;
    default: {
      LRESULT result = 0;
      if (record->window->ParentMessage(message, wparam, lparam, result)) return result;
      break;
    }
  }
  return ::DefWindowProcW(hwnd, message, wparam, lparam);
}

}  // namespace nvrandom::win32
