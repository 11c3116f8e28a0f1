// frmFXBankInfo: acceptance, and the step that confirms a changed account by typing it again.
#include <string>

#include "component/context.h"
#include "dialogs/fxbank/frm_fx_bank_info.h"
#include "dialogs/fxbank/fx_bank_info_texts.h"
#include "forms/application.h"
#include "forms/control.h"
#include "platform/utf8.h"
#include "validation/error_trap.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace txt = fx_bank_info_text;

const frmFXBankInfo::AccountSection frmFXBankInfo::kIntlSection = {
    "txtSwiftNumber", "txtBankAccount", "txtSwiftNumberConf", "txtBankAccountConf",
    "lblConfirmInt"};
const frmFXBankInfo::AccountSection frmFXBankInfo::kUSSection = {
    "txtUSABA", "txtUSBankAccount", "txtUSABAConf", "txtUSBankAccountConf", "lblConfirmUS"};

namespace {

std::string Trimmed(const forms::Control& box) {
  return std::string(validation::TrimBlanks(box.Text()));
}

void SelectAll(forms::Control& box) {
  box.SetSelection(0, static_cast<int>(utf8::Length(box.Text())));
}

}  // namespace

void frmFXBankInfo::cmd_ok_Click() {
  Trace("cmd_ok_Click");
  try {
    if (!Required("txtBankName", txt::kNeedBankName) ||
        !Required("txtBankStreet", txt::kNeedBankStreet) ||
        !Required("txtBankCity", txt::kNeedBankCity) ||
        !Required("cmbBankProv", txt::kNeedBankProvince)) {
      return;
    }
    if (CountryValue().empty()) {
      // What is shown matches no country of the list: the box has no value.
      Ctl("cmbBankCountry").SetText("");
      Message(txt::kNeedBankCountry);
      app().SetFocus(Ctl("cmbBankCountry"));
      return;
    }
    if (Random(ctx_).Has_PO_Box_Address(Ctl("txtBankStreet").Text()) != 0) {
      Message(txt::kPostOfficeBox);
      return;
    }
    if (CountryValue() != txt::kUnitedStates) {
      const std::string swift = Trimmed(Ctl("txtSwiftNumber"));
      if (swift.empty()) {
        Message(txt::kNeedSwift);
        return;
      }
      const size_t length = validation::CharacterCount(swift);
      if (length != 8 && length != 11) {
        Message(txt::kSwiftLength);
        return;
      }
      if (Trimmed(Ctl("txtBankAccount")).empty()) {
        Message(txt::kNeedBankAccount);
        return;
      }
      ConfirmAccount(kIntlSection, opening_account_, opening_swift_);
      return;
    }
    const std::string aba = Trimmed(Ctl("txtUSABA"));
    if (aba.empty() || Trimmed(Ctl("txtUSBankAccount")).empty()) {
      Message(txt::kNeedAbaAndAccount, txt::kNeedAbaAndAccountCaption);
      return;
    }
    if (Random(ctx_).ValidateABANumber(Ctl("txtUSABA").Text()) == kFalse) {
      Message(txt::kInvalidAba, txt::kInvalidAbaCaption);
      return;
    }
    ConfirmAccount(kUSSection, opening_us_account_, opening_swift_);
  } catch (...) {
    validation::ReportTrappedError(ctx_, std::string(txt::kLabelPrefix) + "cmd_ok_Click");
  }
}

bool frmFXBankInfo::Required(const char* box, const char* message) {
  forms::Control& field = Ctl(box);
  if (!validation::TrimBlanks(field.Text()).empty()) return true;
  field.SetText("");
  Message(message);
  app().SetFocus(field);
  return false;
}

void frmFXBankInfo::ConfirmAccount(const AccountSection& section,
                                   const std::string& opening_account,
                                   const std::string& opening_number) {
  const std::string account = Trimmed(Ctl(section.account));
  if (account != opening_account || Trimmed(Ctl(section.number)) != opening_number) {
    account_changed_ = true;
  }
  if (!account_changed_) {
    accepted_ = true;
    CloseDialog();
    return;
  }
  if (pending_account_.empty()) {
    OpenConfirmation(section, account);
    return;
  }
  forms::Control& number_conf = Ctl(section.number_conf);
  forms::Control& account_conf = Ctl(section.account_conf);
  const bool account_matches = Trimmed(account_conf) == account;
  const bool number_matches = Trimmed(number_conf) == Trimmed(Ctl(section.number));
  if (account_matches && number_matches) {
    CloseConfirmation(section);
    accepted_ = true;
    CloseDialog();
    return;
  }
  ShowConfirmationAgain(section);
  const bool account_empty = account_conf.Text().empty();
  const bool number_empty = number_conf.Text().empty();
  if (account_empty && number_empty) {
    app().SetFocus(number_conf);
  } else if (account_empty) {
    app().SetFocus(account_conf);
  } else if (number_empty) {
    app().SetFocus(number_conf);
  } else if (!account_matches) {
    SelectAll(account_conf);
    app().SetFocus(account_conf);
  } else {
    SelectAll(number_conf);
    app().SetFocus(number_conf);
  }
}

void frmFXBankInfo::OpenConfirmation(const AccountSection& section, std::string account) {
  pending_account_ = std::move(account);
  Ctl(section.confirm_label).SetVisible(true);
  for (const char* name : {section.account_conf, section.number_conf}) {
    forms::Control& box = Ctl(name);
    box.SetVisible(true);
    box.SetEnabled(true);
    box.SetText("");
  }
  Ctl(section.account).SetPasswordChar(txt::kPasswordChar);
  Ctl(section.number).SetPasswordChar(txt::kPasswordChar);
  app().SetFocus(Ctl(section.number_conf));
}

void frmFXBankInfo::CloseConfirmation(const AccountSection& section) {
  pending_account_.clear();
  Ctl(section.confirm_label).SetVisible(false);
  for (const char* name : {section.account_conf, section.number_conf}) {
    forms::Control& box = Ctl(name);
    box.SetText("");
    box.SetVisible(false);
    box.SetEnabled(false);
  }
}

void frmFXBankInfo::ShowConfirmationAgain(const AccountSection& section) {
  Ctl(section.confirm_label).SetVisible(true);
  for (const char* name : {section.account_conf, section.number_conf}) {
    forms::Control& box = Ctl(name);
    box.SetVisible(true);
    box.SetEnabled(true);
  }
  Ctl(section.account).SetPasswordChar(txt::kPasswordChar);
  Ctl(section.number).SetPasswordChar(txt::kPasswordChar);
}

}  // namespace nvrandom
