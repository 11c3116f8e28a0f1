#include <gtest/gtest.h>

#include <string>

#include "dialogs/biller/web_address_checks.h"
#include "support/test_host.h"
#include "validation/account_prechecks.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

constexpr size_t kMebibyte = size_t{1} << 20;

std::string Repeat(std::string_view unit, size_t size) {
  std::string text;
  text.reserve(size + unit.size());
  while (text.size() < size) text += unit;
  return text;
}

// Every check gives one of its defined answers and reports no error, whatever it is given: texts
// of a mebibyte, past any fuzzer's length: digits for the number paths, blanks for trimming, an
// address for the patterns. (The fuzzers hold the same checks to the same ranges on short inputs
// of any bytes, NULs, bytes that are not UTF-8 and the empty one included.) Each text is built
// when its row runs.
TEST(HostileInput, EveryCheckAnswersWithinItsRange) {
  const struct {
    const char* name;
    std::string_view unit;
    std::string_view tail = {};
  } rows[] = {
      {"digits", "0123456789"},
      {"blanks", " "},
      {"e-mail-like", "a.", "@example.com"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    testing::Host h;
    const std::string text = Repeat(row.unit, kMebibyte) + std::string(row.tail);
    h.ctx.store.Provpostalstr = text;
    Random random(h.ctx);
    const auto truth = [](int16_t v) { return v == kTrue || v == kFalse; };

    EXPECT_LE(random.CleanseCharacters(text).size(), text.size());
    EXPECT_EQ(random.PadLeft(text, 6).empty(), false);
    EXPECT_TRUE(truth(random.IsAlpha(text)));
    EXPECT_TRUE(truth(random.Fileexists(text)));
    EXPECT_TRUE(truth(random.lookupProvince(text)));
    EXPECT_TRUE(truth(random.LookupPostcode(text)));
    const int16_t box = random.Has_PO_Box_Address(text);
    EXPECT_TRUE(box == 0 || box == 1);
    std::string message;
    int16_t length = 0;
    const int16_t account = random.VerifyAccount(text, text, message);
    EXPECT_TRUE(account >= 0 && account <= 2) << account;
    const int16_t id = random.ValidateBankId(text, message, length);
    EXPECT_TRUE(id == 0 || id == 1 || id == 3) << id;
    const int16_t bank_account = random.ValidateBankAccount(text, text, text, message, length);
    EXPECT_TRUE(bank_account >= 0 && bank_account <= 2) << bank_account;
    EXPECT_TRUE(truth(random.ValidateABANumber(text)));
    h.ctx.store.WhatKindOfBiller = "U";
    EXPECT_TRUE(truth(random.ValidateABANumber(text)));
    EXPECT_TRUE(truth(random.VerifyBusinessNumber(text)));
    ValidateEmailAddress(h.ctx, text, message, true);
    ValidateWebsite(h.ctx, text, message);
    IsEmailValid(h.ctx, text);

    for (const auto& shown : h.boxes.shown) {
      EXPECT_EQ(shown.text, validation::kBlankInAccountMessage) << "unexpected report";
    }
  }
}

}  // namespace
}  // namespace nvrandom
