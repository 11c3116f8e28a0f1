#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms/keystroke.h"
#include "forms/user_input.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

struct FilterCase {
  const char* what;
  std::function<void(int16_t& code, int16_t& shift)> key_down;
  std::function<void(int16_t& key)> key_press;
  const char* typed;
  const char* text;
  int presses;  // KeyPress calls: a key zeroed in KeyDown never gets there
};

// The dialogs' key filters work by rewriting or zeroing the key in KeyPress and KeyDown; the
// runtime must insert the rewritten key, and a zeroed one must stop the key entirely (a zeroed
// KeyDown suppresses KeyPress too).
TEST(KeyInput, HandlersMayChangeOrDiscardTheKey) {
  const FilterCase cases[] = {
      {"KeyPress upper-cases", nullptr,
       [](int16_t& k) {
         if (k >= 'a' && k <= 'z') k = static_cast<int16_t>(k - 32);
       },
       "ab1", "AB1", 3},
      {"KeyPress discards digits", nullptr,
       [](int16_t& k) {
         if (k >= '0' && k <= '9') k = 0;
       },
       "a1b2", "ab", 4},
      {"KeyDown discards Q", [](int16_t& code, int16_t&) { code = code == 'Q' ? 0 : code; },
       nullptr, "aqb", "ab", 2},
  };
  for (const FilterCase& row : cases) {
    SCOPED_TRACE(row.what);
    Harness h;
    h.form->Show();
    forms::Control& code = h.C("txtCode");
    int presses = 0;
    code.events.KeyDown = row.key_down;
    code.events.KeyPress = [&](int16_t& k) {
      ++presses;
      if (row.key_press) row.key_press(k);
    };
    int changes = 0;
    code.events.Change = [&] { ++changes; };
    forms::user::Type(code, row.typed);
    EXPECT_EQ(code.Text(), row.text);
    EXPECT_EQ(changes, static_cast<int>(std::string(row.text).size())) << "one Change per insert";
    EXPECT_EQ(presses, row.presses);
  }
}

// A form with KeyPreview sees each key first (KeyDown, then KeyPress), and what it does to the
// key is what the control gets; without KeyPreview it sees nothing. The biller dialog's Enter
// rule lives in its Form_KeyPress.
TEST(KeyInput, KeyPreviewGivesTheFormTheKeyFirst) {
  Harness h;
  h.form = h.NewForm(kPreviewForm);
  h.form->Show();
  forms::Control& code = h.C("txtCode");
  code.events.KeyDown = [&](int16_t& k, int16_t&) {
    h.form->log.push_back("KeyDown " + std::to_string(k));
  };
  code.events.KeyPress = [&](int16_t& k) {
    h.form->log.push_back("KeyPress " + std::to_string(k));
  };
  code.events.Change = [&] { h.form->log.push_back("Change " + code.Text()); };
  h.form->on_key_press = [](int16_t& k) {
    if (k == 'x') k = 'y';
    if (k == 'z') k = 0;
  };
  forms::user::Type(code, "xz");
  const std::vector<std::string> expected = {
      "Form_KeyDown 88", "KeyDown 88",      "Form_KeyPress 120", "KeyPress 121",
      "Change y",        "Form_KeyDown 90", "KeyDown 90",        "Form_KeyPress 122",
  };
  EXPECT_EQ(h.form->log, expected);

  Harness plain;
  plain.form->Show();
  forms::user::Type(plain.C("txtCode"), "x");
  EXPECT_TRUE(plain.form->log.empty()) << "a form without KeyPreview saw the key";
}

struct EditCase {
  const char* what;
  const char* before;
  int sel_start;
  int sel_length;
  std::function<void(forms::Control&)> act;
  const char* after;
  int caret;
};

// Typing, pasting and Backspace edit at the selection and keep within MaxLength (txtName holds
// 5 characters): the fields' maximum lengths are what the host's record can store.
TEST(KeyInput, EditingRespectsSelectionAndMaxLength) {
  const auto type = [](const char* s) {
    return [s](forms::Control& c) { forms::user::Type(c, s); };
  };
  const auto paste = [](const char* s) {
    return [s](forms::Control& c) { forms::user::Paste(c, s); };
  };
  const auto backspace = [](forms::Control& c) { forms::user::Key(c, 8); };
  const EditCase cases[] = {
      {"typing stops at MaxLength", "", 0, 0, type("abcdefg"), "abcde", 5},
      {"pasting is cut to the room left", "abcd", 4, 0, paste("xyz"), "abcdx", 5},
      {"pasting replaces the selection, then is cut", "abcde", 1, 2, paste("wxyz"), "awxde", 3},
      {"a full field refuses a key", "abcde", 2, 0, type("z"), "abcde", 2},
      {"a full field takes a key over a selection", "abcde", 4, 1, type("z"), "abcdz", 5},
      {"typing inserts at the caret", "ace", 1, 0, type("b"), "abce", 2},
      {"MaxLength counts characters", "", 0, 0, type("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9x"),
       "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9", 5},
      {"Backspace deletes before the caret", "abc", 3, 0, backspace, "ab", 2},
      {"Backspace deletes the selection only", "abcd", 1, 2, backspace, "ad", 1},
      {"Backspace at the start does nothing", "abc", 0, 0, backspace, "abc", 0},
      {"Backspace deletes a whole character", "a\xE2\x82\xAC", 2, 0, backspace, "a", 1},
  };
  for (const EditCase& row : cases) {
    SCOPED_TRACE(row.what);
    Harness h;
    h.form->Show();
    forms::Control& name = h.C("txtName");
    name.SetText(row.before);
    name.SetSelStart(row.sel_start);
    name.SetSelLength(row.sel_length);
    row.act(name);
    EXPECT_EQ(name.Text(), row.after);
    EXPECT_EQ(name.SelStart(), row.caret);
    EXPECT_EQ(name.SelLength(), 0);
  }
}

// Paste comes in three ways: Control+V as a key press (KeyDown 86 with Control, then KeyPress
// 22), Control+V as a KeyDown alone (which goes on to the same KeyPress), and Shift+Insert (no
// character, so no KeyPress). The bank fields' paste guards zero the KeyDown; the e-mail field's
// filter sees the 22 in KeyPress.
TEST(KeyInput, PasteByKeyboardCanBeRefused) {
  enum Guard { kNone, kInKeyDown, kInKeyPress };
  struct Case {
    const char* what;
    std::function<void(forms::Control&)> act;
    const char* text[3];  // by guard
  };
  const Case cases[] = {
      {"Control+V key press",
       [](forms::Control& c) { forms::user::Paste(c, "12"); },
       {"12", "", ""}},
      {"Control+V KeyDown",
       [](forms::Control& c) { forms::user::KeyDown(c, 86, 2); },
       {"12", "", ""}},
      {"Shift+Insert", [](forms::Control& c) { forms::user::KeyDown(c, 45, 1); }, {"12", "", "12"}},
  };
  for (const Guard guard : {kNone, kInKeyDown, kInKeyPress}) {
    for (const Case& row : cases) {
      SCOPED_TRACE(std::string(row.what) + ", guard " + std::to_string(guard));
      Harness h;
      h.form->Show();
      h.clipboard.SetText("12");
      forms::Control& code = h.C("txtCode");
      if (guard == kInKeyDown) {
        code.events.KeyDown = [](int16_t& k, int16_t& shift) {
          if ((k == 86 && shift == 2) || (k == 45 && shift == 1)) k = 0;
        };
      } else if (guard == kInKeyPress) {
        code.events.KeyPress = [](int16_t& k) { k = k == 22 ? 0 : k; };
      }
      row.act(code);
      EXPECT_EQ(code.Text(), row.text[guard]);
    }
  }
}

// SendKeys text reaches the control that has the focus once the current event is over: a key
// sent from a handler must neither jump ahead of the key being handled nor go to the control
// that sent it when the handler also moved the focus (the biller dialog's Enter rule).
TEST(KeyInput, SentKeysArriveAfterTheCurrentEventAtTheFocusedControl) {
  Harness h;
  h.form->Show();
  forms::Control& name = h.C("txtName");
  forms::Control& code = h.C("txtCode");
  code.events.KeyPress = [&](int16_t& k) {
    if (k == 'a') h.app.SendKeys("b");
    if (k == 13) {
      h.app.SendKeys("9");
      h.app.SetFocus(name);
    }
  };
  forms::user::Type(code, "a");
  EXPECT_EQ(code.Text(), "ab");
  forms::user::Key(code, 13);
  EXPECT_EQ(code.Text(), "ab");
  EXPECT_EQ(name.Text(), "9");
  // From code, with no input under way, the keys go at once.
  h.app.SendKeys("{BS}7");
  EXPECT_EQ(name.Text(), "7");
}

// Typing goes to whichever control has the focus at each key: a field that moves the focus on
// when full must not swallow, or refuse, the rest of what the person types.
TEST(KeyInput, TypingFollowsTheFocus) {
  Harness h;
  h.form->Show();
  forms::Control& name = h.C("txtName");  // holds 5 characters
  forms::Control& code = h.C("txtCode");
  name.events.Change = [&] {
    if (name.Text().size() == 5) h.app.SetFocus(code);
  };
  forms::user::Type(name, "abcdefg");
  EXPECT_EQ(name.Text(), "abcde");
  EXPECT_EQ(code.Text(), "fg");
}

// A modal dialog runs its own input loop: keys sent before it opened reach it, and keys its own
// handlers send arrive while it is open, not after the event that opened it has finished.
TEST(KeyInput, ModalDialogsReceiveSentKeys) {
  Harness h;
  h.form->Show();
  forms::Control& code = h.C("txtCode");
  code.events.KeyPress = [&](int16_t& k) {
    if (k != 13) return;
    h.app.SendKeys("x");
    h.child->Show(true);
  };
  std::string at_open;
  std::string after_key;
  h.driver.script = [&](forms::Form& dialog) {
    forms::Control& field = dialog.Ctl("txtName");
    at_open = field.Text();
    field.events.KeyPress = [&](int16_t& k) {
      if (k == 'q') h.app.SendKeys("z");
    };
    forms::user::Key(field, 'q');
    after_key = field.Text();
    dialog.Unload();
  };
  forms::user::Key(code, 13);
  EXPECT_EQ(at_open, "x");
  EXPECT_EQ(after_key, "xqz");
}

// SendKeys' notation, as the dialogs write it.
TEST(KeyInput, SendKeysNotation) {
  const std::vector<char32_t> expected = {'a', 13, 13, 9, 8, 8, '~', '{', 0xE9};
  EXPECT_EQ(forms::DecodeKeys("a~{ENTER}{TAB}{BS}{BACKSPACE}{~}{{}\xC3\xA9"), expected);
}

}  // namespace
}  // namespace nvrandom::forms_test
