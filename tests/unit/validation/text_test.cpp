#include "validation/text.h"

#include <gtest/gtest.h>

#include <string>

namespace nvrandom::validation {
namespace {

// The everyday answers are in checks_text.scn; here, the bytes a scenario cannot write and the
// character-counting edges.

using namespace std::string_literals;

struct CleanseRow {
  std::string input;
  std::string expected;
};

class CleanseCharactersTest : public ::testing::TestWithParam<CleanseRow> {};

TEST_P(CleanseCharactersTest, KeepsOnlyCodes32To125ExceptTheDoubleQuote) {
  EXPECT_EQ(CleanseCharacters(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, CleanseCharactersTest,
                         ::testing::Values(
                             // the bounds of the kept range: blank, "!" and "#" kept
                             CleanseRow{" !#", " !#"},
                             // control characters, DEL and an embedded NUL dropped
                             CleanseRow{"a\tb\r\nc\x7f"s + '\0' + "d", "abcd"},
                             // every byte of a multi-byte character is above 125
                             CleanseRow{"Montr\xC3\xA9"
                                        "al",
                                        "Montral"},
                             // a byte that is not UTF-8 at all
                             CleanseRow{"x\xFFy", "xy"},
                             // not trimmed
                             CleanseRow{"  two  ", "  two  "}, CleanseRow{"", ""}));

struct PadRow {
  std::string text;
  int length;
  std::string left;   // PadLeft
  std::string right;  // PadRight
};

class PadTest : public ::testing::TestWithParam<PadRow> {};

TEST_P(PadTest, CutsOrFillsToTheLength) {
  EXPECT_EQ(PadLeft(GetParam().text, GetParam().length), GetParam().left);
  EXPECT_EQ(PadRight(GetParam().text, GetParam().length), GetParam().right);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PadTest,
    ::testing::Values(PadRow{"123456", 6, "123456", "123456"}, PadRow{"", 3, "   ", "   "},
                      PadRow{"abc", 0, "", ""},
                      // a negative length gives an empty text rather than an error
                      PadRow{"abc", -4, "", ""},
                      // characters, not bytes, are counted: "é" is one character of two bytes
                      PadRow{"\xC3\xA9", 3, "  \xC3\xA9", "\xC3\xA9  "},
                      PadRow{"a\xC3\xA9z", 2, "\xC3\xA9z", "a\xC3\xA9"}));

struct AlphaRow {
  std::string text;
  bool expected;
};

class IsAlphaTest : public ::testing::TestWithParam<AlphaRow> {};

TEST_P(IsAlphaTest, TrueWhenAnyCharacterIsALetter) {
  EXPECT_EQ(IsAlpha(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, IsAlphaTest,
                         ::testing::Values(
                             // one letter anywhere is enough: the rule is deliberately lax
                             AlphaRow{"1 2 z", true},
                             // the neighbours of the letter ranges
                             AlphaRow{"@[`{", false},
                             // accented letters are not A-Z
                             AlphaRow{"\xC3\xA9\xC3\x89", false}));

TEST(TrimBlanks, RemovesSpacesOnlyAtBothEnds) {
  EXPECT_EQ(TrimBlanks("  a b  "), "a b");
  EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
  EXPECT_EQ(TrimBlanks("    "), "");
}

TEST(CharacterCounting, InvalidBytesCountOneEach) {
  EXPECT_EQ(CharacterCount("a\xC3\xA9"), 2u);
  EXPECT_EQ(CharacterCount("\xFF\xFE"), 2u);
  EXPECT_EQ(MidCharacters("ab\xC3\xA9"
                          "cd",
                          2, 2),
            "\xC3\xA9"
            "c");
  EXPECT_EQ(MidCharacters("ab", 5, 2), "");
}

TEST(LargeInput, OneMebibyteOfMixedBytesHasADefinedResult) {
  std::string text(1 << 20, '\0');
  for (size_t i = 0; i < text.size(); ++i) text[i] = static_cast<char>(i * 7);
  const std::string cleansed = CleanseCharacters(text);
  for (const char c : cleansed) {
    const auto code = static_cast<unsigned char>(c);
    ASSERT_TRUE(code == 32 || code == 33 || (code >= 35 && code <= 125)) << int(code);
  }
  EXPECT_FALSE(cleansed.empty());
  EXPECT_EQ(CharacterCount(PadLeft(text, 6)), 6u);
  EXPECT_EQ(CharacterCount(PadRight(text, 32767)), 32767u);
}

}  // namespace
}  // namespace nvrandom::validation
