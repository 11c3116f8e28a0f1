// The runtime's input path below what a scenario sees: the order of a key's events, editing at
// the selection within MaxLength, what a list choice fires, and where the focus goes. What handlers
// do to keys, and sent keys, are in runtime_input.scn and biller_entry_rules.scn; keys a handler
// refuses in KeyDown in biller_accept_us_bank.scn and fxbank_handover.scn; double clicks, which no
// dialog handles, in the views' tests.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/keystroke.h"
#include "forms/user_input.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

using Log = std::vector<std::string>;
using Act = std::function<void(forms::Control&)>;

// Logs every key, change and click event of `c` as "EVENT [code]".
void LogEvents(forms::Control& c, Log& log) {
  c.events.KeyDown = [&log](int16_t& k, int16_t&) {
    log.push_back("KeyDown " + std::to_string(k));
  };
  c.events.KeyPress = [&log](int16_t& k) { log.push_back("KeyPress " + std::to_string(k)); };
  c.events.KeyUp = [&log](int16_t& k, int16_t&) { log.push_back("KeyUp " + std::to_string(k)); };
  c.events.Change = [&log] { log.push_back("Change"); };
  c.events.Click = [&log] { log.push_back("Click"); };
}

Act TypeText(const char* s) {
  return [s](forms::Control& c) { forms::user::Type(c, s); };
}
Act PressKey(int16_t code) {
  return [code](forms::Control& c) { forms::user::Key(c, code); };
}
Act PressKeyDown(int16_t code, int16_t shift) {
  return [code, shift](forms::Control& c) { forms::user::KeyDown(c, code, shift); };
}

// One physical key is KeyDown, KeyPress (when it types a character), the edit, KeyUp: never a
// second KeyDown. txtCode holds "abcd" with "bc" selected. (Control+V's KeyPress 22, which the
// dialogs' paste guards read: runtime_input.scn and the foreign bank scenarios.)
TEST(Input, OnePhysicalKeyFiresEachEventOnce) {
  struct Case {
    const char* what;
    Act press;
    Log events;
    const char* text;
  };
  const Case cases[] = {
      {"a letter", PressKey('x'), {"KeyDown 88", "KeyPress 120", "Change", "KeyUp 88"}, "axd"},
      {"Delete",
       PressKeyDown(forms::keys::kKeyDelete, 0),
       {"KeyDown 46", "Change", "KeyUp 46"},
       "ad"},
      {"an arrow", PressKeyDown(forms::keys::kKeyLeft, 0), {"KeyDown 37", "KeyUp 37"}, "abcd"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    ShownHarness h;
    forms::Control& code = h.C("txtCode");
    code.SetText("abcd");
    forms::user::Select(code, 1, 2);
    Log log;
    LogEvents(code, log);
    row.press(code);
    EXPECT_EQ(log, row.events);
    EXPECT_EQ(code.Text(), row.text);
  }
}

// Editing happens at the selection, within MaxLength (txtName holds 5 characters), counting
// characters rather than bytes; Change fires only when the text really changes (a handler that
// rewrites its own text would otherwise recurse).
TEST(Input, EditingActsOnTheSelectionWithinMaxLength) {
  struct Case {
    const char* what;
    const char* before;
    int sel_start, sel_length;
    Act act;
    const char* after;
    int caret;
  };
  const char* e5 = "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9";
  const Case cases[] = {
      {"MaxLength counts characters", "", 0, 0,
       TypeText("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9x"), e5, 5},
      {"a full field refuses a key", "abcde", 2, 0, TypeText("z"), "abcde", 2},
      {"a full field takes a key over a selection", "abcde", 4, 1, TypeText("z"), "abcdz", 5},
      {"typing over a selection the character it holds", "ab", 0, 1, TypeText("a"), "ab", 1},
      {"typing inserts after a two-byte character", "h\xC3\xA9l", 2, 0, TypeText("X"),
       "h\xC3\xA9Xl", 3},
      {"Backspace at the start does nothing", "abc", 0, 0, PressKey(8), "abc", 0},
      {"Backspace deletes a whole character", "a\xE2\x82\xAC", 2, 0, PressKey(8), "a", 1},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    ShownHarness h;
    forms::Control& name = h.C("txtName");
    name.SetText(row.before);
    name.SetSelStart(row.sel_start);
    name.SetSelLength(row.sel_length);
    int changes = 0;
    name.events.Change = [&] { ++changes; };
    row.act(name);
    EXPECT_EQ(name.Text(), row.after);
    EXPECT_EQ(name.SelStart(), row.caret);
    EXPECT_EQ(name.SelLength(), 0);
    EXPECT_EQ(changes > 0, std::string(row.after) != row.before);
  }
  Harness h;
  forms::Control& name = h.C("txtName");
  name.SetText("h\xC3\xA9l");
  EXPECT_EQ(name.SelStart(), 3) << "the caret after setting the text, in characters";
  int changes = 0;
  name.events.Change = [&] { ++changes; };
  name.SetText("h\xC3\xA9l");
  EXPECT_EQ(changes, 0) << "the same text from code";
}

// A modal dialog runs its own input loop: keys its own handlers send arrive while it is open, not
// after the key that opened it. (Keys sent before it opened: fxbank_acceptance.scn.)
TEST(Input, KeysSentInAModalDialogArriveWhileItIsOpen) {
  ShownHarness h;
  forms::Control& code = h.C("txtCode");
  code.events.KeyPress = [&](int16_t& k) {
    if (k == 13) h.child->Show(true);
  };
  std::string after_key;
  h.driver.script = [&](forms::Form& dialog) {
    forms::Control& field = dialog.Ctl("txtName");
    field.events.KeyPress = [&](int16_t& k) {
      if (k == 'q') h.app.SendKeys("z");
    };
    forms::user::Key(field, 'q');
    after_key = field.Text();
    dialog.Unload();
  };
  forms::user::Key(code, 13);
  EXPECT_EQ(after_key, "qz");
}

TEST(Input, SendKeysNotation) {
  const std::vector<char32_t> expected = {'a', 13, 13, 9, 8, 8, '~', '{', 0xE9};
  EXPECT_EQ(forms::DecodeKeys("a~{ENTER}{TAB}{BS}{BACKSPACE}{~}{{}\xC3\xA9"), expected);
}

TEST(Input, AMaskedBoxCopiesNothing) {
  for (const int16_t key : {forms::keys::kKeyC, forms::keys::kKeyX}) {
    ShownHarness h;
    forms::Control& code = h.C("txtCode");
    code.SetText("secret");
    code.SetPasswordChar("*");
    h.clipboard.SetText("before");
    forms::user::Select(code, 0, 6);
    forms::user::KeyDown(code, key, forms::keys::kCtrlMask);
    EXPECT_EQ(h.clipboard.Text(), "before") << key;
    EXPECT_EQ(code.Text(), "secret") << key;
  }
}

// A plain combo box's choice fires Click alone, a data list's Change then Click. (Typing into a
// data list selects the row it names: runtime_input.scn.)
TEST(Input, ListChoicesFireTheirEvents) {
  for (const auto& [name, events] :
       {std::pair{"cboKind", Log{"Click"}}, {"dlCountry", Log{"Change", "Click"}}}) {
    ShownHarness h;
    forms::Control& list = h.C(name);
    list.SetRows({{"One"}, {"Two"}});
    Log log;
    LogEvents(list, log);
    forms::user::Pick(list, "Two");
    EXPECT_EQ(log, events) << name;
    EXPECT_EQ(list.Text(), "Two") << name;
  }
}

// LostFocus comes before GotFocus, and the first tab stop takes the focus when the form is shown.
// (That a LostFocus handler sees the control receiving the focus, and may send the focus on, the
// dialogs' currency, country and bank country checks show in their scenarios.)
TEST(Focus, LostFocusComesBeforeGotFocus) {
  ShownHarness h;
  EXPECT_EQ(h.form->ActiveControl(), &h.C("txtName"));
  std::vector<std::string> log;
  h.C("txtName").events.LostFocus = [&log] { log.push_back("Lost txtName"); };
  h.C("txtCode").events.GotFocus = [&log] { log.push_back("Got txtCode"); };
  EXPECT_TRUE(h.app.SetFocus(h.C("txtCode")));
  EXPECT_EQ(log, (std::vector<std::string>{"Lost txtName", "Got txtCode"}));
}

// The control left behind disables the one the focus is going to and sends the focus to one
// that by then is hidden too: the focus goes on in tab order; with nothing left, nowhere.
TEST(Focus, ATargetThatGoesAwayDuringTheMovePassesItOn) {
  for (const bool nothing_left : {false, true}) {
    SCOPED_TRACE(nothing_left ? "nothing left" : "one left");
    ShownHarness h;
    h.C("txtName").events.LostFocus = [&] {
      h.C("chkFlag").SetEnabled(false);
      h.app.SetFocus(h.C("txtInner"));
      h.C("fraInner").SetVisible(false);
      if (!nothing_left) return;
      for (const char* name : {"fraMain", "fraOther", "cmdGo", "cboKind", "dlCountry"}) {
        h.C(name).SetEnabled(false);
      }
    };
    h.app.SetFocus(h.C("chkFlag"));
    EXPECT_EQ(h.app.Focused(), nothing_left ? nullptr : &h.C("optA"));
  }
}

// What takes a control out of reach: `name` (the control or a container) hidden or disabled.
struct Removal {
  const char* what;
  const char* name;
  bool hide;
};
void Remove(Harness& h, const Removal& r) {
  if (r.hide) {
    h.C(r.name).SetVisible(false);
  } else {
    h.C(r.name).SetEnabled(false);
  }
}

// A control is available only when its form is shown and it and every container are visible and
// enabled. A request for any other control is refused quietly: the focus stays, no LostFocus
// runs, the observer hears of it (the transcript), and nothing is raised.
TEST(Focus, RequestsForUnavailableControlsAreRefused) {
  const Removal removals[] = {
      {"hidden control", "txtCode", true},
      {"disabled control", "txtCode", false},
      {"inside a disabled frame", "fraInner", false},
      {"inside a frame inside a hidden frame", "fraOther", true},
      {"on a form that is loaded but not shown", nullptr, false},
  };
  for (const Removal& row : removals) {
    SCOPED_TRACE(row.what);
    ShownHarness h;
    forms::Control& name = h.C("txtName");
    int lost = 0;
    name.events.LostFocus = [&] { ++lost; };
    forms::Control& target = row.name == nullptr                  ? h.child->Ctl("txtCode")
                             : std::string(row.name) == "txtCode" ? h.C("txtCode")
                                                                  : h.C("txtInner");
    if (row.name != nullptr) Remove(h, row);
    bool moved = true;
    EXPECT_NO_THROW(moved = h.app.SetFocus(target));
    EXPECT_FALSE(moved);
    EXPECT_EQ(h.app.Focused(), &name);
    EXPECT_EQ(lost, 0);
    EXPECT_EQ(h.observer.refused, std::vector<std::string>{target.FullName()});
    EXPECT_FALSE(forms::user::Type(target, "x")) << "typing into it was accepted";
  }
}

// The focused control, disabled itself or hidden or disabled through a container, passes the
// focus on in tab order (hidden itself: the Qt view's tests), and sent keys reach the new control;
// with no control left, nothing has the focus and the keys go nowhere. Another control going away
// leaves the focus where it is.
TEST(Focus, FocusLeavesAControlThatGoesAway) {
  const std::pair<Removal, const char*> cases[] = {
      {{"disabled", "txtCode", false}, "chkFlag"},
      {{"frame hidden", "fraMain", true}, "txtInner"},
      {{"frame disabled", "fraMain", false}, "txtInner"},
      {{"everything disabled", nullptr, false}, ""},
      {{"another control hidden", "txtName", true}, "txtCode"},
  };
  for (const auto& [removal, focused_after] : cases) {
    SCOPED_TRACE(removal.what);
    ShownHarness h;
    forms::Control& code = h.C("txtCode");
    forms::user::Focus(code);
    int lost = 0;
    code.events.LostFocus = [&] { ++lost; };
    if (removal.name != nullptr) {
      Remove(h, removal);
    } else {
      for (const auto& c : h.form->Controls()) c->SetEnabled(false);
    }
    h.app.SendKeys("z");
    const forms::Control* now = h.form->ActiveControl();
    EXPECT_EQ(now != nullptr ? now->FullName() : std::string(), focused_after);
    const bool kept = now == &code;
    EXPECT_EQ(lost, kept ? 0 : 1);
    EXPECT_EQ(code.Text(), kept ? "z" : "") << "a key reached a control that went away";
    if (now != nullptr && now->FullName() == "txtInner") {
      EXPECT_EQ(now->Text(), "z");
    }
  }
}

// Disabling or hiding a frame takes its children out of reach without touching their own
// Enabled and Visible, so that enabling the frame again restores each child as it was.
TEST(Focus, AFrameKeepsItsChildrensOwnState) {
  ShownHarness h;
  forms::Control& code = h.C("txtCode");
  h.C("chkFlag").SetEnabled(false);
  for (const bool on : {false, true}) {
    h.C("fraMain").SetEnabled(on);
    h.C("fraMain").SetVisible(on);
    EXPECT_TRUE(code.Enabled() && code.Visible());
    EXPECT_EQ(forms::Application::Available(code), on);
  }
  EXPECT_FALSE(forms::Application::Available(h.C("chkFlag"))) << "came back with its frame";
}

}  // namespace
}  // namespace nvrandom::forms_test
