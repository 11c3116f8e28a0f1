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

struct CommandRun {
  int code;
  std::string out;
  std::string err;
};

CommandRun Countries(const std::vector<std::string>& args) {
  std::ostringstream out;
  std::ostringstream err;
  const int code = CountriesCommand(args, out, err);
  return {code, out.str(), err.str()};
}

void Write(const std::filesystem::path& file, const std::string& data) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << data;
}

// The text without the CRs the enciphered file puts before each LF.
std::string WithoutCr(std::string text) {
  std::erase(text, '\r');
  return text;
}

class CountriesCommandTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Write(plain_, std::string(scenario::SampleCountries()));
    ASSERT_EQ(Countries({"encipher", plain_.string(), sealed_.string()}).code, 0);
    sealed_bytes_ = testing::ReadFile(sealed_);
  }

  testing::TempFolder folder_;
  std::filesystem::path plain_ = folder_.path() / "countries.csv";
  std::filesystem::path sealed_ = folder_.path() / "FXCountries";
  std::string sealed_bytes_;
};

// The sample list comes back whole through list and decipher; the enciphered file does not show
// the rows' text, and enciphering it again gives other bytes (a fresh nonce) that read the same.
// A changed byte is refused with the command's message and nothing is written for decipher (any
// byte, any cut: fuzz_country_file).
TEST_F(CountriesCommandTest, RoundTripsTheSampleFileAndRefusesATamperedOne) {
  const CommandRun list = Countries({"list", sealed_.string()});
  EXPECT_EQ(list.code, 0) << list.err;
  EXPECT_EQ(WithoutCr(list.out), scenario::SampleCountries());
  const auto copy = folder_.path() / "copy.csv";
  EXPECT_EQ(Countries({"decipher", sealed_.string(), copy.string()}).code, 0);
  EXPECT_EQ(testing::ReadFile(copy), list.out);
  EXPECT_EQ(sealed_bytes_.find("Canada"), std::string::npos);

  ASSERT_EQ(Countries({"encipher", plain_.string(), copy.string()}).code, 0);
  EXPECT_NE(testing::ReadFile(copy), sealed_bytes_);
  EXPECT_EQ(Countries({"list", copy.string()}).out, list.out);

  std::filesystem::remove(copy);
  Write(sealed_, sealed_bytes_.substr(0, sealed_bytes_.size() - 1) +
                     static_cast<char>(sealed_bytes_.back() ^ 0x01));
  const CommandRun refused = Countries({"list", sealed_.string()});
  EXPECT_EQ(refused.code, 1);
  EXPECT_EQ(refused.out, "");
  EXPECT_NE(refused.err.find("is not an intact enciphered country file"), std::string::npos);
  EXPECT_EQ(Countries({"decipher", sealed_.string(), copy.string()}).code, 1);
  EXPECT_FALSE(std::filesystem::exists(copy));
}

}  // namespace
}  // namespace nvrandom
