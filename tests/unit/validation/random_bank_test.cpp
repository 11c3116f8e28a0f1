// What module Random's bank checks tell the account verifier and when they ask it at all. What the
// built-in verifier answers, and the local rules' messages, are in checks_bank.scn.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/account_verifier.h"
#include "platform/runtime_error.h"
#include "support/test_host.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

// What the verifiers of one factory were told and are to answer.
struct VerifierScript {
  std::vector<std::string> calls;  // "put_DataPath /data", "VerifyAccount [   001|...]"
  int16_t result = 1;
  std::string message;
  int created = 0;
};

// Records every member call in order and answers from the script.
class RecordingVerifier final : public AccountVerifier {
 public:
  explicit RecordingVerifier(VerifierScript& script) : s_(script) {}
  void put_PlayByPlay(bool v) override { Log("put_PlayByPlay", v ? "true" : "false"); }
  void put_BusinessPIN(const std::string& v) override { Log("put_BusinessPIN", v); }
  std::string get_BillerSearchID() override {
    Log("get_BillerSearchID", "");
    return "NEW-ID";
  }
  void put_BillerSearchID(const std::string& v) override { Log("put_BillerSearchID", v); }
  void put_AccessNumber(const std::string& v) override { Log("put_AccessNumber", v); }
  void put_ProgramVersion(const std::string& v) override { Log("put_ProgramVersion", v); }
  void put_BillerSearchURL(const std::string& v) override { Log("put_BillerSearchURL", v); }
  void put_SessionNumber(const std::string& v) override { Log("put_SessionNumber", v); }
  void put_DataPath(const std::string& v) override { Log("put_DataPath", v); }
  void VerifyAccount(std::string_view bank_id, std::string_view account, bool flag,
                     std::string& error_message, int16_t& second_result, int16_t& result) override {
    Log("VerifyAccount", "[" + std::string(bank_id) + "|" + std::string(account) + "|" +
                             (flag ? "true" : "false") + "]");
    result = Answer(error_message, second_result);
    second_result = 0;
  }
  void put_RequestSourceCode(const std::string& v) override { Log("put_RequestSourceCode", v); }
  void put_BankIdLength(int16_t v) override { Log("put_BankIdLength", std::to_string(v)); }
  void put_AccountLength(int16_t v) override { Log("put_AccountLength", std::to_string(v)); }
  void ValidateBankId(std::string_view bank_id, bool, std::string& error_message,
                      int16_t& error_length, int16_t& result) override {
    Log("ValidateBankId", "[" + std::string(bank_id) + "]");
    result = Answer(error_message, error_length);
  }
  void ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                           std::string_view account, std::string& error_message,
                           int16_t& error_length, bool, int16_t& result) override {
    Log("ValidateBankAccount",
        "[" + std::string(bank_id) + "|" + std::string(transit) + "|" + std::string(account) + "]");
    result = Answer(error_message, error_length);
  }

 private:
  void Log(const std::string& member, const std::string& value) {
    s_.calls.push_back(value.empty() ? member : member + " " + value);
  }
  int16_t Answer(std::string& message, int16_t& length) {
    message = s_.message;
    length = static_cast<int16_t>(s_.message.size());
    return s_.result;
  }
  VerifierScript& s_;
};

class RecordingVerifierFactory final : public AccountVerifierFactory {
 public:
  explicit RecordingVerifierFactory(VerifierScript& script) : s_(script) {}
  std::unique_ptr<AccountVerifier> Create() override {
    ++s_.created;
    return std::make_unique<RecordingVerifier>(s_);
  }

 private:
  VerifierScript& s_;
};

// A verifier that is not installed.
class MissingVerifierFactory final : public AccountVerifierFactory {
 public:
  std::unique_ptr<AccountVerifier> Create() override {
    throw RuntimeError(vb_error::kCannotCreateObject);
  }
};

using Calls = std::vector<std::string>;
using Check = std::function<int16_t(Random&)>;

Check Account(const char* bank, const char* account) {
  return [bank, account](Random& r) {
    std::string m;
    return r.VerifyAccount(bank, account, m);
  };
}
Check Business(const char* number) {
  return [number](Random& r) { return r.VerifyBusinessNumber(number); };
}
Check BankId(const char* bank) {
  return [bank](Random& r) {
    std::string m;
    int16_t n = 0;
    return r.ValidateBankId(bank, m, n);
  };
}
Check BankAccount(const char* bank, const char* transit, const char* account) {
  return [=](Random& r) {
    std::string m;
    int16_t n = 0;
    return r.ValidateBankAccount(bank, transit, account, m, n);
  };
}

class RandomBankTest : public ::testing::Test {
 protected:
  RandomBankTest() {
    h.ctx.services.verifiers = std::make_shared<RecordingVerifierFactory>(script);
    // The error log goes to the installation root: keep it out of the working folder.
    h.ctx.store.gstrInstallRoot = folder.path().string() + "/";
  }
  std::string LastCall() const { return script.calls.empty() ? "" : script.calls.back(); }

  testing::TempFolder folder;
  testing::Host h;
  VerifierScript script;
};

// Every verifier is first given the session's values, in this order and form.
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
  EXPECT_EQ(script.calls,
            (Calls{"put_PlayByPlay false", "put_DataPath " + testing::P("/opt/host"),
                   "put_BusinessPIN PIN9", "put_BillerSearchID SEARCH1", "put_AccessNumber ACC2",
                   "put_ProgramVersion 0705", "put_BillerSearchURL https://search.example.com",
                   "put_SessionNumber S42", "put_RequestSourceCode RS", "put_BankIdLength 6",
                   "put_AccountLength 30",
                   "VerifyAccount [   001|1234567                       |false]"}));
}

// Which calls reach a verifier, and in what form: the local rules refuse without one, an
// incomplete bank id or account included (the rules' answers and messages: checks_bank.scn), the
// bank id is brought to six characters, a business number is an account of the registry.
TEST_F(RandomBankTest, OnlyWhatPassesTheLocalRulesReachesTheVerifier) {
  struct Case {
    const char* what;
    Check run;
    std::string call;  // the verifier's last call; "" when none was created
  };
  const std::string pad26(26, ' ');
  const std::string registry = std::string(kBusinessNumberBankId);
  const Case cases[] = {
      {"a blank bank id", Account("    ", "1234"), ""},
      {"a blank in the account", Account("001", "12 34"), ""},
      {"a blank id to validate", BankId("   "), ""},
      {"a blank transit", BankAccount("001", " ", "1234567"), ""},
      {"upper-case letters and digits", Account("001", "AB12"),
       "VerifyAccount [   001|AB12" + pad26 + "|false]"},
      // seven characters lose the last before padding; longer ones keep their rightmost six;
      // untrimmed ids are padded as they are
      {"seven characters", Account(" 0010039 ", "1234"),
       "VerifyAccount [" + registry + "|1234" + pad26 + "|false]"},
      {"eight characters", Account("12345678", "1234"),
       "VerifyAccount [345678|1234" + pad26 + "|false]"},
      {"untrimmed", Account("001 ", "1234"), "VerifyAccount [  001 |1234" + pad26 + "|false]"},
      {"business number", Business("987654321xyz"),
       "VerifyAccount [" + registry + "|987654321RT0001" + std::string(15, ' ') + "|false]"},
      {"wrong check digit: the verifier decides", Business("046454287"),
       "VerifyAccount [" + registry + "|046454287RT0001" + std::string(15, ' ') + "|false]"},
      {"made-up business number", Business("123456789"), ""},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    script = {};
    Random random(h.ctx);
    row.run(random);
    EXPECT_EQ(script.created, row.call.empty() ? 0 : 1);
    EXPECT_EQ(LastCall(), row.call);
  }
}

// Whatever the verifier answers is passed on, with its message and the message's length (the
// bank id and account checks' answers: checks_bank.scn, and registered_verifier.scn under Wine);
// a doubtful bank id keeps the old search id (a valid one takes the verifier's new one, under
// Wine); a business number is accepted on any answer but 0, and its refusal shows nothing.
TEST_F(RandomBankTest, TheVerifiersAnswerIsPassedOn) {
  h.ctx.store.BillerSearchNorvikID = "OLD";
  script.result = 3;
  script.message = "doubtful";
  std::string message;
  int16_t length = 0;
  EXPECT_EQ(Random(h.ctx).ValidateBankId("123", message, length), 3);
  EXPECT_EQ(message + " " + std::to_string(length), "doubtful 8");
  EXPECT_EQ(LastCall(), "ValidateBankId [123]");
  EXPECT_EQ(h.ctx.store.BillerSearchNorvikID, "OLD");
  message.clear();
  EXPECT_EQ(Random(h.ctx).VerifyAccount("001", "AB12", message), 3);
  EXPECT_EQ(message, "doubtful");
  EXPECT_EQ(Random(h.ctx).VerifyBusinessNumber("987654321"), kTrue);
  script.result = 0;
  EXPECT_EQ(Random(h.ctx).VerifyBusinessNumber("987654321"), kFalse);
  EXPECT_TRUE(h.boxes.shown.empty());
}

// A verifier that cannot be created, or none at all, is reported (as every report is:
// show_error_test) by the procedure that asked for it, which gives 0; the business number check
// reaches it through the account check.
TEST_F(RandomBankTest, AVerifierThatCannotBeCreatedIsReported) {
  struct Case {
    const char* procedure;
    Check run;
  };
  const Case cases[] = {
      {"Random.VerifyAccount", Account("001", "1234567")},
      {"Random.ValidateBankId", BankId("001")},
      {"Random.ValidateBankAccount", BankAccount("001", "12345", "1234567")},
      {"Random.VerifyAccount", Business("046454286")},
  };
  for (const bool installed : {true, false}) {
    for (const Case& row : cases) {
      SCOPED_TRACE(std::string(row.procedure) + (installed ? "" : ", no service"));
      h.boxes.shown.clear();
      h.ctx.services.verifiers = installed ? std::make_shared<MissingVerifierFactory>()
                                           : std::shared_ptr<MissingVerifierFactory>();
      Random random(h.ctx);
      EXPECT_EQ(row.run(random), 0);
      ASSERT_EQ(h.boxes.shown.size(), 1u);
      EXPECT_EQ(h.boxes.shown[0].text,
                "The following error: 'ActiveX component can't create object (Error 429)' "
                "occurred in procedure '" +
                    std::string(row.procedure) + "'.");
    }
  }
}

}  // namespace
}  // namespace nvrandom
