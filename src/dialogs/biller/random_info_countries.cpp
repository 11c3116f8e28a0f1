// frmRandomInfo: the country list, from the enciphered country file of the installation.
#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/biller/country_file_reader.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_texts.h"
#include "forms/control.h"
#include "platform/country_file_source.h"
#include "platform/message_box.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

// CountryListPartial names the codes offered when not every country is: separated by commas,
// semicolons or blanks ("US,GB", "US; GB").
bool Listed(std::string_view partial, std::string_view code) {
  while (!partial.empty()) {
    const size_t end = partial.find_first_of(",; ");
    const std::string_view entry = partial.substr(0, end);
    if (!entry.empty() && entry == code) return true;
    if (end == std::string_view::npos) break;
    partial.remove_prefix(end + 1);
  }
  return false;
}

bool HasCode(const std::vector<CountryRecord>& rows, std::string_view code) {
  for (const CountryRecord& row : rows) {
    if (row.code == code) return true;
  }
  return false;
}

}  // namespace

void frmRandomInfo::LoadCountries() {
  Trace("LoadCountries");
  const ComponentStore& s = ctx_.store;
  forms::Control& list = Ctl("ran_payee_country");
  // Rows are name, code and telephone code; the code is what the box shows and the record keeps.
  list.SetBoundColumn(1);
  list.SetDisplayColumn(1);

  const std::string file = s.DLLPath + random_info_text::kCountryFileName;
  std::optional<std::string> text;
  if (Random(ctx_).Fileexists(file) != kFalse) text = ctx_.services.country_file->Decipher(file);
  // A file that cannot be deciphered (damaged, tampered, of another key) counts as missing.
  if (!text) Message(random_info_text::kCountryFileMissing, msgbox::kOKOnly);

  std::vector<CountryRecord> offered;
  if (text) {
    const bool all = validation::TrimBlanks(s.gstrCountryListAll) == "Y";
    for (CountryRecord& record : ReadCountryRecords(*text)) {
      if (all || Listed(s.gstrCountryListPartial, record.code))
        offered.push_back(std::move(record));
    }
  }
  // Canada and the United States are always offered, at the head of the list when the file did
  // not offer them.
  std::vector<CountryRecord> rows;
  if (!HasCode(offered, "CA")) rows.push_back({"Canada", "CA", "1"});
  if (!HasCode(offered, "US")) rows.push_back({"United States", "US", "1"});
  for (CountryRecord& record : offered) rows.push_back(std::move(record));
  std::vector<std::vector<std::string>> filled;
  filled.reserve(rows.size());
  for (CountryRecord& row : rows) {
    filled.push_back({std::move(row.name), std::move(row.code), std::move(row.phone)});
  }
  list.SetRows(std::move(filled));
}

}  // namespace nvrandom
