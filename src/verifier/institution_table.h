#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "verifier/institutions.h"

namespace nvrandom::verifier {

// The institution table as read from its data file (data/institutions.csv): rows ordered by
// number, and what was wrong with the rows that were left out. The rows point into `csv`, which
// must outlive them.
struct InstitutionTable {
  std::vector<Institution> rows;
  std::vector<std::string> errors;  // "line 7: ..."
};

// Reads the table. Every row names the sources of its facts by key; `sources_csv` is the list of
// those sources (data/institution_sources.csv), whose first column is the key. The rows' texts
// are views into `csv`, which must outlive them.
InstitutionTable ReadInstitutionTable(std::string_view csv, std::string_view sources_csv);

// The fields of one line of comma-separated values, as views into it. A field in double quotes
// may hold commas but no quote of its own. False when a line is not of that form.
bool SplitCsvLine(std::string_view line, std::vector<std::string_view>& fields);

}  // namespace nvrandom::verifier
