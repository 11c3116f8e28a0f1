#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include <unistd.h>

#include "component/context.h"
#include "app/headless_services.h"
#include "support/test_files.h"
#include "validation/address_rules.h"

namespace nvrandom::testing {

// A component context on recording services, with the post-office-box words that class
// initialisation would split into the store.
struct HeadlessContext {
  headless::HeadlessServices headless = headless::MakeHeadlessServices();
  headless::RecordingMessageBox& boxes = *headless.message_box;
  headless::RecordingShell& shell = *headless.shell;
  std::unique_ptr<Context> owned = MakeContext(headless);
  Context& ctx = *owned;

 private:
  static std::unique_ptr<Context> MakeContext(headless::HeadlessServices& h) {
    auto ctx = std::make_unique<Context>(std::move(h.services));
    ctx->store.poBoxWords = validation::SplitPoBoxWords();
    return ctx;
  }
};

}  // namespace nvrandom::testing
