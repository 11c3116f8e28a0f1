#pragma once

#include <windows.h>

namespace nvrandom::win32 {

class FormWindow;
struct ControlRecord;

// The drop-down of a data list: a table of its rows under the named column headings, shown
// under the box. Clicking a row or pressing Enter chooses it (through FormWindow::RowChosen, as a
// person's pick); Escape or clicking elsewhere closes it without a choice.
class DataListPopup {
 public:
  explicit DataListPopup(FormWindow& window);
  ~DataListPopup();
  DataListPopup(const DataListPopup&) = delete;
  DataListPopup& operator=(const DataListPopup&) = delete;

  void Open(ControlRecord& record);
  void Close();

  static LRESULT CALLBACK WindowProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);

 private:
  void Fill(const ControlRecord& record);
  void Choose(int row);
  LRESULT Message(UINT message, WPARAM wparam, LPARAM lparam);

  FormWindow& window_;
  HWND hwnd_ = nullptr;
  HWND list_ = nullptr;
  ControlRecord* record_ = nullptr;  // the data list it is open for
};

}  // namespace nvrandom::win32
