#pragma once

#include <cstdint>
#include <string_view>

namespace nvrandom::forms {

class Control;
class Form;

// What a person does to a form, as a view or a script feeds it in: each call is one piece of
// user input, after which the keystrokes that handlers sent are delivered. The calls that need
// the focus on a control return false, doing nothing, when the control is not available.
namespace user {

bool Focus(Control& control);
// Focus, then each character as one key press.
bool Type(Control& control, std::string_view text);
// Focus, then one key press with that character code (13 Enter, 8 Backspace, 22 paste).
bool Key(Control& control, int16_t key_ascii);
// Focus, then one KeyDown.
bool KeyDown(Control& control, int16_t key_code, int16_t shift);
// A mouse button pressed over the control (1 left, 2 right).
bool MouseDown(Control& control, int16_t button);
// Puts `text` on the clipboard and pastes with Control+V (which a handler may refuse).
bool Paste(Control& control, std::string_view text);
// Selects all and deletes it (one Change).
bool ClearText(Control& control);
// Focus (for controls that take it), then Click: a check box toggles, an option button is
// selected, a button, label, image or hyperlink is clicked.
bool Click(Control& control);
// Chooses a list row: by the bound (code) column in data lists, by its text in combo boxes.
// False when the control is not available or has no such row.
bool Pick(Control& control, std::string_view value);
// The window's close box (unload mode 0) and the system shutting down (mode 2).
void CloseBox(Form& form);
void Shutdown(Form& form);

}  // namespace user
}  // namespace nvrandom::forms
