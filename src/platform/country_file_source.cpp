#include "platform/country_file_source.h"

#include <fstream>

#include "platform/country_file_cipher.h"

namespace nvrandom {

namespace {

// The whole file when it is a readable regular file of at most `limit` bytes.
std::optional<std::string> ReadBounded(const std::string& path, size_t limit) {
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  if (!in) return std::nullopt;
  const std::streamoff size = in.tellg();
  if (size < 0 || static_cast<size_t>(size) > limit) return std::nullopt;
  std::string data(static_cast<size_t>(size), '\0');
  in.seekg(0);
  if (!in.read(data.data(), size)) return std::nullopt;
  return data;
}

}  // namespace

std::optional<std::string> BuiltinCountryFileDecipher::Decipher(const std::string& path) {
  const auto data = ReadBounded(path, max_file_size_);
  if (!data) return std::nullopt;
  return country_file::Decipher(*data);
}

}  // namespace nvrandom
