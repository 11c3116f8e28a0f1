#include "forms/keystroke.h"

#include <algorithm>
#include <string>

#include "forms/access_keys.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "platform/clipboard.h"
#include "platform/utf8.h"

namespace nvrandom::forms {

namespace {

constexpr int16_t kProcessKey = 229;  // a character no key of the layout types

void Backspace(Control& c) {
  if (c.SelLength() == 0) {
    if (c.SelStart() == 0) return;
    c.SetSelection(c.SelStart() - 1, 1);
  }
  c.ReplaceSelection("");
}

void DeleteForward(Control& c) {
  if (c.SelLength() == 0) c.SetSelection(c.SelStart(), 1);
  c.ReplaceSelection("");
}

void PasteClipboard(Control& c) {
  if (c.Locked()) return;
  c.ReplaceSelection(c.form().app().clipboard().Text());
}

// A masked box gives nothing away: copy and cut do nothing there.
void CopySelection(Control& c, bool cut) {
  if (!c.PasswordChar().empty()) return;
  c.form().app().clipboard().SetText(c.SelText());
  if (cut && !c.Locked()) c.ReplaceSelection("");
}

void TabToNext(Control& from) {
  if (Control* next = Application::NextTabStop(from)) from.form().app().SetFocus(*next);
}

void DefaultAction(Control& c, int16_t key) {
  if (key == keys::kTab) {
    TabToNext(c);
    return;
  }
  if (IsTextKind(c.kind())) {
    if (key == keys::kCopy || key == keys::kCut) {
      CopySelection(c, key == keys::kCut);
    } else if (c.Locked()) {
      return;
    } else if (key == keys::kBackspace) {
      Backspace(c);
    } else if (key == keys::kPaste) {
      PasteClipboard(c);
    } else if (key >= 32 || key < 0) {
      const auto cp = static_cast<char32_t>(static_cast<uint16_t>(key));
      c.ReplaceSelection(utf8::EncodeCodePoint(cp));
    }
    return;
  }
  if (IsButtonKind(c.kind())) {
    if ((key == ' ' || key == keys::kEnter) && c.events.Click) c.events.Click();
    return;
  }
  switch (c.kind()) {
    case ControlKind::kCheckBox:
      if (key == ' ') c.SetValue(c.Value() == 1 ? 0 : 1);
      return;
    case ControlKind::kOptionButton:
      if (key == ' ') c.SetValue(-1);
      return;
    default:
      return;
  }
}

// Moves the caret of a text, or with Shift extends the selection from SelStart.
void MoveCaret(Control& c, int to, bool extend) {
  if (extend) {
    const int anchor = c.SelStart();
    if (to >= anchor) {
      c.SetSelection(anchor, to - anchor);
    } else {
      c.SetSelection(to, anchor + c.SelLength() - to);
    }
  } else {
    c.SetSelection(to, 0);
  }
}

// What a key that types no character does to the control that has the focus.
void EditingAction(Control& c, int16_t key_code, int16_t shift) {
  if ((shift & keys::kAltMask) != 0 && (shift & keys::kCtrlMask) == 0) {
    PressAccessKey(c, key_code);
    return;
  }
  if (key_code == keys::kKeyTab && shift == keys::kShiftMask) {
    if (Control* previous = Application::PreviousTabStop(c)) c.form().app().SetFocus(*previous);
    return;
  }
  if (!IsTextKind(c.kind())) return;
  const bool extend = (shift & keys::kShiftMask) != 0;
  const int end = static_cast<int>(utf8::Length(c.Text()));
  const int caret_end = c.SelStart() + c.SelLength();
  const bool list = c.kind() != ControlKind::kTextBox;
  switch (key_code) {
    case keys::kKeyDelete:
      if (!c.Locked()) DeleteForward(c);
      return;
    case keys::kKeyUp:
    case keys::kKeyDown:
      if (list) {
        // The arrows walk a list's rows, as a choice of the row.
        const int step = key_code == keys::kKeyUp ? -1 : 1;
        const int row = c.ListIndex() + step;
        if (row >= 0 && row < c.ListCount()) c.SetListIndex(row);
        return;
      }
      // A one-line text box takes Up as Left and Down as Right.
      MoveCaret(c, key_code == keys::kKeyUp ? std::max(0, c.SelStart() - 1) : caret_end + 1,
                extend);
      return;
    case keys::kKeyLeft:
      MoveCaret(c, extend || c.SelLength() == 0 ? c.SelStart() - 1 : c.SelStart(), extend);
      return;
    case keys::kKeyRight:
      MoveCaret(c, extend || c.SelLength() == 0 ? caret_end + 1 : caret_end, extend);
      return;
    case keys::kKeyHome:
      MoveCaret(c, 0, extend);
      return;
    case keys::kKeyEnd:
      MoveCaret(c, end, extend);
      return;
    case keys::kKeyInsert:
      if (shift == keys::kShiftMask) PasteClipboard(c);
      return;
    default:
      return;
  }
}

// The KeyDown stage of a key press: the form's handler first when it previews keys, then the
// control's. False when a handler discarded the key.
bool PressKeyDown(Control& control, int16_t& key_code, int16_t& shift) {
  Form& form = control.form();
  if (form.KeyPreview()) {
    form.Form_KeyDown(key_code, shift);
    if (key_code == 0) return false;
  }
  if (control.events.KeyDown) {
    control.events.KeyDown(key_code, shift);
    if (key_code == 0) return false;
  }
  return true;
}

// The character stage of a key press: KeyPress (the form's first when it previews keys), then
// the control's own handling of the key.
bool PressCharacter(Control& control, int16_t key_ascii) {
  Form& form = control.form();
  if (form.KeyPreview()) {
    form.Form_KeyPress(key_ascii);
    if (key_ascii == 0) return false;
  }
  if (control.events.KeyPress) {
    control.events.KeyPress(key_ascii);
    if (key_ascii == 0) return false;
  }
  if (form.IsLoaded()) DefaultAction(control, key_ascii);
  return true;
}

// The key comes up over whichever control has the focus by then (a handler may have moved it).
void ReleaseKey(Control& pressed, int16_t key_code, int16_t shift) {
  Control* target = pressed.form().app().Focused();
  if (target == nullptr) return;
  Form& form = target->form();
  if (form.KeyPreview()) {
    form.Form_KeyUp(key_code, shift);
    if (key_code == 0) return;
  }
  if (target->events.KeyUp) target->events.KeyUp(key_code, shift);
}

// The control character a Control+letter shortcut types, or 0.
int16_t ControlCharacter(int16_t key_code, int16_t shift) {
  if (shift != keys::kCtrlMask) return 0;
  switch (key_code) {
    case keys::kKeyC:
      return keys::kCopy;
    case keys::kKeyV:
      return keys::kPaste;
    case keys::kKeyX:
      return keys::kCut;
    default:
      return 0;
  }
}

}  // namespace

KeyCodeAndShift KeyFor(char32_t ch) {
  if (ch >= 'a' && ch <= 'z') return {static_cast<int16_t>(ch - 'a' + 'A'), 0};
  if (ch >= 'A' && ch <= 'Z') return {static_cast<int16_t>(ch), keys::kShiftMask};
  if (ch >= '0' && ch <= '9') return {static_cast<int16_t>(ch), 0};
  if (ch == keys::kPaste) return {keys::kKeyV, keys::kCtrlMask};
  if (ch == keys::kCopy) return {'C', keys::kCtrlMask};
  if (ch == keys::kCut) return {'X', keys::kCtrlMask};
  if (ch == ' ' || ch == keys::kBackspace || ch == keys::kTab || ch == keys::kEnter) {
    return {static_cast<int16_t>(ch), 0};
  }
  static constexpr std::string_view kPlain = ";=,-./`[\\]'";
  static constexpr int16_t kPlainCodes[] = {186, 187, 188, 189, 190, 191, 192, 219, 220, 221, 222};
  static constexpr std::string_view kShifted = ":+<_>?~{|}\"";
  static constexpr std::string_view kShiftedDigits = ")!@#$%^&*(";
  if (ch < 128) {
    const char c = static_cast<char>(ch);
    if (const size_t i = kPlain.find(c); i != std::string_view::npos) return {kPlainCodes[i], 0};
    if (const size_t i = kShifted.find(c); i != std::string_view::npos) {
      return {kPlainCodes[i], keys::kShiftMask};
    }
    if (const size_t i = kShiftedDigits.find(c); i != std::string_view::npos) {
      return {static_cast<int16_t>('0' + i), keys::kShiftMask};
    }
  }
  return {kProcessKey, 0};
}

std::vector<char32_t> DecodeKeys(std::string_view text) {
  std::vector<char32_t> out;
  for (size_t i = 0; i < text.size();) {
    if (text[i] == '~') {
      out.push_back(keys::kEnter);
      ++i;
      continue;
    }
    if (text[i] == '{') {
      const size_t close = text.find('}', i + 2);
      if (close != std::string_view::npos) {
        const std::string_view name = text.substr(i + 1, close - i - 1);
        if (name == "ENTER") {
          out.push_back(keys::kEnter);
        } else if (name == "TAB") {
          out.push_back(keys::kTab);
        } else if (name == "BS" || name == "BACKSPACE") {
          out.push_back(keys::kBackspace);
        } else if (name.size() == 1) {
          out.push_back(static_cast<unsigned char>(name[0]));
        }
        i = close + 1;
        continue;
      }
    }
    const size_t size = utf8::Offset(text.substr(i), 1);
    for (const char32_t cp : utf8::Decode(text.substr(i, size))) out.push_back(cp);
    i += size;
  }
  return out;
}

bool PhysicalKey(Control& control, int16_t key_code, int16_t shift) {
  const int16_t down_code = key_code;
  const int16_t down_shift = shift;
  bool kept = PressKeyDown(control, key_code, shift);
  if (kept && control.form().IsLoaded()) {
    if (const int16_t character = ControlCharacter(key_code, shift); character != 0) {
      kept = PressCharacter(control, character);
    } else {
      EditingAction(control, key_code, shift);
    }
  }
  ReleaseKey(control, down_code, down_shift);
  return kept;
}

bool Keystroke(Control& control, char32_t character) {
  const KeyCodeAndShift key = KeyFor(character);
  int16_t key_code = key.key_code;
  int16_t shift = key.shift;
  bool kept = PressKeyDown(control, key_code, shift);
  if (kept) {
    kept = PressCharacter(control,
                          character > 0x7FFF ? int16_t{'?'} : static_cast<int16_t>(character));
  }
  ReleaseKey(control, key.key_code, key.shift);
  return kept;
}

}  // namespace nvrandom::forms
