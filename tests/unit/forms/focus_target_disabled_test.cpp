#include <gtest/gtest.h>

#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

// The control left behind disables the one the focus is going to, and sends the focus to a
// control that by then is hidden too: neither may keep the focus; it goes on in tab order.
TEST(FocusTargetDisabled, TheFocusGoesOnInTabOrder) {
  Harness h;
  h.form->Show();
  h.C("txtName").events.LostFocus = [&] {
    h.C("chkFlag").SetEnabled(false);
    h.app.SetFocus(h.C("txtInner"));
    h.C("fraInner").SetVisible(false);
  };
  h.app.SetFocus(h.C("chkFlag"));
  EXPECT_EQ(h.app.Focused(), &h.C("optA"));
}

// With nothing else left that can take it, no control has the focus.
TEST(FocusTargetDisabled, NothingLeftLeavesNoFocus) {
  Harness h;
  h.form->Show();
  h.C("txtName").events.LostFocus = [&] {
    h.C("fraMain").SetEnabled(false);
    h.C("fraOther").SetEnabled(false);
    h.C("cmdGo").SetEnabled(false);
    h.C("cboKind").SetEnabled(false);
    h.C("dlCountry").SetEnabled(false);
  };
  h.app.SetFocus(h.C("txtCode"));
  EXPECT_EQ(h.app.Focused(), nullptr);
}

}  // namespace
}  // namespace nvrandom::forms_test
