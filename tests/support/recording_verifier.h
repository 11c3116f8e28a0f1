#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/account_verifier.h"
#include "platform/runtime_error.h"

namespace nvrandom::testing {

// What the verifiers of one factory were told and are to answer.
struct VerifierScript {
  std::vector<std::string> calls;  // "put_DataPath /data", "VerifyAccount [   001|...]"
  int16_t result = 1;
  std::string message;
  std::string handed_out_search_id = "NEW-ID";
  int created = 0;
};

// Records every member call in order and answers from the script.
class RecordingVerifier final : public AccountVerifier {
 public:
  explicit RecordingVerifier(VerifierScript& script) : s_(script) {}
  void put_PlayByPlay(bool v) override { Log("put_PlayByPlay", v ? "true" : "false"); }
  void put_BusinessPIN(const std::string& v) override { Log("put_BusinessPIN", v); }
  std::string get_BillerSearchID() override {
    Log("get_BillerSearchID", "");
    return s_.handed_out_search_id;
  }
  void put_BillerSearchID(const std::string& v) override { Log("put_BillerSearchID", v); }
  void put_AccessNumber(const std::string& v) override { Log("put_AccessNumber", v); }
  void put_ProgramVersion(const std::string& v) override { Log("put_ProgramVersion", v); }
  void put_BillerSearchURL(const std::string& v) override { Log("put_BillerSearchURL", v); }
  void put_SessionNumber(const std::string& v) override { Log("put_SessionNumber", v); }
  void put_DataPath(const std::string& v) override { Log("put_DataPath", v); }
  void VerifyAccount(std::string_view bank_id, std::string_view account, bool flag,
                     std::string& error_message, int16_t& second_result, int16_t& result) override {
    Log("VerifyAccount", "[" + std::string(bank_id) + "|" + std::string(account) + "|" +
                             (flag ? "true" : "false") + "]");
    error_message = s_.message;
    second_result = 0;
    result = s_.result;
  }
  void put_RequestSourceCode(const std::string& v) override { Log("put_RequestSourceCode", v); }
  void put_BankIdLength(int16_t v) override { Log("put_BankIdLength", std::to_string(v)); }
  void put_AccountLength(int16_t v) override { Log("put_AccountLength", std::to_string(v)); }
  void ValidateBankId(std::string_view bank_id, bool, std::string& error_message,
                      int16_t& error_length, int16_t& result) override {
    Log("ValidateBankId", "[" + std::string(bank_id) + "]");
    error_message = s_.message;
    error_length = static_cast<int16_t>(s_.message.size());
    result = s_.result;
  }
  void ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                           std::string_view account, std::string& error_message,
                           int16_t& error_length, bool, int16_t& result) override {
    Log("ValidateBankAccount",
        "[" + std::string(bank_id) + "|" + std::string(transit) + "|" + std::string(account) + "]");
    error_message = s_.message;
    error_length = static_cast<int16_t>(s_.message.size());
    result = s_.result;
  }

 private:
  void Log(const std::string& member, const std::string& value) {
    s_.calls.push_back(value.empty() ? member : member + " " + value);
  }
  VerifierScript& s_;
};

class RecordingVerifierFactory final : public AccountVerifierFactory {
 public:
  explicit RecordingVerifierFactory(VerifierScript& script) : s_(script) {}
  std::unique_ptr<AccountVerifier> Create() override {
    ++s_.created;
    return std::make_unique<RecordingVerifier>(s_);
  }

 private:
  VerifierScript& s_;
};

// A verifier that is not installed.
class MissingVerifierFactory final : public AccountVerifierFactory {
 public:
  std::unique_ptr<AccountVerifier> Create() override {
    throw RuntimeError(vb_error::kCannotCreateObject);
  }
};

}  // namespace nvrandom::testing
