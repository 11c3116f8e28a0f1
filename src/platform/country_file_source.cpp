#include "platform/country_file_source.h"

#include "platform/country_file_cipher.h"
#include "platform/path.h"

namespace nvrandom {

std::optional<std::string> BuiltinCountryFileDecipher::Decipher(const std::string& path) {
  const auto data = path::ReadFile(path, max_file_size_);
  if (!data) return std::nullopt;
  return country_file::Decipher(*data);
}

}  // namespace nvrandom
