// The person's input on a form's controls, passed to the runtime's one input path.
#include "form_window.h"
// After windows.h (form_window.h).
#include <commctrl.h>
#include <windowsx.h>

#include <utility>

#include "control_record.h"
#include "data_list_popup.h"
#include "forms/application.h"
#include "forms/keystroke.h"
#include "forms/user_input.h"
#include "platform/ascii.h"
#include "platform/clipboard.h"
#include "platform/win32/wide_text.h"
#include "win32_units.h"
#include "win32_view.h"

namespace nvrandom::win32 {

using forms::Control;
using forms::ControlKind;

namespace {

bool KeyIsDown(int key) {
  return (::GetKeyState(key) & 0x8000) != 0;
}

int16_t ShiftState() {
  int16_t shift = 0;
  if (KeyIsDown(VK_SHIFT)) shift |= forms::keys::kShiftMask;
  if (KeyIsDown(VK_CONTROL)) shift |= forms::keys::kCtrlMask;
  if (KeyIsDown(VK_MENU)) shift |= forms::keys::kAltMask;
  return shift;
}

// Alt (the context bit of a key message) with a letter or digit, and no Control key.
bool IsAccessKey(WPARAM key, LPARAM lparam) {
  constexpr LPARAM kAltContext = LPARAM{1} << 29;
  const char c = key < 128 ? static_cast<char>(key) : '\0';
  return (lparam & kAltContext) != 0 && !KeyIsDown(VK_CONTROL) &&
         (ascii::IsLetter(c) || ascii::IsDigit(c));
}

// The key code KeyDown gets for a key that types no character (0: a key that types one, which
// arrives as WM_CHAR). Virtual-key codes are the platform's key codes.
int16_t NonCharacterKey(WPARAM key, bool control) {
  switch (key) {
    case VK_DELETE:
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_INSERT:
    case VK_PRIOR:
    case VK_NEXT:
      return static_cast<int16_t>(key);
    default:
      break;
  }
  if (key >= VK_F1 && key <= VK_F12) return static_cast<int16_t>(key);
  // With Control held, letters and digits are commands (Control+V pastes), not characters.
  if (control && ((key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9'))) {
    return static_cast<int16_t>(key);
  }
  return 0;
}

int16_t ButtonOf(UINT message) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
      return forms::keys::kLeftButton;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
      return forms::keys::kRightButton;
    default:
      return 4;  // middle
  }
}

bool IsPress(UINT message) {
  return message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || message == WM_MBUTTONDOWN ||
         message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDBLCLK || message == WM_MBUTTONDBLCLK;
}

// A mouse message as MouseDown and MouseUp are told of it: positions in twips from the corner.
struct MouseArgs {
  int16_t button;
  int16_t shift;
  float x;
  float y;
};

MouseArgs MouseArgsOf(UINT message, WPARAM wparam, LPARAM lparam, int dpi) {
  int16_t shift = 0;
  if ((wparam & MK_SHIFT) != 0) shift |= forms::keys::kShiftMask;
  if ((wparam & MK_CONTROL) != 0) shift |= forms::keys::kCtrlMask;
  return {ButtonOf(message), shift, static_cast<float>(PixelsToTwips(GET_X_LPARAM(lparam), dpi)),
          static_cast<float>(PixelsToTwips(GET_Y_LPARAM(lparam), dpi))};
}

}  // namespace

LRESULT FormWindow::ControlMessage(ControlRecord& r, HWND hwnd, UINT message, WPARAM wparam,
                                   LPARAM lparam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTALLKEYS | DLGC_WANTCHARS | DLGC_WANTTAB | DLGC_WANTARROWS;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR:
      return Key(r, hwnd, message, wparam, lparam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
      return Mouse(r, hwnd, message, wparam, lparam);
    case WM_CONTEXTMENU:
    case WM_PASTE:
    case WM_CUT:
    case WM_CLEAR:
    case WM_UNDO:
    case EM_UNDO:
      // Editing happens in the model only: the control's own menu and clipboard commands are off.
      return 0;
    case WM_SETFOCUS:
      FocusIn(r);
      break;
    case WM_SETCURSOR:
      if (r.control != nullptr && r.control->kind() == ControlKind::kHyperLink) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
        return TRUE;
      }
      break;
    default:
      break;
  }
  return ::DefSubclassProc(hwnd, message, wparam, lparam);
}

LRESULT FormWindow::Key(ControlRecord& r, HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  if (form_ == nullptr) return 0;
  const bool alt_down = message == WM_SYSKEYDOWN && wparam == VK_DOWN;
  if (IsListKind(r.control->kind()) && ((message == WM_KEYDOWN && wparam == VK_F4) || alt_down)) {
    DropDown(r);
    return 0;
  }
  // Alt with a letter or digit is a caption's access key, the model's to act on; its WM_SYSCHAR
  // is then no menu key.
  if (message == WM_SYSKEYDOWN || message == WM_SYSCHAR) {
    if (!IsAccessKey(wparam, lparam)) return ::DefSubclassProc(hwnd, message, wparam, lparam);
    if (message == WM_SYSCHAR) return 0;
  }
  Win32View::InputScope scope(view_);
  Control& c = *r.control;
  if (message == WM_SYSKEYDOWN) {
    forms::user::KeyDown(c, static_cast<int16_t>(wparam), ShiftState() | forms::keys::kAltMask);
    return 0;
  }
  if (message == WM_KEYDOWN) {
    const int16_t shift = ShiftState();
    if (const int16_t code = NonCharacterKey(wparam, (shift & forms::keys::kCtrlMask) != 0)) {
      forms::user::KeyDown(c, code, shift);
    }
    return 0;
  }
  if (message != WM_CHAR) return 0;
  const auto ch = static_cast<wchar_t>(wparam);
  // Control+letter went in as its KeyDown; the control character it also types is not a key.
  if (KeyIsDown(VK_CONTROL) && !KeyIsDown(VK_MENU)) return 0;
  switch (ch) {
    case forms::keys::kBackspace:
    case forms::keys::kEnter:
    case 27:
      forms::user::Key(c, static_cast<int16_t>(ch));
      return 0;
    case forms::keys::kTab:
      // Tab goes on in tab order; Shift+Tab, which types no character, goes back.
      if (KeyIsDown(VK_SHIFT)) {
        forms::user::KeyDown(c, forms::keys::kKeyTab, forms::keys::kShiftMask);
      } else {
        forms::user::Key(c, forms::keys::kTab);
      }
      return 0;
    default:
      break;
  }
  if (ch < 32) return 0;
  if (IS_HIGH_SURROGATE(ch)) {
    r.high_surrogate = ch;
    return 0;
  }
  std::wstring typed;
  if (IS_LOW_SURROGATE(ch) && r.high_surrogate != 0) typed += r.high_surrogate;
  r.high_surrogate = 0;
  typed += ch;
  forms::user::Type(c, wide::ToUtf8(typed));
  return 0;
}

LRESULT FormWindow::Mouse(ControlRecord& r, HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  if (form_ == nullptr) return 0;
  Win32View::InputScope scope(view_);
  Control& c = *r.control;
  const auto [button, shift, x, y] = MouseArgsOf(message, wparam, lparam, dpi_);
  const bool press = IsPress(message);

  if (forms::IsTextKind(c.kind()) && hwnd == r.input) {
    if (button == forms::keys::kRightButton) {
      if (!press) ContextMenu(r, hwnd, lparam);
      return 0;
    }
    // The edit field places the caret and selects; the model hears the buttons, and a text box
    // its clicks (a list's Click is the choice of a row), then the selection the person made.
    const bool text_box = c.kind() == ControlKind::kTextBox;
    if (text_box && press) {
      Clicks(r, hwnd, message, wparam, lparam);
    } else if (message == WM_LBUTTONDOWN || message == WM_MBUTTONDOWN) {
      forms::user::MouseDown(c, button, shift, x, y);
    }
    if (form_ == nullptr) return 0;
    const LRESULT result = ::DefSubclassProc(hwnd, message, wparam, lparam);
    if (form_ == nullptr) return result;
    if (text_box && !press) {
      Clicks(r, hwnd, message, wparam, lparam);
    } else if (!press) {
      forms::user::MouseUp(c, button, shift, x, y);
    }
    if (form_ != nullptr && r.control != nullptr) SyncSelection(r);
    return result;
  }
  if (IsListKind(c.kind())) {
    // The box's button: a data list drops down its table; a combo box its own list.
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
      forms::user::Focus(c);
      if (form_ == nullptr) return 0;
      if (c.kind() == ControlKind::kDataList) {
        DropDown(r);
        return 0;
      }
    }
    return ::DefSubclassProc(hwnd, message, wparam, lparam);
  }
  // Buttons, check boxes, option buttons, labels, images, links and frames: the model decides
  // what a click does (a check box's tick follows its Value).
  if (message == WM_LBUTTONDOWN && c.CanFocus()) forms::user::Focus(c);
  if (form_ != nullptr) Clicks(r, hwnd, message, wparam, lparam);
  if (press && button == forms::keys::kLeftButton) {
    ::SetCapture(hwnd);
  } else if (!press && ::GetCapture() == hwnd) {
    ::ReleaseCapture();
  }
  return 0;
}

// Windows reports a double click as press, release, double click, release: the first release is
// the Click, the double click is the second press (DblClick, or a second Click where the control
// has none), and the release that ends it clicks nothing more.
void FormWindow::Clicks(ControlRecord& r, HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  Control& c = *r.control;
  const auto [button, shift, x, y] = MouseArgsOf(message, wparam, lparam, dpi_);
  if (message == WM_LBUTTONDBLCLK) {
    r.double_clicked = true;
    forms::user::DoubleClick(c);
    return;
  }
  if (IsPress(message)) {
    forms::user::MouseDown(c, button, shift, x, y);
    return;
  }
  const bool left = button == forms::keys::kLeftButton;
  const bool ends_double_click = left && std::exchange(r.double_clicked, false);
  forms::user::MouseUp(c, button, shift, x, y);
  RECT client;
  ::GetClientRect(hwnd, &client);
  const POINT at{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  if (form_ != nullptr && left && !ends_double_click && ::PtInRect(&client, at)) {
    forms::user::Click(c);
  }
}

// The right button's menu on a text field: Paste goes through the model.
void FormWindow::ContextMenu(ControlRecord& r, HWND hwnd, LPARAM lparam) {
  Control& c = *r.control;
  POINT at{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  ::ClientToScreen(hwnd, &at);
  const HMENU menu = ::CreatePopupMenu();
  constexpr UINT kPaste = 1;
  ::AppendMenuW(menu, MF_STRING | (c.Enabled() && !c.Locked() ? 0U : MF_GRAYED), kPaste, L"&Paste");
  const auto chosen = static_cast<UINT>(::TrackPopupMenu(
      menu, TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_NONOTIFY, at.x, at.y, 0, hwnd, nullptr));
  ::DestroyMenu(menu);
  if (form_ == nullptr) return;
  if (chosen == kPaste) {
    forms::user::MenuPaste(c, c.form().app().clipboard().Text());
  } else {
    forms::user::MouseDown(c, forms::keys::kRightButton);
    if (form_ != nullptr) forms::user::MouseUp(c, forms::keys::kRightButton);
  }
}

// The person selected with the mouse: the model's selection follows the edit field's.
void FormWindow::SyncSelection(ControlRecord& r) {
  DWORD start = 0;
  DWORD end = 0;
  ::SendMessageW(r.input, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                 reinterpret_cast<LPARAM>(&end));
  const auto from = static_cast<int>(std::min(start, end));
  const auto length = static_cast<int>(std::max(start, end) - std::min(start, end));
  if (r.control->SelStart() != from || r.control->SelLength() != length) {
    forms::user::Select(*r.control, from, length);
  }
}

// The person put the focus on a control (a click, the window activated): the model moves it, or
// refuses and the keyboard goes back where the model has it.
void FormWindow::FocusIn(ControlRecord& r) {
  if (form_ == nullptr || r.control == nullptr || r.control == form_->ActiveControl()) return;
  if (!r.control->CanFocus()) {
    ::PostMessageW(hwnd_, kSyncFocus, 0, 0);
    return;
  }
  Win32View::InputScope scope(view_);
  forms::user::Focus(*r.control);
  if (form_ != nullptr && form_->ActiveControl() != r.control) {
    ::PostMessageW(hwnd_, kSyncFocus, 0, 0);
  }
}

void FormWindow::DropDown(ControlRecord& r) {
  if (r.control->kind() == ControlKind::kComboBox) {
    ::SendMessageW(r.hwnd, CB_SHOWDROPDOWN, TRUE, 0);
  } else if (popup_) {
    popup_->Open(r);
  }
}

void FormWindow::RowChosen(ControlRecord& r, int row) {
  ShowFocus();
  if (form_ == nullptr || r.control == nullptr) return;
  Win32View::InputScope scope(view_);
  forms::user::PickRow(*r.control, row);
}

}  // namespace nvrandom::win32
