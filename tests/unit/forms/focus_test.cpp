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

// The currency and country LostFocus checks ask which control is receiving the focus: the form's
// ActiveControl must already be the new control while LostFocus runs, and LostFocus must come
// before GotFocus. A check that rejects the value sends the focus back: the move under way
// finishes first, then the focus returns, and nothing recurses.
TEST(Focus, LostFocusSeesTheNewControlAndMaySendTheFocusBack) {
  Harness h;
  h.form->Show();
  EXPECT_EQ(h.form->ActiveControl(), &h.C("txtName")) << "the first tab stop takes the focus";
  std::vector<std::string> log;
  LogFocus(h, log, {"txtName", "txtCode"});
  const forms::Control* active_during_lost = nullptr;
  bool send_back = false;
  h.C("txtName").events.LostFocus = [&] {
    log.push_back("Lost txtName");
    active_during_lost = h.form->ActiveControl();
    if (send_back) h.app.SetFocus(h.C("txtName"));
  };
  EXPECT_TRUE(h.app.SetFocus(h.C("txtCode")));
  EXPECT_EQ(log, (std::vector<std::string>{"Lost txtName", "Got txtCode"}));
  EXPECT_EQ(active_during_lost, &h.C("txtCode"));
  h.app.SetFocus(h.C("txtName"));
  log.clear();
  send_back = true;
  h.app.SetFocus(h.C("txtCode"));
  EXPECT_EQ(log, (std::vector<std::string>{"Lost txtName", "Got txtCode", "Lost txtCode",
                                           "Got txtName"}));
  EXPECT_EQ(h.app.Focused(), &h.C("txtName"));
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
    Harness h;
    h.form->Show();
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

// Form_Load runs before the form is shown, so a focus request made there is refused like any
// other; the focus then goes to the first tab stop when the form is shown.
TEST(Focus, RequestsWhileLoadingAreRefused) {
  Harness h;
  bool moved = true;
  h.form->on_load = [&] { moved = h.app.SetFocus(h.C("txtCode")); };
  h.form->Show();
  EXPECT_FALSE(moved);
  EXPECT_EQ(h.observer.refused, std::vector<std::string>{"txtCode"});
  EXPECT_EQ(h.app.Focused(), &h.C("txtName"));
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
    Harness h;
    h.form->Show();
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
  Harness h;
  h.form->Show();
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
