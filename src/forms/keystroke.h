#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace nvrandom::forms {

class Control;

// Key codes as KeyDown sees them.
namespace keys {
inline constexpr int16_t kBackspace = 8;
inline constexpr int16_t kTab = 9;
inline constexpr int16_t kEnter = 13;
inline constexpr int16_t kCopy = 3;    // Control+C as a character
inline constexpr int16_t kPaste = 22;  // Control+V as a character
inline constexpr int16_t kCut = 24;    // Control+X as a character
inline constexpr int16_t kKeyInsert = 45;
inline constexpr int16_t kKeyV = 86;
inline constexpr int16_t kShiftMask = 1;
inline constexpr int16_t kCtrlMask = 2;
}  // namespace keys

struct KeyCodeAndShift {
  int16_t key_code = 0;
  int16_t shift = 0;
};

// The key (US layout) that types `character`: KeyDown's code and shift state.
KeyCodeAndShift KeyFor(char32_t character);

// The characters of SendKeys text: plain characters, "~" or "{ENTER}" for Enter, "{TAB}",
// "{BS}"/"{BACKSPACE}", and "{x}" for a character that is otherwise special.
std::vector<char32_t> DecodeKeys(std::string_view keys);

// One key press on `control`: KeyDown (the form's first when it previews keys), KeyPress (idem),
// then the control's own handling of the key: insert at the selection within MaxLength, Backspace,
// paste, Tab to the next control, toggle a check box, press a button. A handler that sets the
// code to 0 discards the key. Returns false when the key was discarded.
bool Keystroke(Control& control, char32_t character);

// A KeyDown alone (a key that types no character, or a shortcut): returns false when discarded.
// Shift+Insert pastes into text boxes when not discarded; Control+V goes on as the key press of
// the paste character (22), which KeyPress may discard in turn.
bool KeyDownOnly(Control& control, int16_t key_code, int16_t shift);

}  // namespace nvrandom::forms
