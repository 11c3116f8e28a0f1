// frmRandomInfo: accepting the biller. One fixed chain of checks; the first that fails puts the
// focus on its control (and usually selects its text), may explain, and leaves the dialog open.
#include <algorithm>
#include <string>
#include <string_view>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_codes.h"
#include "dialogs/biller/random_info_events.h"
#include "dialogs/biller/random_info_texts.h"
#include "dialogs/biller/web_address_checks.h"
#include "forms/application.h"
#include "forms/control.h"
#include "platform/ascii.h"
#include "platform/bank_check_library.h"
#include "platform/message_box.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

using validation::CharacterCount;
using validation::TrimBlanks;
namespace text = random_info_text;

constexpr int32_t kAcceptedUnchanged = 50000;
constexpr int kInformationBox = msgbox::kOKOnly | msgbox::kInformation;

std::string Trimmed(const forms::Control& control) {
  return std::string(TrimBlanks(control.Text()));
}

size_t Length(std::string_view text) {
  return CharacterCount(text);
}

bool AllZeros(std::string_view text) {
  return validation::ConsistsOf(text, '0');
}

bool StartsWithAny(std::string_view text, std::string_view firsts) {
  return !text.empty() && firsts.find(text.front()) != std::string_view::npos;
}

// Area codes and numbers no North-American telephone has.
bool ImpossibleArea(std::string_view area) {
  return area == "000" || StartsWithAny(area, "01");
}
bool ImpossibleNumber(std::string_view number) {
  return number == "0000000" || StartsWithAny(number, "01");
}

bool UsableItself(const forms::Control& control) {
  return control.Visible() || control.Enabled();
}

bool MatchesPattern(std::string_view text, std::string_view pattern) {
  // Each character of `pattern` is 'A' (a capital letter) or '9' (a digit).
  if (text.size() != pattern.size()) return false;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool ok = pattern[i] == 'A' ? ascii::IsUpper(text[i]) : ascii::IsDigit(text[i]);
    if (!ok) return false;
  }
  return true;
}

bool IsUSState(std::string_view code) {
  const auto& states = random_info_codes::kUSStates;
  return std::find(states.begin(), states.end(), code) != states.end();
}

}  // namespace

void frmRandomInfo::SelectAll(std::string_view name) {
  forms::Control& control = Ctl(name);
  control.SetSelection(0, static_cast<int>(Length(control.Text())));
  app().SetFocus(control);
}

void frmRandomInfo::cmd_ok_Click() {
  RunProcedure("cmd_ok_Click", [&] {
    std::string business_number;
    if (!AcceptanceChecks(business_number)) return;
    CopyIntoRecord(business_number);
    if (events_ != nullptr) events_->CSBOK();
    Unload(forms::unload_mode::kCode);
  });
}

bool frmRandomInfo::AcceptanceChecks(std::string& business_number) {
  const ComponentStore& s = ctx_.store;
  // A domestic biller that is not a business skips the address, telephone and bank-id checks.
  const bool gate = s.WhatKindOfBiller == " " && s.PayeeIndBusnTag != "2";
  if (!gate) {
    if (!CheckAddress() || !CheckTelephone() || !CheckFax() ||
        !CheckContactDetails(business_number) || !CheckCanadianBankFields()) {
      return false;
    }
  }
  if (business_number.empty() && Ctl("optCBusiness").Value() != 0 &&
      Ctl("chkBNNotAvailable").Value() == 0) {
    business_number = Trimmed(Ctl("txtBusinessNum"));
  }
  if (business_number.empty()) business_number = std::string(9, ' ');
  if (!CheckRoutingNumberDetails() || !CheckIndividual() || !CheckForeignBank() ||
      !CheckCanadianBankAccount()) {
    return false;
  }
  const std::string currency = Trimmed(Ctl("cmbCurrencyCode"));
  if (s.Add != 0 && !currency.empty() && FXCurrencyExists(currency)) {
    Message(text::kDuplicateCurrency, kInformationBox);
    app().SetFocus(Ctl("cmbCurrencyCode"));
    return false;
  }
  return true;
}

bool frmRandomInfo::CheckAddress() {
  Random random(ctx_);
  // Street and city: required, within their length, alphabetic and more than one character.
  struct Line {
    const char* name;
    size_t limit;
    const char* invalid;
  };
  const Line street_line{"ran_payee_street", 60, text::kInvalidStreet};
  const Line city_line{"ran_payee_city", 20, text::kInvalidCity};
  auto check_line = [&](const Line& line) {
    forms::Control& field = Ctl(line.name);
    const std::string trimmed = Trimmed(field);
    if (trimmed.empty()) {
      field.SetText("");
      app().SetFocus(field);
      return false;
    }
    if (Length(field.Text()) > line.limit) {
      SelectAll(line.name);
      return false;
    }
    if (random.IsAlpha(trimmed) == kFalse || Length(trimmed) < 2) {
      Message(line.invalid, kInformationBox);
      app().SetFocus(field);
      return false;
    }
    return true;
  };

  if (!check_line(street_line)) return false;
  const std::string currency = Trimmed(Ctl("cmbCurrencyCode"));
  const bool foreign_payment =
      !currency.empty() && currency != "CAD" && ctx_.store.InternationalPayment != 0;
  if ((foreign_payment || USMode()) &&
      random.Has_PO_Box_Address(Ctl("ran_payee_street").Text()) != 0) {
    Message(text::kPostOfficeBox, kInformationBox);
    app().SetFocus(Ctl("ran_payee_street"));
    return false;
  }
  if (!check_line(city_line)) return false;

  forms::Control& country_list = Ctl("ran_payee_country");
  const std::string country = Trimmed(country_list);
  if (country.empty()) {
    app().SetFocus(country_list);
    return false;
  }
  if (Length(country_list.Text()) != 2) {
    SelectAll("ran_payee_country");
    return false;
  }

  forms::Control& province = Ctl("ran_payee_prov");
  const bool canada = country == "CA" || country == "CAN";
  const bool usa = country == "US" || country == "USA";
  if (canada || usa) {
    const std::string prov = Trimmed(province);
    if (prov.empty()) {
      province.SetListIndex(-1);
      app().SetFocus(province);
      return false;
    }
    const bool known =
        canada ? random.lookupProvince(province.Text()) != kFalse : IsUSState(province.Text());
    if (Length(province.Text()) != 2 || !known) {
      app().SetFocus(province);
      return false;
    }
  }

  forms::Control& postal_box = Ctl("ran_payee_postal");
  const std::string postal = Trimmed(postal_box);
  if (postal.empty()) {
    postal_box.SetText("");
    app().SetFocus(postal_box);
    return false;
  }
  bool valid = Length(postal_box.Text()) <= 9;
  if (valid && canada) {
    valid = MatchesPattern(postal, "A9A9A9") &&
            random.LookupPostcode(province.Text() + postal.substr(0, 1)) != kFalse;
  } else if (valid && usa) {
    valid = MatchesPattern(postal, "999999999") || MatchesPattern(postal, "99999");
  }
  if (!valid) {
    SelectAll("ran_payee_postal");
    return false;
  }

  if (validation::LeftCharacters(country, 2) != "CA" && Trimmed(Ctl("cmbCurrencyCode")).empty()) {
    app().SetFocus(Ctl("cmbCurrencyCode"));
    return false;
  }
  return true;
}

bool frmRandomInfo::CheckTelephone() {
  forms::Control& phone_code = Ctl("txtPhoneCountryCode");
  if (Trimmed(phone_code).empty()) {
    app().SetFocus(phone_code);
    return false;
  }
  forms::Control& inter_phone = Ctl("ran_Inter_payee_phone");
  if (UsableItself(inter_phone) && Trimmed(inter_phone).empty()) {
    inter_phone.SetText("");
    app().SetFocus(inter_phone);
    return false;
  }
  forms::Control& area = Ctl("ran_payee_ph_area");
  forms::Control& number = Ctl("ran_payee_phone");
  const std::string country = Ctl("ran_payee_country").Text();
  if (country == "US" || country == "CA") {
    if (Trimmed(area).empty()) {
      area.SetText("");
      app().SetFocus(area);
      return false;
    }
    if (Length(Trimmed(area)) != 3) {
      SelectAll("ran_payee_ph_area");
      return false;
    }
    if (UsableItself(number)) {
      if (Trimmed(number).empty()) {
        number.SetText("");
        app().SetFocus(number);
        return false;
      }
      if (Length(Trimmed(number)) != 7) {
        SelectAll("ran_payee_phone");
        return false;
      }
    }
    if (ImpossibleArea(Trimmed(area))) {
      SelectAll("ran_payee_ph_area");
      return false;
    }
    if (ImpossibleNumber(Trimmed(number))) {
      SelectAll("ran_payee_phone");
      return false;
    }
  }
  if (Length(area.Text()) + Length(number.Text()) > 14) {
    Message(text::kPhoneTooLong, kInformationBox);
    app().SetFocus(area);
    return false;
  }
  return true;
}

bool frmRandomInfo::CheckFax() {
  forms::Control& email = Ctl("ran_payee_email");
  forms::Control& fax_area = Ctl("ran_payee_fax_area");
  forms::Control& fax_number = Ctl("ran_payee_faxnumber");
  forms::Control& fax_code = Ctl("txtFaxCountryCode");
  if (ctx_.store.WhatKindOfBiller == " " && Trimmed(email).empty() && Trimmed(fax_area).empty() &&
      Trimmed(fax_number).empty()) {
    Message(text::kEmailOrFax, kInformationBox);
    email.SetText("");
    app().SetFocus(email);
    return false;
  }
  const std::string country = Ctl("ran_payee_country").Text();
  const bool north_american = country == "US" || country == "CA";
  forms::Control& inter_fax = Ctl("ran_inter_payee_faxnumber");
  if (UsableItself(inter_fax)) {
    if (!Trimmed(inter_fax).empty() && Trimmed(fax_code).empty()) {
      app().SetFocus(fax_code);
      return false;
    }
  } else if (!Trimmed(fax_area).empty()) {
    if (Trimmed(fax_code).empty()) {
      app().SetFocus(fax_code);
      return false;
    }
    if (north_american) {
      if (Length(Trimmed(fax_area)) != 3) {
        SelectAll("ran_payee_fax_area");
        return false;
      }
      if (UsableItself(fax_number) && Trimmed(fax_number).empty()) {
        SelectAll("ran_payee_faxnumber");
        return false;
      }
      if (ImpossibleArea(Trimmed(fax_area))) {
        SelectAll("ran_payee_fax_area");
        return false;
      }
      if (ImpossibleNumber(Trimmed(fax_number))) {
        SelectAll("ran_payee_faxnumber");
        return false;
      }
    }
  }
  const std::string number = Trimmed(fax_number);
  if (!number.empty() && Length(number) != 7 && north_american) {
    SelectAll("ran_payee_faxnumber");
    return false;
  }
  if (UsableItself(fax_number)) {
    if (!number.empty() && Trimmed(fax_area).empty()) {
      SelectAll("ran_payee_fax_area");
      return false;
    }
    if (Length(fax_area.Text()) + Length(fax_number.Text()) > 14) {
      Message(text::kFaxTooLong, kInformationBox);
      app().SetFocus(fax_area);
      return false;
    }
  }
  return true;
}

bool frmRandomInfo::CheckContactDetails(std::string& business_number) {
  forms::Control& email = Ctl("ran_payee_email");
  email.SetText(Trimmed(email));
  if (!email.Text().empty()) {
    std::string message;
    const bool valid = ValidateEmailAddress(ctx_, email.Text(), message, false);
    if (!valid || Length(email.Text()) > 50) {
      // An address too long for the record but well-formed has nothing to explain.
      if (!valid) ctx_.services.message_box->Show(message, kInformationBox, text::kEmailCaption);
      SelectAll("ran_payee_email");
      return false;
    }
  }
  if (Trimmed(Ctl("txtBankID")).empty() && Trimmed(Ctl("txtTransit")).empty() &&
      Trimmed(Ctl("txtAccount")).empty() && Trimmed(email).empty() &&
      Trimmed(Ctl("ran_payee_faxnumber")).empty()) {
    Message(text::kEmailOrFax, kInformationBox);
    app().SetFocus(email);
    return false;
  }
  forms::Control& web = Ctl("ran_payee_www");
  if (Trimmed(web).empty()) {
    web.SetText("");
  } else {
    std::string message;
    const bool valid = ValidateWebsite(ctx_, web.Text(), message);
    if (!valid || Length(web.Text()) > 50) {
      if (!valid) ctx_.services.message_box->Show(message, kInformationBox, text::kWebsiteCaption);
      SelectAll("ran_payee_www");
      return false;
    }
  }
  forms::Control& contact = Ctl("ran_payee_contact");
  if (Trimmed(contact).empty()) {
    contact.SetText("");
  } else if (Length(contact.Text()) > 40) {
    SelectAll("ran_payee_contact");
    return false;
  }
  if (Trimmed(Ctl("cmbCurrencyCode")) != "CAD" && Trimmed(email).empty()) {
    Message(USMode() ? std::string(text::kEmailForCurrencyStart) + ctx_.store.CurrencyCodeFromMain +
                           text::kEmailForCurrencyEnd
                     : std::string(text::kEmailForInternational),
            kInformationBox);
    app().SetFocus(email);
    return false;
  }
  forms::Control& business = Ctl("optCBusiness");
  if (business.Value() == 0 && Ctl("optCIndividual").Value() == 0) {
    app().SetFocus(business);
    return false;
  }
  if (business.Value() != 0 && Ctl("chkBNNotAvailable").Value() == 0) {
    forms::Control& number = Ctl("txtBusinessNum");
    const std::string trimmed = Trimmed(number);
    if (trimmed.empty() || AllZeros(trimmed) ||
        Random(ctx_).VerifyBusinessNumber(trimmed) == kFalse) {
      app().SetFocus(number);
      return false;
    }
    business_number = trimmed;
  } else {
    business_number = std::string(9, ' ');
  }
  return true;
}

bool frmRandomInfo::CheckCanadianBankFields() {
  // Foreign-currency billers are paid through their foreign bank details instead.
  if (foreign_currency_) return true;
  forms::Control& bank_id = Ctl("txtBankID");
  bank_id.SetText(Trimmed(bank_id));
  if (!bank_id.Text().empty()) {
    if (AllZeros(bank_id.Text())) {
      SelectAll("txtBankID");
      return false;
    }
    // The verifier answers 1 valid, 0 refused (with its reason) and anything else doubtful;
    // the bank-check library only valid or not, which is asked about like a doubtful id.
    int16_t result = 0;
    std::string message;
    if (ctx_.store.UseAcctvfy != 0) {
      result = ctx_.services.bank_checks->Check_bank_id(bank_id.Text()) != 0 ? 1 : 3;
    } else {
      int16_t length = 0;
      result = Random(ctx_).ValidateBankId(bank_id.Text(), message, length);
    }
    if (result == 0) {
      ctx_.services.message_box->Show(message, kInformationBox, text::kBankIdCaption);
      SelectAll("txtBankID");
      return false;
    }
    if (result != 1 && ctx_.services.message_box->Show(
                           text::kDoubtfulBankId, msgbox::kYesNo | msgbox::kInformation,
                           text::kDoubtfulBankIdCaption) != msgbox::kYes) {
      SelectAll("txtBankID");
      return false;
    }
  }
  forms::Control& transit = Ctl("txtTransit");
  transit.SetText(Trimmed(transit));
  if (!transit.Text().empty() && AllZeros(transit.Text())) {
    SelectAll("txtTransit");
    return false;
  }
  forms::Control& account = Ctl("txtAccount");
  account.SetText(Trimmed(account));
  const std::string& number = account.Text();
  if (!number.empty()) {
    if (Length(number) > 21 || AllZeros(number)) {
      SelectAll("txtAccount");
      return false;
    }
    if (number.find(' ') != std::string::npos) {
      Message(text::kAccountWithSpaces, kInformationBox);
      SelectAll("txtAccount");
      return false;
    }
  }
  return true;
}

bool frmRandomInfo::CheckRoutingNumberDetails() {
  if (!USMode()) return true;
  for (const char* name : {"txtBankName", "txtRoutingNumber", "txtBankAccountNumber"}) {
    forms::Control& field = Ctl(name);
    field.SetText(Trimmed(field));
  }
  for (const char* name : {"txtBankName", "txtRoutingNumber", "txtBankAccountNumber"}) {
    if (Ctl(name).Text().empty()) {
      Message(text::kBankInfoRequired, kInformationBox);
      app().SetFocus(Ctl(name));
      return false;
    }
  }
  for (const char* name : {"txtRoutingNumber", "txtBankAccountNumber"}) {
    if (AllZeros(Ctl(name).Text())) {
      SelectAll(name);
      return false;
    }
  }
  if (Random(ctx_).ValidateABANumber(Ctl("txtRoutingNumber").Text()) == kFalse) {
    SelectAll("txtRoutingNumber");
    return false;
  }
  forms::Control& confirmation = Ctl("txtConfirmBankAccountNumber");
  if (confirmation.Text().empty()) {
    Ctl("lblBankInfoConfirm").SetVisible(true);
    confirmation.SetVisible(true);
    Ctl("txtBankAccountNumber").SetPasswordChar("*");
    app().SetFocus(confirmation);
    return false;
  }
  if (Trimmed(confirmation) != Ctl("txtBankAccountNumber").Text()) {
    SelectAll("txtConfirmBankAccountNumber");
    return false;
  }
  return true;
}

bool frmRandomInfo::CheckIndividual() {
  if (ctx_.store.PayeeIndBusnTag != "1") return true;
  forms::Control& email = Ctl("ran_payee_email");
  if (Trimmed(email).empty()) {
    app().SetFocus(email);
    return false;
  }
  std::string message;
  if (!ValidateEmailAddress(ctx_, email.Text(), message, false) || Length(email.Text()) > 50) {
    if (!message.empty()) {
      ctx_.services.message_box->Show(message, kInformationBox, text::kEmailCaption);
    }
    SelectAll("ran_payee_email");
    return false;
  }
  if (ctx_.store.WhatKindOfBiller == " " && Trimmed(Ctl("txtBankID")).empty() &&
      Trimmed(Ctl("txtTransit")).empty() && Trimmed(Ctl("txtAccount")).empty()) {
    Message(text::kBankInfoForIndividuals, kInformationBox);
    app().SetFocus(Ctl("txtTransit"));
    return false;
  }
  return true;
}

bool frmRandomInfo::CheckForeignBank() {
  ComponentStore& s = ctx_.store;
  if (USMode()) {
    s.PayeeFXBankName = Trimmed(Ctl("txtBankName"));
    s.PayeeFXBankAccount = Trimmed(Ctl("txtBankAccountNumber"));
    s.PayeeFXBankSwift = Trimmed(Ctl("txtRoutingNumber"));
    if (s.PayeeFXBankCountry != "US") s.PayeeFXBankCountry = "US";
  }
  if (!foreign_currency_ || !s.PayeeFXBankAccount.empty()) return true;
  if (s.WhatKindOfBiller == " ") Message(text::kBankInfoForInternational, kInformationBox);
  forms::Control& button = Ctl("cmdFXBankingInfo");
  // Pressed as the person would press it, so that it opens the foreign bank details.
  if (button.Visible() && button.Enabled() && button.events.Click) button.events.Click();
  return false;
}

bool frmRandomInfo::CheckCanadianBankAccount() {
  forms::Control& bank_id = Ctl("txtBankID");
  forms::Control& transit = Ctl("txtTransit");
  forms::Control& account = Ctl("txtAccount");
  if (Trimmed(bank_id).empty() && Trimmed(transit).empty() && Trimmed(account).empty()) {
    return true;
  }
  for (const char* name : {"txtTransit", "txtBankID", "txtAccount"}) {
    const std::string value = Trimmed(Ctl(name));
    if (!value.empty() && AllZeros(value)) {
      SelectAll(name);
      return false;
    }
  }
  int16_t result = 0;
  std::string message;
  if (ctx_.store.UseAcctvfy != 0) {
    // The library writes its message into a buffer of 256 blanks.
    std::string buffer(256, ' ');
    int32_t length = 0;
    result = ctx_.services.bank_checks->Check_bank_account2(bank_id.Text(), transit.Text(),
                                                            account.Text(), buffer, length, false);
    message = buffer.substr(0, static_cast<size_t>(std::clamp<int32_t>(length, 0, 256)));
  } else {
    int16_t length = 0;
    result = Random(ctx_).ValidateBankAccount(Trimmed(bank_id), Trimmed(transit), Trimmed(account),
                                              message, length);
  }
  if (result == 1) return true;
  if (result != 2) {
    ctx_.services.message_box->Show(message, kInformationBox, text::kBankAccountCaption);
    app().SetFocus(account);
    return false;
  }
  return CheckRekeying();
}

bool frmRandomInfo::CheckRekeying() {
  forms::Control& bank_id = Ctl("txtBankID");
  forms::Control& transit = Ctl("txtTransit");
  forms::Control& account = Ctl("txtAccount");
  const BankTexts& at_setup = bank_texts_at_setup_;
  if (bank_id.Text() == at_setup.bank_id && transit.Text() == at_setup.transit &&
      account.Text() == at_setup.account) {
    return true;
  }
  forms::Control& transit_conf = Ctl("txtTransitConf");
  forms::Control& bank_id_conf = Ctl("txtBankIDConf");
  forms::Control& account_conf = Ctl("txtAccountConf");
  if (pending_account_.empty()) {
    pending_account_ = account.Text();
    ShowBankConfirmation();
    for (forms::Control* box : {&transit_conf, &bank_id_conf, &account_conf}) box->SetText("");
    app().SetFocus(transit_conf);
    return false;
  }
  if (Trimmed(transit_conf) == Trimmed(transit) && Trimmed(bank_id_conf) == Trimmed(bank_id) &&
      Trimmed(account_conf) == Trimmed(account)) {
    HideBankConfirmation();
    // Confirmed: nothing is pending any more.
    pending_account_.clear();
    return true;
  }
  ShowBankConfirmation();
  if (transit_conf.Text().empty() && bank_id_conf.Text().empty() && account_conf.Text().empty()) {
    app().SetFocus(transit_conf);
    return false;
  }
  for (forms::Control* box : {&transit_conf, &bank_id_conf, &account_conf}) {
    if (box->Text().empty()) {
      app().SetFocus(*box);
      return false;
    }
  }
  const std::pair<const char*, forms::Control*> pairs[] = {
      {"txtAccountConf", &account}, {"txtTransitConf", &transit}, {"txtBankIDConf", &bank_id}};
  for (const auto& [confirmation, original] : pairs) {
    if (Trimmed(Ctl(confirmation)) != Trimmed(*original)) {
      SelectAll(confirmation);
      return false;
    }
  }
  for (forms::Control* box : {&transit_conf, &bank_id_conf, &account_conf}) box->SetText("");
  app().SetFocus(transit_conf);
  return false;
}

void frmRandomInfo::CopyIntoRecord(const std::string& business_number) {
  ComponentStore& s = ctx_.store;
  bool changed = false;
  auto copy = [&changed](std::string& stored, std::string_view value) {
    const std::string trimmed(TrimBlanks(value));
    if (TrimBlanks(stored) != trimmed) changed = true;
    stored = trimmed;
  };
  copy(s.PayeeName, Ctl("ran_payee_name").Caption());
  copy(s.PayeeBillAccount, Ctl("ran_payee_account").Caption());
  copy(s.PayeeStreet, Ctl("ran_payee_street").Text());
  copy(s.PayeeCity, Ctl("ran_payee_city").Text());
  copy(s.PayeeProv, Ctl("ran_payee_prov").Text());
  copy(s.PayeeCountry, Ctl("ran_payee_country").Text());
  copy(s.PayeePostal, Ctl("ran_payee_postal").Text());
  if (const forms::Control& area = Ctl("ran_payee_ph_area"); area.Visible()) {
    copy(s.PayeePhoneArea, area.Text());
    copy(s.PayeePhoneNumber, Ctl("ran_payee_phone").Text());
    copy(s.PayeeFaxArea, Ctl("ran_payee_fax_area").Text());
    copy(s.PayeeFaxNumber, Ctl("ran_payee_faxnumber").Text());
  } else {
    copy(s.PayeeFXPhoneNumber, Ctl("ran_Inter_payee_phone").Text());
    copy(s.PayeeFXFaxNumber, Ctl("ran_inter_payee_faxnumber").Text());
  }
  copy(s.PayeeEmail, Ctl("ran_payee_email").Text());
  copy(s.PayeeWeb, Ctl("ran_payee_www").Text());
  copy(s.PayeeContactName, Ctl("ran_payee_contact").Text());
  copy(s.PayeeBankId, Ctl("txtBankID").Text());
  copy(s.PayeeBankTransit, Ctl("txtTransit").Text());
  copy(s.PayeeBankAccount, Ctl("txtAccount").Text());
  if (Ctl("optCIndividual").Value() != 0) {
    copy(s.PayeeIndBusnTag, "1");
  } else if (Ctl("optCBusiness").Value() != 0) {
    copy(s.PayeeIndBusnTag, "2");
  }
  // Nine blanks stand for no business number; they are stored as they are.
  if (TrimBlanks(business_number).empty()) {
    if (!TrimBlanks(s.PayeeBusinessNum).empty()) changed = true;
    s.PayeeBusinessNum = business_number;
  } else {
    copy(s.PayeeBusinessNum, business_number);
  }
  // The box shows "1" ticked and anything else unticked: only a different choice is copied.
  if (const bool ticked = Ctl("chkDiscountsApply").Value() == 1;
      ticked != (s.PayeeDiscountsApply == "1")) {
    s.PayeeDiscountsApply = ticked ? "1" : "0";
    changed = true;
  }
  copy(s.PayeeCurrency, Ctl("cmbCurrencyCode").Text());
  copy(s.PayeePhoneCountryCode, Ctl("txtPhoneCountryCode").Text());
  copy(s.PayeeFaxCountryCode, Ctl("txtFaxCountryCode").Text());
  if (s.Add == 0 && !changed) s.closeResult = kAcceptedUnchanged;
}

}  // namespace nvrandom
