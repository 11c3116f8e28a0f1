#include "platform/country_file_cipher.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

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

}  // namespace
}  // namespace nvrandom
