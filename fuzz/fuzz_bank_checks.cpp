// Module Random's bank checks, through the built-in verifier.
#include <cstdint>
#include <string>

#include "fuzz_input.h"
#include "validation/account_prechecks.h"
#include "validation/random.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace nvrandom;
  auto& fuzz = fuzz::SharedContext();
  const auto f = fuzz::Fields(fuzz::AsText(data, size), 3);
  Random random(*fuzz.ctx);

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

  for (const char* mode : {" ", "U"}) {
    fuzz.ctx->store.WhatKindOfBiller = mode;
    const int16_t aba = random.ValidateABANumber(f[1]);
    fuzz::Require(aba == kTrue || aba == kFalse, "routing truth value");
  }
  return 0;
}
