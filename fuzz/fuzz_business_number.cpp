// The business number check and the number texts it relies on.
#include <cstdint>
#include <string>

#include "fuzz_input.h"
#include "validation/account_prechecks.h"
#include "validation/number_text.h"
#include "validation/random.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  auto& fuzz = fuzz::SharedContext();
  const std::string_view text = fuzz::AsText(data, size);

  const int16_t verdict = Random(*fuzz.ctx).VerifyBusinessNumber(text);
  fuzz::Require(verdict == kTrue || verdict == kFalse, "truth value");
  // A numeric text holds no blank, so the account check never shows its blank message here.
  fuzz::Require(fuzz.boxes->shown.empty(), "no message box");
  if (const auto account = validation::BusinessNumberAccount(text)) {
    fuzz::Require(account->size() == 15 && account->ends_with("RT0001"), "account value");
  }

  const std::string version = validation::FormatProgramVersion(text);
  fuzz::Require(version.find('.') == std::string::npos, "no dots left");
  if (validation::IsGeneralNumber(text)) {
    fuzz::Require(text.find(' ') == std::string_view::npos, "numbers hold no blank");
  }
  return 0;
}
