#include "form_window.h"

#include <commctrl.h>

#include "control_record.h"
#include "data_list_popup.h"
#include "forms/application.h"
#include "forms/user_input.h"
#include "platform/win32/wide_text.h"
#include "win32_units.h"
#include "win32_view.h"
#include "window_classes.h"

namespace nvrandom::win32 {

using forms::Control;
using forms::ControlKind;
using forms::Property;

namespace {

constexpr DWORD kTopLevelStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;

// The properties every record shows, in the order a fresh control takes them.
constexpr Property kAllProperties[] = {
    Property::kFontName,     Property::kBackColor, Property::kCaption,   Property::kButtonStyle,
    Property::kMaxLength,    Property::kLocked,    Property::kList,      Property::kListIndex,
    Property::kPasswordChar, Property::kText,      Property::kSelection, Property::kValue,
    Property::kLeft,         Property::kEnabled,   Property::kVisible,
};

LRESULT CALLBACK ControlProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                             DWORD_PTR data) {
  auto* record = reinterpret_cast<ControlRecord*>(data);
  if (message == WM_NCDESTROY) {
    ::RemoveWindowSubclass(hwnd, &ControlProc, id);
    return ::DefSubclassProc(hwnd, message, wparam, lparam);
  }
  return record->window->ControlMessage(*record, hwnd, message, wparam, lparam);
}

// A host reparented the window (SetParent): inside another window it is a child without caption
// or frame; back on the desktop it is a top-level window again. True when the style changed.
bool FollowParentStyle(HWND hwnd) {
  const HWND parent = ::GetAncestor(hwnd, GA_PARENT);
  const bool inside_host = parent != nullptr && parent != ::GetDesktopWindow();
  auto style = static_cast<DWORD>(::GetWindowLongPtrW(hwnd, GWL_STYLE));
  auto ex_style = static_cast<DWORD>(::GetWindowLongPtrW(hwnd, GWL_EXSTYLE));
  if (inside_host == ((style & WS_CHILD) != 0)) return false;
  if (inside_host) {
    style = (style & ~kTopLevelStyle) | WS_CHILD;
    ex_style &= ~static_cast<DWORD>(WS_EX_DLGMODALFRAME);
  } else {
    style = (style & ~static_cast<DWORD>(WS_CHILD)) | kTopLevelStyle;
    ex_style |= WS_EX_DLGMODALFRAME;
  }
  ::SetWindowLongPtrW(hwnd, GWL_STYLE, static_cast<LONG_PTR>(style));
  ::SetWindowLongPtrW(hwnd, GWL_EXSTYLE, static_cast<LONG_PTR>(ex_style));
  ::SetWindowPos(hwnd, nullptr, 0, 0, 0, 0,
                 SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  return true;
}

}  // namespace

FormWindow::FormWindow(Win32View& view, forms::Form& form, int dpi)
    : view_(view), form_(&form), dpi_(dpi) {
  const std::wstring caption = wide::FromUtf8(form.Caption());
  hwnd_ = ::CreateWindowExW(WS_EX_DLGMODALFRAME | WS_EX_CONTROLPARENT, kClassName, caption.c_str(),
                            kTopLevelStyle | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                            CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, ViewModule(), this);
  popup_ = std::make_unique<DataListPopup>(*this);
  int id = 1;
  for (const auto& control : form.Controls()) {
    auto record = std::make_unique<ControlRecord>();
    record->control = control.get();
    record->window = this;
    record->hwnd = ViewOf(control->kind()).create(*record, hwnd_, id++);
    if (record->input == nullptr) record->input = record->hwnd;
    by_control_[record->control] = record.get();
    by_window_[record->hwnd] = record.get();
    by_window_[record->input] = record.get();
    records_.push_back(std::move(record));
  }
  // Containers may come after their controls in the table: placed once every window exists.
  for (auto& record : records_) {
    if (const Control* container = record->control->Container()) {
      if (const ControlRecord* frame = RecordOf(*container)) ::SetParent(record->hwnd, frame->hwnd);
    }
    ::SetWindowSubclass(record->hwnd, &ControlProc, 1, reinterpret_cast<DWORD_PTR>(record.get()));
    if (record->input != record->hwnd) {
      ::SetWindowSubclass(record->input, &ControlProc, 1,
                          reinterpret_cast<DWORD_PTR>(record.get()));
    }
  }
  for (auto& record : records_) {
    for (const Property p : kAllProperties) Update(*record, p);
  }
  for (const Property p : {Property::kCaption, Property::kWidth, Property::kBackColor}) {
    FormChanged(p);
  }
}

FormWindow::~FormWindow() {
  popup_.reset();
  if (owner_ != nullptr) ::EnableWindow(owner_, TRUE);
  if (hwnd_ != nullptr) ::DestroyWindow(hwnd_);
  for (auto& [key, font] : fonts_) ::DeleteObject(font);
  for (auto& [color, brush] : brushes_) ::DeleteObject(brush);
}

void FormWindow::Detach() {
  if (popup_) popup_->Close();
  form_ = nullptr;
  for (auto& record : records_) record->control = nullptr;
}

HFONT FormWindow::Font(const std::string& face, bool underline) {
  const auto key = std::make_pair(face, underline);
  if (const auto it = fonts_.find(key); it != fonts_.end()) return it->second;
  LOGFONTW font{};
  font.lfHeight = -::MulDiv(kPointSize, dpi_, 72);
  font.lfWeight = FW_NORMAL;
  font.lfUnderline = underline ? TRUE : FALSE;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = DEFAULT_QUALITY;
  const std::wstring name = wide::FromUtf8(face.empty() ? std::string("MS Sans Serif") : face);
  name.copy(font.lfFaceName, LF_FACESIZE - 1);
  return fonts_[key] = ::CreateFontIndirectW(&font);
}

HBRUSH FormWindow::Brush(COLORREF color) {
  if (const auto it = brushes_.find(color); it != brushes_.end()) return it->second;
  return brushes_[color] = ::CreateSolidBrush(color);
}

COLORREF FormWindow::BackgroundOf(const Control& control) const {
  if (const Control* container = control.Container()) return ToColorRef(container->BackColor());
  return form_ != nullptr ? ToColorRef(form_->BackColor()) : ::GetSysColor(COLOR_BTNFACE);
}

ControlRecord* FormWindow::RecordOf(HWND hwnd) const {
  const auto it = by_window_.find(hwnd);
  return it == by_window_.end() ? nullptr : it->second;
}

ControlRecord* FormWindow::RecordOf(const Control& control) const {
  const auto it = by_control_.find(&control);
  return it == by_control_.end() || it->second->control == nullptr ? nullptr : it->second;
}

void FormWindow::ControlChanged(Control& control, Property property) {
  if (ControlRecord* record = RecordOf(control)) Update(*record, property);
}

void FormWindow::Update(ControlRecord& r, Property p) {
  const Control& c = *r.control;
  switch (p) {
    case Property::kVisible:
      ::ShowWindow(r.hwnd, c.Visible() ? SW_SHOWNA : SW_HIDE);
      break;
    case Property::kEnabled:
      ::EnableWindow(r.hwnd, c.Enabled() ? TRUE : FALSE);
      break;
    case Property::kLeft:
    case Property::kTop:
    case Property::kWidth:
    case Property::kHeight:
      Place(r);
      break;
    case Property::kBackColor:
    case Property::kForeColor:
    case Property::kBackStyle:
      ::InvalidateRect(r.hwnd, nullptr, TRUE);
      if (r.input != r.hwnd) ::InvalidateRect(r.input, nullptr, TRUE);
      break;
    case Property::kFontName: {
      const HFONT font = Font(c.FontName(), c.kind() == ControlKind::kHyperLink);
      ::SendMessageW(r.hwnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
      break;
    }
    case Property::kList:
      if (popup_) popup_->Close();
      break;
    default:
      break;
  }
  ViewOf(c.kind()).update(r, p);
}

void FormWindow::Place(ControlRecord& r) {
  const Control& c = *r.control;
  const int height = TwipsToPixels(c.Height(), dpi_);
  // A combo box's window also holds its dropped-down list; its box keeps the designed height.
  const int window_height = IsListKind(c.kind()) ? height * 12 : height;
  ::MoveWindow(r.hwnd, TwipsToPixels(c.Left(), dpi_), TwipsToPixels(c.Top(), dpi_),
               TwipsToPixels(c.Width(), dpi_), window_height, TRUE);
  if (IsListKind(c.kind()) && height > 8) {
    ::SendMessageW(r.hwnd, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height - 6);
  }
}

void FormWindow::FormChanged(Property property) {
  if (form_ == nullptr) return;
  switch (property) {
    case Property::kCaption:
      ::SetWindowTextW(hwnd_, wide::FromUtf8(form_->Caption()).c_str());
      break;
    case Property::kWidth:
    case Property::kHeight:
      FitClientSize();
      break;
    case Property::kLeft:
    case Property::kTop:
      // Modal windows are centred over their owner; an embedded one stands where the model has it
      // (ShowForm_Remote: (0, 0) of its container).
      if (!form_->IsModal()) {
        ::SetWindowPos(hwnd_, nullptr, TwipsToPixels(form_->Left(), dpi_),
                       TwipsToPixels(form_->Top(), dpi_), 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
      }
      break;
    case Property::kBackColor:
      ::RedrawWindow(hwnd_, nullptr, nullptr,
                     RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_FRAME);
      break;
    default:
      break;
  }
}

// The window's client area is the form's designed size, whatever frame the window has.
void FormWindow::FitClientSize() {
  if (form_ == nullptr) return;
  RECT bounds{0, 0, TwipsToPixels(form_->Width(), dpi_), TwipsToPixels(form_->Height(), dpi_)};
  const auto style = static_cast<DWORD>(::GetWindowLongPtrW(hwnd_, GWL_STYLE));
  const auto ex_style = static_cast<DWORD>(::GetWindowLongPtrW(hwnd_, GWL_EXSTYLE));
  ::AdjustWindowRectEx(&bounds, style, FALSE, ex_style);
  ::SetWindowPos(hwnd_, nullptr, 0, 0, bounds.right - bounds.left, bounds.bottom - bounds.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::FollowParent() {
  if (FollowParentStyle(hwnd_)) FitClientSize();
}

void FormWindow::ShowFocus() {
  if (form_ == nullptr || !::IsWindowVisible(hwnd_)) return;
  // Taking the keyboard would activate a window the person is not using.
  if (::GetActiveWindow() != ::GetAncestor(hwnd_, GA_ROOT)) return;
  const Control* control = form_->ActiveControl();
  const ControlRecord* record = control != nullptr ? RecordOf(*control) : nullptr;
  if (record != nullptr && ::GetFocus() != record->input) ::SetFocus(record->input);
}

void FormWindow::ShowModal(HWND owner) {
  owner_ = owner;
  RECT area{};
  if (owner_ != nullptr) {
    ::SetWindowLongPtrW(hwnd_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner_));
    ::EnableWindow(owner_, FALSE);
    ::GetWindowRect(owner_, &area);
  } else {
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  }
  RECT own{};
  ::GetWindowRect(hwnd_, &own);
  const int width = own.right - own.left;
  const int height = own.bottom - own.top;
  const int left = std::max(0L, area.left + (area.right - area.left - width) / 2);
  const int top = std::max(0L, area.top + (area.bottom - area.top - height) / 2);
  ::SetWindowPos(hwnd_, HWND_TOP, left, top, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
  ::SetActiveWindow(hwnd_);
  ShowFocus();
}

void FormWindow::ShowEmbedded() {
  FormChanged(Property::kLeft);  // where the model has it, also when that did not change
  ::ShowWindow(hwnd_, SW_SHOW);
  ShowFocus();
}

void FormWindow::Hide() {
  if (popup_) popup_->Close();
  // The owner first: Windows then activates it when this window goes.
  if (owner_ != nullptr) {
    ::EnableWindow(owner_, TRUE);
    owner_ = nullptr;
  }
  ::ShowWindow(hwnd_, SW_HIDE);
}

// Notifications of the controls ---------------------------------------------------------------

bool FormWindow::ParentMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result) {
  switch (message) {
    case WM_COMMAND: {
      ControlRecord* r = RecordOf(reinterpret_cast<HWND>(lparam));
      if (r == nullptr || r->control == nullptr || r->control->kind() != ControlKind::kComboBox) {
        return false;
      }
      const UINT code = HIWORD(wparam);
      if (code == CBN_SELENDOK && form_ != nullptr) {
        const auto row = static_cast<int>(::SendMessageW(r->hwnd, CB_GETCURSEL, 0, 0));
        Win32View::InputScope scope(view_);
        forms::user::PickRow(*r->control, row);
      }
      // The box shows the model's text again, whatever the list put there.
      if ((code == CBN_SELENDOK || code == CBN_SELENDCANCEL || code == CBN_CLOSEUP) &&
          r->control != nullptr) {
        Update(*r, Property::kText);
      }
      result = 0;
      return true;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORLISTBOX: {
      const ControlRecord* r = RecordOf(reinterpret_cast<HWND>(lparam));
      if (r == nullptr || r->control == nullptr) return false;
      const Control& c = *r->control;
      const auto dc = reinterpret_cast<HDC>(wparam);
      COLORREF back = ToColorRef(c.BackColor());
      COLORREF fore = ToColorRef(c.ForeColor());
      if ((c.kind() == ControlKind::kLabel && c.BackStyle() == 0) ||
          c.kind() == ControlKind::kHyperLink || c.kind() == ControlKind::kImage) {
        ::SetBkMode(dc, TRANSPARENT);
        if (c.kind() != ControlKind::kHyperLink || c.BackStyle() == 0) back = BackgroundOf(c);
      }
      if (c.kind() == ControlKind::kHyperLink) fore = RGB(0, 0, 0xEE);
      if (!c.Enabled() && !forms::IsTextKind(c.kind())) fore = ::GetSysColor(COLOR_GRAYTEXT);
      ::SetTextColor(dc, fore);
      ::SetBkColor(dc, back);
      result = reinterpret_cast<LRESULT>(Brush(back));
      return true;
    }
    case WM_DRAWITEM: {
      const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
      const ControlRecord* r = RecordOf(item->hwndItem);
      if (r == nullptr) return false;
      DrawOwnerDrawn(*r, *item);
      result = TRUE;
      return true;
    }
    default:
      return false;
  }
}

LRESULT FormWindow::FormMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  LRESULT result = 0;
  if (ParentMessage(message, wparam, lparam, result)) return result;
  switch (message) {
    case WM_CLOSE:
      // The model decides (QueryUnload may cancel); the window goes when the form is unloaded.
      if (form_ != nullptr) {
        Win32View::InputScope scope(view_);
        forms::user::CloseBox(*form_);
      }
      return 0;
    case WM_ENDSESSION:
      if (wparam != 0 && form_ != nullptr) {
        Win32View::InputScope scope(view_);
        forms::user::Shutdown(*form_);
      }
      return 0;
    case WM_ERASEBKGND: {
      RECT client;
      ::GetClientRect(hwnd_, &client);
      const COLORREF back =
          form_ != nullptr ? ToColorRef(form_->BackColor()) : ::GetSysColor(COLOR_BTNFACE);
      ::FillRect(reinterpret_cast<HDC>(wparam), &client, Brush(back));
      return 1;
    }
    case WM_ACTIVATE:
      if (LOWORD(wparam) != WA_INACTIVE) ShowFocus();
      return 0;
    case WM_SETFOCUS:
    case kSyncFocus:
      ShowFocus();
      return 0;
    case WM_WINDOWPOSCHANGED:
      FollowParent();
      break;
    default:
      break;
  }
  return ::DefWindowProcW(hwnd_, message, wparam, lparam);
}

LRESULT CALLBACK FormWindow::WindowProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  return DispatchToOwner(hwnd, message, wparam, lparam, &FormWindow::hwnd_,
                         &FormWindow::FormMessage);
}

}  // namespace nvrandom::win32
