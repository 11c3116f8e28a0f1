#include "forms/user_input.h"

#include <memory>
#include <string>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "forms/keystroke.h"
#include "platform/clipboard.h"
#include "platform/utf8.h"

namespace nvrandom::forms::user {

namespace {
// One piece of user input on a form: the form stays alive until its handlers, and the keys they
// sent, are done, even when a handler unloads it and nothing else holds it.
class Input {
 public:
  explicit Input(Form& form) : keep_(form.shared_from_this()), scope_(form.app()) {}

 private:
  std::shared_ptr<Form> keep_;
  Application::InputScope scope_;
};

bool FocusWithin(Control& control) {
  if (!control.CanFocus()) return control.form().app().TakesInput(control);
  if (!Application::Available(control)) {
    control.form().app().SetFocus(control);  // reported to observers as refused
    return false;
  }
  return control.form().app().SetFocus(control);
}
}  // namespace

bool Focus(Control& control) {
  const Input input(control.form());
  return FocusWithin(control);
}

bool Type(Control& control, std::string_view text) {
  Application& app = control.form().app();
  {
    const Input input(control.form());
    if (!FocusWithin(control)) return false;
  }
  // As at a keyboard, each key is input of its own: it and the keys its handlers send are done
  // before the next, which goes to the control that has the focus by then. What a person types
  // is literal: "~" is a tilde, not the Enter of a handler's SendKeys text.
  for (const char32_t c : utf8::Decode(text)) {
    Control* target = app.Focused();
    if (target == nullptr) break;
    const Input key(target->form());
    Keystroke(*target, c);
  }
  return true;
}

bool Key(Control& control, int16_t key_ascii) {
  const Input input(control.form());
  if (!FocusWithin(control)) return false;
  Keystroke(control, static_cast<char32_t>(static_cast<uint16_t>(key_ascii)));
  return true;
}

bool KeyDown(Control& control, int16_t key_code, int16_t shift) {
  const Input input(control.form());
  if (!FocusWithin(control)) return false;
  PhysicalKey(control, key_code, shift);
  return true;
}

bool Select(Control& control, int start, int length) {
  const Input input(control.form());
  if (!FocusWithin(control)) return false;
  control.SetSelection(start, length);
  return true;
}

bool MouseDown(Control& control, int16_t button, int16_t shift, float x, float y) {
  const Input input(control.form());
  if (!control.form().app().TakesInput(control)) return false;
  if (control.events.MouseDown) control.events.MouseDown(button, shift, x, y);
  return true;
}

bool MouseUp(Control& control, int16_t button, int16_t shift, float x, float y) {
  const Input input(control.form());
  if (!control.form().app().TakesInput(control)) return false;
  if (control.events.MouseUp) control.events.MouseUp(button, shift, x, y);
  return true;
}

bool DoubleClick(Control& control) {
  const Input input(control.form());
  if (IsButtonKind(control.kind()) || control.kind() == ControlKind::kCheckBox) {
    return Click(control);
  }
  if (!control.form().app().TakesInput(control)) return false;
  if (control.events.DblClick) control.events.DblClick();
  return true;
}

bool Paste(Control& control, std::string_view text) {
  const Input input(control.form());
  Application& app = control.form().app();
  if (!FocusWithin(control)) return false;
  app.clipboard().SetText(std::string(text));
  Keystroke(control, static_cast<char32_t>(keys::kPaste));
  return true;
}

bool MenuPaste(Control& control, std::string_view text) {
  const Input input(control.form());
  Application& app = control.form().app();
  if (!FocusWithin(control)) return false;
  app.clipboard().SetText(std::string(text));
  using keys::kRightButton;
  if (control.events.MouseDown) control.events.MouseDown(kRightButton, 0, 0.0F, 0.0F);
  if (control.events.MouseUp) control.events.MouseUp(kRightButton, 0, 0.0F, 0.0F);
  if (!Application::Available(control) || !IsTextKind(control.kind()) || control.Locked()) {
    return true;  // the menu's Paste is greyed out
  }
  control.ReplaceSelection(app.clipboard().Text());
  return true;
}

bool ClearText(Control& control) {
  const Input input(control.form());
  if (!FocusWithin(control)) return false;
  control.SetSelection(0, static_cast<int>(utf8::Length(control.Text())));
  control.ReplaceSelection("");
  return true;
}

bool Click(Control& control) {
  const Input input(control.form());
  if (!FocusWithin(control)) return false;
  switch (control.kind()) {
    case ControlKind::kCheckBox:
      control.SetValue(control.Value() == 1 ? 0 : 1);
      break;
    case ControlKind::kOptionButton:
      if (control.Value() != 0) {
        if (control.events.Click) control.events.Click();
      } else {
        control.SetValue(-1);
      }
      break;
    default:
      if (control.events.Click) control.events.Click();
      break;
  }
  return true;
}

bool Pick(Control& control, std::string_view value) {
  const Input input(control.form());
  if (!FocusWithin(control)) return false;
  const bool by_code = control.kind() == ControlKind::kDataList;
  for (int i = 0; i < control.ListCount(); ++i) {
    const auto& row = control.Row(i);
    const auto column = static_cast<size_t>(by_code ? control.BoundColumn() : 0);
    if (column < row.size() && row[column] == value) {
      control.SetListIndex(i);
      return true;
    }
  }
  return false;
}

bool PickRow(Control& control, int row) {
  const Input input(control.form());
  if (!FocusWithin(control) || row < 0 || row >= control.ListCount()) return false;
  control.SetListIndex(row);
  return true;
}

void CloseBox(Form& form) {
  const Input input(form);
  form.Unload(unload_mode::kCloseBox);
}

void Shutdown(Form& form) {
  const Input input(form);
  form.Unload(unload_mode::kSystemShutdown);
}

}  // namespace nvrandom::forms::user
