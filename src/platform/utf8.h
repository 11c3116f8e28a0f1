#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace nvrandom::utf8 {

// Texts are UTF-8; positions (SelStart, MaxLength, Mid) count characters, not bytes. A byte that
// does not start a valid sequence counts as one character of its own.

size_t Length(std::string_view text);
// Byte offset of character `index` (the text's size when `index` is at or past the end).
size_t Offset(std::string_view text, size_t index);
// Characters [start, start + count) of `text`, clipped to the text.
std::string Mid(std::string_view text, size_t start, size_t count);
// The UTF-8 form of one code point.
std::string EncodeCodePoint(char32_t cp);
// The code points of `text`; a byte that starts no valid sequence stands for itself.
std::vector<char32_t> Decode(std::string_view text);

}  // namespace nvrandom::utf8
