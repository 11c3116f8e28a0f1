#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace nvrandom {

// Turns the enciphered country file into its text. The built-in one deciphers in memory; a
// platform may supply another (on Windows the installation's own decipher library, whose
// deciphered copy it reads and removes).
class CountryFileDecipher {
 public:
  virtual ~CountryFileDecipher() = default;
  // The plain text of the country file `path`; nullopt when it is missing, cannot be read, or is
  // not an intact country file (wrong, truncated, altered). Callers treat every nullopt alike.
  virtual std::optional<std::string> Decipher(const std::string& path) = 0;
};

// Reads the file and deciphers it in memory (country_file_cipher.h): the plain text never
// touches the disk. Files larger than `max_file_size` are refused unread.
class BuiltinCountryFileDecipher final : public CountryFileDecipher {
 public:
  // A list of every country is some 10 KiB; this leaves room for any honest file.
  static constexpr size_t kMaxFileSize = 64u << 20;
  explicit BuiltinCountryFileDecipher(size_t max_file_size = kMaxFileSize)
      : max_file_size_(max_file_size) {}
  std::optional<std::string> Decipher(const std::string& path) override;

 private:
  size_t max_file_size_;
};

}  // namespace nvrandom
