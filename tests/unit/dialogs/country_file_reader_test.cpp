#include "dialogs/biller/country_file_reader.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace nvrandom {

void PrintTo(const CountryRecord& r, std::ostream* os) {
  *os << '{' << r.name << '|' << r.code << '|' << r.phone << '}';
}

namespace {

using namespace std::string_literals;
using Records = std::vector<CountryRecord>;

// The heading, blank lines, line ends, quoting and malformed records, as hosts' files have them.
// (A file without a heading, and a record of two fields: biller_bad_input.scn.)
TEST(ReadCountryRecords, Reads) {
  struct Row {
    const char* why;
    std::string text;
    Records expected;
  };
  const Row rows[] = {
      {"heading set aside, fields trimmed, CR LF and a last line without end",
       "Country,Code,Phone\r\n  France , FR ,\t33\r\nJapan,JP,81",
       {{"France", "FR", "33"}, {"Japan", "JP", "81"}}},
      {"a one-value heading, blank lines anywhere, lines ended by CR alone",
       "\n\nCountry\n\n   \nPeru,PE,51\rChad,TD,235\r\r",
       {{"Peru", "PE", "51"}, {"Chad", "TD", "235"}}},
      {"quoted comma, doubled quote, spaces around the quotes",
       "H\n \"Korea, Republic of\" ,KR,82\n\"Cote \"\"Ivory\"\"\",CI,225\n",
       {{"Korea, Republic of", "KR", "82"}, {"Cote \"Ivory\"", "CI", "225"}}},
      {"an open quote ends with its line and does not swallow the next",
       "H\n\"Nowhere,XX,0\nPeru,PE,51\n",
       {{"Peru", "PE", "51"}}},
      {"two fields, four fields, empty name or code skipped; trailing empty "
       "fields and an empty phone kept",
       "H\nChad,TD\nBosnia, and more,BA,387\n,ZZ,1\nNone,,1\n"
       "Peru,PE,51,,\nBouvet Island,BV,\n",
       {{"Peru", "PE", "51"}, {"Bouvet Island", "BV", ""}}},
      {"bytes that are not text pass through as they are",
       "H\n\xff\x01"s + '\0' + "x,Q\x80,\x7f\n",
       {{"\xff\x01"s + '\0' + "x", "Q\x80", "\x7f"}}},
      {"nothing to read", "", {}},
  };
  for (const Row& row : rows) EXPECT_EQ(ReadCountryRecords(row.text), row.expected) << row.why;
}

// A 100,000-character record and a line of commas are read in one pass.
TEST(ReadCountryRecords, LongInputs) {
  const std::string long_name(100'000, 'n');
  EXPECT_EQ(ReadCountryRecords("H\n" + long_name + ",LN,1\n"), (Records{{long_name, "LN", "1"}}));
  EXPECT_TRUE(ReadCountryRecords("H\n" + std::string(1'000'000, ',')).empty());
}

}  // namespace
}  // namespace nvrandom
