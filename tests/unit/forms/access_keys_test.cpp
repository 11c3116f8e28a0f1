// Access keys: Alt with the letter a caption marks acts on that control, or leads the focus into
// a frame. The dialogs mark only buttons and option buttons (access_keys.scn); a label leading to
// the input it names, and a check box, are the Qt view's tests; frames, repeated keys and keys
// that go unanswered are this form's.
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

#include "forms/access_keys.h"
#include "forms/application.h"
#include "forms/form.h"
#include "forms/keystroke.h"
#include "forms/user_input.h"
#include "platform/memory_clipboard.h"

namespace nvrandom::forms_test {
namespace {

using K = forms::ControlKind;
constexpr int16_t kAlt = forms::keys::kAltMask;

// fraChoice's first tab stop is optNo. cmdSave and cmdSend share S; cmdHidden is hidden.
constexpr std::array<forms::ControlDesign, 7> kControls = {{
    {.kind = K::kTextBox, .name = "txtOther", .tab_index = 1},
    {.kind = K::kFrame, .name = "fraChoice", .caption = "&Choice"},
    {.kind = K::kOptionButton,
     .name = "optYes",
     .container = "fraChoice",
     .caption = "&Yes",
     .tab_index = 3},
    {.kind = K::kOptionButton,
     .name = "optNo",
     .container = "fraChoice",
     .caption = "N&o",
     .tab_index = 2},
    {.kind = K::kCommandButton, .name = "cmdSave", .caption = "&Save", .tab_index = 5},
    {.kind = K::kCommandButton, .name = "cmdSend", .caption = "&Send", .tab_index = 6},
    {.kind = K::kCommandButton,
     .name = "cmdHidden",
     .caption = "&Hidden",
     .tab_index = 7,
     .visible = false},
}};

constexpr forms::FormDesign kDesign{.name = "frmAccess", .caption = "Access"};

class AccessForm final : public forms::Form {
 public:
  explicit AccessForm(forms::Application& app) : forms::Form(app, kDesign, kControls) {
    for (const char* name : {"optYes", "optNo", "cmdSave", "cmdSend"}) {
      On(name).Click = [this, name] { clicks += std::string(name) + " "; };
    }
  }
  std::string clicks;
};

TEST(AccessKeys, TheMarkedLetter) {
  const std::pair<const char*, char> cases[] = {
      {"&Help", 'H'},  {"N&o", 'O'},   {"R&&D", '\0'},   {"R&&&D", 'D'},
      {"Plain", '\0'}, {"End&", '\0'}, {"&7 days", '7'},
  };
  for (const auto& [caption, key] : cases) EXPECT_EQ(forms::AccessKeyOf(caption), key) << caption;
}

// Each row: from txtOther's focus, the keys pressed with Alt; where the focus is after each, the
// Clicks raised, and what the form did beforehand.
TEST(AccessKeys, ActOnTheMarkedControl) {
  struct Case {
    const char* what;
    const char* keys;
    const char* focus;  // after each key
    const char* clicks;
    void (*before)(forms::Form&) = nullptr;
  };
  const Case cases[] = {
      {"a frame leads to its first tab stop", "C", "optNo", ""},
      {"an option button is selected", "Y", "optYes", "optYes "},
      {"a repeated key only moves among its controls, wrapping", "SSS", "cmdSave cmdSend cmdSave",
       ""},
      {"a hidden control does not answer", "H", "txtOther", ""},
      {"nor does a control in a disabled frame", "Y", "txtOther", "",
       [](forms::Form& f) { f.Ctl("fraChoice").SetEnabled(false); }},
      {"a key no caption marks does nothing", "Z", "txtOther", ""},
      {"the only control left with a key is pressed", "S", "cmdSend", "cmdSend ",
       [](forms::Form& f) { f.Ctl("cmdSave").SetEnabled(false); }},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    MemoryClipboard clipboard;
    forms::Application app(clipboard);
    auto form = std::make_shared<AccessForm>(app);
    form->Show();
    if (row.before != nullptr) row.before(*form);
    forms::user::Focus(form->Ctl("txtOther"));
    std::string seen;
    for (const char* key = row.keys; *key != '\0'; ++key) {
      forms::Control& focused = *app.Focused();
      forms::user::KeyDown(focused, *key, kAlt);
      seen += (seen.empty() ? "" : " ") + app.Focused()->Name();
    }
    EXPECT_EQ(seen, row.focus);
    EXPECT_EQ(form->clicks, row.clicks);
  }
}

// The key is the focused control's first: a KeyDown handler that cancels it, or Control with
// Alt (AltGr, which types characters), leaves the captions alone.
TEST(AccessKeys, ACancelledKeyOrAltGrIsNoAccessKey) {
  MemoryClipboard clipboard;
  forms::Application app(clipboard);
  auto form = std::make_shared<AccessForm>(app);
  form->Show();
  forms::Control& other = form->Ctl("txtOther");
  other.events.KeyDown = [](int16_t& key, int16_t&) { key = key == 'Y' ? 0 : key; };
  forms::user::KeyDown(other, 'Y', kAlt);
  forms::user::KeyDown(other, 'O', kAlt | forms::keys::kCtrlMask);
  EXPECT_EQ(app.Focused(), &other);
  EXPECT_EQ(form->clicks, "");
  forms::user::KeyDown(other, 'O', kAlt | forms::keys::kShiftMask);
  EXPECT_EQ(form->clicks, "optNo ");
}

}  // namespace
}  // namespace nvrandom::forms_test
