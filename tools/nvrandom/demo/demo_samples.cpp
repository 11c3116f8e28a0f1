#include "demo_samples.h"

#include <algorithm>
#include <map>
#include <sstream>

#include "api/cls_random.h"
#include "scenario_line.h"
#include "scenario_values.h"

namespace nvrandom::demo {

namespace {

// What the host sets, one property a line, written as the scenario files' `let` values.
constexpr std::string_view kHost = R"(DLLPath "$INSTALL"
Provpostalstr "ABTBCVMBRNBENLANSBNTXNUXONKONLONMONNONPPEUQCGQCHQCJSKSYTY"
IPCurrencyList [["CAD","Canadian Dollar"],["USD","US Dollar"],["EUR","Euro"],["GBP","British Pound"]]
IPBillerCurrencies ["USD","EUR","GBP"]
CurrencyCodeFromMain "CAD"
DescCurrencyCodeFromMain "Canadian Dollar"
UserBankAcctPermission -1
Add -1
)";

const std::map<std::string_view, std::string_view, std::less<>>& Samples() {
  static const std::map<std::string_view, std::string_view, std::less<>> samples = {
      {"business", R"(PayeeIndBusnTag "2"
PayeeIndBussFlg " "
PayeeName "NORTHERN HYDRO LTD"
PayeeBillAccount "4417 1234 5678"
PayeeStreet "100 KING ST W"
PayeeCity "TORONTO"
PayeeProv "ON"
PayeeCountry "CA"
PayeePostal "M5X 1A9"
PayeePhoneArea "416"
PayeePhoneNumber "5550100"
PayeeEmail "billing@example.com"
PayeeBusinessNum "123456782"
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
  };
  return samples;
}

void LetLines(ClsRandom& biller, std::string_view lines, const std::string& install) {
  std::istringstream in{std::string(lines)};
  for (std::string line; std::getline(in, line);) {
    const auto words = scenario::SplitWords(line);
    if (words.size() != 2) continue;
    biller.Let(words[0].text, scenario::HostValue(words[1], install, install));
  }
}

}  // namespace

const std::vector<std::string_view>& SampleNames() {
  static const std::vector<std::string_view> names = {"business", "individual", "us",
                                                      "international"};
  return names;
}

bool IsSample(std::string_view name) {
  return Samples().contains(name);
}

void LoadSample(ClsRandom& biller, std::string_view name, const std::string& install) {
  LetLines(biller, kHost, install);
  LetLines(biller, Samples().find(name)->second, install);
}

}  // namespace nvrandom::demo
