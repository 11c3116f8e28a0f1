// frmRandomInfo: the province and currency lists, and the keys both data lists accept.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_codes.h"
#include "dialogs/biller/random_info_texts.h"
#include "forms/control.h"
#include "forms/keystroke.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

using forms::keys::kBackspace;
using forms::keys::kEnter;

struct Currency {
  const char* code;
  const char* description;  // shown when the host offers the code without one, or not at all
};

// The common currencies, offered first and always, so that the Canadian and the US dollar can
// be chosen whatever the host's list holds.
constexpr std::array<Currency, 6> kCommonCurrencies = {{
    {"CAD", "Canadian Dollar"},
    {"USD", "US Dollar"},
    {"EUR", "Euro"},
    {"GBP", "Pound Sterling"},
    {"JPY", "Yen"},
    {"AUD", "Australian Dollar"},
}};

struct OfferedCurrency {
  std::string code;
  std::string description;
};

// The host's currencies: code and description per row of a two-column array (column 0 the code,
// column 1 the description; further columns are ignored). A one-column or one-dimensional array
// gives codes without descriptions. Blank codes, the separator's code and repeated codes are
// left out.
std::vector<OfferedCurrency> HostCurrencies(const StringArray& list) {
  std::vector<OfferedCurrency> offered;
  const auto add = [&](std::string_view code, std::string_view description) {
    const std::string trimmed(validation::TrimBlanks(code));
    if (trimmed.empty() || trimmed == random_info_text::kSeparatorCode) return;
    for (const OfferedCurrency& known : offered) {
      if (known.code == trimmed) return;
    }
    offered.push_back({trimmed, std::string(validation::TrimBlanks(description))});
  };
  if (list.dimensions() == 1) {
    for (int32_t i = list.LBound(1); i <= list.UBound(1); ++i) add(list.at(i), "");
  } else if (list.dimensions() == 2) {
    const int32_t code_column = list.LBound(1);
    const bool described = list.UBound(1) > code_column;
    for (int32_t row = list.LBound(2); row <= list.UBound(2); ++row) {
      add(list.at(code_column, row), described ? list.at(code_column + 1, row) : "");
    }
  }
  return offered;
}

// What both lists make of a key other than Enter: Backspace passes, a letter becomes its
// capital, anything else is discarded.
int16_t ListKey(int16_t key) {
  if (key == kBackspace) return key;
  if (key >= 'a' && key <= 'z') return static_cast<int16_t>(key - 'a' + 'A');
  if (key >= 'A' && key <= 'Z') return key;
  return 0;
}

}  // namespace

void frmRandomInfo::LoadProvinces() {
  Trace("LoadProvinces");
  forms::Control& list = Ctl("ran_payee_prov");
  if (USMode()) {
    std::vector<std::vector<std::string>> rows;
    rows.reserve(random_info_codes::kUSStates.size());
    for (const std::string_view state : random_info_codes::kUSStates) {
      rows.push_back({std::string(state)});
    }
    list.SetRows(std::move(rows));
    return;
  }
  // Units of three characters: a province code and one of its postal letters. A province with
  // several letters has consecutive units; a last unit too short to hold a code is no province.
  std::vector<std::string> codes;
  std::string_view rest = ctx_.store.Provpostalstr;
  while (!rest.empty()) {
    const std::string_view code = validation::LeftCharacters(rest, 2);
    if (validation::CharacterCount(code) == 2 && (codes.empty() || codes.back() != code)) {
      codes.emplace_back(code);
    }
    rest.remove_prefix(validation::LeftCharacters(rest, 3).size());
  }
  std::sort(codes.begin(), codes.end());
  std::vector<std::vector<std::string>> rows;
  rows.reserve(codes.size());
  for (std::string& code : codes) rows.push_back({std::move(code)});
  list.SetRows(std::move(rows));
}

void frmRandomInfo::LoadCurrencyCodes() {
  Trace("LoadCurrencyCodes");
  const ComponentStore& s = ctx_.store;
  std::vector<OfferedCurrency> host = HostCurrencies(s.IPCurrencyList);
  forms::Control& list = Ctl("cmbCurrencyCode");
  // Rows are description and code; the code is what the box shows and the record keeps.
  list.SetBoundColumn(1);
  list.SetDisplayColumn(1);
  std::vector<std::vector<std::string>> rows;
  rows.reserve(kCommonCurrencies.size() + 1 + host.size());
  for (const Currency& common : kCommonCurrencies) {
    std::string description = common.description;
    const auto offered = std::find_if(
        host.begin(), host.end(), [&](const OfferedCurrency& c) { return c.code == common.code; });
    if (offered != host.end()) {
      if (!offered->description.empty()) description = offered->description;
      host.erase(offered);
    } else if (s.CurrencyCodeFromMain == common.code && !s.DescCurrencyCodeFromMain.empty()) {
      description = s.DescCurrencyCodeFromMain;
    }
    rows.push_back({std::move(description), common.code});
  }
  rows.push_back({random_info_text::kSeparatorDescription, random_info_text::kSeparatorCode});
  // A currency offered without a description is described by its code.
  for (OfferedCurrency& other : host) {
    if (other.description.empty()) other.description = other.code;
    rows.push_back({std::move(other.description), std::move(other.code)});
  }
  list.SetRows(std::move(rows));
}

void frmRandomInfo::ran_payee_country_GotFocus() {
  Trace("ran_payee_country_GotFocus");
  RaiseCurrentFieldTop(Ctl("ran_payee_country"));
}

void frmRandomInfo::ran_payee_country_KeyPress(int16_t& KeyAscii) {
  Trace("ran_payee_country_KeyPress");
  if (KeyAscii == kEnter) {
    FocusIfUsable("ran_payee_postal");
    return;
  }
  KeyAscii = ListKey(KeyAscii);
}

void frmRandomInfo::cmbCurrencyCode_KeyPress(int16_t& KeyAscii) {
  Trace("cmbCurrencyCode_KeyPress");
  if (KeyAscii == kEnter) {
    if (!FocusIfUsable("ran_Inter_payee_phone")) FocusIfUsable("ran_payee_ph_area");
    return;
  }
  KeyAscii = ListKey(KeyAscii);
}

}  // namespace nvrandom
