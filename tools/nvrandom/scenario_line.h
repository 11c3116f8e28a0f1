#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace nvrandom::scenario {

// A line that cannot be read as a statement; the runner reports it with its file and line.
class MalformedLine : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One word of a statement. Quoted words keep their quotes' meaning: `"12"` is a text, `12` a
// number.
struct Word {
  std::string text;
  bool quoted = false;
};

// Splits a statement into words: blanks separate, double quotes group, with the escapes \" \\ \r
// \n \t inside quotes. A JSON list (a word starting with "[") runs to its matching "]", blanks and
// quotes included. Returns no words for a blank line or a comment.
std::vector<Word> SplitWords(std::string_view line);

// The text of a quoted word with $ROOT and $INSTALL replaced.
std::string Expand(const std::string& text, const std::string& root, const std::string& install);

// Reads a decimal integer word; nullopt when it is not one.
std::optional<long long> ParseInteger(std::string_view text);

}  // namespace nvrandom::scenario
