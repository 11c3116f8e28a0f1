#include "validation/number_text.h"

#include "platform/ascii.h"
#include "validation/text.h"

namespace nvrandom::validation {

namespace {
bool IsSign(char c) {
  return c == '+' || c == '-';
}
}  // namespace

bool IsGeneralNumber(std::string_view text) {
  if (!text.empty() && IsSign(text.front())) {
    text.remove_prefix(1);
  } else if (!text.empty() && IsSign(text.back())) {
    text.remove_suffix(1);
  }
  bool digit_seen = false;
  bool point_seen = false;
  for (const char c : text) {
    if (ascii::IsDigit(c)) {
      digit_seen = true;
    } else if (c == '.' && !point_seen) {
      point_seen = true;
    } else {
      return false;
    }
  }
  return digit_seen;
}

std::string FormatProgramVersion(std::string_view version) {
  std::string undotted;
  undotted.reserve(version.size());
  for (const char c : version) {
    if (c != '.') undotted += c;
  }

  std::string_view number = TrimBlanks(undotted);
  bool negative = false;
  if (!number.empty() && IsSign(number.front())) {
    negative = number.front() == '-';
    number.remove_prefix(1);
  }
  if (number.empty()) return undotted;
  for (const char c : number) {
    if (!ascii::IsDigit(c)) return undotted;
  }

  constexpr size_t kMinimumDigits = 4;
  const size_t significant = number.find_first_not_of('0');
  const std::string_view digits =
      significant == std::string_view::npos ? std::string_view() : number.substr(significant);
  std::string out;
  if (negative && !digits.empty()) out += '-';
  if (digits.size() < kMinimumDigits) out.append(kMinimumDigits - digits.size(), '0');
  out += digits;
  return out;
}

}  // namespace nvrandom::validation
