#include "validation/text.h"

#include <array>

#include "platform/utf8.h"

namespace nvrandom::validation {

namespace {

constexpr std::array<unsigned char, 256> MakeKeepTable() {
  std::array<unsigned char, 256> keep{};
  keep[32] = 1;
  keep[33] = 1;
  for (int c = 35; c <= 125; ++c) keep[c] = 1;
  return keep;
}

constexpr std::array<unsigned char, 256> kKeep = MakeKeepTable();

}  // namespace

std::string CleanseCharacters(std::string_view text) {
  // Every byte is written and the cursor advances only over kept ones: no branch per byte, which
  // keeps cleansing of pasted text cheap.
  std::string out(text.size(), '\0');
  size_t n = 0;
  for (const char ch : text) {
    const auto c = static_cast<unsigned char>(ch);
    out[n] = ch;
    n += kKeep[c];
  }
  out.resize(n);
  return out;
}

std::string PadLeft(std::string_view text, int length) {
  if (length <= 0) return {};
  const auto want = static_cast<size_t>(length);
  const size_t have = CharacterCount(text);
  if (have >= want) return std::string(text.substr(utf8::Offset(text, have - want)));
  std::string out(want - have, ' ');
  out += text;
  return out;
}

std::string PadRight(std::string_view text, int length) {
  if (length <= 0) return {};
  const auto want = static_cast<size_t>(length);
  const size_t have = CharacterCount(text);
  if (have >= want) return std::string(LeftCharacters(text, want));
  std::string out(text);
  out.append(want - have, ' ');
  return out;
}

bool IsAlpha(std::string_view text) {
  for (const char ch : text) {
    const auto c = static_cast<unsigned char>(ch);
    if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) return true;
  }
  return false;
}

size_t CharacterCount(std::string_view text) {
  return utf8::Length(text);
}

std::string_view LeftCharacters(std::string_view text, size_t count) {
  return text.substr(0, utf8::Offset(text, count));
}

std::string_view MidCharacters(std::string_view text, size_t start, size_t count) {
  const std::string_view rest = text.substr(utf8::Offset(text, start));
  return rest.substr(0, utf8::Offset(rest, count));
}

bool ConsistsOf(std::string_view text, char c) {
  return !text.empty() && text.find_first_not_of(c) == std::string_view::npos;
}

}  // namespace nvrandom::validation
