#include "dialogs/biller/web_address_checks.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/runtime_error.h"
#include "support/test_host.h"

namespace nvrandom {
namespace {

const std::string kComplete =
    "Please enter a complete e-mail address with the form 'name@example.com'.";
const std::string kValid = "Please enter a valid e-mail address with the form 'name@example.com'.";
const std::string kUntouched = "untouched";

struct EmailRow {
  std::string address;
  bool allow_empty;
  bool accepted;
  std::string message;  // kUntouched when the message is left alone
};

class ValidateEmailTest : public ::testing::TestWithParam<EmailRow> {
 protected:
  testing::Host h;
};

TEST_P(ValidateEmailTest, LengthFirstThenThePattern) {
  std::string message = kUntouched;
  EXPECT_EQ(ValidateEmailAddress(h.ctx, GetParam().address, message, GetParam().allow_empty),
            GetParam().accepted);
  EXPECT_EQ(message, GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ValidateEmailTest,
    ::testing::Values(
        EmailRow{"jane.doe@mail.example.ca", false, true, kUntouched},
        // the pattern ignores case
        EmailRow{"JANE.DOE@EXAMPLE.CA", false, true, kUntouched},
        EmailRow{"o'brien+bills@ex-ample.com", false, true, kUntouched},
        // four characters are incomplete whatever they are
        EmailRow{"a@b.", false, false, kComplete}, EmailRow{"a@bc", true, false, kComplete},
        // empty: accepted only when allowed, blanks count as empty
        EmailRow{"", true, true, kUntouched}, EmailRow{"     ", true, true, kUntouched},
        EmailRow{"", false, false, kComplete},
        // length is counted after trimming, the pattern sees the untrimmed text
        EmailRow{"  a@b  ", false, false, kComplete},
        EmailRow{" jane@example.com", false, false, kValid},
        EmailRow{"jane@example.com ", false, false, kValid},
        // dots: not leading, trailing or doubled in the local part
        EmailRow{".jane@example.com", false, false, kValid},
        EmailRow{"jane.@example.com", false, false, kValid},
        EmailRow{"ja..ne@example.com", false, false, kValid},
        // labels start and end with a letter or digit
        EmailRow{"jane@-example.com", false, false, kValid},
        EmailRow{"jane@example-.com", false, false, kValid},
        // a domain without a dot, two "@", a blank inside
        EmailRow{"jane@localhost", false, false, kValid},
        EmailRow{"jane@doe@example.com", false, false, kValid},
        EmailRow{"jane doe@example.com", false, false, kValid},
        // a line break does not end the text early
        EmailRow{"jane@example.com\nx", false, false, kValid},
        // accented letters are outside a-z; five characters of two bytes each are enough length
        EmailRow{"\xC3\xA9\xC3\xA9@\xC3\xA9.\xC3\xA9", false, false, kValid},
        EmailRow{"\xC3\xA9@\xC3\xA9.", false, false, kComplete}));

struct WebsiteRow {
  std::string site;
  bool accepted;
};

class ValidateWebsiteTest : public ::testing::TestWithParam<WebsiteRow> {
 protected:
  testing::Host h;
};

TEST_P(ValidateWebsiteTest, ADotWithSomethingBeforeIt) {
  std::string message = kUntouched;
  EXPECT_EQ(ValidateWebsite(h.ctx, GetParam().site, message), GetParam().accepted);
  EXPECT_EQ(message, GetParam().accepted
                         ? kUntouched
                         : "Please enter a valid website with the form\r\n'www.example.com'.");
}

INSTANTIATE_TEST_SUITE_P(Rows, ValidateWebsiteTest,
                         ::testing::Values(WebsiteRow{"www.example.com", true},
                                           WebsiteRow{"abc.", true}, WebsiteRow{"abc", false},
                                           WebsiteRow{".com", false}, WebsiteRow{"", false},
                                           WebsiteRow{"WWW.EXAMPLE.COM", true},
                                           WebsiteRow{"a b.c", true}));

struct IsEmailRow {
  std::string address;
  bool valid;
};

class IsEmailValidTest : public ::testing::TestWithParam<IsEmailRow> {
 protected:
  testing::Host h;
};

TEST_P(IsEmailValidTest, CharacterByCharacter) {
  EXPECT_EQ(IsEmailValid(h.ctx, GetParam().address), GetParam().valid);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, IsEmailValidTest,
    ::testing::Values(IsEmailRow{"jane_doe-1@mail.example.ca", true},
                      IsEmailRow{"JANE@EXAMPLE.COM", true},
                      // top-level part of 2 to 4 characters
                      IsEmailRow{"a@b.c", false}, IsEmailRow{"a@b.cd", true},
                      IsEmailRow{"a@b.info", true}, IsEmailRow{"a@b.museu", false},
                      // exactly one "@", non-empty parts
                      IsEmailRow{"ab.cd", false}, IsEmailRow{"a@b@c.de", false},
                      IsEmailRow{"@b.cd", false}, IsEmailRow{"a@", false}, IsEmailRow{"", false},
                      // allowed characters only; "+" is not one of them
                      IsEmailRow{"a+b@c.de", false}, IsEmailRow{"a b@c.de", false},
                      IsEmailRow{"\xC3\xA9@c.de", false},
                      // no dot at either end of a part, none doubled, one in the domain
                      IsEmailRow{".a@c.de", false}, IsEmailRow{"a.@c.de", false},
                      IsEmailRow{"a@c.de.", false}, IsEmailRow{"a..b@c.de", false},
                      IsEmailRow{"a@cde", false}));

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
