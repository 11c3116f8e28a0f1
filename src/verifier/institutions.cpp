#include "verifier/institutions.h"

#include <algorithm>

#include "verifier/institution_data.h"
#include "verifier/institution_table.h"

namespace nvrandom::verifier {

namespace {

// Read once; the compiled-in text lives as long as the program. Rows the reader refuses are left
// out (the table's unit test keeps the file free of them).
const std::vector<Institution>& Table() {
  static const std::vector<Institution> rows =
      ReadInstitutionTable(kInstitutionsCsv, kInstitutionSourcesCsv).rows;
  return rows;
}

}  // namespace

std::span<const Institution> KnownInstitutions() {
  return Table();
}

const Institution* FindInstitution(std::string_view number) {
  const std::vector<Institution>& rows = Table();
  const auto it = std::lower_bound(
      rows.begin(), rows.end(), number,
      [](const Institution& row, std::string_view key) { return row.number < key; });
  return (it != rows.end() && it->number == number) ? &*it : nullptr;
}

}  // namespace nvrandom::verifier
