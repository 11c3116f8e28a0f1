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
// of a mebibyte, past any fuzzer's length (the fuzzers hold the same checks to the same ranges on
// short inputs, the empty one included). Each text is built when its row runs.
TEST(HostileInput, EveryCheckAnswersWithinItsRange) {
  const struct {
    const char* name;
    std::string_view unit;
    size_t size;
    std::string_view tail = {};
  } rows[] = {
      {"digits", "0123456789", kMebibyte},
      {"blanks", " ", kMebibyte},
      {"not UTF-8", "\x80\xFF\xC3", kMebibyte},
      {"NULs", std::string_view("a\0b", 3), kMebibyte},
      {"e-mail-like", "a.", kMebibyte, "@example.com"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    testing::Host h;
    const std::string text = Repeat(row.unit, row.size) + std::string(row.tail);
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
