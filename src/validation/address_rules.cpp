#include "validation/address_rules.h"

#include <algorithm>

#include "component/store.h"
#include "platform/ascii.h"
#include "validation/text.h"

namespace nvrandom::validation {

namespace {

// Calls `visit(unit)` with the text at each unit boundary, `width` characters long (shorter at
// the end), until it returns true.
template <typename Visit>
bool AnyUnit(std::string_view provpostal, size_t width, Visit visit) {
  constexpr size_t kUnit = 3;
  while (!provpostal.empty()) {
    if (visit(LeftCharacters(provpostal, width))) return true;
    provpostal = provpostal.substr(LeftCharacters(provpostal, kUnit).size());
  }
  return false;
}

// The first `limit` bytes of the street as the rule sees it: trimmed, upper-cased, each run of
// blanks made one. Blanks inside a trimmed text are always followed by a non-blank, so a prefix
// of the collapsed text is the collapsed prefix.
std::string NormalisedPrefix(std::string_view street, size_t limit) {
  const std::string_view trimmed = TrimBlanks(street);
  std::string out;
  out.reserve(std::min(limit, trimmed.size()));
  char previous = '\0';
  for (const char c : trimmed) {
    if (out.size() >= limit) break;
    if (c == ' ' && previous == ' ') continue;
    out += ascii::ToUpper(c);
    previous = c;
  }
  return out;
}

}  // namespace

bool LookupProvince(std::string_view provpostal, std::string_view code) {
  return AnyUnit(provpostal, 2, [&](std::string_view unit) { return unit == code; });
}

bool LookupPostcode(std::string_view provpostal, std::string_view code) {
  if (!code.empty()) {
    switch (code.back()) {
      case 'D':
      case 'F':
      case 'I':
      case 'O':
      case 'Q':
        return false;
      default:
        break;
    }
  }
  return AnyUnit(provpostal, 3, [&](std::string_view unit) { return unit == code; });
}

bool HasPoBoxAddress(std::string_view street, const std::vector<std::string>& words) {
  size_t longest = 0;
  for (const std::string& word : words) longest = std::max(longest, word.size());
  const std::string address = NormalisedPrefix(street, longest + 1);
  if (address.empty()) return false;
  for (const std::string& word : words) {
    const std::string_view entry = TrimBlanks(word);
    if (address.size() > entry.size() && address.compare(0, entry.size(), entry) == 0 &&
        address[entry.size()] == ' ') {
      return true;
    }
  }
  return false;
}

std::vector<std::string> SplitPoBoxWords() {
  std::vector<std::string> words;
  std::string_view rest = kPoBoxWordList;
  for (;;) {
    const size_t bar = rest.find('|');
    words.emplace_back(rest.substr(0, bar));
    if (bar == std::string_view::npos) break;
    rest.remove_prefix(bar + 1);
  }
  return words;
}

}  // namespace nvrandom::validation
