// Text utilities: cleansing, padding, the letter test.
#include <cstdint>

#include "fuzz_input.h"
#include "validation/text.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  const std::string_view text = fuzz::AsText(data, size);
  const std::string cleansed = validation::CleanseCharacters(text);
  fuzz::Require(cleansed.size() <= text.size(), "cleansing never adds");
  for (const char c : cleansed) {
    const auto code = static_cast<unsigned char>(c);
    fuzz::Require(code == 32 || code == 33 || (code >= 35 && code <= 125), "kept code");
  }
  fuzz::Require(validation::CleanseCharacters(cleansed) == cleansed, "cleansing is idempotent");

  // The first byte picks a length, negative ones included.
  const int length = size > 0 ? static_cast<int8_t>(data[0]) : 0;
  const std::string left = validation::PadLeft(text, length);
  const std::string right = validation::PadRight(text, length);
  const size_t want = length > 0 ? static_cast<size_t>(length) : 0;
  fuzz::Require(validation::CharacterCount(left) == want, "PadLeft length");
  fuzz::Require(validation::CharacterCount(right) == want, "PadRight length");

  const bool alpha = validation::IsAlpha(text);
  fuzz::Require(alpha == validation::IsAlpha(cleansed), "letters survive cleansing");
  const std::string_view trimmed = validation::TrimBlanks(text);
  fuzz::Require(trimmed.empty() || (trimmed.front() != ' ' && trimmed.back() != ' '), "trim");
  return 0;
}
