#pragma once

#include <optional>
#include <string>
#include <string_view>

// The closed libraries of a host installation take and give 8-bit texts in the system's ANSI code
// page; the component's texts are UTF-8.
namespace nvrandom::ansi {

// `utf8` in the ANSI code page; nullopt when a character has no form there.
std::optional<std::string> FromUtf8(std::string_view utf8);

// An 8-bit text from a library as UTF-8: kept as it is when it already is valid UTF-8 (ASCII
// always is), else read in the ANSI code page.
std::string ToUtf8(std::string_view text);

// A path that an 8-bit entry point can open: the path itself when the ANSI code page holds it,
// else the short (8.3) form of its folder followed by its name, which must be ASCII. nullopt when
// neither exists (a file system without short names).
std::optional<std::string> PathFor8BitEntry(const std::wstring& path);

}  // namespace nvrandom::ansi
