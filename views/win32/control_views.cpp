// One create and one update function per kind of control: what the model holds, written into
// the native control.
#include <windows.h>
// windows.h first: commctrl.h uses its types.
#include <commctrl.h>

#include <string>

#include "control_record.h"
#include "form_window.h"
#include "pictures.h"
#include "platform/utf8.h"
#include "platform/win32/wide_text.h"
#include "win32_units.h"
#include "window_classes.h"

namespace nvrandom::win32 {

using forms::Control;
using forms::ControlKind;
using forms::Property;

namespace {

HWND Child(const wchar_t* window_class, DWORD style, DWORD ex_style, HWND parent, int id) {
  return ::CreateWindowExW(ex_style, window_class, L"", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 0,
                           0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                           ViewModule(), nullptr);
}

void SetText(HWND hwnd, const std::string& text) {
  ::SetWindowTextW(hwnd, wide::FromUtf8(text).c_str());
}

std::wstring WindowText(HWND hwnd) {
  std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(hwnd)) + 1, L'\0');
  text.resize(
      static_cast<size_t>(::GetWindowTextW(hwnd, text.data(), static_cast<int>(text.size()))));
  return text;
}

void ShowSelection(HWND edit, const Control& control) {
  ::SendMessageW(edit, EM_SETSEL, static_cast<WPARAM>(control.SelStart()),
                 static_cast<LPARAM>(control.SelStart() + control.SelLength()));
}

// The edit field shows the model's text (masked for a password) and selection.
void ShowEditText(HWND edit, const Control& control) {
  const std::wstring shown = ShownText(control);
  if (WindowText(edit) != shown) ::SetWindowTextW(edit, shown.c_str());
  ShowSelection(edit, control);
}

void ShowCaption(ControlRecord& r, Property p) {
  if (p == Property::kCaption) SetText(r.hwnd, r.control->Caption());
}

// Labels and hyperlinks -----------------------------------------------------------------------

HWND CreateLabel(ControlRecord&, HWND parent, int id) {
  return Child(L"STATIC", SS_LEFT | SS_NOTIFY, 0, parent, id);
}

// Text boxes ----------------------------------------------------------------------------------

HWND CreateTextBox(ControlRecord&, HWND parent, int id) {
  return Child(L"EDIT", ES_LEFT | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE, parent, id);
}

void UpdateEdit(HWND edit, const Control& control, Property p) {
  switch (p) {
    case Property::kText:
    case Property::kPasswordChar:
      ShowEditText(edit, control);
      break;
    case Property::kSelection:
      ShowSelection(edit, control);
      break;
    case Property::kLocked:
      ::SendMessageW(edit, EM_SETREADONLY, control.Locked() ? TRUE : FALSE, 0);
      break;
    case Property::kMaxLength:
      ::SendMessageW(edit, EM_SETLIMITTEXT,
                     control.MaxLength() > 0 ? static_cast<WPARAM>(control.MaxLength()) : 0, 0);
      break;
    default:
      break;
  }
}

void UpdateTextBox(ControlRecord& r, Property p) {
  UpdateEdit(r.hwnd, *r.control, p);
}

// Combo boxes and data lists: an editable box whose edit field takes the keys -----------------

HWND CreateCombo(ControlRecord& r, HWND parent, int id) {
  const HWND combo = Child(L"COMBOBOX", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL, 0, parent, id);
  COMBOBOXINFO info{};
  info.cbSize = sizeof(info);
  if (::GetComboBoxInfo(combo, &info) && info.hwndItem != nullptr) r.input = info.hwndItem;
  return combo;
}

void UpdateListBox(ControlRecord& r, Property p) {
  const Control& c = *r.control;
  if (p == Property::kList) {
    ::SendMessageW(r.hwnd, CB_RESETCONTENT, 0, 0);
    for (int i = 0; i < c.ListCount(); ++i) {
      ::SendMessageW(r.hwnd, CB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(wide::FromUtf8(c.List(i)).c_str()));
    }
  }
  if (p == Property::kList || p == Property::kListIndex) {
    ::SendMessageW(r.hwnd, CB_SETCURSEL, static_cast<WPARAM>(c.ListIndex()), 0);
    ShowEditText(r.input, c);
  }
  if (p == Property::kFontName) {
    ::SendMessageW(r.input, WM_SETFONT, ::SendMessageW(r.hwnd, WM_GETFONT, 0, 0), TRUE);
  }
  UpdateEdit(r.input, c, p);
}

// A data list keeps its rows in the model; its drop-down (DataListPopup) reads them when opened.
void UpdateDataList(ControlRecord& r, Property p) {
  const Control& c = *r.control;
  if (p == Property::kList || p == Property::kListIndex || p == Property::kDisplayColumn) {
    ShowEditText(r.input, c);
  }
  if (p == Property::kFontName) {
    ::SendMessageW(r.input, WM_SETFONT, ::SendMessageW(r.hwnd, WM_GETFONT, 0, 0), TRUE);
  }
  UpdateEdit(r.input, c, p);
}

// Check boxes, option buttons, buttons --------------------------------------------------------

HWND CreateCheckBox(ControlRecord&, HWND parent, int id) {
  return Child(L"BUTTON", BS_3STATE, 0, parent, id);
}

void UpdateCheckBox(ControlRecord& r, Property p) {
  ShowCaption(r, p);
  if (p == Property::kValue) {
    const int v = r.control->Value();
    ::SendMessageW(r.hwnd, BM_SETCHECK,
                   v == 1   ? BST_CHECKED
                   : v == 2 ? BST_INDETERMINATE
                            : BST_UNCHECKED,
                   0);
  }
}

HWND CreateOptionButton(ControlRecord&, HWND parent, int id) {
  // Not an automatic radio button: the model keeps the buttons of a container exclusive.
  return Child(L"BUTTON", BS_RADIOBUTTON, 0, parent, id);
}

void UpdateOptionButton(ControlRecord& r, Property p) {
  ShowCaption(r, p);
  if (p == Property::kValue) {
    ::SendMessageW(r.hwnd, BM_SETCHECK, r.control->Value() != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
  }
}

HWND CreateCommandButton(ControlRecord&, HWND parent, int id) {
  return Child(L"BUTTON", BS_PUSHBUTTON, 0, parent, id);
}

// A standard button is drawn by the system; a graphical command button (style 1) and a styled
// button in any style but 0 are drawn here, in their own colours (DrawOwnerDrawn).
void UpdateCommandButton(ControlRecord& r, Property p) {
  ShowCaption(r, p);
  if (p == Property::kButtonStyle) {
    const bool owner_drawn = r.control->ButtonStyle() != 0;
    ::SendMessageW(r.hwnd, BM_SETSTYLE, owner_drawn ? BS_OWNERDRAW : BS_PUSHBUTTON, TRUE);
  }
}

// Frames and images ---------------------------------------------------------------------------

HWND CreateFrame(ControlRecord& r, HWND parent, int id) {
  const HWND frame = Child(kFrameClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT, parent, id);
  ::SetWindowLongPtrW(frame, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&r));
  return frame;
}

void UpdateFrame(ControlRecord& r, Property p) {
  if (p == Property::kCaption || p == Property::kFontName) ::InvalidateRect(r.hwnd, nullptr, TRUE);
}

HWND CreateImage(ControlRecord&, HWND parent, int id) {
  return Child(L"STATIC", SS_OWNERDRAW | SS_NOTIFY, 0, parent, id);
}

void UpdateImage(ControlRecord& r, Property p) {
  if (p == Property::kWidth || p == Property::kHeight) ::InvalidateRect(r.hwnd, nullptr, TRUE);
}

void DrawButton(const ControlRecord& r, const DRAWITEMSTRUCT& item) {
  const HDC dc = item.hDC;
  RECT box = item.rcItem;
  const Control& c = *r.control;
  ::FillRect(dc, &box, r.window->Brush(ToColorRef(c.BackColor())));
  const bool pressed = (item.itemState & ODS_SELECTED) != 0;
  if (c.kind() == ControlKind::kStyledButton && c.ButtonStyle() == 2) {
    // The flat look of the modern form styles: a thin border, no bevel.
    ::FrameRect(dc, &box, ::GetSysColorBrush(COLOR_BTNSHADOW));
  } else {
    ::DrawEdge(dc, &box, pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
  }
  const std::wstring caption = wide::FromUtf8(c.Caption());
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, (item.itemState & ODS_DISABLED) != 0 ? ::GetSysColor(COLOR_GRAYTEXT)
                                                          : ToColorRef(c.ForeColor()));
  const HGDIOBJ old_font = ::SelectObject(dc, r.window->Font(c.FontName()));
  RECT text = box;
  if (pressed) ::OffsetRect(&text, 1, 1);
  ::DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &text,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  ::SelectObject(dc, old_font);
  if ((item.itemState & ODS_FOCUS) != 0) {
    ::InflateRect(&box, -4, -4);
    ::DrawFocusRect(dc, &box);
  }
}

}  // namespace

std::wstring ShownText(const Control& control) {
  if (control.PasswordChar().empty()) return wide::FromUtf8(control.Text());
  const std::wstring mask = wide::FromUtf8(control.PasswordChar());
  return std::wstring(utf8::Length(control.Text()), mask.empty() ? L'*' : mask[0]);
}

void DrawOwnerDrawn(const ControlRecord& record, const DRAWITEMSTRUCT& item) {
  if (record.control == nullptr) return;
  if (record.control->kind() == ControlKind::kImage) {
    ::FillRect(item.hDC, &item.rcItem,
               record.window->Brush(record.window->BackgroundOf(*record.control)));
    DrawPicture(item.hDC, item.rcItem, record.control->form().Name(), record.control->Name());
    return;
  }
  DrawButton(record, item);
}

const KindView& ViewOf(ControlKind kind) {
  static const KindView kLabelView{CreateLabel, ShowCaption};
  static const KindView kTextBoxView{CreateTextBox, UpdateTextBox};
  static const KindView kComboView{CreateCombo, UpdateListBox};
  static const KindView kDataListView{CreateCombo, UpdateDataList};
  static const KindView kCheckView{CreateCheckBox, UpdateCheckBox};
  static const KindView kOptionView{CreateOptionButton, UpdateOptionButton};
  static const KindView kButtonView{CreateCommandButton, UpdateCommandButton};
  static const KindView kFrameView{CreateFrame, UpdateFrame};
  static const KindView kImageView{CreateImage, UpdateImage};
  switch (kind) {
    case ControlKind::kLabel:
    case ControlKind::kHyperLink:
      return kLabelView;
    case ControlKind::kTextBox:
      return kTextBoxView;
    case ControlKind::kComboBox:
      return kComboView;
    case ControlKind::kDataList:
      return kDataListView;
    case ControlKind::kCheckBox:
      return kCheckView;
    case ControlKind::kOptionButton:
      return kOptionView;
    case ControlKind::kCommandButton:
    case ControlKind::kStyledButton:
      return kButtonView;
    case ControlKind::kFrame:
      return kFrameView;
    case ControlKind::kImage:
      return kImageView;
  }
  return kLabelView;
}

}  // namespace nvrandom::win32
