#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/country_file_source.h"

namespace nvrandom {

// The installation's decipher library kvd8rq3x.dll when it is installed (looked for in the
// country file's own folder first, see InstalledLibrary), else `fallback` (the built-in cipher).
//
// The library's entry point, _DES_decrypt_file@8 (DES_decrypt_file in a 64-bit build), takes the
// enciphered file's path and the path to write the plain text to, both 8-bit, and returns a
// 32-bit status. The status is not relied on: the call has succeeded when it has written the
// ".dec" copy and that copy is text. The copy is removed as soon as it has been read, whatever
// happened, and a stale one is removed before the call so that it is never read in place of a
// fresh one. An installed library without the entry point, a call that writes nothing, and a
// copy that is empty or not text (control characters other than tab and line ends, or over the
// size limit) all answer nullopt, as a missing file does.
class InstalledCountryFileDecipher final : public CountryFileDecipher {
 public:
  explicit InstalledCountryFileDecipher(std::unique_ptr<CountryFileDecipher> fallback)
      : fallback_(std::move(fallback)) {}
  std::optional<std::string> Decipher(const std::string& path) override;

 private:
  std::unique_ptr<CountryFileDecipher> fallback_;
};

}  // namespace nvrandom
