#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/recording_verifier.h"
#include "support/test_host.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

// What the built-in verifier answers is in tests/scenarios/checks_bank.scn; here, whether the
// local rules let the number reach a verifier at all.
struct BusinessNumberRow {
  std::string number;
  bool asks;
};

class BusinessNumberTest : public ::testing::TestWithParam<BusinessNumberRow> {};

TEST_P(BusinessNumberTest, MadeUpNumbersNeverReachTheVerifier) {
  testing::Host h;
  testing::VerifierScript script;
  h.ctx.services.verifiers = std::make_shared<testing::RecordingVerifierFactory>(script);
  Random(h.ctx).VerifyBusinessNumber(GetParam().number);
  EXPECT_EQ(script.created, GetParam().asks ? 1 : 0);
  EXPECT_TRUE(h.boxes.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BusinessNumberTest,
    ::testing::Values(
        // a real-looking number, whatever its check digit: the verifier decides
        BusinessNumberRow{"046454286", true}, BusinessNumberRow{"046454287", true},
        BusinessNumberRow{"046454286 anything", true},
        // made-up, too short, blank or not numeric in its first nine characters
        BusinessNumberRow{"123456789", false}, BusinessNumberRow{"111111112", false},
        BusinessNumberRow{"000000000", false}, BusinessNumberRow{"11111111", false},
        BusinessNumberRow{"", false}, BusinessNumberRow{" 046454286", false},
        BusinessNumberRow{"04645428A", false},
        // a decimal point passes the numeric test; the account check's own character rule
        // then refuses it before any verifier is asked
        BusinessNumberRow{"1234567.8", false}));

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
