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
#include "platform/headless/headless_services.h"
#include "platform/path.h"

namespace nvrandom::component_test {

// A path written with "/" in the platform's separator.
inline std::string P(std::string text) {
  for (char& c : text) {
    if (c == '/') c = path::kSeparator;
  }
  return text;
}

// A fresh folder below the system's temporary folder, removed with its content at the end.
class TempRoot {
 public:
  TempRoot() {
    static int counter = 0;
    dir_ = std::filesystem::temp_directory_path() /
           ("nvrandom-component-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
    std::filesystem::create_directories(dir_);
  }
  ~TempRoot() {
    std::error_code ignored;
    std::filesystem::permissions(dir_, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ignored);
    std::filesystem::remove_all(dir_, ignored);
  }
  TempRoot(const TempRoot&) = delete;
  TempRoot& operator=(const TempRoot&) = delete;

  const std::filesystem::path& dir() const { return dir_; }
  // The folder with a trailing separator, as gstrInstallRoot holds it.
  std::string root() const { return dir_.string() + path::kSeparator; }
  // A DLLPath inside `norvik_folder` of this root.
  std::string DllPath(const std::string& norvik_folder = "NORVIK") const {
    return root() + norvik_folder + path::kSeparator + "Bin";
  }

 private:
  std::filesystem::path dir_;
};

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

inline std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// Runs a script when a modal show starts (a person acting on the dialog); the show ends when the
// script returns.
class ScriptedDriver final : public forms::ModalDriver {
 public:
  void RunModal(forms::Form& form) override {
    if (script) script(form);
  }
  std::function<void(forms::Form&)> script;
};

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
