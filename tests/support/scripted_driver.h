#pragma once

#include <functional>

#include "forms/application.h"
#include "forms/form.h"

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

}  // namespace nvrandom::testing
