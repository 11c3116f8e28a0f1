#pragma once

#include <windows.h>

#include <string>

#include "forms/control.h"
#include "forms/property.h"

namespace nvrandom::win32 {

class FormWindow;

// One control of the model and the native window that shows it.
struct ControlRecord {
  forms::Control* control = nullptr;  // nullptr once the form is unloaded
  HWND hwnd = nullptr;                // placed in its container (the form or a frame)
  HWND input = nullptr;               // takes the keys: hwnd, or a combo box's edit field
  FormWindow* window = nullptr;
  wchar_t high_surrogate = 0;   // the first half of a character typed as two WM_CHARs
  bool double_clicked = false;  // the left button's release ends a double click, not a click
};

inline bool IsListKind(forms::ControlKind kind) {
  return kind == forms::ControlKind::kComboBox || kind == forms::ControlKind::kDataList;
}

// How one kind of control is shown: the native window it gets and the update of its own
// properties (those every kind has are updated by the form window).
struct KindView {
  HWND (*create)(ControlRecord& record, HWND parent, int id);
  void (*update)(ControlRecord& record, forms::Property property);
};

const KindView& ViewOf(forms::ControlKind kind);

// The text a text box shows: its text, or as many mask characters when it has a PasswordChar.
std::wstring ShownText(const forms::Control& control);

// Owner-drawn buttons (graphical command buttons, styled buttons in their flat style) and images.
void DrawOwnerDrawn(const ControlRecord& record, const DRAWITEMSTRUCT& item);

}  // namespace nvrandom::win32
