#include "verifier/bank_rules.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "verifier/builtin_bank_check_library.h"

namespace nvrandom::verifier {
namespace {

using namespace check_result;

TEST(InstitutionTable, RowsAreWellFormedAndFoundByNumber) {
  std::set<std::string_view> numbers;
  for (const Institution& row : KnownInstitutions()) {
    SCOPED_TRACE(std::string(row.number));
    EXPECT_TRUE(numbers.insert(row.number).second) << "duplicate";
    EXPECT_FALSE(row.name.empty());
    EXPECT_TRUE(row.number.find_first_not_of("0123456789") == std::string_view::npos);
    if (row.rule == AccountRule::kDigits) {
      EXPECT_EQ(row.number.size(), 3u);
      EXPECT_NE(row.account_lengths, 0u);
    }
    EXPECT_EQ(FindInstitution(row.number), &row);
  }
  EXPECT_EQ(FindInstitution("005"), nullptr);
  EXPECT_EQ(FindInstitution(""), nullptr);
}

struct BankIdRow {
  std::string bank_id;
  int16_t result;
  std::string number;  // the institution number read
};

class BankIdTest : public ::testing::TestWithParam<BankIdRow> {};

TEST_P(BankIdTest, ReadsTheFormsTheComponentPasses) {
  const CheckOutcome outcome = CheckBankId(GetParam().bank_id);
  EXPECT_EQ(outcome.result, GetParam().result);
  EXPECT_EQ(ReadBankId(GetParam().bank_id).number, GetParam().number);
  // Everything but a plain yes explains itself.
  EXPECT_EQ(outcome.message.empty(), outcome.result == kValid) << outcome.message;
  EXPECT_EQ(BuiltinBankCheckLibrary().Check_bank_id(GetParam().bank_id), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BankIdTest,
    ::testing::Values(
        // as typed in the Bank ID box
        BankIdRow{"001", kValid, "001"}, BankIdRow{"815", kValid, "815"},
        // padded to six by the account check
        BankIdRow{"   004", kValid, "004"},
        // the electronic routing form: a zero and the institution
        BankIdRow{"0003", kValid, "003"},
        // the business-number registry
        BankIdRow{"001003", kValid, "001003"},
        // well-formed, but no institution has the number: a cheque number, perhaps
        BankIdRow{"123", kDoubtful, "123"}, BankIdRow{"000", kDoubtful, "000"},
        // malformed
        BankIdRow{"12", kRefused, ""}, BankIdRow{"1234", kRefused, ""},
        BankIdRow{"123456", kRefused, ""}, BankIdRow{"0A1", kRefused, ""},
        BankIdRow{"0 01", kRefused, ""}, BankIdRow{"", kRefused, ""},
        BankIdRow{"      ", kRefused, ""}));

struct AccountRow {
  std::string bank_id;
  std::string transit;
  std::string account;
  int16_t result;
  std::string message_part;  // part of the message; empty when there is none
};

class BankAccountTest : public ::testing::TestWithParam<AccountRow> {};

TEST_P(BankAccountTest, ChecksTransitAndAccountByTheInstitutionsRule) {
  const CheckOutcome outcome =
      CheckBankAccount(GetParam().bank_id, GetParam().transit, GetParam().account);
  EXPECT_EQ(outcome.result, GetParam().result);
  if (GetParam().message_part.empty()) {
    EXPECT_EQ(outcome.message, "");
  } else {
    EXPECT_NE(outcome.message.find(GetParam().message_part), std::string::npos) << outcome.message;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BankAccountTest,
    ::testing::Values(
        // a well-formed account is confirmed by re-keying, never by the built-in rules alone
        AccountRow{"001", "00011", "1234567", kToBeConfirmed, ""},
        // Bank of Montreal accounts have seven digits
        AccountRow{"001", "00011", "123456789", kRefused, "Bank of Montreal has 7 digits"},
        // Scotiabank: seven or twelve
        AccountRow{"002", "12345", "123456789012", kToBeConfirmed, ""},
        AccountRow{"002", "12345", "12345678", kRefused, "7 or 12 digits"},
        // elsewhere anything from seven to twelve
        AccountRow{"815", "30000", "1234567890", kToBeConfirmed, ""},
        AccountRow{"815", "30000", "123456", kRefused, "7 to 12 digits"},
        // an institution the table does not know gets the general rule
        AccountRow{"123", "12345", "12345678", kToBeConfirmed, ""},
        AccountRow{"123", "12345", "1234567890123", kRefused, "An account number has 7 to 12"},
        // blanks around the parts are read past
        AccountRow{" 003 ", " 12345 ", " 1234567 ", kToBeConfirmed, ""},
        // transit: five digits, not all zeros
        AccountRow{"003", "1234", "1234567", kRefused, "5 digits"},
        AccountRow{"003", "1234A", "1234567", kRefused, "5 digits"},
        AccountRow{"003", "00000", "1234567", kRefused, "00000"},
        AccountRow{"003", "", "1234567", kRefused, "transit"},
        // account: digits only, not all zeros
        AccountRow{"003", "12345", "123456A", kRefused, "digits only"},
        AccountRow{"003", "12345", "0000000", kRefused, "all zeros"},
        AccountRow{"003", "12345", "", kRefused, "account number"},
        // a malformed bank id is refused before anything else
        AccountRow{"3", "12345", "1234567", kRefused, "3 digits"},
        // the registry has no branches: the transit is not looked at
        AccountRow{"001003", "", "046454286RT0001", kValid, ""}));

struct ProgramAccountRow {
  std::string account;
  int16_t result;
};

class ProgramAccountTest : public ::testing::TestWithParam<ProgramAccountRow> {};

TEST_P(ProgramAccountTest, BusinessNumberCheckDigitProgramAndReference) {
  EXPECT_EQ(CheckAccount("001003", GetParam().account).result, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ProgramAccountTest,
    ::testing::Values(
        // 046454286 passes the mod-10 check
        ProgramAccountRow{"046454286RT0001", kValid},
        // as the account check pads it
        ProgramAccountRow{"046454286RT0001               ", kValid},
        // other programs and references
        ProgramAccountRow{"046454286RP0002", kValid}, ProgramAccountRow{"046454286RC9999", kValid},
        // a wrong check digit
        ProgramAccountRow{"046454287RT0001", kRefused},
        // all zeros pass mod 10 but are no number
        ProgramAccountRow{"000000000RT0001", kRefused},
        // unknown program, reference 0000
        ProgramAccountRow{"046454286RX0001", kRefused},
        ProgramAccountRow{"046454286RT0000", kRefused},
        // shape: too short, too long, lower-case program, letters in the number
        ProgramAccountRow{"046454286RT001", kRefused},
        ProgramAccountRow{"046454286RT00011", kRefused},
        ProgramAccountRow{"046454286rt0001", kRefused},
        ProgramAccountRow{"04645428ART0001", kRefused},
        // a decimal point, as a numeric-looking business number may hold
        ProgramAccountRow{"1234567.8RT0001", kRefused}));

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
