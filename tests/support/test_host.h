#pragma once

#include <functional>
#include <string>

#include "api/cls_random.h"
#include "app/headless_services.h"
#include "component/context.h"
#include "forms/application.h"
#include "forms/form.h"
#include "platform/path.h"
#include "support/test_files.h"
#include "validation/address_rules.h"

namespace nvrandom::testing {

// Runs a script when a modal show starts (a person acting on the dialog); the show ends when the
// script returns.
class ScriptedDriver final : public forms::ModalDriver {
 public:
  void RunModal(forms::Form& form) override {
    if (script) script(form);
  }
  std::function<void(forms::Form&)> script;
};

// A path written with "/" in the platform's separator.
inline std::string P(std::string text) {
  for (char& c : text) {
    if (c == '/') c = path::kSeparator;
  }
  return text;
}

// One component state on the headless services, with a scripted modal driver and the
// post-office-box words that class initialisation would split into the store.
struct Host {
  Host() {
    ctx.store.poBoxWords = validation::SplitPoBoxWords();
    ctx.forms().SetModalDriver(&driver);
  }

  headless::HeadlessServices headless = headless::MakeHeadlessServices();
  headless::RecordingMessageBox& boxes = *headless.message_box;
  headless::RecordingShell& shell = *headless.shell;
  headless::RecordingHelp& help = *headless.help;
  std::string now = headless.clock->Now();
  Context ctx{std::move(headless.services)};
  ScriptedDriver driver;
};

}  // namespace nvrandom::testing
