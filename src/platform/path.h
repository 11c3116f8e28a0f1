#pragma once

#include <cstddef>
#include <cstdint>
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

// Paths are UTF-8 everywhere in the component; on Windows they are widened for the system calls.

// Joins with one separator, inserted only when `root` is not empty and lacks a trailing one.
std::string Join(std::string_view root, std::string_view name);

// On POSIX, `dir` + `name` where `name` is matched case-insensitively against the entries of
// `dir` (an exact match first), as Windows would; `name` itself when nothing matches. On Windows,
// plain concatenation.
std::string ResolveFolder(const std::string& dir, std::string_view name);

bool FileExists(const std::string& file);

// Copies the file `from` over `to`, making the folders of `to` that are missing; false when the
// copy failed.
bool CopyFileReplacing(const std::string& from, const std::string& to);

// The whole content of a file, byte for byte; nullopt when it cannot be read or is larger than
// `max_size` bytes (refused unread).
std::optional<std::string> ReadFile(const std::string& file, size_t max_size = SIZE_MAX);

// Writes `data` at the end of `file` (created when missing), or in its place when `truncate`;
// false unless every byte was written. The file is open only for the call.
bool WriteToFile(const std::string& file, std::string_view data, bool truncate);

// A new, empty folder of the current user below the system's temporary folder, its name starting
// with `prefix`; the path ends in a separator. Empty when none could be made.
std::string MakeTemporaryFolder(std::string_view prefix);

}  // namespace nvrandom::path
