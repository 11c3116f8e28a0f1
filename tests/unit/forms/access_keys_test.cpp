// Access keys: Alt with the letter a caption marks acts on that control, or leads the focus into
// a frame. The dialogs mark only buttons and option buttons (access_keys.scn); a label leading to
// the input it names, and a check box, are the Qt view's tests; frames, repeated keys and keys
// that go unanswered are the test form's.
#include <gtest/gtest.h>

#include <string>

#include "forms/access_keys.h"
#include "forms/keystroke.h"
#include "forms/user_input.h"
#include "test_form.h"

namespace nvrandom::forms_test {
namespace {

constexpr int16_t kAlt = forms::keys::kAltMask;

// The Clicks of the controls that have access keys, as "NAME ".
void LogClicks(Harness& h, std::string& clicks) {
  for (const char* name : {"optA", "optB", "chkFlag", "cmdGo"}) {
    h.C(name).events.Click = [&clicks, name] { clicks += std::string(name) + " "; };
  }
}

TEST(AccessKeys, TheMarkedLetter) {
  const std::pair<const char*, char> cases[] = {
      {"&Help", 'H'},  {"N&o", 'O'},   {"R&&D", '\0'},   {"R&&&D", 'D'},
      {"Plain", '\0'}, {"End&", '\0'}, {"&7 days", '7'},
  };
  for (const auto& [caption, key] : cases) EXPECT_EQ(forms::AccessKeyOf(caption), key) << caption;
}

// Each row: from txtInner's focus, the keys pressed with Alt; where the focus is after each, the
// Clicks raised, and what was done beforehand.
TEST(AccessKeys, ActOnTheMarkedControl) {
  struct Case {
    const char* what;
    const char* keys;
    const char* focus;  // after each key
    const char* clicks;
    void (*before)(Harness&) = nullptr;
  };
  const Case cases[] = {
      {"a frame leads to its first tab stop", "M", "txtName", ""},
      {"an option button is selected", "A", "optA", "optA "},
      {"a repeated key only moves on among its controls, wrapping", "GGG", "cmdGo chkFlag cmdGo",
       ""},
      {"a hidden control does not answer", "B", "txtInner", "",
       [](Harness& h) { h.C("optB").SetVisible(false); }},
      {"nor does a control in a disabled frame", "A", "txtInner", "",
       [](Harness& h) { h.C("fraMain").SetEnabled(false); }},
      {"a key no caption marks does nothing", "Z", "txtInner", ""},
      {"the only control left with a key is pressed", "G", "cmdGo", "cmdGo ",
       [](Harness& h) { h.C("chkFlag").SetEnabled(false); }},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    ShownHarness h;
    std::string clicks;
    LogClicks(h, clicks);
    if (row.before != nullptr) row.before(h);
    forms::user::Focus(h.C("txtInner"));
    std::string seen;
    for (const char* key = row.keys; *key != '\0'; ++key) {
      forms::user::KeyDown(*h.app.Focused(), *key, kAlt);
      seen += (seen.empty() ? "" : " ") + h.app.Focused()->Name();
    }
    EXPECT_EQ(seen, row.focus);
    EXPECT_EQ(clicks, row.clicks);
  }
}

// The key is the focused control's first: a KeyDown handler that cancels it, or Control with
// Alt (AltGr, which types characters), leaves the captions alone.
TEST(AccessKeys, ACancelledKeyOrAltGrIsNoAccessKey) {
  ShownHarness h;
  std::string clicks;
  LogClicks(h, clicks);
  forms::Control& inner = h.C("txtInner");
  forms::user::Focus(inner);
  inner.events.KeyDown = [](int16_t& key, int16_t&) { key = key == 'A' ? 0 : key; };
  forms::user::KeyDown(inner, 'A', kAlt);
  forms::user::KeyDown(inner, 'B', kAlt | forms::keys::kCtrlMask);
  EXPECT_EQ(h.app.Focused(), &inner);
  EXPECT_EQ(clicks, "");
  forms::user::KeyDown(inner, 'B', kAlt | forms::keys::kShiftMask);
  EXPECT_EQ(clicks, "optB ");
}

}  // namespace
}  // namespace nvrandom::forms_test
