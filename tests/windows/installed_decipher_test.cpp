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

// The library deciphers into a copy, read and removed at once instead of a stale one; a damaged,
// binary or empty country file is refused like a missing one. No copy is left behind. The
// installation folder's name has an Ω, which the Western code pages cannot hold.
TEST(InstalledDecipher, LibraryDeciphersIntoACopyRemovedAtOnceOrRefusesTheFile) {
  const fs::path folder = fs::temp_directory_path() /
                          (L"nvrandom Instalación Ω " + std::to_wstring(::GetCurrentProcessId()));
  const fs::path file = folder / "FXCountries";
  const fs::path copy = folder / "FXCountries.dec";
  fs::create_directories(folder);
  fs::copy_file(fs::path(NVRANDOM_STANDINS_DIR) / "kvd8rq3x.dll", folder / "kvd8rq3x.dll",
                fs::copy_options::overwrite_existing);
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
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    std::optional<std::string> enciphered = country_file::Encipher(c.plain);
    ASSERT_TRUE(enciphered);
    if (c.damaged) (*enciphered)[20] ^= 1;
    Write(file, *enciphered);
    Write(copy, "Country,Code,Phone\r\nStale,ST,0\r\n");
    InstalledCountryFileDecipher decipher(std::make_unique<BuiltinCountryFileDecipher>());
    EXPECT_EQ(decipher.Decipher(wide::ToUtf8(file.wstring())), c.read);
    EXPECT_FALSE(fs::exists(copy));
  }
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

}  // namespace
}  // namespace nvrandom
