#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nvrandom {

// The host installation's bank-check library, used instead of the account verifier when the
// host asks for it. Texts are 8-bit.
class BankCheckLibrary {
 public:
  virtual ~BankCheckLibrary() = default;

  // 0 when the institution number is not valid; any other value when it is.
  virtual int16_t Check_bank_id(std::string_view bank_id) = 0;

  // The account counterpart, read like the verifier's account check: 1 valid and confirmed,
  // 2 well-formed but to be confirmed by re-keying, any other value refused.
  // `message` is the caller's buffer (its size is the room there is, usually 256 blanks): the
  // library writes its message at the start, cut to the buffer, and leaves the rest as it was;
  // `message_length` receives the length of the message written. `flag` is reserved and passed
  // as false.
  virtual int16_t Check_bank_account2(std::string_view bank_id, std::string_view transit,
                                      std::string_view account, std::string& message,
                                      int32_t& message_length, bool flag) = 0;
};

}  // namespace nvrandom
