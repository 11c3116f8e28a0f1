#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nvrandom {

// One country of the country file: the "Country", "Code" and "Phone" columns of the list.
struct CountryRecord {
  std::string name;
  std::string code;
  std::string phone;
  bool operator==(const CountryRecord&) const = default;
};

// The countries of a deciphered country file, in file order.
//
// A record is a line (ended by LF, CR LF or a lone CR); blank lines are skipped. Fields are
// separated by commas and trimmed of spaces and tabs; a field may be double-quoted to hold commas
// (`""` inside quotes is one quote). A quote left open ends with its line, so one bad line never
// swallows the next.
//
// The first non-blank line is the heading record and is set aside, unless it is itself a country
// (two ASCII letters as code, digits as phone): a file without a heading loses no country.
// A record is kept when it has three fields (empty ones after them, as spreadsheets write, are
// ignored) and a non-empty name and code. Any other line is skipped, never guessed at: a record
// of two fields has no phone to offer, and an unquoted comma in a name would shift the code and
// phone.
//
// Linear in the size of the text, whatever it holds.
std::vector<CountryRecord> ReadCountryRecords(std::string_view text);

}  // namespace nvrandom
