#include "verifier/bank_rules.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/account_verifier.h"
#include "verifier/builtin_bank_check_library.h"

namespace nvrandom::verifier {
namespace {

using namespace check_result;

// The examples the public lists behind data/institutions.csv publish (keys as in
// data/institution_sources.csv), with what the built-in rules answer. Where a source accepts
// something, so do the rules (the table widens to what any source accepts); a well-formed account
// is only ever "to be confirmed" here, since nobody asks the institution.
struct ReferenceRow {
  std::string source;
  std::string bank_id;
  std::string transit;
  std::string account;
  int16_t result;
};

class ReferenceVectorTest : public ::testing::TestWithParam<ReferenceRow> {};

TEST_P(ReferenceVectorTest, AnswersAsThePublishedExample) {
  const ReferenceRow& row = GetParam();
  const CheckOutcome outcome = CheckBankAccount(row.bank_id, row.transit, row.account);
  EXPECT_EQ(outcome.result, row.result) << row.source << ": " << outcome.message;
  // Everything but a yes explains itself.
  EXPECT_EQ(outcome.message.empty(), outcome.result != kRefused) << outcome.message;
}

INSTANTIATE_TEST_SUITE_P(
    Published, ReferenceVectorTest,
    ::testing::Values(
        // WT: Scotiabank takes 7 or 12 digits
        ReferenceRow{"WT", "002", "12345", "1234567", kToBeConfirmed},
        ReferenceRow{"WT", "002", "12345", "123456789123", kToBeConfirmed},
        ReferenceRow{"WT", "002", "12345", "12345678", kRefused},
        // WT: Bank of Montreal takes 7
        ReferenceRow{"WT", "001", "12345", "1234567", kToBeConfirmed},
        ReferenceRow{"WT", "001", "12345", "12345678", kRefused},
        // WT: a transit has 5 digits, whoever the institution
        ReferenceRow{"WT", "001", "123", "1234567", kRefused},
        ReferenceRow{"WT", "001", "123456", "1234567", kRefused},
        ReferenceRow{"WT", "789", "12345", "1234567", kToBeConfirmed},
        // WT: Central 1 (828) at a 10XXX transit; WT refuses 12345, but CS names credit unions
        // of 828 at transits outside 10XXX, so any five digits pass
        ReferenceRow{"WT", "828", "10345", "1234567", kToBeConfirmed},
        ReferenceRow{"WT", "828", "10", "1234567", kRefused},
        ReferenceRow{"WT CS", "828", "12345", "1234567", kToBeConfirmed},
        // README of WS: Royal Bank, and a Bank of Montreal example wrong in both parts
        ReferenceRow{"WS", "003", "12345", "1234567", kToBeConfirmed},
        ReferenceRow{"WS", "001", "123", "123456789", kRefused},
        // WS: 828 takes 5 to 12 digits, wider than the general rule
        ReferenceRow{"WS", "828", "10345", "12345", kToBeConfirmed},
        ReferenceRow{"WS", "828", "10345", "1234", kRefused},
        // WS: HSBC 9, Tangerine 10, Desjardins 7 (its verification digit included)
        ReferenceRow{"WS", "016", "12345", "123456789", kToBeConfirmed},
        ReferenceRow{"WS", "614", "12345", "1234567890", kToBeConfirmed},
        ReferenceRow{"WS", "815", "12345", "1234567", kToBeConfirmed},
        ReferenceRow{"WS", "815", "12345", "12345678", kRefused},
        // WS gives CIBC 7 digits; CS names its second brand (Simplii Financial, 30800), known
        // only by the general rule: 7 to 12
        ReferenceRow{"WS", "010", "12345", "1234567", kToBeConfirmed},
        ReferenceRow{"CS GC", "010", "30800", "123456789012", kToBeConfirmed},
        ReferenceRow{"GC", "010", "30800", "1234567890123", kRefused},
        // GT: institution 0036 (the electronic form, with a leading zero) at transit 00063
        ReferenceRow{"GT", "0036", "00063", "0123456", kToBeConfirmed},
        ReferenceRow{"GT", "0036", "00063", "01234", kRefused},
        // GC: 7 to 12 digits for any institution
        ReferenceRow{"GC", "036", "00063", "123456", kRefused},
        ReferenceRow{"GC", "036", "00063", "1234567890123", kRefused}));

struct BankIdRow {
  std::string source;
  std::string bank_id;
  int16_t result;
  std::string name;  // of the institution found; empty when none is
};

class BankIdTest : public ::testing::TestWithParam<BankIdRow> {};

TEST_P(BankIdTest, KnowsTheInstitutionsOfThePublicLists) {
  const BankIdRow& row = GetParam();
  const CheckOutcome outcome = CheckBankId(row.bank_id);
  EXPECT_EQ(outcome.result, row.result) << row.source << ": " << outcome.message;
  EXPECT_EQ(outcome.message.empty(), outcome.result == kValid) << outcome.message;
  EXPECT_EQ(BuiltinBankCheckLibrary().Check_bank_id(row.bank_id), row.result);
  const Institution* found = ReadBankId(row.bank_id).institution;
  EXPECT_EQ(found != nullptr ? std::string(found->name) : "", row.name);
}

INSTANTIATE_TEST_SUITE_P(
    Published, BankIdTest,
    ::testing::Values(BankIdRow{"CT", "001", kValid, "Bank of Montreal"},
                      BankIdRow{"CT", "010", kValid, "Canadian Imperial Bank of Commerce"},
                      BankIdRow{"CT", "1234", kRefused, ""}, BankIdRow{"CT", "abc", kRefused, ""},
                      BankIdRow{"CT", "", kRefused, ""},
                      // CS, SM: 260 is Citibank Canada, 328 Citibank, N.A.
                      BankIdRow{"CS SM", "260", kValid, "Citibank Canada"},
                      BankIdRow{"CS SM", "328", kValid, "Citibank, N.A."},
                      // in CS and SM, not in the earlier table
                      BankIdRow{"CS SM", "326", kValid, "President's Choice Financial"},
                      BankIdRow{"CS SM", "509", kValid, "The Canada Trust Company"},
                      BankIdRow{"SM", "621", kValid, "Peoples Trust Company"},
                      BankIdRow{"CS", "370", kValid, "Wealth One Bank of Canada"},
                      // WT: 789 is nobody's number; GT's 0036 neither: well-formed, so doubtful
                      BankIdRow{"WT", "789", kDoubtful, ""},
                      BankIdRow{"GT", "0036", kDoubtful, ""}));

// The forms in which the component passes a bank id, and what the rules add to the lists.
struct OwnRow {
  std::string bank_id;
  std::string transit;
  std::string account;
  int16_t result;
  std::string message_part;  // part of the message; empty when there is none
};

class OwnRuleTest : public ::testing::TestWithParam<OwnRow> {};

TEST_P(OwnRuleTest, ReadsTheComponentsFormsAndSaysWhy) {
  const OwnRow& row = GetParam();
  const CheckOutcome outcome = CheckBankAccount(row.bank_id, row.transit, row.account);
  EXPECT_EQ(outcome.result, row.result);
  if (row.message_part.empty()) {
    EXPECT_EQ(outcome.message, "");
  } else {
    EXPECT_NE(outcome.message.find(row.message_part), std::string::npos) << outcome.message;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OwnRuleTest,
    ::testing::Values(
        // the refusal names the institution and its lengths
        OwnRow{"002", "12345", "12345678", kRefused, "Bank of Nova Scotia has 7 or 12 digits"},
        OwnRow{"815", "30000", "123456", kRefused, "Caisses Desjardins du Quebec has 7 digits"},
        OwnRow{"123", "12345", "1234567890123", kRefused, "An account number has 7 to 12"},
        // padded to six by the account check; the electronic form with a leading zero
        OwnRow{"   004", "12345", "1234567", kToBeConfirmed, ""},
        OwnRow{" 0003 ", " 12345 ", " 1234567 ", kToBeConfirmed, ""},
        // transit: five digits, not all zeros
        OwnRow{"003", "1234A", "1234567", kRefused, "5 digits"},
        OwnRow{"003", "00000", "1234567", kRefused, "00000"},
        OwnRow{"003", "", "1234567", kRefused, "transit"},
        // account: digits only, not all zeros
        OwnRow{"003", "12345", "123456A", kRefused, "digits only"},
        OwnRow{"003", "12345", "0000000", kRefused, "all zeros"},
        // a malformed bank id is refused before anything else
        OwnRow{"3", "12345", "1234567", kRefused, "3 digits"},
        OwnRow{"123456", "12345", "1234567", kRefused, "3 digits"},
        OwnRow{"0 01", "12345", "1234567", kRefused, "digits only"},
        // the registry has no branches: the transit is not looked at
        OwnRow{std::string(kBusinessNumberBankId), "", "046454286RT0001", kValid, ""}));

struct ProgramAccountRow {
  std::string account;
  int16_t result;
};

class ProgramAccountTest : public ::testing::TestWithParam<ProgramAccountRow> {};

TEST_P(ProgramAccountTest, BusinessNumberCheckDigitProgramAndReference) {
  EXPECT_EQ(CheckAccount(kBusinessNumberBankId, GetParam().account).result, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ProgramAccountTest,
    ::testing::Values(
        // as the account check pads it
        ProgramAccountRow{"046454286RT0001               ", kValid},
        // other programs and references
        ProgramAccountRow{"046454286RP0002", kValid},
        // all zeros pass mod 10 but are no number
        ProgramAccountRow{"000000000RT0001", kRefused},
        // unknown program, reference 0000
        ProgramAccountRow{"046454286RX0001", kRefused},
        ProgramAccountRow{"046454286RT0000", kRefused},
        // shape: too short, too long, lower-case program, letters in the number
        ProgramAccountRow{"046454286RT001", kRefused},
        ProgramAccountRow{"046454286rt0001", kRefused},
        ProgramAccountRow{"04645428ART0001", kRefused}));

TEST(Luhn, DoublesEverySecondDigitFromTheRight) {
  EXPECT_TRUE(LuhnValid("79927398713"));
  EXPECT_FALSE(LuhnValid("79927398710"));
  EXPECT_TRUE(LuhnValid("046454286"));
  EXPECT_FALSE(LuhnValid(""));
  EXPECT_FALSE(LuhnValid("0464542x6"));
  EXPECT_TRUE(LuhnValid(std::string(1 << 20, '0')));
}

TEST(BankCheckLibrary, WritesItsMessageIntoTheCallersBuffer) {
  BuiltinBankCheckLibrary library;
  std::string buffer(256, ' ');
  int32_t length = -1;
  EXPECT_EQ(library.Check_bank_account2("003", "12345", "12", buffer, length, false), kRefused);
  ASSERT_GT(length, 0);
  EXPECT_EQ(buffer.size(), 256u);
  EXPECT_EQ(buffer.substr(0, static_cast<size_t>(length)),
            CheckBankAccount("003", "12345", "12").message);
  EXPECT_EQ(buffer.find_first_not_of(' ', static_cast<size_t>(length)), std::string::npos);

  // A buffer too small for the message takes what fits.
  std::string small(5, ' ');
  library.Check_bank_account2("003", "12345", "12", small, length, false);
  EXPECT_EQ(length, 5);
  EXPECT_EQ(small, CheckBankAccount("003", "12345", "12").message.substr(0, 5));

  // A good account leaves the buffer blank.
  std::string clean(256, ' ');
  EXPECT_EQ(library.Check_bank_account2("003", "12345", "1234567", clean, length, false),
            kToBeConfirmed);
  EXPECT_EQ(length, 0);
  EXPECT_EQ(clean, std::string(256, ' '));
}

}  // namespace
}  // namespace nvrandom::verifier
