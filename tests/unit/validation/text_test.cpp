#include "validation/text.h"

#include <gtest/gtest.h>

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
  EXPECT_EQ(MidCharacters("ab\xC3\xA9"
                          "cd",
                          2, 2),
            "\xC3\xA9"
            "c");
  EXPECT_EQ(MidCharacters("ab", 5, 2), "");
}

}  // namespace
}  // namespace nvrandom::validation
