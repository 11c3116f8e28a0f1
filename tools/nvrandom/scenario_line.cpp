#include "scenario_line.h"

#include <charconv>

namespace nvrandom::scenario {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

// A quoted word starting at `i` (on the opening quote); leaves `i` after the closing quote.
std::string ReadQuoted(std::string_view line, size_t& i) {
  std::string out;
  for (++i; i < line.size(); ++i) {
    const char c = line[i];
    if (c == '"') {
      ++i;
      return out;
    }
    if (c != '\\') {
      out += c;
      continue;
    }
    if (++i >= line.size()) break;
    switch (line[i]) {
      case '"':
        out += '"';
        break;
      case '\\':
        out += '\\';
        break;
      case 'r':
        out += '\r';
        break;
      case 'n':
        out += '\n';
        break;
      case 't':
        out += '\t';
        break;
      default:
        throw MalformedLine(std::string("unknown escape \\") + line[i]);
    }
  }
  throw MalformedLine("a quoted word is not closed");
}

// A JSON list starting at `i`: up to its matching bracket, skipping brackets inside strings.
std::string ReadList(std::string_view line, size_t& i) {
  const size_t start = i;
  int depth = 0;
  bool in_string = false;
  for (; i < line.size(); ++i) {
    const char c = line[i];
    if (in_string) {
      if (c == '\\') {
        ++i;
      } else if (c == '"') {
        in_string = false;
      }
    } else if (c == '"') {
      in_string = true;
    } else if (c == '[') {
      ++depth;
    } else if (c == ']' && --depth == 0) {
      ++i;
      return std::string(line.substr(start, i - start));
    }
  }
  throw MalformedLine("a list is not closed");
}

}  // namespace

std::vector<Word> SplitWords(std::string_view line) {
  std::vector<Word> words;
  size_t i = 0;
  while (i < line.size() && IsBlank(line[i])) ++i;
  if (i == line.size() || line[i] == '#') return words;
  while (i < line.size()) {
    if (IsBlank(line[i])) {
      ++i;
      continue;
    }
    if (line[i] == '"') {
      words.push_back({ReadQuoted(line, i), true});
    } else if (line[i] == '[') {
      words.push_back({ReadList(line, i), false});
    } else {
      const size_t start = i;
      while (i < line.size() && !IsBlank(line[i])) ++i;
      words.push_back({std::string(line.substr(start, i - start)), false});
    }
  }
  return words;
}

std::string Expand(const std::string& text, const std::string& root, const std::string& install) {
  std::string out;
  for (size_t i = 0; i < text.size();) {
    if (text.compare(i, 5, "$ROOT") == 0) {
      out += root;
      i += 5;
    } else if (text.compare(i, 8, "$INSTALL") == 0) {
      out += install;
      i += 8;
    } else {
      out += text[i++];
    }
  }
  return out;
}

std::optional<long long> ParseInteger(std::string_view text) {
  long long value = 0;
  const char* begin = text.data();
  const char* end = text.data() + text.size();
  if (!text.empty() && text[0] == '+') ++begin;
  const auto [ptr, ec] = std::from_chars(begin, end, value);
  if (ec != std::errc() || ptr != end || begin == end) return std::nullopt;
  return value;
}

}  // namespace nvrandom::scenario
