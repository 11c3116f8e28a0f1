#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nvrandom::path {

// The separator of the platform's paths: the component's "\" on Windows, "/" on POSIX.
#ifdef _WIN32
inline constexpr char kSeparator = '\\';
#else
inline constexpr char kSeparator = '/';
#endif

// Joins with one separator, inserted only when `root` is not empty and lacks a trailing one.
std::string Join(std::string_view root, std::string_view name);

// On POSIX, `dir` + `name` where `name` is matched case-insensitively against the entries of
// `dir` (an exact match first), as Windows would; `name` itself when nothing matches. On Windows,
// plain concatenation.
std::string ResolveFolder(const std::string& dir, std::string_view name);

bool FileExists(const std::string& file);

// Copies the file `from` over `to`, making the folders of `to` that are missing; false when the
// copy failed.
bool CopyFile(const std::string& from, const std::string& to);

// The whole content of a file, byte for byte; nullopt when it cannot be read.
std::optional<std::string> ReadFile(const std::string& file);

}  // namespace nvrandom::path
