#include "check_statement.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "headless_context.h"

namespace nvrandom::scenario {
namespace {

struct CheckRow {
  std::string function;
  std::vector<std::string> args;
  Variant value;
  std::optional<std::string> message;
};

class RunCheckTest : public ::testing::TestWithParam<CheckRow> {
 protected:
  testing::HeadlessContext h;
};

TEST_P(RunCheckTest, CallsTheFunctionWithTheStatementsArguments) {
  h.ctx.store.Provpostalstr = "ONKONL";
  const CheckResult result = RunCheck(h.ctx, GetParam().function, GetParam().args);
  EXPECT_EQ(result.value, GetParam().value);
  EXPECT_EQ(result.message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Functions, RunCheckTest,
    ::testing::Values(
        // texts come back as texts, integer arguments are read from decimal
        CheckRow{"PadLeft", {"1234", "6"}, "  1234", std::nullopt},
        // truth values as -1 and 0, read against the store as it stands
        CheckRow{"lookupProvince", {"ON"}, -1, std::nullopt},
        CheckRow{"IsAlpha", {"12"}, 0, std::nullopt},
        // the post-office-box check answers 1
        CheckRow{"Has_PO_Box_Address", {"PO BOX 4"}, 1, std::nullopt},
        // the bank checks hand their message back, empty when there is none
        CheckRow{"VerifyAccount",
                 {"001", "AB1"},
                 0,
                 "Account number should not be less than four characters."},
        CheckRow{"ValidateBankId", {"003"}, 1, ""},
        CheckRow{"ValidateBankAccount", {"003", "12345", "1234567"}, 2, ""},
        // so do the e-mail and web checks; the allow-empty flag reads as a number or a word
        CheckRow{"ValidateEmailAddress", {"", "-1"}, -1, ""},
        CheckRow{"ValidateEmailAddress",
                 {"", "false"},
                 0,
                 "Please enter a complete e-mail address with the form 'name@example.com'."},
        CheckRow{"IsEmailValid", {"a@b.cd"}, -1, std::nullopt}));

struct MalformedRow {
  std::string function;
  std::vector<std::string> args;
};

class RunCheckMalformedTest : public ::testing::TestWithParam<MalformedRow> {
 protected:
  testing::HeadlessContext h;
};

TEST_P(RunCheckMalformedTest, IsRefusedAsAnInvalidArgument) {
  EXPECT_THROW(RunCheck(h.ctx, GetParam().function, GetParam().args), std::invalid_argument);
}

INSTANTIATE_TEST_SUITE_P(Rows, RunCheckMalformedTest,
                         ::testing::Values(
                             // not a function of the module, or a name in the wrong case
                             MalformedRow{"ShowError", {"x"}}, MalformedRow{"isalpha", {"x"}},
                             // argument counts: the ignored and output arguments are not given
                             MalformedRow{"IsAlpha", {}}, MalformedRow{"PadLeft", {"x"}},
                             MalformedRow{"VerifyAccount", {"001", "1234", "", "0"}},
                             // integers in decimal, within the platform's 16 bits
                             MalformedRow{"PadLeft", {"x", "six"}},
                             MalformedRow{"PadLeft", {"x", "6.5"}},
                             MalformedRow{"PadLeft", {"x", "40000"}},
                             MalformedRow{"ValidateEmailAddress", {"a@b.cd", "yes"}}));

}  // namespace
}  // namespace nvrandom::scenario
