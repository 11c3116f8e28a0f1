// The form model below what a scenario sees: what a view mirrors (one notification naming each
// change; observers that come and go while being told), Value from code, control arrays and
// bindings, and how unloading is cancelled and a modal show ends.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "forms/user_input.h"
#include "platform/runtime_error.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

class Mirror final : public forms::FormObserver {
 public:
  void ControlChanged(forms::Control& c, forms::Property p) override {
    log.push_back(c.FullName() + "." + std::string(forms::PropertyName(p)));
    if (on_change) on_change();
  }
  std::vector<std::string> log;
  std::function<void()> on_change;
};

struct SetterCase {
  const char* control;
  std::function<void(forms::Control&)> set;
  std::vector<std::string> notifications;
};

// Each setter tells the observers once, naming its property; setting the same value again tells
// nobody. The rows are the setters that do more than store one field through the runtime's one
// notifying helper: several properties at once, a property named by the restyler, a list.
TEST(ModelNotifications, SettersNameTheirPropertiesOnce) {
  using C = forms::Control;
  const SetterCase cases[] = {
      {"txtCode", [](C& c) { c.SetText("ab"); }, {"txtCode.Text", "txtCode.Selection"}},
      {"txtCode", [](C& c) { c.SetProperty("backcolor", int64_t{255}); }, {"txtCode.BackColor"}},
      {"cmdGo", [](C& c) { c.Move(10, 20); }, {"cmdGo.Left", "cmdGo.Top"}},
      {"dlCountry",
       [](C& c) {
         c.SetRows({{"A", "1"}, {"B", "2"}});
       },
       {"dlCountry.List"}},
      {"optB", [](C& c) { c.SetValue(-1); }, {"optB.Value"}},
  };
  for (const SetterCase& k : cases) {
    ShownHarness h;
    Mirror mirror;
    h.app.AddObserver(&mirror);
    forms::Control& c = h.C(k.control);
    k.set(c);
    EXPECT_EQ(mirror.log, k.notifications) << k.control;
    mirror.log.clear();
    k.set(c);
    EXPECT_EQ(mirror.log, std::vector<std::string>{}) << k.control << " set again";
    h.app.RemoveObserver(&mirror);
  }
}

// An observer that removes another, or adds one, while being told of a change: the removed one
// hears nothing more, the added one hears the next change.
TEST(ModelNotifications, ObserversMayComeAndGoDuringANotification) {
  Harness h;
  Mirror first;
  Mirror second;
  Mirror late;
  h.form->EnsureLoaded();
  h.app.AddObserver(&first);
  h.app.AddObserver(&second);
  first.on_change = [&] {
    h.app.RemoveObserver(&second);
    h.app.AddObserver(&late);
    first.on_change = nullptr;
  };
  h.C("txtCode").SetTag("a");
  EXPECT_EQ(second.log, std::vector<std::string>{});
  EXPECT_EQ(late.log, std::vector<std::string>{});
  h.C("txtCode").SetTag("b");
  EXPECT_EQ(late.log, std::vector<std::string>{"txtCode.Tag"});
  EXPECT_EQ(first.log.size(), 2U);
  h.app.RemoveObserver(&first);
  h.app.RemoveObserver(&late);
}

bool IsLoadedInApp(const Harness& h, const forms::Form& form) {
  const auto loaded = h.app.LoadedForms();
  return std::any_of(loaded.begin(), loaded.end(), [&](const auto& f) { return f.get() == &form; });
}

// A nonzero Cancel from QueryUnload or from Unload keeps the form loaded and on screen.
TEST(Lifecycle, CancelKeepsTheFormLoaded) {
  for (const bool in_query : {true, false}) {
    SCOPED_TRACE(in_query ? "QueryUnload" : "Unload");
    ShownHarness h;
    if (in_query) h.form->on_query_unload = [](int16_t& cancel, int16_t) { cancel = 1; };
    if (!in_query) h.form->on_unload = [](int16_t& cancel) { cancel = 1; };
    EXPECT_FALSE(h.form->Unload(forms::unload_mode::kCloseBox));
    EXPECT_TRUE(h.form->IsLoaded() && h.form->Visible() && IsLoadedInApp(h, *h.form));
    const std::vector<std::string> ran = {"QueryUnload 0", "Unload"};
    EXPECT_EQ(h.form->log, std::vector<std::string>(ran.begin(), ran.end() - (in_query ? 1 : 0)));
  }
}

// A modal Show returns when the form is hidden, which keeps it loaded so that the caller can
// still read what the user entered. (Unloading by the close box, code or a system shutdown, as
// the biller dialog answers each, and the collection Unload_From_Remote walks: dialog_closing.scn;
// a show left open: the runner's tests.)
TEST(Lifecycle, AModalShowReturnsWhenTheFormIsHidden) {
  Harness h;
  bool was_modal = false;
  h.driver.script = [&](forms::Form& f) {
    was_modal = f.IsModal() && f.Visible();
    forms::user::Type(h.C("txtCode"), "kept");
    f.Hide();
  };
  h.form->Show(true);
  EXPECT_TRUE(was_modal);
  EXPECT_FALSE(h.form->Visible());
  EXPECT_TRUE(IsLoadedInApp(h, *h.form));
  EXPECT_EQ(h.C("txtCode").Text(), "kept");
}

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
  Harness h;
  EXPECT_EQ(h.C("imgHelp", 2).FullName(), "imgHelp(2)");
  const std::tuple<const char*, int, int> wrong[] = {
      {"imgHelp", 3, 730},
      {"imgHelp", -1, 424},  // the array itself is not a control
      {"txtName", 0, 730},   // not an array
      {"txtMissing", -1, 424}};
  for (const auto& [name, index, error] : wrong) {
    try {
      h.C(name, index);
      ADD_FAILURE() << name << "(" << index << "): no error raised";
    } catch (const RuntimeError& e) {
      EXPECT_EQ(e.number(), error) << name << "(" << index << ")";
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
