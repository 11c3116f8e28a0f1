#include "platform/fonts.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "support/test_files.h"

namespace nvrandom {
namespace {

// What the font services count as fonts: the signatures of TrueType and collections. (OpenType,
// and a file of text: restyle_font_installed.scn and restyle_font_refused.scn.)
TEST(FontsInFileTest, CountsByTheFileSignature) {
  struct Case {
    const char* what;
    std::string content;
    int fonts;
  };
  const Case cases[] = {
      {"TrueType 1.0", std::string("\0\1\0\0", 4) + std::string(200, '\0'), 1},
      {"Apple TrueType", "true" + std::string(200, 'x'), 1},
      {"collection of three", std::string("ttcf\0\1\0\0\0\0\0\3", 12), 3},
      {"collection of an absurd count", std::string("ttcf\0\1\0\0\xff\xff\xff\xff", 12), 0},
      {"signature alone, cut short", "OTTO", 0},
      {"empty", "", 0},
  };
  const testing::TempFolder folder;
  const std::string file = (folder.path() / "font.ttf").string();
  for (const Case& c : cases) {
    std::ofstream(file, std::ios::binary | std::ios::trunc) << c.content;
    EXPECT_EQ(FontsInFile(file), c.fonts) << c.what;
  }
  EXPECT_EQ(FontsInFile("/nonexistent/nvrandom/font.ttf"), 0);
}

}  // namespace
}  // namespace nvrandom
