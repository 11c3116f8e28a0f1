#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/message_box.h"
#include "support/recording_verifier.h"
#include "support/test_host.h"
#include "validation/account_prechecks.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

class RandomBankTest : public ::testing::Test {
 protected:
  RandomBankTest() {
    h.ctx.services.verifiers = std::make_shared<testing::RecordingVerifierFactory>(script);
    // The error log goes to the installation root: keep it out of the working folder.
    h.ctx.store.gstrInstallRoot = folder.path().string() + "/";
  }
  // The properties every verifier is given first, for the store as the tests leave it.
  std::vector<std::string> SessionCalls(const std::string& search_id = "") const {
    return {"put_PlayByPlay false",
            "put_DataPath",
            "put_BusinessPIN",
            search_id.empty() ? "put_BillerSearchID" : "put_BillerSearchID " + search_id,
            "put_AccessNumber",
            "put_ProgramVersion",
            "put_BillerSearchURL",
            "put_SessionNumber",
            "put_RequestSourceCode"};
  }
  std::vector<std::string> With(std::vector<std::string> calls,
                                const std::vector<std::string>& more) const {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
  }

  testing::TempFolder folder;
  testing::Host h;
  testing::VerifierScript script;
};

TEST_F(RandomBankTest, VerifierGetsTheSessionValuesInOrder) {
  ComponentStore& store = h.ctx.store;
  store.DLLPath = testing::P("/opt/host/NORVIK/Bin");
  store.BusinessPIN = "PIN9";
  store.BillerSearchNorvikID = "SEARCH1";
  store.AccessNumber = "ACC2";
  store.NorvikProgramVersion = "7.05";
  store.BillerSearchURL = "https://search.example.com";
  store.SessionNumber = "S42";
  store.RequestSourceCode = "RS";
  std::string message;
  Random(h.ctx).VerifyAccount("001", "1234567", message);
  EXPECT_EQ(
      script.calls,
      std::vector<std::string>(
          {"put_PlayByPlay false", "put_DataPath " + testing::P("/opt/host"),
           "put_BusinessPIN PIN9", "put_BillerSearchID SEARCH1", "put_AccessNumber ACC2",
           "put_ProgramVersion 0705", "put_BillerSearchURL https://search.example.com",
           "put_SessionNumber S42", "put_RequestSourceCode RS", "put_BankIdLength 6",
           "put_AccountLength 30", "VerifyAccount [   001|1234567                       |false]"}));
}

struct PrecheckRow {
  std::string bank_id;
  std::string account;
  int16_t result;
  std::string message;  // handed back
  bool box;             // the blank message is shown instead
  bool asked;           // the verifier was created
};

class VerifyAccountPrecheckTest : public RandomBankTest,
                                  public ::testing::WithParamInterface<PrecheckRow> {};

TEST_P(VerifyAccountPrecheckTest, LocalRulesComeBeforeTheVerifier) {
  script.result = 7;  // whatever the verifier says is passed on
  script.message = "from verifier";
  std::string message;
  const PrecheckRow& row = GetParam();
  EXPECT_EQ(Random(h.ctx).VerifyAccount(row.bank_id, row.account, message), row.result);
  EXPECT_EQ(message, row.message);
  EXPECT_EQ(script.created, row.asked ? 1 : 0);
  if (row.box) {
    ASSERT_EQ(h.boxes.shown.size(), 1u);
    EXPECT_EQ(h.boxes.shown[0].text, validation::kBlankInAccountMessage);
    EXPECT_EQ(h.boxes.shown[0].style, msgbox::kOKOnly | msgbox::kCritical);
  } else {
    EXPECT_TRUE(h.boxes.shown.empty());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, VerifyAccountPrecheckTest,
    ::testing::Values(
        // a blank anywhere is shown at once, before any length rule
        PrecheckRow{"001", "12 34", 0, "", true, false},
        PrecheckRow{"001", " 12", 0, "", true, false},
        // too short
        PrecheckRow{"001", "AB1", 0, std::string(validation::kShortAccountMessage), false, false},
        PrecheckRow{"001", "", 0, std::string(validation::kShortAccountMessage), false, false},
        // lower case is not allowed
        PrecheckRow{"001", "abc1", 0, std::string(validation::kInvalidAccountCharactersMessage),
                    false, false},
        PrecheckRow{"001", "12-34", 0, std::string(validation::kInvalidAccountCharactersMessage),
                    false, false},
        // a blank bank id needs no verifier
        PrecheckRow{"", "1234", 2, "", false, false},
        PrecheckRow{"    ", "1234", 2, "", false, false},
        // upper-case letters and digits go to the verifier, whose answer is returned
        PrecheckRow{"001", "AB12", 7, "from verifier", false, true}));

struct BankIdFormRow {
  std::string bank_id;
  std::string passed;  // what the verifier receives
};

class VerifyAccountBankIdTest : public RandomBankTest,
                                public ::testing::WithParamInterface<BankIdFormRow> {};

TEST_P(VerifyAccountBankIdTest, BankIdIsBroughtToSixCharacters) {
  std::string message;
  Random(h.ctx).VerifyAccount(GetParam().bank_id, "1234", message);
  ASSERT_FALSE(script.calls.empty());
  EXPECT_EQ(script.calls.back(),
            "VerifyAccount [" + GetParam().passed + "|1234" + std::string(26, ' ') + "|false]");
}

INSTANTIATE_TEST_SUITE_P(Rows, VerifyAccountBankIdTest,
                         ::testing::Values(
                             // seven characters lose the last, before padding
                             BankIdFormRow{"0010039", "001003"},
                             BankIdFormRow{" 0010039 ", "001003"}, BankIdFormRow{"001", "   001"},
                             // longer ones keep their rightmost six
                             BankIdFormRow{"12345678", "345678"},
                             // untrimmed ids are padded as they are
                             BankIdFormRow{"001 ", "  001 "}));

TEST_F(RandomBankTest, ValidateBankIdWithoutIdAsksNobody) {
  std::string message = "old";
  int16_t length = -1;
  EXPECT_EQ(Random(h.ctx).ValidateBankId("   ", message, length), 0);
  EXPECT_EQ(message, "Invalid bank id");
  EXPECT_EQ(length, 15);
  EXPECT_EQ(script.created, 0);
}

TEST_F(RandomBankTest, ValidateBankIdTakesANewSearchIdOnlyWhenValid) {
  h.ctx.store.BillerSearchNorvikID = "OLD";
  script.result = 3;
  script.message = "doubtful";
  std::string message = "old";
  int16_t length = 0;
  EXPECT_EQ(Random(h.ctx).ValidateBankId("123", message, length), 3);
  EXPECT_EQ(message, "doubtful");
  EXPECT_EQ(length, 8);
  EXPECT_EQ(h.ctx.store.BillerSearchNorvikID, "OLD");
  EXPECT_EQ(script.calls, With(SessionCalls("OLD"), {"ValidateBankId [123]"}));

  script.calls.clear();
  script.result = 1;
  script.message.clear();
  EXPECT_EQ(Random(h.ctx).ValidateBankId("001", message, length), 1);
  EXPECT_EQ(message, "");
  EXPECT_EQ(h.ctx.store.BillerSearchNorvikID, "NEW-ID");
  EXPECT_EQ(script.calls,
            With(SessionCalls("OLD"), {"ValidateBankId [001]", "get_BillerSearchID"}));
}

TEST_F(RandomBankTest, ValidateBankAccountNeedsAllThreeParts) {
  const std::vector<std::array<std::string, 3>> incomplete = {
      {"", "12345", "1234567"}, {"001", " ", "1234567"}, {"001", "12345", ""}};
  for (const auto& [bank, transit, account] : incomplete) {
    std::string message;
    int16_t length = 0;
    EXPECT_EQ(Random(h.ctx).ValidateBankAccount(bank, transit, account, message, length), 0);
    EXPECT_EQ(message, "Invalid bank account");
    EXPECT_EQ(length, 20);
  }
  EXPECT_EQ(script.created, 0);
}

TEST_F(RandomBankTest, ValidateBankAccountPassesTheVerifiersAnswer) {
  script.result = 2;
  std::string message = "old";
  int16_t length = 0;
  EXPECT_EQ(Random(h.ctx).ValidateBankAccount("003", "12345", "1234567", message, length), 2);
  EXPECT_EQ(message, "");
  EXPECT_EQ(script.calls, With(SessionCalls(), {"ValidateBankAccount [003|12345|1234567]"}));
}

// Each delegating check, run against a verifier that cannot be created.
struct FailureRow {
  std::string proc_name;
  std::function<int16_t(Random&)> run;
};

class VerifierFailureTest : public RandomBankTest,
                            public ::testing::WithParamInterface<FailureRow> {};

TEST_P(VerifierFailureTest, IsReportedAndGivesZero) {
  h.ctx.services.verifiers = std::make_shared<testing::MissingVerifierFactory>();
  Random random(h.ctx);
  EXPECT_EQ(GetParam().run(random), 0);
  ASSERT_EQ(h.boxes.shown.size(), 1u);
  EXPECT_EQ(h.boxes.shown[0].text,
            "The following error: 'ActiveX component can't create object (Error 429)' occurred "
            "in procedure '" +
                GetParam().proc_name + "'.");
  EXPECT_EQ(h.boxes.shown[0].style & msgbox::kIconMask, msgbox::kCritical);
  const std::string log = testing::ReadFile(folder.path() / "error.log");
  EXPECT_NE(
      log.find(",429,\"ActiveX component can't create object\",\"" + GetParam().proc_name + "\""),
      std::string::npos)
      << log;
}

INSTANTIATE_TEST_SUITE_P(Procedures, VerifierFailureTest,
                         ::testing::Values(FailureRow{"Random.VerifyAccount",
                                                      [](Random& r) {
                                                        std::string m;
                                                        return r.VerifyAccount("001", "1234567", m);
                                                      }},
                                           FailureRow{"Random.ValidateBankId",
                                                      [](Random& r) {
                                                        std::string m;
                                                        int16_t n = 0;
                                                        return r.ValidateBankId("001", m, n);
                                                      }},
                                           FailureRow{"Random.ValidateBankAccount",
                                                      [](Random& r) {
                                                        std::string m;
                                                        int16_t n = 0;
                                                        return r.ValidateBankAccount(
                                                            "001", "12345", "1234567", m, n);
                                                      }},
                                           // the business number check reaches the verifier through
                                           // the account check, which reports the failure itself
                                           FailureRow{"Random.VerifyAccount", [](Random& r) {
                                                        return r.VerifyBusinessNumber("046454286");
                                                      }}));

TEST_F(RandomBankTest, NoVerifierServiceIsTheSameAsOneThatCannotBeCreated) {
  h.ctx.services.verifiers.reset();
  std::string message;
  int16_t length = 0;
  EXPECT_EQ(Random(h.ctx).ValidateBankId("001", message, length), 0);
  ASSERT_EQ(h.boxes.shown.size(), 1u);
  EXPECT_NE(h.boxes.shown[0].text.find("(Error 429)"), std::string::npos);
}

struct RoutingRow {
  std::string number;
  bool us_mode;
  int16_t expected;
};

class RoutingNumberTest : public ::testing::TestWithParam<RoutingRow> {
 protected:
  testing::Host h;
};

TEST_P(RoutingNumberTest, PrefixInUsModeThenLengthAndChecksum) {
  h.ctx.store.WhatKindOfBiller = GetParam().us_mode ? "U" : " ";
  EXPECT_EQ(Random(h.ctx).ValidateABANumber(GetParam().number), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RoutingNumberTest,
    ::testing::Values(RoutingRow{"021000021", true, kTrue}, RoutingRow{"021000021", false, kTrue},
                      RoutingRow{"322271627", true, kTrue},
                      // 13 is no Federal Reserve prefix, though the checksum passes
                      RoutingRow{"131000021", true, kFalse}, RoutingRow{"131000021", false, kTrue},
                      // the checksum
                      RoutingRow{"021000022", false, kFalse},
                      // nine characters exactly, after trimming
                      RoutingRow{"02100002", false, kFalse},
                      RoutingRow{"0210000210", false, kFalse},
                      RoutingRow{" 021000021 ", false, kTrue},
                      // in US mode the prefix is read before trimming
                      RoutingRow{" 021000021", true, kFalse},
                      // a non-digit counts as 0 in the checksum; in US mode it spoils the prefix
                      RoutingRow{"A21000021", false, kTrue}, RoutingRow{"A21000021", true, kFalse},
                      // a two-byte character is one character that counts as 0
                      RoutingRow{"\xC3\xA9"
                                 "21000021",
                                 false, kTrue},
                      RoutingRow{"", false, kFalse}, RoutingRow{"", true, kFalse},
                      RoutingRow{"0", true, kFalse}));

}  // namespace
}  // namespace nvrandom
