#include "dialogs/biller/country_file_reader.h"

#include <algorithm>

namespace nvrandom {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool IsCountryCode(std::string_view code) {
  return code.size() == 2 && std::all_of(code.begin(), code.end(), [](char c) {
           return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
         });
}

bool IsPhoneCode(std::string_view phone) {
  return !phone.empty() &&
         std::all_of(phone.begin(), phone.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A field without quotes as it stands; a quoted one up to its closing quote, "" standing for one
// quote, with whatever follows the closing quote up to the comma. `i` is left on the comma or at
// the end of the line.
std::string_view ReadField(std::string_view line, size_t& i, std::string& unquoted) {
  const size_t start = i;
  size_t first = i;
  while (first < line.size() && IsBlank(line[first])) ++first;
  if (first == line.size() || line[first] != '"') {
    i = std::min(line.find(',', i), line.size());
    return line.substr(start, i - start);
  }
  unquoted.clear();
  i = first + 1;
  while (i < line.size()) {
    const size_t quote = std::min(line.find('"', i), line.size());
    unquoted.append(line.substr(i, quote - i));
    i = quote;
    if (i + 1 < line.size() && line[i + 1] == '"') {
      unquoted += '"';
      i += 2;
    } else {
      i = std::min(i + 1, line.size());
      break;
    }
  }
  const size_t comma = std::min(line.find(',', i), line.size());
  unquoted.append(line.substr(i, comma - i));
  i = comma;
  return unquoted;
}

// The first three fields of a line, each trimmed, and how many fields the line has; fields past
// the third are only looked at for being empty, so a line of a million commas costs one pass.
struct SplitLine {
  std::string_view fields[3];
  size_t count = 0;
  bool filled_extra = false;  // a field past the third holds something
};

SplitLine Split(std::string_view line, std::string (&quoted)[3]) {
  SplitLine out;
  std::string spare;
  size_t i = 0;
  while (true) {
    std::string& buffer = out.count < 3 ? quoted[out.count] : spare;
    const std::string_view field = Trim(ReadField(line, i, buffer));
    if (out.count < 3) {
      out.fields[out.count] = field;
    } else if (!field.empty()) {
      out.filled_extra = true;
    }
    ++out.count;
    if (i >= line.size()) break;
    ++i;  // the comma
  }
  return out;
}

}  // namespace

std::vector<CountryRecord> ReadCountryRecords(std::string_view text) {
  std::vector<CountryRecord> records;
  std::string quoted[3];  // the text of quoted fields, reused from line to line
  bool heading_seen = false;
  while (!text.empty()) {
    // CR LF leaves an empty line behind its CR, skipped as blank.
    size_t end = 0;
    while (end < text.size() && text[end] != '\n' && text[end] != '\r') ++end;
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (Trim(line).empty()) continue;

    const SplitLine split = Split(line, quoted);
    const auto& [name, code, phone] = split.fields;
    const bool is_record =
        split.count >= 3 && !split.filled_extra && !name.empty() && !code.empty();
    if (!heading_seen) {
      heading_seen = true;
      if (!is_record || !IsCountryCode(code) || !IsPhoneCode(phone)) continue;
    }
    if (is_record) {
      records.push_back({std::string(name), std::string(code), std::string(phone)});
    }
  }
  return records;
}

}  // namespace nvrandom
