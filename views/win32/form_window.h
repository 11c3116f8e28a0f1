#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "forms/property.h"

namespace nvrandom::win32 {

struct ControlRecord;
class DataListPopup;
class Win32View;

// The native window of one loaded Form: one child window per control, kept equal to the model
// through the observer notifications, and the person's input on those windows passed to the
// runtime's one input path (forms/user_input.h). It decides nothing itself: every key, click and
// focus request goes to the model, and what the model then holds is what the controls show.
//
// Embedding: the window starts as a top-level window. A host that embeds it calls SetParent on
// its handle; the window then turns itself into a child window (no caption or frame, WS_CHILD) at
// its designed client size, and back into a top-level window if the host gives it back to the
// desktop.
class FormWindow {
 public:
  FormWindow(Win32View& view, forms::Form& form, int dpi);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  HWND hwnd() const { return hwnd_; }
  forms::Form* form() const { return form_; }
  Win32View& view() const { return view_; }
  int dpi() const { return dpi_; }
  // The form was unloaded: the window stops forwarding input and no longer touches the model.
  void Detach();

  void ControlChanged(forms::Control& control, forms::Property property);
  void FormChanged(forms::Property property);
  // Puts the keyboard focus where the model has it, when this window's top level is active.
  void ShowFocus();
  // Shows the window modal over `owner` (disabled until the window closes) or embedded.
  void ShowModal(HWND owner);
  void ShowEmbedded();
  void Hide();

  // Window resources shared by the controls: one font per face (and underline), one brush per
  // colour, released with the window.
  HFONT Font(const std::string& face, bool underline = false);
  HBRUSH Brush(COLORREF color);
  // The colour behind a control: its container's background (a frame's or the form's).
  COLORREF BackgroundOf(const forms::Control& control) const;

  // The person's input on the controls (called from their window procedures).
  LRESULT ControlMessage(ControlRecord& record, HWND hwnd, UINT message, WPARAM wparam,
                         LPARAM lparam);
  // Messages the controls send their parent (commands, colours, drawing), also when the parent is
  // a frame.
  bool ParentMessage(UINT message, WPARAM wparam, LPARAM lparam, LRESULT& result);
  // A data list's row chosen from its drop-down (-1: closed without a choice).
  void RowChosen(ControlRecord& record, int row);

  static LRESULT CALLBACK WindowProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);
  static constexpr const wchar_t* kClassName = L"NVRandomForm";

 private:
  // Posted to the form window to put the keyboard back where the model has the focus, once
  // Windows has finished moving it.
  static constexpr UINT kSyncFocus = WM_APP + 1;

  ControlRecord* RecordOf(HWND hwnd) const;
  ControlRecord* RecordOf(const forms::Control& control) const;
  void Update(ControlRecord& record, forms::Property property);
  void Place(ControlRecord& record);
  void FitClientSize();
  void FollowParent();
  LRESULT FormMessage(UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT Key(ControlRecord& record, HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT Mouse(ControlRecord& record, HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);
  void Clicks(ControlRecord& record, HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);
  void ContextMenu(ControlRecord& record, HWND hwnd, LPARAM lparam);
  void SyncSelection(ControlRecord& record);
  void FocusIn(ControlRecord& record);
  void DropDown(ControlRecord& record);

  Win32View& view_;
  forms::Form* form_;
  int dpi_;
  HWND hwnd_ = nullptr;
  HWND owner_ = nullptr;  // disabled while this window is shown modal over it
  std::vector<std::unique_ptr<ControlRecord>> records_;
  std::unordered_map<const forms::Control*, ControlRecord*> by_control_;
  std::unordered_map<HWND, ControlRecord*> by_window_;  // its window and its input window
  std::map<std::pair<std::string, bool>, HFONT> fonts_;
  std::map<COLORREF, HBRUSH> brushes_;
  std::unique_ptr<DataListPopup> popup_;
};

}  // namespace nvrandom::win32
