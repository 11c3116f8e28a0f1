#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "forms/user_input.h"
#include "platform/runtime_error.h"
#include "platform/utf8.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

struct ChangeCase {
  const char* what;
  std::function<void(forms::Control&)> act;
  std::string text;
  int changes;
};

// Change is what the dialogs' cleansing rules hang on: it must fire once per real change of the
// text, from code as from the keyboard, and never for an assignment that changes nothing (a
// handler that rewrites its own text would otherwise recurse).
TEST(ControlEvents, ChangeFiresOnlyForADifferentText) {
  const ChangeCase cases[] = {
      {"same text from code", [](forms::Control& c) { c.SetText("AB"); }, "AB", 0},
      {"different text from code", [](forms::Control& c) { c.SetText("ABC"); }, "ABC", 1},
      {"typed character", [](forms::Control& c) { forms::user::Type(c, "C"); }, "ABC", 1},
      {"typing over a selection the character it holds",
       [](forms::Control& c) {
         c.SetSelStart(0);
         c.SetSelLength(1);
         forms::user::Type(c, "A");
       },
       "AB", 0},
      {"Backspace with the caret at the start",
       [](forms::Control& c) {
         c.SetSelStart(0);
         forms::user::Key(c, 8);
       },
       "AB", 0},
      {"clearing", [](forms::Control& c) { forms::user::ClearText(c); }, "", 1},
  };
  for (const ChangeCase& row : cases) {
    SCOPED_TRACE(row.what);
    Harness h;
    h.form->Show();
    forms::Control& code = h.C("txtCode");
    code.SetText("AB");
    int changes = 0;
    code.events.Change = [&] { ++changes; };
    row.act(code);
    EXPECT_EQ(code.Text(), row.text);
    EXPECT_EQ(changes, row.changes);
  }
}

struct ValueStep {
  int16_t set;
  int16_t reads;
  int clicks;  // running total
};

// Setting Value from code fires Click as a mouse click would (the dialogs' option handlers
// re-lay the form on it), but only for a new value; an option button only when selected.
TEST(ControlEvents, ValueFromCodeFiresClick) {
  struct Case {
    const char* control;
    std::vector<ValueStep> steps;
  };
  const Case cases[] = {
      {"chkFlag", {{1, 1, 1}, {1, 1, 1}, {2, 2, 2}, {0, 0, 3}}},
      // Any nonzero value selects an option button and reads back as -1.
      {"optA", {{-1, -1, 1}, {-1, -1, 1}, {0, 0, 1}, {1, -1, 2}}},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.control);
    Harness h;
    forms::Control& c = h.C(row.control);
    int clicks = 0;
    c.events.Click = [&] { ++clicks; };
    for (const ValueStep& step : row.steps) {
      c.SetValue(step.set);
      EXPECT_EQ(c.Value(), step.reads) << "after setting " << step.set;
      EXPECT_EQ(clicks, step.clicks) << "after setting " << step.set;
    }
  }
}

// Option buttons form one group per container: selecting one clears the others of its frame
// (without clicking them) and leaves the groups of other frames alone.
TEST(ControlEvents, OptionButtonsAreExclusiveWithinTheirContainer) {
  Harness h;
  forms::Control& a = h.C("optA");
  forms::Control& b = h.C("optB");
  forms::Control& c = h.C("optC");
  int a_clicks = 0;
  a.events.Click = [&] { ++a_clicks; };
  a.SetValue(-1);
  c.SetValue(-1);
  EXPECT_EQ(a.Value(), -1) << "an option of another frame cleared this one";
  b.SetValue(-1);
  EXPECT_EQ(a.Value(), 0);
  EXPECT_EQ(b.Value(), -1);
  EXPECT_EQ(c.Value(), -1);
  EXPECT_EQ(a_clicks, 1) << "clearing an option must not click it";
}

// Control arrays are looked up by name and index; a wrong index or a missing name raises the
// platform's errors instead of handing back some other control.
TEST(ControlEvents, ControlArraysAreLookedUpByIndex) {
  struct Case {
    const char* name;
    int index;
    int error;  // 0: found
  };
  const Case cases[] = {
      {"imgHelp", 0, 0},       {"imgHelp", 2, 0},
      {"imgHelp", 3, 730},     {"imgHelp", -1, 424},  // the array itself is not a control
      {"txtName", 0, 730},                            // not an array
      {"txtMissing", -1, 424},
  };
  Harness h;
  for (const Case& row : cases) {
    SCOPED_TRACE(std::string(row.name) + "(" + std::to_string(row.index) + ")");
    if (row.error == 0) {
      forms::Control& c = h.C(row.name, row.index);
      EXPECT_EQ(c.Index(), row.index);
      EXPECT_EQ(c.FullName(), std::string(row.name) + "(" + std::to_string(row.index) + ")");
    } else {
      try {
        h.C(row.name, row.index);
        ADD_FAILURE() << "no error raised";
      } catch (const RuntimeError& e) {
        EXPECT_EQ(e.number(), row.error);
      }
    }
  }
}

// SelStart, SelLength and MaxLength count characters: a byte count would split UTF-8 sequences
// and let a field of accented names hold fewer letters than designed.
TEST(ControlEvents, TextPositionsCountCharacters) {
  Harness h;
  h.form->Show();
  forms::Control& code = h.C("txtCode");
  code.SetText("h\xC3\xA9llo");  // "héllo"
  EXPECT_EQ(code.SelStart(), 5) << "caret after setting the text";
  code.SetSelStart(1);
  code.SetSelLength(1);
  EXPECT_EQ(code.SelText(), "\xC3\xA9");
  code.SetSelStart(99);
  EXPECT_EQ(code.SelStart(), 5) << "clipped to the characters";
  code.SetSelStart(2);
  forms::user::Type(code, "X");
  EXPECT_EQ(code.Text(), "h\xC3\xA9Xllo");
  // A stray byte counts as one character and is never split off a neighbour.
  EXPECT_EQ(utf8::Length("a\xFF\xC3\xA9"), 3U);
  EXPECT_EQ(utf8::Mid("a\xFF\xC3\xA9", 2, 1), "\xC3\xA9");
}

}  // namespace
}  // namespace nvrandom::forms_test
