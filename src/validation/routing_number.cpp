#include "validation/routing_number.h"

#include <array>

#include "validation/text.h"

namespace nvrandom::validation {

bool RoutingChecksumValid(std::string_view trimmed) {
  constexpr std::array<int, 9> kWeights = {3, 7, 1, 3, 7, 1, 3, 7, 1};
  int sum = 0;
  size_t position = 0;
  while (!trimmed.empty()) {
    if (position == kWeights.size()) return false;  // more than nine characters
    const std::string_view character = LeftCharacters(trimmed, 1);
    const char c = character.front();
    const int value = (character.size() == 1 && c >= '0' && c <= '9') ? c - '0' : 0;
    sum += value * kWeights[position++];
    trimmed.remove_prefix(character.size());
  }
  return position == kWeights.size() && sum % 10 == 0;
}

}  // namespace nvrandom::validation
