#pragma once

#include <algorithm>
#include <array>
#include <string_view>

// The sample billers, one for each layout of the biller dialog, and the settings a host makes
// before it shows one: one property a line, its value written as a scenario file's `let` value
// ("$INSTALL" is the installation folder). `nvrandom demo` shows them; the tests' hosts of the
// Windows build drive the DLL's dialogs on them.
namespace nvrandom::demo {

inline constexpr std::string_view kHostSettings = R"(DLLPath "$INSTALL"
Provpostalstr "ABTBCVMBRNBENLANSBNTXNUXONKONLONMONNONPPEUQCGQCHQCJSKSYTY"
IPCurrencyList [["CAD","Canadian Dollar"],["USD","US Dollar"],["EUR","Euro"],["GBP","British Pound"]]
CurrencyCodeFromMain "CAD"
DescCurrencyCodeFromMain "Canadian Dollar"
UserBankAcctPermission -1
Add -1
)";

struct SampleBiller {
  std::string_view name;
  std::string_view settings;
};

inline constexpr std::array<SampleBiller, 4> kSampleBillers = {{
    {"business", R"(PayeeIndBusnTag "2"
PayeeIndBussFlg " "
PayeeName "NORTHERN HYDRO LTD"
PayeeBillAccount "4417 1234 5678"
PayeeStreet "100 KING ST W"
PayeeCity "TORONTO"
PayeeProv "ON"
PayeeCountry "CA"
PayeePostal "M5X1A9"
PayeePhoneArea "416"
PayeePhoneNumber "5550100"
PayeeEmail "billing@example.com"
PayeeBusinessNum "046454286RT0001"
PayeeCurrency "CAD"
)"},
    {"individual", R"(PayeeIndBusnTag "1"
PayeeIndBussFlg "I"
PayeeName "JANE TREMBLAY"
PayeeBillAccount "RENT 12B"
PayeeEmail "jane.tremblay@example.com"
PayeeBankId "003"
PayeeBankTransit "00011"
PayeeBankAccount "1234567"
PayeeCurrency "CAD"
)"},
    {"us", R"(WhatKindOfBiller "U"
PayeeIndBusnTag "2"
PayeeIndBussFlg " "
PayeeName "LAKESHORE UTILITIES INC"
PayeeBillAccount "88-0042-17"
PayeeStreet "200 MAIN ST"
PayeeCity "BUFFALO"
PayeeProv "NY"
PayeeCountry "US"
PayeePostal "14202"
PayeePhoneArea "716"
PayeePhoneNumber "5550199"
PayeeEmail "ap@lakeshore.example.com"
PayeeBankTransit "021000021"
PayeeCurrency "USD"
)"},
    {"international", R"(InternationalPayment -1
IPBillerNameAcctExist 0
PayeeIndBusnTag "2"
PayeeIndBussFlg " "
PayeeName "RHEIN TEXTIL GMBH"
PayeeBillAccount "DE-2024-7781"
PayeeStreet "HAUPTSTRASSE 12"
PayeeCity "KOELN"
PayeeCountry "DE"
PayeePostal "50667"
PayeePhoneCountryCode "49"
PayeeFXPhoneNumber "2215550123"
PayeeEmail "rechnung@example.de"
PayeeCurrency "EUR"
PayeeFXBankName "RHEINBANK AG"
PayeeFXBankAddress "BANKPLATZ 1"
PayeeFXBankCity "KOELN"
PayeeFXBankCountry "DE"
PayeeFXBankAccount "DE89370400440532013000"
PayeeFXBankSwift "COBADEFFXXX"
)"},
}};

// Hands each setting line of the sample `name` to `let(line)`, the host's settings first, while
// `let` returns true. False when there is no such sample or `let` refused a line.
template <typename Let>
bool LetSample(std::string_view name, Let let) {
  const auto* sample = std::ranges::find(kSampleBillers, name, &SampleBiller::name);
  if (sample == kSampleBillers.end()) return false;
  for (std::string_view lines : {kHostSettings, sample->settings}) {
    while (!lines.empty()) {
      const size_t end = std::min(lines.find('\n'), lines.size());
      if (!let(lines.substr(0, end))) return false;
      lines.remove_prefix(std::min(end + 1, lines.size()));
    }
  }
  return true;
}

}  // namespace nvrandom::demo
