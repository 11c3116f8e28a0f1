#include "validation/routing_number.h"

#include <algorithm>
#include <array>

#include "platform/ascii.h"
#include "validation/text.h"

namespace nvrandom::validation {

namespace {

constexpr std::array<int, 9> kWeights = {3, 7, 1, 3, 7, 1, 3, 7, 1};

int DigitValue(std::string_view character) {
  const char c = character.front();
  return (character.size() == 1 && ascii::IsDigit(c)) ? c - '0' : 0;
}

}  // namespace

bool RoutingChecksumValid(std::string_view trimmed) {
  const bool ascii = std::all_of(trimmed.begin(), trimmed.end(),
                                 [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  int sum = 0;
  if (ascii) {
    // The usual case: one byte per character.
    if (trimmed.size() != kWeights.size()) return false;
    for (size_t i = 0; i < kWeights.size(); ++i)
      sum += DigitValue(trimmed.substr(i, 1)) * kWeights[i];
    return sum % 10 == 0;
  }
  size_t position = 0;
  while (!trimmed.empty()) {
    if (position == kWeights.size()) return false;  // more than nine characters
    const std::string_view character = LeftCharacters(trimmed, 1);
    sum += DigitValue(character) * kWeights[position++];
    trimmed.remove_prefix(character.size());
  }
  return position == kWeights.size() && sum % 10 == 0;
}

}  // namespace nvrandom::validation
