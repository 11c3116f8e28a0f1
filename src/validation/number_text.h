#pragma once

#include <string>
#include <string_view>

namespace nvrandom::validation {

// The general number test the business-number check applies: an optional sign ("+" or "-",
// in front or at the end, not both), digits with at most one decimal point among them, and at
// least one digit. Blanks, letters (so no exponent and no "&H" prefix), thousands separators and
// currency signs do not count as numeric: the business-number path relies on a numeric text
// holding no blank.
bool IsGeneralNumber(std::string_view text);

// The program version as the account verifier expects it: every "." removed, then the pattern
// "0000" applied as the platform's Format applies it to numeric text. Numeric here means an
// optional leading sign, digits and optional surrounding blanks; the digits are written with at
// least four of them ("7.05" -> "0705", "12345" -> "12345", "-5" -> "-0005", "0" -> "0000").
// Text that is not numeric (empty, letters, several signs) is passed on unchanged, as Format
// does with a text it cannot read as a number.
std::string FormatProgramVersion(std::string_view version);

}  // namespace nvrandom::validation
