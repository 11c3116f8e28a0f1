#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "forms/user_input.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

// Binds LostFocus and GotFocus of `names` to entries in `log`.
void LogFocus(Harness& h, std::vector<std::string>& log, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    forms::Control& c = h.C(name);
    c.events.LostFocus = [&log, name] { log.push_back(std::string("Lost ") + name); };
    c.events.GotFocus = [&log, name] { log.push_back(std::string("Got ") + name); };
  }
}

// LostFocus comes before GotFocus, and the first tab stop takes the focus when the form is shown.
// (That a LostFocus handler sees the control receiving the focus, and may send the focus on, the
// dialogs' currency, country and bank country checks show in their scenarios.)
TEST(Focus, LostFocusComesBeforeGotFocus) {
  ShownHarness h;
  EXPECT_EQ(h.form->ActiveControl(), &h.C("txtName"));
  std::vector<std::string> log;
  LogFocus(h, log, {"txtName", "txtCode"});
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

// The focused control, hidden or disabled itself or through a container, passes the focus on in
// tab order, and sent keys reach the new control; with no control left, nothing has the focus and
// the keys go nowhere. Another control going away leaves the focus where it is.
TEST(Focus, FocusLeavesAControlThatGoesAway) {
  const std::pair<Removal, const char*> cases[] = {
      {{"hidden", "txtCode", true}, "chkFlag"},
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
  forms::Control& frame = h.C("fraMain");
  forms::Control& code = h.C("txtCode");
  forms::Control& check = h.C("chkFlag");
  check.SetEnabled(false);
  frame.SetEnabled(false);
  frame.SetVisible(false);
  EXPECT_TRUE(code.Enabled());
  EXPECT_TRUE(code.Visible());
  EXPECT_FALSE(forms::Application::Available(code));
  frame.SetEnabled(true);
  frame.SetVisible(true);
  EXPECT_TRUE(forms::Application::Available(code));
  EXPECT_FALSE(forms::Application::Available(check)) << "a child disabled on its own came back";
}

}  // namespace
}  // namespace nvrandom::forms_test
