#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nvrandom::country_file {

// The country file is kept enciphered so that it is not edited by hand: "NVC1", a random 16-byte
// initialisation vector, then the text under AES-128-CBC with the component's built-in key.

std::string Encipher(std::string_view plain_text);
// nullopt when the data is not an enciphered country file (wrong header, damaged, truncated).
std::optional<std::string> Decipher(std::string_view enciphered);

// Deciphers the file `from` into the file `to`; false (and `to` untouched) on any failure.
bool DecipherFile(const std::string& from, const std::string& to);

}  // namespace nvrandom::country_file
