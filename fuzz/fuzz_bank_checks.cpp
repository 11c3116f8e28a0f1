// Module Random's bank and business number checks, and the built-in account verifier and
// bank-check library behind them, on arbitrary fields.
#include <cstdint>
#include <string>

#include "fuzz_input.h"
#include "validation/account_prechecks.h"
#include "validation/random.h"
#include "verifier/bank_rules.h"
#include "verifier/builtin_account_verifier.h"
#include "verifier/builtin_bank_check_library.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  auto& fuzz = fuzz::SharedContext();
  const std::string_view text = fuzz::AsText(data, size);
  const auto f = fuzz::Fields(text, 3);
  Random random(*fuzz.ctx);

  // The business number, the whole input: a numeric text holds no blank, so the account check
  // behind it never shows its blank message.
  random.VerifyBusinessNumber(text);
  fuzz::Require(fuzz.boxes->shown.empty(), "no message box for a business number");

  std::string message;
  const int16_t verified = random.VerifyAccount(f[0], f[1], message);
  fuzz::Require(verified >= 0 && verified <= 3, "account result code");
  // Only a blank in the account shows a box; nothing is ever reported as an error.
  for (const auto& box : fuzz.boxes->shown) {
    fuzz::Require(box.text == validation::kBlankInAccountMessage, "only the blank message");
  }

  int16_t length = 0;
  const int16_t id = random.ValidateBankId(f[0], message, length);
  fuzz::Require(id >= 0 && id <= 3, "bank id result code");
  fuzz::Require(id == 1 || !message.empty(), "a refusal explains itself");
  const int16_t account = random.ValidateBankAccount(f[0], f[1], f[2], message, length);
  fuzz::Require(account >= 0 && account <= 2, "bank account result code");

  // The routing number, for a domestic and a US biller: a truth value by construction.
  for (const char* mode : {" ", "U"}) {
    fuzz.ctx->store.WhatKindOfBiller = mode;
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
  return 0;
}
