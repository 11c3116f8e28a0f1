#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/runtime_error.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

struct ValueStep {
  int16_t set;
  int16_t reads;
  int clicks;  // running total
};

// Option buttons exclusive within their container, and cleared without a Click: the biller
// layout scenarios and the views' tests.

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

// Binding a handler to a control that does not exist fails at once, naming it: a misspelt name
// in a dialog's table must not wait to be a crash at the first click.
TEST(ControlEvents, BindingAHandlerToAMissingControlFailsWithItsName) {
  Harness h;
  EXPECT_NO_THROW(h.form->On("imgHelp", 2).Click = [] {});
  EXPECT_THROW(h.form->On("imgHelp", 3), forms::BindingError);
  try {
    h.form->On("cmdGoo").Click = [] {};
    FAIL() << "no error for a misspelt control";
  } catch (const forms::BindingError& e) {
    EXPECT_NE(std::string(e.what()).find("cmdGoo"), std::string::npos) << e.what();
  }
}

}  // namespace
}  // namespace nvrandom::forms_test
