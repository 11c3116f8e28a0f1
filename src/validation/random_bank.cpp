// Module Random: bank identification, account and routing-number checks.
#include "component/context.h"
#include "component/show_error.h"
#include "component/trace.h"
#include "platform/message_box.h"
#include "validation/account_prechecks.h"
#include "validation/error_trap.h"
#include "validation/random.h"
#include "validation/routing_number.h"
#include "validation/text.h"
#include "validation/verifier_session.h"

namespace nvrandom {

namespace {
constexpr int16_t kBankIdLength = 6;
constexpr int16_t kAccountLength = 30;
constexpr int16_t kVerifierValid = 1;
constexpr int16_t kNoBankId = 2;
constexpr std::string_view kInvalidBankId = "Invalid bank id";
constexpr std::string_view kInvalidBankAccount = "Invalid bank account";
}  // namespace

int16_t Random::VerifyAccount(std::string_view bank_id, std::string_view account,
                              std::string& error_message, bool flag) {
  TraceEntry(ctx_, "Random - VerifyAccount");
  int16_t result = 0;
  try {
    switch (validation::FindAccountFault(account)) {
      case validation::AccountFault::kContainsBlank:
        ctx_.services.message_box->Show(validation::kBlankInAccountMessage,
                                        msgbox::kOKOnly | msgbox::kCritical, kApplicationTitle);
        return 0;
      case validation::AccountFault::kTooShort:
        error_message = validation::kShortAccountMessage;
        return 0;
      case validation::AccountFault::kInvalidCharacters:
        error_message = validation::kInvalidAccountCharactersMessage;
        return 0;
      case validation::AccountFault::kNone:
        break;
    }
    // Padded through the module's own procedures, so that their trace lines follow this one.
    const std::string padded_bank_id =
        PadLeft(validation::AccountCheckBankId(bank_id, kBankIdLength), kBankIdLength);
    const std::string padded_account = PadRight(account, kAccountLength);
    if (validation::TrimBlanks(padded_bank_id).empty()) return kNoBankId;

    auto verifier = validation::NewVerifier(ctx_);
    verifier->put_BankIdLength(kBankIdLength);
    verifier->put_AccountLength(kAccountLength);
    int16_t second_result = 0;
    verifier->VerifyAccount(padded_bank_id, padded_account, flag, error_message, second_result,
                            result);
  } catch (...) {
    // The verifier is a separate component: its failures are reported here, not raised.
    validation::ReportTrappedError(ctx_, "Random.VerifyAccount");
  }
  return result;
}

int16_t Random::ValidateBankId(std::string_view bank_id, std::string& error_message,
                               int16_t& error_length, bool flag) {
  TraceEntry(ctx_, "Random - ValidateBankId");
  int16_t result = 0;
  try {
    error_message.clear();
    if (validation::TrimBlanks(bank_id).empty()) {
      error_message = kInvalidBankId;
      error_length = static_cast<int16_t>(kInvalidBankId.size());
      return 0;
    }
    auto verifier = validation::NewVerifier(ctx_);
    verifier->ValidateBankId(bank_id, flag, error_message, error_length, result);
    // The service may hand out a new search id with a valid answer.
    if (result == kVerifierValid) ctx_.store.BillerSearchNorvikID = verifier->get_BillerSearchID();
  } catch (...) {
    validation::ReportTrappedError(ctx_, "Random.ValidateBankId");
  }
  return result;
}

int16_t Random::ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                                    std::string_view account, std::string& error_message,
                                    int16_t& error_length, bool flag) {
  TraceEntry(ctx_, "Random - ValidateBankAccount");
  int16_t result = 0;
  try {
    error_message.clear();
    if (validation::TrimBlanks(bank_id).empty() || validation::TrimBlanks(transit).empty() ||
        validation::TrimBlanks(account).empty()) {
      error_message = kInvalidBankAccount;
      error_length = static_cast<int16_t>(kInvalidBankAccount.size());
      return 0;
    }
    auto verifier = validation::NewVerifier(ctx_);
    verifier->ValidateBankAccount(bank_id, transit, account, error_message, error_length, flag,
                                  result);
    if (result == kVerifierValid) ctx_.store.BillerSearchNorvikID = verifier->get_BillerSearchID();
  } catch (...) {
    validation::ReportTrappedError(ctx_, "Random.ValidateBankAccount");
  }
  return result;
}

int16_t Random::ValidateABANumber(std::string_view number) {
  TraceEntry(ctx_, "Random - ValidateABANumber");
  // Only US billers are held to the Federal Reserve prefixes.
  if (ctx_.store.WhatKindOfBiller != " ") {
    const std::string_view prefix = validation::LeftCharacters(number, 2);
    if (validation::CharacterCount(validation::TrimBlanks(prefix)) < 2) return kFalse;
    if (!ctx_.services.regex->Test(validation::kRoutingPrefixPattern, prefix, true)) {
      return kFalse;
    }
  }
  return validation::RoutingChecksumValid(validation::TrimBlanks(number)) ? kTrue : kFalse;
}

}  // namespace nvrandom
