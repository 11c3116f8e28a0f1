#include "data_list_popup.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "control_record.h"
#include "form_window.h"
#include "platform/win32/wide_text.h"
#include "window_classes.h"

namespace nvrandom::win32 {

namespace {

// The drop-down shows this many rows at once.
constexpr int kVisibleRows = 15;

void SetCell(HWND list, int row, int column, const std::string& text) {
  std::wstring wide_text = wide::FromUtf8(text);
  LVITEMW item{};
  item.mask = LVIF_TEXT;
  item.iItem = row;
  item.iSubItem = column;
  item.pszText = wide_text.data();
  ::SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMTEXTW, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&item));
}

}  // namespace

DataListPopup::DataListPopup(FormWindow& window) : window_(window) {}

DataListPopup::~DataListPopup() {
  if (hwnd_ != nullptr) ::DestroyWindow(hwnd_);
}

void DataListPopup::Fill(const ControlRecord& record) {
  const forms::Control& c = *record.control;
  ::SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
  ::SendMessageW(list_, LVM_DELETEALLITEMS, 0, 0);
  while (::SendMessageW(list_, LVM_DELETECOLUMN, 0, 0) != 0) {
  }
  size_t columns = c.ColumnHeadings().size();
  for (int row = 0; row < c.ListCount(); ++row) columns = std::max(columns, c.Row(row).size());
  for (size_t i = 0; i < columns; ++i) {
    std::wstring heading =
        i < c.ColumnHeadings().size() ? wide::FromUtf8(c.ColumnHeadings()[i]) : std::wstring();
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_SUBITEM;
    column.pszText = heading.data();
    column.iSubItem = static_cast<int>(i);
    ::SendMessageW(list_, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
  for (int row = 0; row < c.ListCount(); ++row) {
    const auto& cells = c.Row(row);
    SetCell(list_, row, 0, cells.empty() ? std::string() : cells[0]);
    for (size_t i = 1; i < cells.size(); ++i) SetCell(list_, row, static_cast<int>(i), cells[i]);
  }
  for (size_t i = 0; i < columns; ++i) {
    ::SendMessageW(list_, LVM_SETCOLUMNWIDTH, i, LVSCW_AUTOSIZE_USEHEADER);
  }
  ::SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
}

void DataListPopup::Open(ControlRecord& record) {
  if (record.control == nullptr) return;
  Close();
  if (hwnd_ == nullptr) {
    hwnd_ = ::CreateWindowExW(WS_EX_TOOLWINDOW, kDropDownClass, L"", WS_POPUP | WS_BORDER, 0, 0, 10,
                              10, window_.hwnd(), nullptr, ViewModule(), this);
    list_ = ::CreateWindowExW(
        0, WC_LISTVIEWW, L"",
        WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
        0, 0, 10, 10, hwnd_, nullptr, ViewModule(), nullptr);
    ::SendMessageW(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
  }
  record_ = &record;
  ::SendMessageW(list_, WM_SETFONT,
                 reinterpret_cast<WPARAM>(window_.Font(record.control->FontName())), FALSE);
  Fill(record);

  // Wide enough for every column, tall enough for a screenful of rows, under the box.
  int width = ::GetSystemMetrics(SM_CXVSCROLL) + 4;
  for (int i = 0; i < ::SendMessageW(::GetWindow(list_, GW_CHILD), HDM_GETITEMCOUNT, 0, 0); ++i) {
    width += static_cast<int>(::SendMessageW(list_, LVM_GETCOLUMNWIDTH, i, 0));
  }
  RECT box{};
  ::GetWindowRect(record.hwnd, &box);
  const LRESULT approximate = ::SendMessageW(
      list_, LVM_APPROXIMATEVIEWRECT,
      static_cast<WPARAM>(std::min(kVisibleRows, std::max(1, record.control->ListCount()))),
      MAKELPARAM(-1, -1));
  width = std::max(width, static_cast<int>(box.right - box.left));
  const int height = HIWORD(approximate) + 4;
  RECT area{};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  const int box_height =
      static_cast<int>(::SendMessageW(record.hwnd, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0)) +
      6;
  int left = std::min(static_cast<int>(box.left), static_cast<int>(area.right) - width);
  int top = static_cast<int>(box.top) + box_height;
  if (top + height > area.bottom) top = static_cast<int>(box.top) - height;
  left = std::max(left, static_cast<int>(area.left));
  top = std::max(top, static_cast<int>(area.top));
  ::MoveWindow(list_, 0, 0, width - 2, height - 2, FALSE);
  ::SetWindowPos(hwnd_, HWND_TOP, left, top, width, height, SWP_SHOWWINDOW);

  const int current = record.control->ListIndex();
  if (current >= 0) {
    LVITEMW state{};
    state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    state.state = LVIS_SELECTED | LVIS_FOCUSED;
    ::SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(current),
                   reinterpret_cast<LPARAM>(&state));
    ::SendMessageW(list_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(current), FALSE);
  }
  ::SetFocus(list_);
}

void DataListPopup::Close() {
  if (hwnd_ != nullptr && ::IsWindowVisible(hwnd_)) ::ShowWindow(hwnd_, SW_HIDE);
  record_ = nullptr;
}

void DataListPopup::Choose(int row) {
  ControlRecord* record = record_;
  Close();
  if (record != nullptr) window_.RowChosen(*record, row);
}

LRESULT DataListPopup::Message(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_NOTIFY: {
      const auto* header = reinterpret_cast<const NMHDR*>(lparam);
      if (header->hwndFrom != list_) break;
      if (header->code == NM_CLICK || header->code == NM_DBLCLK) {
        const auto* activate = reinterpret_cast<const NMITEMACTIVATE*>(lparam);
        if (activate->iItem >= 0) Choose(activate->iItem);
        return 0;
      }
      if (header->code == NM_RETURN) {
        Choose(static_cast<int>(
            ::SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)));
        return 0;
      }
      if (header->code == LVN_KEYDOWN &&
          reinterpret_cast<const NMLVKEYDOWN*>(lparam)->wVKey == VK_ESCAPE) {
        Choose(-1);
        return 0;
      }
      break;
    }
    case WM_ACTIVATE:
      // Clicking anywhere else closes the drop-down without a choice.
      if (LOWORD(wparam) == WA_INACTIVE && record_ != nullptr) {
        record_ = nullptr;
        ::ShowWindow(hwnd_, SW_HIDE);
      }
      return 0;
    case WM_CLOSE:
      Choose(-1);
      return 0;
    default:
      break;
  }
  return ::DefWindowProcW(hwnd_, message, wparam, lparam);
}

LRESULT CALLBACK DataListPopup::WindowProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam) {
  return DispatchToOwner(hwnd, message, wparam, lparam, &DataListPopup::hwnd_,
                         &DataListPopup::Message);
}

}  // namespace nvrandom::win32
