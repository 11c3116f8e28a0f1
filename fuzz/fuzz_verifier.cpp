// The built-in account verifier and bank-check library on arbitrary fields.
#include <cstdint>
#include <string>

#include "fuzz_input.h"
#include "verifier/bank_rules.h"
#include "verifier/builtin_account_verifier.h"
#include "verifier/builtin_bank_check_library.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  const auto f = fuzz::Fields(fuzz::AsText(data, size), 3);
  verifier::BuiltinAccountVerifier account_verifier;
  std::string message;
  int16_t second = 0;
  int16_t length = 0;
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
  const int16_t id = library.Check_bank_id(f[0]);
  fuzz::Require(id == verifier::CheckBankId(f[0]).result, "library agrees on the bank id");
  std::string buffer(256, ' ');
  int32_t written = -1;
  library.Check_bank_account2(f[0], f[1], f[2], buffer, written, false);
  fuzz::Require(buffer.size() == 256 && written >= 0 && written <= 256, "buffer kept");
  return 0;
}
