#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "app/headless_services.h"
#include "component/context.h"
#include "validation/address_rules.h"

namespace nvrandom::fuzz {

// The input as text, and cut into fields at each 0x1F byte (unit separator), so one input can
// feed a check of several arguments while NUL bytes stay part of the data.
inline std::string_view AsText(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline std::vector<std::string_view> Fields(std::string_view text, size_t count) {
  std::vector<std::string_view> fields;
  while (fields.size() + 1 < count) {
    const size_t cut = text.find('\x1f');
    if (cut == std::string_view::npos) break;
    fields.push_back(text.substr(0, cut));
    text.remove_prefix(cut + 1);
  }
  fields.push_back(text);
  fields.resize(count);
  return fields;
}

// One context on recording services for the whole run; the error log, should anything be
// reported, goes to the temporary folder.
struct FuzzContext {
  headless::HeadlessServices headless = headless::MakeHeadlessServices();
  headless::RecordingMessageBox* boxes = headless.message_box;
  std::unique_ptr<Context> ctx;

  FuzzContext() : ctx(std::make_unique<Context>(std::move(headless.services))) {
    ctx->store.poBoxWords = validation::SplitPoBoxWords();
    ctx->store.gstrInstallRoot = std::filesystem::temp_directory_path().string() + "/";
  }
};

inline FuzzContext& SharedContext() {
  static FuzzContext context;
  context.boxes->shown.clear();
  return context;
}

// A property that must hold whatever the input: stop with a message the fuzzer reports.
[[noreturn]] inline void Violated(std::string_view what) {
  std::fprintf(stderr, "property violated: %.*s\n", static_cast<int>(what.size()), what.data());
  std::abort();
}
inline void Require(bool holds, std::string_view what) {
  if (!holds) Violated(what);
}

}  // namespace nvrandom::fuzz
