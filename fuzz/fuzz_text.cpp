// Every check of what a person types, on arbitrary bytes: the text utilities (cleansing,
// padding, the letter test), the address rules (province and postal lookups, the post-office-box
// test), module Random's bank and business number checks with the built-in account verifier and
// bank-check library behind them, and the biller dialog's e-mail and web-site checks. Checks of
// several arguments take the input cut into fields at each 0x1F byte.
#include <cstdint>
#include <string>

#include "dialogs/biller/web_address_checks.h"
#include "fuzz_input.h"
#include "validation/account_prechecks.h"
#include "validation/random.h"
#include "validation/text.h"
#include "verifier/bank_rules.h"
#include "verifier/builtin_account_verifier.h"
#include "verifier/builtin_bank_check_library.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  auto& fuzz = fuzz::SharedContext();
  Context& ctx = *fuzz.ctx;
  // The whole input as one text.
  const std::string_view text = fuzz::AsText(data, size);
  const std::string cleansed = validation::CleanseCharacters(text);
  fuzz::Require(cleansed.size() <= text.size(), "cleansing never adds");
  for (const char c : cleansed) {
    const auto code = static_cast<unsigned char>(c);
    fuzz::Require(code == 32 || code == 33 || (code >= 35 && code <= 125), "kept code");
  }

  // The first byte picks a length, negative ones included.
  const int pad = size > 0 ? static_cast<int8_t>(data[0]) : 0;
  const std::string left = validation::PadLeft(text, pad);
  const std::string right = validation::PadRight(text, pad);
  const size_t want = pad > 0 ? static_cast<size_t>(pad) : 0;
  fuzz::Require(validation::CharacterCount(left) == want, "PadLeft length");
  fuzz::Require(validation::CharacterCount(right) == want, "PadRight length");

  validation::IsAlpha(text);
  const std::string_view trimmed = validation::TrimBlanks(text);
  fuzz::Require(trimmed.empty() || (trimmed.front() != ' ' && trimmed.back() != ' '), "trim");

  // The address rules take two fields: the provinces' postal string and the text looked up.
  const auto fields = fuzz::Fields(text, 2);
  ctx.store.Provpostalstr = std::string(fields[0]);
  Random random(ctx);
  // Any province string, code and street are looked up without a fault; the answers are truth
  // values by construction.
  random.lookupProvince(fields[1]);
  random.LookupPostcode(fields[1]);
  random.Has_PO_Box_Address(fields[1]);
  fuzz::Require(fuzz.boxes->shown.empty(), "no error reported");

  // The bank checks take three fields (bank id, transit, account); the business number the whole
  // input: a numeric text holds no blank, so the account check behind it never shows its blank
  // message.
  const auto f = fuzz::Fields(text, 3);
  random.VerifyBusinessNumber(text);
  fuzz::Require(fuzz.boxes->shown.empty(), "no message box for a business number");

  std::string message;
  const int16_t verified = random.VerifyAccount(f[0], f[1], message);
  fuzz::Require(verified >= 0 && verified <= 3, "account result code");
  // Only a blank in the account shows a box; nothing is ever reported as an error.
  for (const auto& shown : fuzz.boxes->shown) {
    fuzz::Require(shown.text == validation::kBlankInAccountMessage, "only the blank message");
  }

  int16_t length = 0;
  const int16_t id = random.ValidateBankId(f[0], message, length);
  fuzz::Require(id >= 0 && id <= 3, "bank id result code");
  fuzz::Require(id == 1 || !message.empty(), "a refusal explains itself");
  const int16_t account = random.ValidateBankAccount(f[0], f[1], f[2], message, length);
  fuzz::Require(account >= 0 && account <= 2, "bank account result code");

  // The routing number, for a domestic and a US biller: a truth value by construction.
  for (const char* mode : {"U", " "}) {
    ctx.store.WhatKindOfBiller = mode;
    random.ValidateABANumber(f[1]);
  }

  // The verifier itself: its message and the length it reports agree with its result, also
  // with lengths other than the built-in ones.
  verifier::BuiltinAccountVerifier account_verifier;
  int16_t second = 0;
  int16_t result = -1;
  account_verifier.ValidateBankId(f[0], false, message, length, result);
  fuzz::Require(result == 0 || result == 1 || result == 3, "bank id code");
  fuzz::Require((result == 1) == message.empty(), "bank id message");
  fuzz::Require(static_cast<size_t>(length) == message.size(), "message length");
  account_verifier.ValidateBankAccount(f[0], f[1], f[2], message, length, false, result);
  fuzz::Require(result >= 0 && result <= 2, "account code");
  fuzz::Require((result == 0) == !message.empty(), "account message");
  account_verifier.put_BankIdLength(6);
  account_verifier.put_AccountLength(30);
  account_verifier.VerifyAccount(f[0], f[2], false, message, second, result);
  fuzz::Require(result >= 0 && result <= 2 && second >= 0, "verification codes");

  verifier::BuiltinBankCheckLibrary library;
  fuzz::Require(library.Check_bank_id(f[0]) == verifier::CheckBankId(f[0]).result,
                "library agrees on the bank id");
  std::string buffer(256, ' ');
  int32_t written = -1;
  library.Check_bank_account2(f[0], f[1], f[2], buffer, written, false);
  fuzz::Require(buffer.size() == 256 && written >= 0 && written <= 256, "buffer kept");

  // The e-mail and web-site checks explain each refusal, and only a refusal.
  for (const bool allow_empty : {false, true}) {
    message.clear();
    const bool accepted = ValidateEmailAddress(ctx, text, message, allow_empty);
    fuzz::Require(accepted == message.empty(), "message only on refusal");
  }
  message.clear();
  const bool site = ValidateWebsite(ctx, text, message);
  fuzz::Require(site == message.empty(), "website message only on refusal");
  IsEmailValid(ctx, text);
  return 0;
}
