// The installation's decipher library as the Windows build loads it, where no host can look: the
// ".dec" copy never outlives the call and a stale one is never read, a copy that is not text is
// refused, and an installation folder whose name the ANSI code page cannot hold still works.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "platform/country_file_cipher.h"
#include "platform/win32/installed_country_decipher.h"
#include "platform/win32/wide_text.h"

namespace nvrandom {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kCountries = "Country,Code,Phone\r\nFrance,FR,33\r\nPérou,PE,51\r\n";

void Write(const fs::path& file, std::string_view data) {
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(data.data(), static_cast<std::streamsize>(data.size()));
}

// An installation folder (Ω has no form in the Western code pages) holding the country file and,
// when asked, a decipher library.
class Installation : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              (L"nvrandom Instalación Ω " + std::to_wstring(::GetCurrentProcessId()));
    fs::create_directories(folder_);
  }
  void TearDown() override {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
  }
  void InstallLibrary() {
    fs::copy_file(fs::path(NVRANDOM_STANDINS_DIR) / "kvd8rq3x.dll", folder_ / "kvd8rq3x.dll");
  }
  void WriteCountryFile(std::string_view plain) {
    const auto enciphered = country_file::Encipher(plain);
    ASSERT_TRUE(enciphered);
    Write(file(), *enciphered);
  }
  fs::path file() const { return folder_ / "FXCountries"; }
  fs::path copy() const { return folder_ / "FXCountries.dec"; }
  std::optional<std::string> Decipher() {
    InstalledCountryFileDecipher decipher(std::make_unique<BuiltinCountryFileDecipher>());
    return decipher.Decipher(wide::ToUtf8(file().wstring()));
  }

  fs::path folder_;
};

// The library deciphers into a copy, read and removed at once instead of a stale one; a damaged,
// binary or empty country file is refused like a missing one. No copy is left behind.
TEST_F(Installation, LibraryDeciphersIntoACopyRemovedAtOnceOrRefusesTheFile) {
  struct Case {
    const char* what;
    std::string plain;
    bool damaged;  // a byte of the enciphered file changed: the library writes nothing
    std::optional<std::string> read;
  };
  const Case cases[] = {
      {"a stale copy beside it", std::string(kCountries), false, std::string(kCountries)},
      {"damaged file", std::string(kCountries), true, std::nullopt},
      {"binary content", std::string("Country\r\n\x01\x02\0\x7f", 13), false, std::nullopt},
      {"empty content", std::string(), false, std::nullopt},
  };
  InstallLibrary();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    WriteCountryFile(c.plain);
    Write(copy(), "Country,Code,Phone\r\nStale,ST,0\r\n");
    if (c.damaged) {
      std::fstream f(file(), std::ios::binary | std::ios::in | std::ios::out);
      f.seekp(20);
      f.put('#');
    }
    EXPECT_EQ(Decipher(), c.read);
    EXPECT_FALSE(fs::exists(copy()));
  }
}

}  // namespace
}  // namespace nvrandom
