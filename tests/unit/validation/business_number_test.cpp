#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/recording_verifier.h"
#include "support/test_host.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

struct BusinessNumberRow {
  std::string number;
  int16_t expected;  // with the built-in verifier
  bool asks;         // whether the verifier is reached
};

class BusinessNumberTest : public ::testing::TestWithParam<BusinessNumberRow> {};

TEST_P(BusinessNumberTest, LocalRulesThenTheRegistrysRule) {
  testing::Host h;
  EXPECT_EQ(Random(h.ctx).VerifyBusinessNumber(GetParam().number), GetParam().expected);
  EXPECT_TRUE(h.boxes.shown.empty());

  // The same number against a verifier that records whether it was asked.
  testing::Host recorded;
  testing::VerifierScript script;
  recorded.ctx.services.verifiers = std::make_shared<testing::RecordingVerifierFactory>(script);
  Random(recorded.ctx).VerifyBusinessNumber(GetParam().number);
  EXPECT_EQ(script.created, GetParam().asks ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BusinessNumberTest,
    ::testing::Values(
        // a real-looking number whose ninth digit is its check digit
        BusinessNumberRow{"046454286", kTrue, true},
        // the wrong check digit is the verifier's refusal
        BusinessNumberRow{"046454287", kFalse, true},
        // further text is ignored: only the first nine characters count
        BusinessNumberRow{"046454286RT0001", kTrue, true},
        BusinessNumberRow{"046454286 anything", kTrue, true},
        // made-up numbers are refused on their first eight digits, whatever the ninth
        BusinessNumberRow{"123456789", kFalse, false},
        BusinessNumberRow{"111111112", kFalse, false},
        BusinessNumberRow{"000000000", kFalse, false},
        // too short, after trimming
        BusinessNumberRow{"11111111", kFalse, false},
        BusinessNumberRow{"  0464542  ", kFalse, false}, BusinessNumberRow{"", kFalse, false},
        BusinessNumberRow{"         ", kFalse, false},
        // the first nine of the untrimmed number must be numeric: a leading blank is not
        BusinessNumberRow{" 046454286", kFalse, false},
        BusinessNumberRow{"04645428A", kFalse, false},
        // a decimal point passes the numeric test; the account check's own character rule
        // then refuses it before any verifier is asked
        BusinessNumberRow{"1234567.8", kFalse, false}));

TEST(BusinessNumber, IsVerifiedAsAnAccountOfTheRegistry) {
  testing::Host h;
  testing::VerifierScript script;
  script.result = 2;  // any answer but 0 accepts the number
  h.ctx.services.verifiers = std::make_shared<testing::RecordingVerifierFactory>(script);
  EXPECT_EQ(Random(h.ctx).VerifyBusinessNumber("987654321xyz"), kTrue);
  ASSERT_FALSE(script.calls.empty());
  EXPECT_EQ(script.calls.back(),
            "VerifyAccount [001003|987654321RT0001" + std::string(15, ' ') + "|false]");

  script.result = 0;
  script.message = "refused";
  EXPECT_EQ(Random(h.ctx).VerifyBusinessNumber("987654321"), kFalse);
  EXPECT_TRUE(h.boxes.shown.empty());
}

}  // namespace
}  // namespace nvrandom
