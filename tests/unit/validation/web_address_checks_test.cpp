// What the e-mail and web-site checks answer is in checks_email.scn; here, what a scenario cannot
// arrange: a regular-expression service that fails.
#include "dialogs/biller/web_address_checks.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/runtime_error.h"
#include "support/test_host.h"

namespace nvrandom {
namespace {

TEST(WebAddressChecks, AFailingRegexIsRaisedToTheCaller) {
  class FailingRegex final : public RegexService {
   public:
    bool Test(std::string_view, std::string_view, bool) override {
      throw RuntimeError(vb_error::kCannotCreateObject);
    }
  };
  testing::Host h;
  h.ctx.services.regex = std::make_unique<FailingRegex>();
  std::string message;
  EXPECT_THROW(ValidateEmailAddress(h.ctx, "jane@example.com", message, false), RuntimeError);
  EXPECT_THROW(ValidateWebsite(h.ctx, "www.example.com", message), RuntimeError);
  // Short addresses never reach the pattern.
  EXPECT_FALSE(ValidateEmailAddress(h.ctx, "a@b", message, false));
  EXPECT_TRUE(h.boxes.shown.empty());
}

}  // namespace
}  // namespace nvrandom
