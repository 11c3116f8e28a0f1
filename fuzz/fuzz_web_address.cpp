// The biller dialog's e-mail and web-site checks.
#include <cstdint>
#include <string>

#include "dialogs/biller/web_address_checks.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  auto& fuzz = fuzz::SharedContext();
  const std::string_view text = fuzz::AsText(data, size);
  Context& ctx = *fuzz.ctx;

  for (const bool allow_empty : {false, true}) {
    std::string message;
    const bool accepted = ValidateEmailAddress(ctx, text, message, allow_empty);
    fuzz::Require(accepted == message.empty(), "message only on refusal");
  }
  std::string message;
  const bool site = ValidateWebsite(ctx, text, message);
  fuzz::Require(site == message.empty(), "website message only on refusal");
  if (IsEmailValid(ctx, text)) {
    fuzz::Require(text.find("..") == std::string_view::npos, "no doubled dot");
    fuzz::Require(text.find('@') != std::string_view::npos, "one @");
  }
  return 0;
}
