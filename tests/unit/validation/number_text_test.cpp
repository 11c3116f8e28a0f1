#include "validation/number_text.h"

#include <gtest/gtest.h>

#include <string>

namespace nvrandom::validation {
namespace {

struct NumberRow {
  std::string text;
  bool numeric;
};

class GeneralNumberTest : public ::testing::TestWithParam<NumberRow> {};

TEST_P(GeneralNumberTest, SignsAndOnePointCountBlanksAndLettersDoNot) {
  EXPECT_EQ(IsGeneralNumber(GetParam().text), GetParam().numeric);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, GeneralNumberTest,
    ::testing::Values(NumberRow{"123456789", true},
                      // a decimal point is numeric
                      NumberRow{"1234567.8", true}, NumberRow{".5", true},
                      // a sign in front or at the end
                      NumberRow{"-12345678", true}, NumberRow{"12345678+", true},
                      // but not both, and not two points
                      NumberRow{"+1234567-", false}, NumberRow{"1.2.3", false},
                      // no digit at all
                      NumberRow{".", false}, NumberRow{"-", false}, NumberRow{"", false},
                      // blanks are not numeric: the business number path relies on it
                      NumberRow{" 12345678", false}, NumberRow{"1234 5678", false},
                      // no exponent, hexadecimal, thousands separator or currency
                      NumberRow{"1E5", false}, NumberRow{"1,234", false}));

struct VersionRow {
  std::string version;
  std::string formatted;
};

class ProgramVersionTest : public ::testing::TestWithParam<VersionRow> {};

TEST_P(ProgramVersionTest, DotsRemovedThenFourDigitsAtLeast) {
  EXPECT_EQ(FormatProgramVersion(GetParam().version), GetParam().formatted);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ProgramVersionTest,
    ::testing::Values(VersionRow{"7.0.5", "0705"}, VersionRow{"12.3.45", "12345"},
                      VersionRow{"0", "0000"},
                      // leading zeros are the number's, not the text's
                      VersionRow{"00007.05", "0705"},
                      // blanks around a number are read past
                      VersionRow{" 705 ", "0705"},
                      // a sign is kept in front of the digits, except for zero
                      VersionRow{"-5", "-0005"}, VersionRow{"-0", "0000"},
                      // not a number: passed on without its dots
                      VersionRow{"", ""}, VersionRow{"7.0a", "70a"}, VersionRow{"--5", "--5"},
                      // more digits than any integer holds are still written out
                      VersionRow{"123456789012345678901234567890",
                                 "123456789012345678901234567890"}));

}  // namespace
}  // namespace nvrandom::validation
