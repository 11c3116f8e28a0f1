#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "validation/address_rules.h"
#include "validation/number_text.h"
#include "validation/text.h"

namespace nvrandom::validation {
namespace {

// Cleansing, padding and the letter test are in checks_text.scn, the properties that hold for
// any text (lengths, kept codes, trimming) in fuzz_text; here, what neither reaches: a trim that
// leaves other blanks alone and the counting behind the padding.
TEST(TrimBlanks, RemovesSpacesOnly) {
  EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
}

TEST(CharacterCounting, InvalidBytesCountOneEach) {
  EXPECT_EQ(CharacterCount("a\xC3\xA9"), 2u);
  EXPECT_EQ(CharacterCount("\xFF\xFE"), 2u);
  EXPECT_EQ(MidCharacters("ab\u00e9cd", 2, 2), "\u00e9c");
  EXPECT_EQ(MidCharacters("ab", 5, 2), "");
}

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

// The province, postal-letter and post-office-box answers are in checks_address.scn; here, the
// word list's own reading and a street far longer than any host sends.
TEST(PoBoxWords, EntriesAreTrimmedAndAnEmptyListFindsNothing) {
  EXPECT_TRUE(HasPoBoxAddress("CP 12", {"  CP  "}));
  EXPECT_FALSE(HasPoBoxAddress("CP 12", {}));
  EXPECT_FALSE(HasPoBoxAddress("CP 12", {""}));
}

TEST(PoBoxWords, AMebibyteStreetIsJudgedByItsStart) {
  std::string street(1 << 20, ' ');
  street.replace(street.size() / 2, 7, "po box ");
  street += 'x';
  EXPECT_TRUE(HasPoBoxAddress(street, SplitPoBoxWords()));
  street[street.size() / 2] = 'q';
  EXPECT_FALSE(HasPoBoxAddress(street, SplitPoBoxWords()));
}

}  // namespace
}  // namespace nvrandom::validation
