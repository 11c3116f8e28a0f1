#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "platform/country_file_cipher.h"
#include "platform/country_file_source.h"
#include "platform/fonts.h"
#include "support/test_files.h"

namespace nvrandom {
namespace {

std::string FromHex(std::string_view hex) {
  std::string bytes;
  for (size_t i = 0; i + 1 < hex.size(); i += 2) {
    bytes.push_back(static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16)));
  }
  return bytes;
}

// A file written by an earlier build with another cipher library, byte for byte: whatever
// library a build takes the cipher from, the files already installed keep reading.
TEST(CountryFileCipher, ReadsAFileWrittenByAnEarlierBuild) {
  const std::string sealed = FromHex(
      "4e56434602c83e75f90f9ab9e518fb88a40bf69e8fb07ed06474959cb58c"
      "5fb413bd4bc46fd9f7257a99da4c830f9cc2e2d2eb049e4851787591c840"
      "0d4c56f55e1bdfee10d5d560dd114ea8e2cf06b2a67e8e96fe3db2c2ba72"
      "ef7103a622ae9d41c8cc79052b0d67801c38a865b725df26");
  EXPECT_EQ(country_file::Decipher(sealed),
            "Country,Code,Phone\r\nCanada,CA,1\r\n\"Korea, Republic of\",KR,82\r\n"
            "United States,US,1\r\n");
}

// Whatever stands where the country file should be, the service answers with the text of an
// intact file and nothing otherwise (a missing or garbled file: biller_lists.scn): a folder,
// a file over the size limit.
TEST(BuiltinCountryFileDecipher, ReadsOnlyAnIntactFile) {
  testing::TempFolder folder;
  const auto file = folder.path() / "FXCountries";
  BuiltinCountryFileDecipher service;

  const auto sealed = country_file::Encipher("Country\r\nPeru,PE,51\r\n");
  ASSERT_TRUE(sealed.has_value());
  std::ofstream(file, std::ios::binary) << *sealed;
  EXPECT_EQ(service.Decipher(folder.path().string()), std::nullopt) << "a folder";

  const size_t size = std::filesystem::file_size(file);
  EXPECT_TRUE(BuiltinCountryFileDecipher(size).Decipher(file.string()).has_value());
  EXPECT_EQ(BuiltinCountryFileDecipher(size - 1).Decipher(file.string()), std::nullopt);
}

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
