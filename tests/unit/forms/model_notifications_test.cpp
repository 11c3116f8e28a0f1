// What a view mirrors: every change of a property is one notification naming it, and observers
// may come and go while being notified. The lifecycle stages are the views' tests' concern.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

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
  void FormChanged(forms::Form& f, forms::Property p) override {
    log.push_back(f.Name() + "." + std::string(forms::PropertyName(p)));
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
      {"cmdGo", [](C& c) { c.SetProperty("FontName", std::string("Arial")); }, {"cmdGo.FontName"}},
      {"cmdGo", [](C& c) { c.SetProperty("ButtonStyle", int64_t{1}); }, {"cmdGo.ButtonStyle"}},
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

// A property is read or set by name only on the kinds that have it, and only with a value of its
// type. (Names in any case, on controls and on the form: the restyle scenarios.)
TEST(ModelNotifications, PropertiesByNameFollowTheControlsKind) {
  Harness h;
  forms::Control& frame = *h.form->Find("fraMain");
  EXPECT_THROW(frame.GetProperty("BackStyle"), RuntimeError) << "BackStyle is a label's";
  EXPECT_THROW(h.C("txtCode").GetProperty("Caption"), RuntimeError);
  EXPECT_THROW(h.C("txtCode").SetProperty("MaxLength", std::string("3")), RuntimeError);
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

}  // namespace
}  // namespace nvrandom::forms_test
