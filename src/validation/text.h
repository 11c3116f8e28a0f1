#pragma once

#include <string>
#include <string_view>

#include "platform/ascii.h"

namespace nvrandom::validation {

// Texts are UTF-8 as the form runtime holds them. Where a rule counts characters (padding,
// lengths, "the first n characters") it counts them the way the form runtime does; rules that
// look at single characters by their code work on bytes, which gives the same answer because
// every byte of a multi-byte character is above 127.

// Keeps the characters with codes 32, 33 and 35 to 125: drops the double quote, the tilde,
// control characters and everything above 125 (so every byte of a non-ASCII character). The
// text is not trimmed.
std::string CleanseCharacters(std::string_view text);

// Brings `text` to `length` characters: a longer text keeps its rightmost `length` characters,
// a shorter one gets blanks in front. A negative length gives an empty text.
std::string PadLeft(std::string_view text, int length);

// The mirror image: a longer text keeps its leftmost characters, a shorter one is followed by
// blanks.
std::string PadRight(std::string_view text, int length);

// True as soon as one character is a letter A-Z once upper-cased. Deliberately lax: "12A" counts
// as alphabetic, "12" does not.
bool IsAlpha(std::string_view text);

using ascii::TrimBlanks;

// Number of characters of `text`, and its first `count` characters.
size_t CharacterCount(std::string_view text);
std::string_view LeftCharacters(std::string_view text, size_t count);
// Characters [start, start + count) counted from 0, clipped to the text.
std::string_view MidCharacters(std::string_view text, size_t start, size_t count);

// True when the text is not empty and holds only the character `c`.
bool ConsistsOf(std::string_view text, char c);

}  // namespace nvrandom::validation
