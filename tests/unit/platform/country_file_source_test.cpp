#include "platform/country_file_source.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/country_file_cipher.h"
#include "support/test_files.h"

namespace nvrandom {
namespace {

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

}  // namespace
}  // namespace nvrandom
