#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace nvrandom::forms {

class Control;

// Key codes as KeyDown sees them, and the control characters KeyPress sees.
namespace keys {
inline constexpr int16_t kBackspace = 8;
inline constexpr int16_t kTab = 9;
inline constexpr int16_t kEnter = 13;
inline constexpr int16_t kCopy = 3;    // Control+C as a character
inline constexpr int16_t kPaste = 22;  // Control+V as a character
inline constexpr int16_t kCut = 24;    // Control+X as a character
inline constexpr int16_t kKeyTab = 9;  // with kShiftMask: Shift+Tab, which types no character
inline constexpr int16_t kKeyEnd = 35;
inline constexpr int16_t kKeyHome = 36;
inline constexpr int16_t kKeyLeft = 37;
inline constexpr int16_t kKeyUp = 38;
inline constexpr int16_t kKeyRight = 39;
inline constexpr int16_t kKeyDown = 40;
inline constexpr int16_t kKeyInsert = 45;
inline constexpr int16_t kKeyDelete = 46;
inline constexpr int16_t kKeyC = 67;
inline constexpr int16_t kKeyV = 86;
inline constexpr int16_t kKeyX = 88;
inline constexpr int16_t kShiftMask = 1;
inline constexpr int16_t kCtrlMask = 2;
inline constexpr int16_t kAltMask = 4;
// MouseDown's buttons.
inline constexpr int16_t kLeftButton = 1;
inline constexpr int16_t kRightButton = 2;

// Whether a KeyDown is the platform's paste: Shift+Insert or Control+V.
constexpr bool IsPasteKeyDown(int16_t key_code, int16_t shift) {
  return (key_code == kKeyInsert && shift == kShiftMask) ||
         (key_code == kKeyV && shift == kCtrlMask);
}
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

// One physical key that types `character` on `control`: KeyDown, KeyPress (the form's first of
// each when it previews keys), the control's own handling of the character (insert at the
// selection within MaxLength, Backspace, paste, copy, cut, Tab to the next control, toggle a
// check box, press a button), then KeyUp on the control that has the focus by then. A handler
// that sets the code to 0 discards the key (KeyUp still fires). False when it was discarded.
bool Keystroke(Control& control, char32_t character);

// One physical key that types no character of its own: KeyDown, then unless discarded the key's
// editing action (Delete, arrows, Home, End, Shift+Insert paste, Shift+Tab to the previous tab
// stop; Control+C, Control+V and Control+X go on as the KeyPress of their control character),
// then KeyUp. False when discarded.
bool PhysicalKey(Control& control, int16_t key_code, int16_t shift);

}  // namespace nvrandom::forms
