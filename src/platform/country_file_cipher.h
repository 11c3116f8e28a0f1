#pragma once

#include <optional>
#include <string>
#include <string_view>

// The country file's text in and out of its enciphered form (layout and key in
// country_file_format.h). Both work in memory: no plain copy is ever written by this code.
namespace nvrandom::country_file {

// A fresh nonce each call, so enciphering the same text twice gives different files. nullopt
// when the system's random source or the cipher fails.
std::optional<std::string> Encipher(std::string_view plain_text);

// nullopt when the data is not an intact country file of this version: wrong magic or version,
// truncated, or any byte changed.
std::optional<std::string> Decipher(std::string_view enciphered);

}  // namespace nvrandom::country_file
