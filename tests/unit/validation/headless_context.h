#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include <unistd.h>

#include "component/context.h"
#include "platform/headless/headless_services.h"
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

// A fresh folder below the system's temporary folder, removed with its content at the end.
class TempFolder {
 public:
  TempFolder() {
    static int counter = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("nvrandom-validation-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

}  // namespace nvrandom::testing
