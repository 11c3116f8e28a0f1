#pragma once

#include <memory>
#include <string>

#include "platform/account_verifier.h"

namespace nvrandom::verifier {

// The account verifier that ships with the component, for installations without one of their
// own. It cannot ask an institution, so it decides by the rules of the institution table: a
// well-formed bank account answers 2 (to be confirmed by re-keying), a verified business-number
// account 1, a well-formed but unknown bank id 3 (doubtful). Session values are kept as given;
// the trace flag is not used.
class BuiltinAccountVerifier final : public AccountVerifier {
 public:
  void put_PlayByPlay(bool value) override { play_by_play_ = value; }
  void put_BusinessPIN(const std::string& value) override { business_pin_ = value; }
  std::string get_BillerSearchID() override { return biller_search_id_; }
  void put_BillerSearchID(const std::string& value) override { biller_search_id_ = value; }
  void put_AccessNumber(const std::string& value) override { access_number_ = value; }
  void put_ProgramVersion(const std::string& value) override { program_version_ = value; }
  void put_BillerSearchURL(const std::string& value) override { biller_search_url_ = value; }
  void put_SessionNumber(const std::string& value) override { session_number_ = value; }
  void put_DataPath(const std::string& value) override { data_path_ = value; }
  // Reads the first BankIdLength characters of the bank id and AccountLength of the account
  // (all of them while the lengths are unset). The second result is the institution number
  // read from the bank id (1003 for the business-number registry), 0 when it is malformed.
  void VerifyAccount(std::string_view bank_id, std::string_view account, bool flag,
                     std::string& error_message, int16_t& second_result, int16_t& result) override;
  void put_RequestSourceCode(const std::string& value) override { request_source_code_ = value; }
  void put_BankIdLength(int16_t value) override { bank_id_length_ = value; }
  void put_AccountLength(int16_t value) override { account_length_ = value; }
  void ValidateBankId(std::string_view bank_id, bool flag, std::string& error_message,
                      int16_t& error_length, int16_t& result) override;
  void ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                           std::string_view account, std::string& error_message,
                           int16_t& error_length, bool flag, int16_t& result) override;

 private:
  bool play_by_play_ = false;
  std::string business_pin_;
  std::string biller_search_id_;
  std::string access_number_;
  std::string program_version_;
  std::string biller_search_url_;
  std::string session_number_;
  std::string data_path_;
  std::string request_source_code_;
  int16_t bank_id_length_ = 0;
  int16_t account_length_ = 0;
};

class BuiltinAccountVerifierFactory final : public AccountVerifierFactory {
 public:
  std::unique_ptr<AccountVerifier> Create() override {
    return std::make_unique<BuiltinAccountVerifier>();
  }
};

}  // namespace nvrandom::verifier
