#pragma once

#include <cstdint>
#include <string_view>

namespace nvrandom::forms {

class Control;

// The key a caption marks as its access key ("&Help": 'H'; "&&" is a literal ampersand),
// upper-cased; '\0' when it marks none.
char AccessKeyOf(std::string_view caption);

// The label that names a text input: the one in the same container on the input's line, nearest
// to its left (what a screen reader reads, and where a label's access key leads); nullptr when
// there is none.
const Control* LabelOf(const Control& input);

// Alt with a letter or digit, pressed while `focused` has the focus: the control whose caption
// marks that key acts as in the platform's dialogs. A button or hyperlink is clicked, a check
// box toggled, an option button selected (each taking the focus if it can); a label gives the
// focus to the input it names, a frame to the first tab stop inside it. When several controls
// mark the same key, each press only moves the focus to the next of them in tab order. Controls
// that are hidden or disabled, or inside a hidden or disabled frame, do not answer. Returns
// whether one did.
bool PressAccessKey(Control& focused, int16_t key_code);

}  // namespace nvrandom::forms
