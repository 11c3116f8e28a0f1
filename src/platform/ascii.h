#pragma once

#include <string_view>

namespace nvrandom::ascii {

// Character classes and case of the ASCII letters and digits only: every other byte (UTF-8
// included) is no letter, no digit, and keeps its case. Independent of the C locale.
constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
constexpr bool IsUpper(char c) {
  return c >= 'A' && c <= 'Z';
}
constexpr bool IsLower(char c) {
  return c >= 'a' && c <= 'z';
}
constexpr bool IsLetter(char c) {
  return IsUpper(c) || IsLower(c);
}
constexpr char ToLower(char c) {
  return IsUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}
constexpr char ToUpper(char c) {
  return IsLower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

// Equal when the texts differ only in the case of ASCII letters; other bytes compare as they are.
constexpr bool EqualsIgnoreCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    if (ToLower(a[i]) != ToLower(b[i])) return false;
  }
  return true;
}

constexpr bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && EqualsIgnoreCase(text.substr(0, prefix.size()), prefix);
}

// The text without leading and trailing blanks (spaces only, as the platform's Trim).
constexpr std::string_view TrimBlanks(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Empty or spaces only.
constexpr bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

}  // namespace nvrandom::ascii
