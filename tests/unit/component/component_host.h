#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "api/cls_random.h"
#include "component/context.h"
#include "forms/application.h"
#include "forms/form.h"
#include "app/headless_services.h"
#include "platform/path.h"
#include "support/scripted_driver.h"
#include "support/test_files.h"

namespace nvrandom::component_test {

// A path written with "/" in the platform's separator.
inline std::string P(std::string text) {
  for (char& c : text) {
    if (c == '/') c = path::kSeparator;
  }
  return text;
}

using TempRoot = testing::TempFolder;
using testing::ReadFile;

// Makes `dir` the current directory for its lifetime (an empty root puts the error log there).
class CurrentDirectory {
 public:
  explicit CurrentDirectory(const std::filesystem::path& dir)
      : saved_(std::filesystem::current_path()) {
    std::filesystem::current_path(dir);
  }
  ~CurrentDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(saved_, ignored);
  }
  CurrentDirectory(const CurrentDirectory&) = delete;
  CurrentDirectory& operator=(const CurrentDirectory&) = delete;

 private:
  std::filesystem::path saved_;
};

using testing::ScriptedDriver;

// The events a host received.
struct RecordingSink final : ClsRandomEvents {
  void CSBOK() override { log += "CSBOK;"; }
  void CurrentFieldTop(int16_t Top) override {
    log += "CurrentFieldTop " + std::to_string(Top) + ";";
  }
  void Cancel() override { log += "Cancel;"; }
  void ViewSampleCheque() override { log += "ViewSampleCheque;"; }
  std::string log;
};

// One component state on recording services, with a scripted modal driver.
struct Host {
  Host() { ctx.forms().SetModalDriver(&driver); }

  headless::HeadlessServices headless = headless::MakeHeadlessServices();
  headless::RecordingMessageBox& boxes = *headless.message_box;
  headless::RecordingHelp& help = *headless.help;
  std::string now = headless.clock->Now();
  Context ctx{std::move(headless.services)};
  ScriptedDriver driver;
};

}  // namespace nvrandom::component_test
