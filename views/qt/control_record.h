#pragma once

#include <QWidget>

#include "forms/control.h"
#include "forms/property.h"

namespace nvrandom::qt {

class FormWindow;

// One control of the model and the widget that shows it.
struct ControlRecord {
  forms::Control* control = nullptr;
  QWidget* widget = nullptr;  // placed on the form (or in its container)
  QWidget* input = nullptr;   // takes the keyboard: the widget itself, or a combo box's edit field
  FormWindow* window = nullptr;
  bool syncing = false;            // the model's values are being written into the widget
  bool double_clicked = false;     // the left button's second press; its release is no Click
  bool follows_selection = false;  // the edit field's selection signals are connected
};

// How one kind of control is shown: the widget it gets and the update of its own properties
// (the ones every kind has are updated by the form window).
struct KindView {
  QWidget* (*create)(ControlRecord& record, QWidget* parent);
  void (*update)(ControlRecord& record, forms::Property property);
};

const KindView& ViewOf(forms::ControlKind kind);

// The text a text box shows: its text, or as many mask characters when it has a PasswordChar.
QString ShownText(const forms::Control& control);

}  // namespace nvrandom::qt
