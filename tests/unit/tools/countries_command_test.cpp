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

// The sample list comes back whole through list and decipher (less the CRs the enciphered file
// puts before each LF); the enciphered file does not show the rows' text, and enciphering it
// again gives other bytes (a fresh nonce) that read the same. A changed byte is refused with the
// command's message and nothing is written for decipher (any byte, any cut: fuzz_country_file).
TEST(CountriesCommand, RoundTripsTheSampleFileAndRefusesATamperedOne) {
  testing::TempFolder folder;
  const auto plain = folder.path() / "countries.csv";
  const auto sealed = folder.path() / "FXCountries";
  const auto copy = folder.path() / "copy.csv";
  Write(plain, std::string(scenario::SampleCountries()));
  ASSERT_EQ(Countries({"encipher", plain.string(), sealed.string()}).code, 0);
  const std::string sealed_bytes = testing::ReadFile(sealed);
  const CommandRun list = Countries({"list", sealed.string()});
  EXPECT_EQ(list.code, 0) << list.err;
  std::string listed = list.out;
  std::erase(listed, '\r');
  EXPECT_EQ(listed, scenario::SampleCountries());
  EXPECT_EQ(Countries({"decipher", sealed.string(), copy.string()}).code, 0);
  EXPECT_EQ(testing::ReadFile(copy), list.out);
  EXPECT_EQ(sealed_bytes.find("Canada"), std::string::npos);

  ASSERT_EQ(Countries({"encipher", plain.string(), copy.string()}).code, 0);
  EXPECT_NE(testing::ReadFile(copy), sealed_bytes);
  EXPECT_EQ(Countries({"list", copy.string()}).out, list.out);

  std::filesystem::remove(copy);
  Write(sealed, sealed_bytes.substr(0, sealed_bytes.size() - 1) +
                    static_cast<char>(sealed_bytes.back() ^ 0x01));
  const CommandRun refused = Countries({"list", sealed.string()});
  EXPECT_EQ(refused.code, 1);
  EXPECT_EQ(refused.out, "");
  EXPECT_NE(refused.err.find("is not an intact enciphered country file"), std::string::npos);
  EXPECT_EQ(Countries({"decipher", sealed.string(), copy.string()}).code, 1);
  EXPECT_FALSE(std::filesystem::exists(copy));
}

}  // namespace
}  // namespace nvrandom
