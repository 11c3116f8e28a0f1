#include "verifier/institution_table.h"

#include <algorithm>
#include <charconv>

namespace nvrandom::verifier {

namespace {

constexpr std::string_view kHeading = "number,name,accounts,sources,read,notes";
constexpr std::string_view kBusinessNumberAccounts = "business-number";
// An account is at most as long as the account check pads it.
constexpr int kLongestAccount = 30;

bool AllDigits(std::string_view text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Messages are shown by hosts that take them as ANSI text: names stay within printable ASCII.
bool PrintableAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

// Calls `each` with every line of `text`, a carriage return before the line feed dropped.
template <typename Each>
void ForEachLine(std::string_view text, Each each) {
  size_t number = 0;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    each(++number, line);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
}

// "7", "7|12", "7-12", "5|7-12": the lengths an account may have.
bool ReadLengths(std::string_view text, LengthSet& set) {
  set = 0;
  while (true) {
    const size_t bar = text.find('|');
    const std::string_view item = text.substr(0, bar);
    const size_t dash = item.find('-');
    const std::string_view low = item.substr(0, dash);
    const std::string_view high = dash == std::string_view::npos ? low : item.substr(dash + 1);
    int from = 0;
    int to = 0;
    if (!AllDigits(low) || !AllDigits(high) || low.size() > 2 || high.size() > 2) return false;
    std::from_chars(low.data(), low.data() + low.size(), from);
    std::from_chars(high.data(), high.data() + high.size(), to);
    if (from < 1 || to > kLongestAccount || from > to) return false;
    set |= LengthRange(from, to);
    if (bar == std::string_view::npos) return true;
    text.remove_prefix(bar + 1);
  }
}

bool IsDate(std::string_view text) {
  return text.size() == 10 && text[4] == '-' && text[7] == '-' && AllDigits(text.substr(0, 4)) &&
         AllDigits(text.substr(5, 2)) && AllDigits(text.substr(8, 2));
}

std::vector<std::string_view> SourceKeys(std::string_view sources_csv) {
  std::vector<std::string_view> keys;
  std::vector<std::string_view> fields;
  ForEachLine(sources_csv, [&](size_t number, std::string_view line) {
    if (number == 1 || line.empty() || !SplitCsvLine(line, fields)) return;
    if (!fields[0].empty()) keys.push_back(fields[0]);
  });
  return keys;
}

// Space-separated keys, each one of `known`; at least one.
std::string UnknownSource(std::string_view text, const std::vector<std::string_view>& known) {
  if (text.find_first_not_of(' ') == std::string_view::npos) return "no source";
  while (!text.empty()) {
    const size_t space = text.find(' ');
    const std::string_view key = text.substr(0, space);
    if (!key.empty() && std::find(known.begin(), known.end(), key) == known.end()) {
      return "unknown source " + std::string(key);
    }
    if (space == std::string_view::npos) break;
    text.remove_prefix(space + 1);
  }
  return {};
}

// Why the row is left out, or empty when `row` was filled.
std::string ReadRow(const std::vector<std::string_view>& fields,
                    const std::vector<std::string_view>& known_sources, Institution& row) {
  if (fields.size() != 6) return "6 fields expected, " + std::to_string(fields.size()) + " found";
  const std::string_view number = fields[0];
  const std::string_view name = fields[1];
  const std::string_view accounts = fields[2];
  row = Institution{number, name, AccountRule::kDigits, 0};
  if (accounts == kBusinessNumberAccounts) {
    row.rule = AccountRule::kBusinessProgram;
  } else if (!ReadLengths(accounts, row.account_lengths)) {
    return "account lengths \"" + std::string(accounts) + "\" not understood";
  }
  const size_t digits = row.rule == AccountRule::kDigits ? 3 : 6;
  if (number.size() != digits || !AllDigits(number)) {
    return "the number must have " + std::to_string(digits) + " digits";
  }
  if (name.empty() || !PrintableAscii(name)) return "the name must be printable ASCII";
  std::string unknown = UnknownSource(fields[3], known_sources);
  if (!unknown.empty()) return unknown;
  if (!IsDate(fields[4])) return "the date read must be written YYYY-MM-DD";
  return {};
}

}  // namespace

bool SplitCsvLine(std::string_view line, std::vector<std::string_view>& fields) {
  fields.clear();
  size_t at = 0;
  while (true) {
    if (at < line.size() && line[at] == '"') {
      const size_t close = line.find('"', at + 1);
      if (close == std::string_view::npos) return false;
      fields.push_back(line.substr(at + 1, close - at - 1));
      at = close + 1;
      if (at == line.size()) return true;
      if (line[at] != ',') return false;
    } else {
      const size_t comma = line.find(',', at);
      const std::string_view field = line.substr(at, comma - at);
      if (field.find('"') != std::string_view::npos) return false;
      fields.push_back(field);
      if (comma == std::string_view::npos) return true;
      at = comma;
    }
    ++at;  // past the comma
  }
}

InstitutionTable ReadInstitutionTable(std::string_view csv, std::string_view sources_csv) {
  InstitutionTable table;
  const std::vector<std::string_view> known_sources = SourceKeys(sources_csv);
  std::vector<std::string_view> fields;
  ForEachLine(csv, [&](size_t number, std::string_view line) {
    const std::string where = "line " + std::to_string(number) + ": ";
    if (number == 1) {
      if (line != kHeading)
        table.errors.push_back(where + "the heading must be " + std::string(kHeading));
      return;
    }
    if (line.empty()) return;
    if (!SplitCsvLine(line, fields)) {
      table.errors.push_back(where + "unbalanced quotes");
      return;
    }
    Institution row{};
    std::string error = ReadRow(fields, known_sources, row);
    if (error.empty() && !table.rows.empty() && !(table.rows.back().number < row.number)) {
      error = "numbers must rise from row to row";
    }
    if (error.empty()) {
      table.rows.push_back(row);
    } else {
      table.errors.push_back(where + error);
    }
  });
  return table;
}

}  // namespace nvrandom::verifier
