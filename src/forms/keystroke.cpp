#include "forms/keystroke.h"

#include <cctype>
#include <string>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "forms/utf8_text.h"
#include "platform/clipboard.h"

namespace nvrandom::forms {

namespace {

constexpr int16_t kProcessKey = 229;  // a character no key of the layout types

bool IsTextKind(ControlKind kind) {
  return kind == ControlKind::kTextBox || kind == ControlKind::kComboBox ||
         kind == ControlKind::kDataList;
}

void Backspace(Control& c) {
  if (c.SelLength() == 0) {
    if (c.SelStart() == 0) return;
    c.SetSelStart(c.SelStart() - 1);
    c.SetSelLength(1);
  }
  c.ReplaceSelection("");
}

void PasteClipboard(Control& c) {
  if (c.Locked()) return;
  c.ReplaceSelection(c.form().app().clipboard().Text());
}

void TabToNext(Control& from) {
  Control* next = nullptr;
  Control* first = nullptr;
  for (const auto& c : from.form().Controls()) {
    if (!c->TabStop() || c.get() == &from || !Application::Available(*c)) continue;
    if (first == nullptr || c->TabIndex() < first->TabIndex()) first = c.get();
    if (c->TabIndex() > from.TabIndex() && (next == nullptr || c->TabIndex() < next->TabIndex())) {
      next = c.get();
    }
  }
  if (next == nullptr) next = first;
  if (next != nullptr) from.form().app().SetFocus(*next);
}

void DefaultAction(Control& c, int16_t key) {
  if (key == keys::kTab) {
    TabToNext(c);
    return;
  }
  switch (c.kind()) {
    case ControlKind::kTextBox:
    case ControlKind::kComboBox:
    case ControlKind::kDataList:
      if (c.Locked()) return;
      if (key == keys::kBackspace) {
        Backspace(c);
      } else if (key == keys::kPaste) {
        PasteClipboard(c);
      } else if (key == keys::kCopy || key == keys::kCut) {
        c.form().app().clipboard().SetText(c.SelText());
        if (key == keys::kCut) c.ReplaceSelection("");
      } else if (key >= 32 || key < 0) {
        const auto cp = static_cast<char32_t>(static_cast<uint16_t>(key));
        c.ReplaceSelection(utf8::EncodeCodePoint(cp));
      }
      return;
    case ControlKind::kCheckBox:
      if (key == ' ') c.SetValue(c.Value() == 1 ? 0 : 1);
      return;
    case ControlKind::kOptionButton:
      if (key == ' ') c.SetValue(-1);
      return;
    case ControlKind::kCommandButton:
      if ((key == ' ' || key == keys::kEnter) && c.events.Click) c.events.Click();
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
    // One UTF-8 character.
    const size_t size = utf8::Offset(text.substr(i), 1);
    const std::string_view one = text.substr(i, size);
    char32_t cp = static_cast<unsigned char>(one[0]);
    if (size > 1) {
      cp &= 0xFFu >> (size + 1);
      for (size_t k = 1; k < size; ++k)
        cp = (cp << 6) | (static_cast<unsigned char>(one[k]) & 0x3F);
    }
    out.push_back(cp);
    i += size;
  }
  return out;
}

bool KeyDownOnly(Control& control, int16_t key_code, int16_t shift) {
  if (!PressKeyDown(control, key_code, shift)) return false;
  const bool shift_insert = key_code == keys::kKeyInsert && shift == keys::kShiftMask;
  if (shift_insert && IsTextKind(control.kind())) PasteClipboard(control);
  // Control+V types the paste character, which goes through KeyPress like any other key.
  if (key_code == keys::kKeyV && shift == keys::kCtrlMask) {
    return PressCharacter(control, keys::kPaste);
  }
  return true;
}

bool Keystroke(Control& control, char32_t character) {
  const KeyCodeAndShift key = KeyFor(character);
  int16_t key_code = key.key_code;
  int16_t shift = key.shift;
  if (!PressKeyDown(control, key_code, shift)) return false;
  return PressCharacter(control,
                        character > 0x7FFF ? int16_t{'?'} : static_cast<int16_t>(character));
}

}  // namespace nvrandom::forms
