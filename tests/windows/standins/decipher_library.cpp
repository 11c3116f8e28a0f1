// A decipher library for the tests of the Windows build: the installation's kvd8rq3x.dll as the
// component calls it, deciphering the component's own authenticated country-file format with the
// component's cipher. The plain copy is written only for an intact file.
#include <windows.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/country_file_cipher.h"

namespace {

enum Status : int32_t { kWritten = 0, kUnreadable = 1, kNotACountryFile = 2, kCannotWrite = 3 };

}  // namespace

// The paths are 8-bit, in the ANSI code page, as the library's callers pass them.
extern "C" int32_t WINAPI DES_decrypt_file(const char* enciphered_path, const char* plain_path) {
  if (enciphered_path == nullptr || plain_path == nullptr) return kUnreadable;
  std::ifstream in(enciphered_path, std::ios::binary);
  if (!in) return kUnreadable;
  const std::string data{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  const auto plain = nvrandom::country_file::Decipher(data);
  if (!plain) return kNotACountryFile;
  std::ofstream out(plain_path, std::ios::binary | std::ios::trunc);
  if (!out.write(plain->data(), static_cast<std::streamsize>(plain->size()))) return kCannotWrite;
  return kWritten;
}
