#include "dialogs/biller/country_file_reader.h"

#include <algorithm>

namespace nvrandom {

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view Trim(std::string_view text) {
  const size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
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

// The first three fields of a line, each trimmed, and how many fields the line has; fields past
// the third are only looked at for being empty, so a line of a million commas costs one pass.
struct SplitLine {
  std::string fields[3];
  size_t count = 0;
  bool filled_extra = false;  // a field past the third holds something
};

SplitLine Split(std::string_view line) {
  constexpr size_t kKeep = 3;
  SplitLine out;
  size_t i = 0;
  while (true) {
    std::string field;
    const size_t start = i;
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
    if (i < line.size() && line[i] == '"') {
      // Quoted: up to the closing quote, "" standing for one quote; what follows the closing
      // quote up to the comma is kept too.
      ++i;
      while (i < line.size()) {
        if (line[i] != '"') {
          field += line[i++];
        } else if (i + 1 < line.size() && line[i + 1] == '"') {
          field += '"';
          i += 2;
        } else {
          ++i;
          break;
        }
      }
      const size_t comma = std::min(line.find(',', i), line.size());
      field.append(line.substr(i, comma - i));
      i = comma;
    } else {
      const size_t comma = std::min(line.find(',', i), line.size());
      field.assign(line.substr(start, comma - start));
      i = comma;
    }
    if (out.count < kKeep) {
      out.fields[out.count] = std::string(Trim(field));
    } else if (!Trim(field).empty()) {
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
  bool heading_seen = false;
  while (!text.empty()) {
    const size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (Trim(line).empty()) continue;

    SplitLine split = Split(line);
    auto& [name, code, phone] = split.fields;
    const bool is_record =
        split.count >= 3 && !split.filled_extra && !name.empty() && !code.empty();
    if (!heading_seen) {
      heading_seen = true;
      if (!is_record || !IsCountryCode(code) || !IsPhoneCode(phone)) continue;
    }
    if (is_record) records.push_back({std::move(name), std::move(code), std::move(phone)});
  }
  return records;
}

}  // namespace nvrandom
