// The biller dialog under a monkey: opened in one of its four layouts (domestic business,
// domestic individual, US, foreign currency), then driven by the input as a person would drive
// it, its record changed only with CSBOK.
#include <cstddef>
#include <cstdint>

#include "biller_monkey.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  nvrandom::fuzz::FuzzContext& fc = nvrandom::fuzz::SharedContext();
  nvrandom::fuzz::ByteReader in(data, size);
  nvrandom::fuzz::RunBillerMonkey(*fc.ctx, *fc.boxes, in, 64);
  return 0;
}
