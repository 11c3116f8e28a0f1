// Faults of the input path: the order of a key's events, sent keys, the focus when its control
// goes away, masked copy, data list rows that follow typing, and what a list choice fires.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "forms/keystroke.h"
#include "forms/user_input.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

// Logs every key, change and click event of `c` as "NAME EVENT [code]".
void LogEvents(forms::Control& c, std::vector<std::string>& log) {
  const std::string name = c.FullName();
  c.events.KeyDown = [&log, name](int16_t& code, int16_t&) {
    log.push_back(name + " KeyDown " + std::to_string(code));
  };
  c.events.KeyPress = [&log, name](int16_t& key) {
    log.push_back(name + " KeyPress " + std::to_string(key));
  };
  c.events.KeyUp = [&log, name](int16_t& code, int16_t&) {
    log.push_back(name + " KeyUp " + std::to_string(code));
  };
  c.events.Change = [&log, name] { log.push_back(name + " Change"); };
  c.events.Click = [&log, name] { log.push_back(name + " Click"); };
}

using Log = std::vector<std::string>;

struct PhysicalKeyCase {
  const char* what;
  std::function<void(forms::Control&)> press;
  Log events;
  const char* text;
};

// One physical key is KeyDown, KeyPress (when it types a character), the edit, KeyUp: never a
// second KeyDown, and the editing keys work over the selection.
TEST(InputPath, OnePhysicalKeyFiresEachEventOnce) {
  const PhysicalKeyCase cases[] = {
      {"a letter",
       [](forms::Control& c) { forms::user::Key(c, 'x'); },
       {"txtCode KeyDown 88", "txtCode KeyPress 120", "txtCode Change", "txtCode KeyUp 88"},
       "abcdx"},
      {"Delete over the selection",
       [](forms::Control& c) { forms::user::KeyDown(c, forms::keys::kKeyDelete, 0); },
       {"txtCode KeyDown 46", "txtCode Change", "txtCode KeyUp 46"},
       "ad"},
      {"Control+V",
       [](forms::Control& c) { forms::user::KeyDown(c, 'V', 2); },
       {"txtCode KeyDown 86", "txtCode KeyPress 22", "txtCode Change", "txtCode KeyUp 86"},
       "aPd"},
      {"the paste character",
       [](forms::Control& c) { forms::user::Key(c, 22); },
       {"txtCode KeyDown 86", "txtCode KeyPress 22", "txtCode Change", "txtCode KeyUp 86"},
       "aPd"},
      {"Backspace over the selection",
       [](forms::Control& c) { forms::user::Key(c, 8); },
       {"txtCode KeyDown 8", "txtCode KeyPress 8", "txtCode Change", "txtCode KeyUp 8"},
       "ad"},
      {"an arrow",
       [](forms::Control& c) { forms::user::KeyDown(c, forms::keys::kKeyLeft, 0); },
       {"txtCode KeyDown 37", "txtCode KeyUp 37"},
       "abcd"},
  };
  for (const PhysicalKeyCase& k : cases) {
    Harness h;
    h.form->Show();
    forms::Control& code = h.C("txtCode");
    code.SetText("abcd");
    h.clipboard.SetText("P");
    forms::user::Select(code, 1, 2);
    if (std::string(k.what) == "a letter") code.SetSelStart(4);
    Log log;
    LogEvents(code, log);
    k.press(code);
    EXPECT_EQ(log, k.events) << k.what;
    EXPECT_EQ(code.Text(), k.text) << k.what;
  }
}

// A handler that moves on when the field is full (by sending Tab): the rest of the typing goes
// to the next field, the same whether typed in one go or key by key.
TEST(InputPath, SentKeysCompleteBeforeTheNextTypedKey) {
  for (const bool key_by_key : {false, true}) {
    Harness h;
    h.form->Show();
    forms::Control& name = h.C("txtName");  // MaxLength 5
    name.events.Change = [&] {
      if (name.Text().size() == 5) h.app.SendKeys("{TAB}");
    };
    if (key_by_key) {
      for (const char c : std::string("1234567")) forms::user::Type(*h.app.Focused(), {&c, 1});
    } else {
      forms::user::Type(name, "1234567");
    }
    EXPECT_EQ(name.Text(), "12345") << key_by_key;
    EXPECT_EQ(h.C("txtCode").Text(), "67") << key_by_key;
    EXPECT_EQ(h.form->ActiveControl(), &h.C("txtCode")) << key_by_key;
  }
}

struct LostFocusCase {
  const char* what;
  std::function<void(Harness&)> take_away;
  const char* focused_after;  // "" when no control is left
};

// The focused control, hidden or disabled itself or through a container, passes the focus on
// in tab order; sent keys then reach the new control, not the hidden one.
TEST(InputPath, FocusLeavesAControlThatGoesAway) {
  const LostFocusCase cases[] = {
      {"hidden", [](Harness& h) { h.C("txtCode").SetVisible(false); }, "chkFlag"},
      {"disabled", [](Harness& h) { h.C("txtCode").SetEnabled(false); }, "chkFlag"},
      {"frame hidden", [](Harness& h) { h.C("fraMain").SetVisible(false); }, "txtInner"},
      {"frame disabled", [](Harness& h) { h.C("fraMain").SetEnabled(false); }, "txtInner"},
      {"another control hidden", [](Harness& h) { h.C("txtName").SetVisible(false); }, "txtCode"},
      {"everything disabled",
       [](Harness& h) {
         for (const auto& c : h.form->Controls()) c->SetEnabled(false);
       },
       ""},
  };
  for (const LostFocusCase& k : cases) {
    Harness h;
    h.form->Show();
    forms::Control& code = h.C("txtCode");
    forms::user::Focus(code);
    int lost = 0;
    code.events.LostFocus = [&] { ++lost; };
    k.take_away(h);
    h.app.SendKeys("z");
    const forms::Control* now = h.form->ActiveControl();
    EXPECT_EQ(now != nullptr ? now->FullName() : std::string(), k.focused_after) << k.what;
    if (std::string(k.what) != "another control hidden") {
      EXPECT_EQ(lost, 1) << k.what;
      EXPECT_EQ(code.Text(), "") << k.what << ": no key reached a control that went away";
    }
    if (now != nullptr && forms::IsTextKind(now->kind())) {
      EXPECT_EQ(now->Text(), "z") << k.what;
    }
  }
}

TEST(InputPath, AMaskedBoxCopiesNothing) {
  for (const int16_t key : {forms::keys::kKeyC, forms::keys::kKeyX}) {
    Harness h;
    h.form->Show();
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

struct RowCase {
  const char* typed;
  int row;
  const char* bound;
};

// Typed text selects the row whose shown column it names (ignoring case), or none.
TEST(InputPath, TypingIntoADataListSelectsTheMatchingRowOrNone) {
  const RowCase cases[] = {
      {"xyz", -1, ""},
      {"france", 1, "FR"},
      {"Canada", 0, "CA"},
      {"Can", -1, ""},
  };
  for (const RowCase& k : cases) {
    Harness h;
    h.form->Show();
    forms::Control& list = h.C("dlCountry");
    list.SetBoundColumn(1);
    list.SetRows({{"Canada", "CA"}, {"France", "FR"}});
    forms::user::Pick(list, "CA");
    forms::user::ClearText(list);
    forms::user::Type(list, k.typed);
    EXPECT_EQ(list.ListIndex(), k.row) << k.typed;
    EXPECT_EQ(list.BoundText(), k.bound) << k.typed;
  }
}

// A plain combo box's choice fires Click alone; a data list's fires Change, then Click.
TEST(InputPath, AListChoiceFiresWhatTheListKindFires) {
  struct ChoiceCase {
    const char* list;
    const char* value;
    Log events;
  };
  const ChoiceCase cases[] = {
      {"cboKind", "Two", {"cboKind Click"}},
      {"dlCountry", "Two", {"dlCountry Change", "dlCountry Click"}},
  };
  for (const ChoiceCase& k : cases) {
    Harness h;
    h.form->Show();
    forms::Control& list = h.C(k.list);
    list.SetRows({{"One"}, {"Two"}});
    Log log;
    LogEvents(list, log);
    forms::user::Pick(list, k.value);
    EXPECT_EQ(log, k.events) << k.list;
    EXPECT_EQ(list.Text(), "Two") << k.list;
  }
}

TEST(InputPath, BindingAHandlerToAMissingControlFailsWithItsName) {
  Harness h;
  EXPECT_NO_THROW(h.form->On("imgHelp", 2).Click = [] {});
  try {
    h.form->On("cmdGoo").Click = [] {};
    FAIL() << "no error for a misspelt control";
  } catch (const forms::BindingError& e) {
    EXPECT_NE(std::string(e.what()).find("cmdGoo"), std::string::npos) << e.what();
  }
  EXPECT_THROW(h.form->On("imgHelp", 3), forms::BindingError);
}

}  // namespace
}  // namespace nvrandom::forms_test
