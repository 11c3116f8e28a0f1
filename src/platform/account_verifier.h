#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace nvrandom {

// The bank id under which business numbers are verified as accounts: the business-number
// registry, which the checks ask and every verifier knows.
inline constexpr std::string_view kBusinessNumberBankId = "001003";

// The host installation's account-verification object, as the bank and business-number checks
// use it: one object per check, given the session's values and then asked one question. Members
// are declared in the order of the object's interface slots. Every result is written through the
// last argument; 1 means valid, the other values are the verifier's own. Integers are the
// platform's 16-bit integers. A member may raise RuntimeError.
class AccountVerifier {
 public:
  virtual ~AccountVerifier() = default;

  virtual void put_PlayByPlay(bool value) = 0;
  virtual void put_BusinessPIN(const std::string& value) = 0;
  virtual std::string get_BillerSearchID() = 0;
  virtual void put_BillerSearchID(const std::string& value) = 0;
  virtual void put_AccessNumber(const std::string& value) = 0;
  virtual void put_ProgramVersion(const std::string& value) = 0;
  virtual void put_BillerSearchURL(const std::string& value) = 0;
  virtual void put_SessionNumber(const std::string& value) = 0;
  virtual void put_DataPath(const std::string& value) = 0;
  // `bank_id` has BankIdLength characters and `account` AccountLength, blank-padded.
  virtual void VerifyAccount(std::string_view bank_id, std::string_view account, bool flag,
                             std::string& error_message, int16_t& second_result,
                             int16_t& result) = 0;
  virtual void put_RequestSourceCode(const std::string& value) = 0;
  virtual void put_BankIdLength(int16_t value) = 0;
  virtual void put_AccountLength(int16_t value) = 0;
  virtual void ValidateBankId(std::string_view bank_id, bool flag, std::string& error_message,
                              int16_t& error_length, int16_t& result) = 0;
  virtual void ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                                   std::string_view account, std::string& error_message,
                                   int16_t& error_length, bool flag, int16_t& result) = 0;
};

// Creates a fresh verifier for each check. Raises RuntimeError (429, "can't create object")
// when the verifier is not installed.
class AccountVerifierFactory {
 public:
  virtual ~AccountVerifierFactory() = default;
  virtual std::unique_ptr<AccountVerifier> Create() = 0;
};

}  // namespace nvrandom
