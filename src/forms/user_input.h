#pragma once

#include <cstdint>
#include <string_view>

namespace nvrandom::forms {

class Control;
class Form;

// What a person does to a form: the one input path of every view and of the scenario runner.
// Each call is one piece of user input, after which the keystrokes that handlers sent are
// delivered. The calls that need the focus on a control return false, doing nothing, when the
// control is not available.
namespace user {

bool Focus(Control& control);
// Focus, then each character as one physical key (KeyDown, KeyPress, the character's handling,
// KeyUp); the keys that handlers sent are delivered before the next character, and each
// character goes to the control that has the focus when it is typed.
bool Type(Control& control, std::string_view text);
// Focus, then one physical key typing that character code (13 Enter, 8 Backspace, 22 paste).
bool Key(Control& control, int16_t key_ascii);
// Focus, then one physical key that types no character: KeyDown, its editing action (Delete,
// arrows, Home, End, Shift+Insert; Control+C/V/X as their KeyPress; with Alt, the access key of
// a caption), KeyUp.
bool KeyDown(Control& control, int16_t key_code, int16_t shift);
// The person selects [start, start + length) of the control's text (clipped to it); focus first.
bool Select(Control& control, int start, int length);
// A mouse button pressed over the control (1 left, 2 right) at (x, y) in twips from its corner,
// and released.
bool MouseDown(Control& control, int16_t button, int16_t shift = 0, float x = 0.0F, float y = 0.0F);
bool MouseUp(Control& control, int16_t button, int16_t shift = 0, float x = 0.0F, float y = 0.0F);
// The second press of a double click, whose first press was a Click: DblClick. Command buttons
// and check boxes have no DblClick; their second press is another Click (a check box toggles
// back).
bool DoubleClick(Control& control);
// Puts `text` on the clipboard and pastes with Control+V (which a handler may refuse).
bool Paste(Control& control, std::string_view text);
// Puts `text` on the clipboard, presses the right button over the control (MouseDown, MouseUp),
// then chooses Paste from its context menu: no key events; what the clipboard then holds goes in
// at the selection (MaxLength respected).
bool MenuPaste(Control& control, std::string_view text);
// Selects all and deletes it (one Change).
bool ClearText(Control& control);
// Focus (for controls that take it), then Click: a check box toggles, an option button is
// selected, a button, label, image or hyperlink is clicked.
bool Click(Control& control);
// Chooses a list row with the mouse: by the bound (code) column in data lists, by its text in
// combo boxes. False when the control is not available or has no such row.
bool Pick(Control& control, std::string_view value);
// Chooses row `row` (0-based) of a list, as a click in its drop-down or the mouse wheel does.
// False when the control is not available or has no such row.
bool PickRow(Control& control, int row);
// The window's close box (unload mode 0) and the system shutting down (mode 2).
void CloseBox(Form& form);
void Shutdown(Form& form);

}  // namespace user
}  // namespace nvrandom::forms
