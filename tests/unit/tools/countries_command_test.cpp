#include "countries_command.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "installation_tree.h"
#include "support/test_files.h"

namespace nvrandom {
namespace {

// The output of the command, or "error N: MESSAGE" when it fails.
std::string Countries(const std::vector<std::string>& args) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = CountriesCommand(args, out, err);
  return code == 0 ? out.str() : "error " + std::to_string(code) + ": " + err.str();
}

// Enciphering the sample list twice gives other bytes (a fresh nonce), neither showing the rows'
// text, that list the same. (The build's own sample, listed: the countries.sample_file test; a
// file that is not intact, refused: biller_lists.scn and fuzz_country_file.)
TEST(CountriesCommand, EachEncipheringTakesAFreshNonce) {
  testing::TempFolder folder;
  const auto plain = folder.path() / "countries.csv";
  std::ofstream(plain, std::ios::binary) << scenario::SampleCountries();
  std::string sealed[2];
  for (int i = 0; i < 2; ++i) {
    const auto file = folder.path() / ("FXCountries" + std::to_string(i));
    ASSERT_EQ(Countries({"encipher", plain.string(), file.string()}), "");
    sealed[i] = testing::ReadFile(file);
    EXPECT_EQ(sealed[i].find("Canada"), std::string::npos);
    std::string listed = Countries({"list", file.string()});
    std::erase(listed, '\r');
    EXPECT_EQ(listed, scenario::SampleCountries());
  }
  EXPECT_NE(sealed[0], sealed[1]);
}

}  // namespace
}  // namespace nvrandom
