#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "platform/memory_clipboard.h"
#include "support/test_host.h"

namespace nvrandom::forms_test {

using forms::ControlDesign;
using K = forms::ControlKind;

// A control inside `frame`.
constexpr ControlDesign In(std::string_view frame, ControlDesign design) {
  design.container = frame;
  return design;
}

// fraMain holds two text boxes, a check box and two option buttons; fraOther holds, inside
// fraInner, a third text box; an image array and a button sit on the form. The check box and the
// button share the access key G.
inline constexpr std::array<ControlDesign, 15> kControls = {{
    {.kind = K::kFrame, .name = "fraMain", .caption = "&Main"},
    In("fraMain", {.kind = K::kTextBox, .name = "txtName", .max_length = 5, .tab_index = 0}),
    In("fraMain", {.kind = K::kTextBox, .name = "txtCode", .tab_index = 1}),
    In("fraMain", {.kind = K::kCheckBox, .name = "chkFlag", .caption = "&Go", .tab_index = 2}),
    In("fraMain", {.kind = K::kOptionButton, .name = "optA", .caption = "&A", .tab_index = 3}),
    In("fraMain", {.kind = K::kOptionButton, .name = "optB", .caption = "&B", .tab_index = 4}),
    {.kind = K::kFrame, .name = "fraOther"},
    In("fraOther", {.kind = K::kFrame, .name = "fraInner"}),
    In("fraInner", {.kind = K::kTextBox, .name = "txtInner", .tab_index = 5}),
    {.kind = K::kImage, .name = "imgHelp", .index = 0},
    {.kind = K::kImage, .name = "imgHelp", .index = 1},
    {.kind = K::kImage, .name = "imgHelp", .index = 2},
    {.kind = K::kCommandButton, .name = "cmdGo", .caption = "&Go", .tab_index = 7},
    {.kind = K::kComboBox, .name = "cboKind", .tab_index = 8},
    {.kind = K::kDataList, .name = "dlCountry", .tab_index = 9},
}};

inline constexpr forms::FormDesign kPlainForm{.name = "frmTest", .caption = "Test"};
inline constexpr forms::FormDesign kChildForm{.name = "frmChild", .caption = "Child"};

// A form whose own events are hooks, logged in the order they ran.
class TestForm final : public forms::Form {
 public:
  explicit TestForm(forms::Application& app, const forms::FormDesign& design = kPlainForm)
      : forms::Form(app, design, kControls) {}

  void Form_QueryUnload(int16_t& cancel, int16_t unload_mode) override {
    log.push_back("QueryUnload " + std::to_string(unload_mode));
    if (on_query_unload) on_query_unload(cancel, unload_mode);
  }
  void Form_Unload(int16_t& cancel) override {
    log.push_back("Unload");
    if (on_unload) on_unload(cancel);
  }

  std::vector<std::string> log;
  std::function<void(int16_t&, int16_t)> on_query_unload;
  std::function<void(int16_t&)> on_unload;
};

using testing::ScriptedDriver;

// Records refused focus requests.
class RecordingObserver final : public forms::FormObserver {
 public:
  void FocusRefused(forms::Control& control) override { refused.push_back(control.FullName()); }
  std::vector<std::string> refused;
};

// An application with a test form, a second one to open over it, a scripted modal driver and an
// observer.
struct Harness {
  Harness() {
    app.SetModalDriver(&driver);
    app.AddObserver(&observer);
  }
  ~Harness() { app.RemoveObserver(&observer); }
  Harness(const Harness&) = delete;
  Harness& operator=(const Harness&) = delete;

  std::shared_ptr<TestForm> NewForm(const forms::FormDesign& design = kPlainForm) {
    return std::make_shared<TestForm>(app, design);
  }
  forms::Control& C(std::string_view name, int index = -1) { return form->Ctl(name, index); }

  MemoryClipboard clipboard;
  forms::Application app{clipboard};
  ScriptedDriver driver;
  RecordingObserver observer;
  std::shared_ptr<TestForm> form = NewForm();
  std::shared_ptr<TestForm> child = NewForm(kChildForm);
};

// The harness with its test form shown, so that its controls can take the focus and keys.
struct ShownHarness : Harness {
  ShownHarness() { form->Show(); }
};

}  // namespace nvrandom::forms_test
