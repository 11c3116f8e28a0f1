#include "verifier/bank_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/account_verifier.h"
#include "verifier/builtin_bank_check_library.h"
#include "verifier/institution_data.h"
#include "verifier/institution_table.h"

namespace nvrandom::verifier {
namespace {

using namespace check_result;

// The examples the public lists behind data/institutions.csv publish (keys as in
// data/institution_sources.csv), and the forms in which the component passes a bank id, with
// what the built-in rules answer and part of the message ("" when there is none). Where a source
// accepts something, so do the rules; a well-formed account is only ever "to be confirmed".
// Others are in checks_bank.scn.
TEST(BankRules, AnswerAsThePublishedExamplesAndSayWhy) {
  struct Row {
    std::string bank_id, transit, account;
    int16_t result;
    std::string message_part;
  };
  const Row rows[] = {
      // WT: Scotiabank takes 7 or 12 digits, and the refusal names it
      {"002", "12345", "1234567", kToBeConfirmed, ""},
      {"002", "12345", "123456789123", kToBeConfirmed, ""},
      {"002", "12345", "12345678", kRefused, "Bank of Nova Scotia has 7 or 12 digits"},
      // WT: a transit has 5 digits, not all zeros
      {"001", "123456", "1234567", kRefused, "5 digits"},
      {"003", "00000", "1234567", kRefused, "00000"},
      // WT: Central 1 (828) at a 10XXX transit; CS names credit unions of 828 at transits
      // outside 10XXX, so any five digits pass (checks_bank.scn)
      {"828", "10345", "1234567", kToBeConfirmed, ""},
      {"828", "10", "1234567", kRefused, "transit"},
      // WS: a Bank of Montreal example wrong in both parts; 828 takes 5 to 12 digits
      {"001", "123", "123456789", kRefused, "transit"},
      {"828", "10345", "1234", kRefused, "Central 1"},
      // WS: HSBC 9, Tangerine 10, Desjardins 7 (its verification digit included)
      {"016", "12345", "123456789", kToBeConfirmed, ""},
      {"614", "12345", "1234567", kRefused, "Tangerine Bank has 10 digits"},
      {"815", "12345", "1234567", kToBeConfirmed, ""},
      {"815", "30000", "123456", kRefused, "Caisses Desjardins du Quebec has 7 digits"},
      // WS gives CIBC 7 digits; its second brand (CS: Simplii, 30800) has the general 7 to 12
      // (checks_bank.scn); 13 digits are too many for anyone
      {"010", "12345", "1234567", kToBeConfirmed, ""},
      {"123", "12345", "1234567890123", kRefused, "An account number has 7 to 12"},
      // GT: institution 0036 (the electronic form, with a leading zero) at transit 00063; GC: 7
      // to 12 digits for any institution
      {"0036", "00063", "0123456", kToBeConfirmed, ""},
      {"0036", "00063", "01234", kRefused, ""},
      // padded to six by the account check; the electronic form with a leading zero
      {"   004", "12345", "1234567", kToBeConfirmed, ""},
      {" 0003 ", " 12345 ", " 1234567 ", kToBeConfirmed, ""},
      // account: digits only, not all zeros
      {"003", "12345", "123456A", kRefused, "digits only"},
      {"003", "12345", "0000000", kRefused, "all zeros"},
      // a malformed bank id is refused before anything else
      {"123456", "12345", "1234567", kRefused, "3 digits"},
      // the registry has no branches: the transit is not looked at
      {std::string(kBusinessNumberBankId), "", "046454286RT0001", kValid, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.bank_id + "|" + row.transit + "|" + row.account);
    const CheckOutcome outcome = CheckBankAccount(row.bank_id, row.transit, row.account);
    EXPECT_EQ(outcome.result, row.result) << outcome.message;
    EXPECT_NE(outcome.message.find(row.message_part), std::string::npos) << outcome.message;
  }
}

// The registry's program account: a padded business number whose check digit holds (all zeros
// pass mod 10 but are no number), a known program, a reference other than 0000, the exact shape.
TEST(BankRules, BusinessNumberProgramAccount) {
  const std::pair<const char*, int16_t> rows[] = {
      {"046454286RT0001               ", kValid},
      {"046454286RP0002", kValid},
      {"000000000RT0001", kRefused},
      {"046454286RX0001", kRefused},
      {"046454286RT0000", kRefused},
      {"046454286RT001", kRefused},
      {"046454286rt0001", kRefused},
      {"04645428ART0001", kRefused},
  };
  for (const auto& [account, result] : rows) {
    EXPECT_EQ(CheckAccount(kBusinessNumberBankId, account).result, result) << account;
  }
}

// The check digit itself is shown through VerifyBusinessNumber in checks_bank.scn.
TEST(Luhn, RefusesWhatIsNoNumber) {
  EXPECT_FALSE(LuhnValid(""));
  EXPECT_FALSE(LuhnValid("0464542x6"));
  EXPECT_TRUE(LuhnValid(std::string(1 << 20, '0')));
}

// The message goes into the caller's fixed-length buffer, cut to its room; a good account leaves
// the buffer as it was. (Whole messages and their lengths: biller_accept_address_bank.scn.)
TEST(BankCheckLibrary, WritesItsMessageIntoTheCallersBuffer) {
  BuiltinBankCheckLibrary library;
  std::string small(5, ' ');
  int32_t length = -1;
  EXPECT_EQ(library.Check_bank_account2("003", "12345", "12", small, length, false), kRefused);
  EXPECT_EQ(length, 5);
  EXPECT_EQ(small, CheckBankAccount("003", "12345", "12").message.substr(0, 5));
  std::string clean(256, ' ');
  EXPECT_EQ(library.Check_bank_account2("003", "12345", "1234567", clean, length, false),
            kToBeConfirmed);
  EXPECT_EQ(length, 0);
  EXPECT_EQ(clean, std::string(256, ' '));
}

TEST(InstitutionTable, TheCompiledInFileReadsWithoutErrors) {
  const InstitutionTable table = ReadInstitutionTable(kInstitutionsCsv, kInstitutionSourcesCsv);
  EXPECT_EQ(table.errors, std::vector<std::string>{});
  // What the public lists name together, and the business-number registry.
  EXPECT_GE(table.rows.size(), 120u);
  ASSERT_EQ(KnownInstitutions().size(), table.rows.size());
  for (const Institution& row : KnownInstitutions()) {
    EXPECT_EQ(FindInstitution(row.number), &row) << row.number;
  }
  EXPECT_EQ(FindInstitution("005"), nullptr);
  EXPECT_EQ(FindInstitution(""), nullptr);
  EXPECT_EQ(FindInstitution("0010"), nullptr);
}

}  // namespace
}  // namespace nvrandom::verifier
