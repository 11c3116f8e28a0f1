#include "validation/number_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace nvrandom::validation {
namespace {

// A decimal point and a sign in front or behind are numeric, but not both signs nor two points;
// blanks are not (the business number path relies on it), nor exponents or separators.
TEST(NumberText, SignsAndOnePointAreNumericBlanksAndLettersAreNot) {
  const std::pair<const char*, bool> rows[] = {
      {"123456789", true}, {"1234567.8", true},  {".5", true},         {"-12345678", true},
      {"12345678+", true}, {"+1234567-", false}, {"1.2.3", false},     {".", false},
      {"-", false},        {"", false},          {" 12345678", false}, {"1234 5678", false},
      {"1E5", false},      {"1,234", false},
  };
  for (const auto& [text, numeric] : rows) EXPECT_EQ(IsGeneralNumber(text), numeric) << text;
}

// Dots go, then at least four digits; leading zeros and surrounding blanks are the number's, a
// sign stays in front except for zero; what is no number keeps all but its dots, however long.
TEST(NumberText, ProgramVersionLosesItsDotsAndHasFourDigitsAtLeast) {
  const std::pair<const char*, const char*> rows[] = {
      {"7.0.5", "0705"},    {"12.3.45", "12345"},
      {"00007.05", "0705"}, {" 705 ", "0705"},
      {"-5", "-0005"},      {"-0", "0000"},
      {"7.0a", "70a"},      {"123456789012345678901234567890", "123456789012345678901234567890"},
  };
  for (const auto& [version, formatted] : rows) {
    EXPECT_EQ(FormatProgramVersion(version), formatted) << version;
  }
}

}  // namespace
}  // namespace nvrandom::validation
