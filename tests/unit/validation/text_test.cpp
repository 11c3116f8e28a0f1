#include "validation/text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace nvrandom::validation {
namespace {

// The everyday answers are in checks_text.scn, the properties that hold for any text (lengths,
// kept codes, trimming) in fuzz_text; here, the bytes a scenario cannot write and the
// character-counting edges.

using namespace std::string_literals;

TEST(Text, CleanseCharactersKeepsCodes32To125ButTheDoubleQuote) {
  const std::pair<std::string, std::string> rows[] = {
      {" !#", " !#"},                           // the bounds of the kept range
      {"a\tb\r\nc\x7f"s + '\0' + "d", "abcd"},  // control characters, DEL, a NUL
      {"Montr\xC3\xA9"
       "al",
       "Montral"},             // every byte of "é" is above 125
      {"x\xFFy", "xy"},        // a byte that is not UTF-8
      {"  two  ", "  two  "},  // not trimmed
  };
  for (const auto& [input, kept] : rows) EXPECT_EQ(CleanseCharacters(input), kept) << input;
}

TEST(Text, PaddingCountsCharacters) {
  struct Row {
    std::string text;
    int length;
    std::string left, right;  // PadLeft, PadRight
  };
  const Row rows[] = {
      {"\xC3\xA9", 3, "  \xC3\xA9", "\xC3\xA9  "},  // "é" is one character of two bytes
      {"a\xC3\xA9z", 2, "\xC3\xA9z", "a\xC3\xA9"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PadLeft(row.text, row.length), row.left) << row.text;
    EXPECT_EQ(PadRight(row.text, row.length), row.right) << row.text;
  }
}

// One ASCII letter anywhere is enough; the neighbours of the letter ranges and accented letters
// are none.
TEST(Text, IsAlphaWantsOneAsciiLetter) {
  EXPECT_TRUE(IsAlpha("1 2 z"));
  EXPECT_FALSE(IsAlpha("@[`{"));
  EXPECT_FALSE(IsAlpha("\xC3\xA9\xC3\x89"));
}

TEST(TrimBlanks, RemovesSpacesOnly) {
  EXPECT_EQ(TrimBlanks("\ta\t"), "\ta\t");
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

}  // namespace
}  // namespace nvrandom::validation
