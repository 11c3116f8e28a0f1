// frmRandomInfo: switching a biller into and out of the international state.
#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_codes.h"
#include "dialogs/biller/random_info_texts.h"
#include "forms/application.h"
#include "forms/control.h"
#include "platform/message_box.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

// Whether the focus is leaving `list` for the cancel button: the user is abandoning the dialog,
// nothing is decided.
bool LeavingForCancel(const forms::Form& form) {
  const forms::Control* next = form.ActiveControl();
  return next != nullptr && next->Name() == random_info_text::kCancelButtonName;
}

// A selected row's code becomes the box's text (what was typed stays when no row matches).
void TakeSelectedCode(forms::Control& list) {
  if (list.ListIndex() >= 0) list.SetText(list.BoundText());
}

}  // namespace

void frmRandomInfo::SetFXBiller(bool isFX) {
  Trace("SetFXBiller");
  for (const char* name : {"optCBusiness", "optCIndividual", "fraBusinessNum", "txtBusinessNum",
                           "lblBN", "chkBNNotAvailable"}) {
    Ctl(name).SetEnabled(!isFX);
  }
  if (isFX) Ctl("optCBusiness").SetValue(-1);
  Ctl("cmdFXBankingInfo").SetVisible(isFX);
  Ctl("lblFXBankingInfo").SetVisible(isFX);
  Ctl("fraBankAcctInfo").SetVisible(!isFX);
  if (isFX) {
    Ctl("txtTransit").SetText("");
    Ctl("txtBankID").SetText("");
    Ctl("txtAccount").SetText("");
  } else {
    Ctl("txtPhoneCountryCode").SetText("1");
    Ctl("txtFaxCountryCode").SetText("1");
  }
}

void frmRandomInfo::SetFXPhoneNumber(bool isFX) {
  Trace("SetFXPhoneNumber");
  for (const char* name :
       {"ran_payee_ph_area", "ran_payee_phone", "ran_payee_fax_area", "ran_payee_faxnumber"}) {
    forms::Control& field = Ctl(name);
    field.SetEnabled(!isFX);
    field.SetVisible(!isFX);
  }
  for (const char* name : {"ran_Inter_payee_phone", "ran_inter_payee_faxnumber"}) {
    forms::Control& field = Ctl(name);
    field.SetEnabled(isFX);
    field.SetVisible(isFX);
  }
}

bool frmRandomInfo::FXCurrencyExists(std::string_view code) const {
  const StringArray& currencies = ctx_.store.IPBillerCurrencies;
  // Anything but a one-dimensional array offers no currency.
  if (currencies.dimensions() != 1) return false;
  for (int32_t i = currencies.LBound(1); i <= currencies.UBound(1); ++i) {
    if (currencies.at(i) == code) return true;
  }
  return false;
}

bool frmRandomInfo::AcceptInternational() {
  if (Message(random_info_text::kIsInternational, msgbox::kYesNo | msgbox::kInformation) !=
      msgbox::kYes) {
    return false;
  }
  if (ctx_.store.InternationalPayment == 0) {
    Message(random_info_text::kNoInternationalSettings, msgbox::kOKOnly | msgbox::kInformation);
    return false;
  }
  // The answer holds for both lists: leaving the other one later switches without asking.
  foreign_currency_ = true;
  return true;
}

void frmRandomInfo::cmbCurrencyCode_LostFocus() {
  Trace("cmbCurrencyCode_LostFocus");
  if (LeavingForCancel(*this)) return;
  forms::Control& list = Ctl("cmbCurrencyCode");
  TakeSelectedCode(list);
  const std::string first(validation::LeftCharacters(list.Text(), 3));
  if (first == "CAD") {
    SetFXBiller(false);
    return;
  }
  if (first == random_info_text::kSeparatorCode) {
    ChooseCode("cmbCurrencyCode", "CAD");
    SetFXBiller(false);
    return;
  }
  const bool domestic = !USMode();
  if (domestic && ctx_.store.PayeeIndBusnTag == "1") {
    Message(random_info_text::kIndividualNotInternational, msgbox::kOKOnly | msgbox::kInformation);
    ChooseCode("cmbCurrencyCode", "CAD");
    return;
  }
  if (domestic && !foreign_currency_) {
    if (AcceptInternational()) {
      SetFXBiller(true);
    } else {
      ChooseCode("cmbCurrencyCode", "CAD");
      SetFXBiller(false);
    }
    return;
  }
  SetFXBiller(true);
}

void frmRandomInfo::ran_payee_country_LostFocus() {
  Trace("ran_payee_country_LostFocus");
  if (LeavingForCancel(*this)) return;
  forms::Control& list = Ctl("ran_payee_country");
  TakeSelectedCode(list);
  std::string code = list.Text();
  if (code != "CA" && code != "US") {
    if (!USMode() && !foreign_currency_ && !AcceptInternational()) {
      ChooseCode("ran_payee_country", "CA");
      SetFXBiller(false);
      code = list.Text();
    } else {
      const std::vector<std::string>& row = list.Row(list.ListIndex());
      const std::string phone = row.size() > 2 ? row[2] : std::string();
      Ctl("txtPhoneCountryCode").SetText(phone);
      Ctl("txtFaxCountryCode").SetText(phone);
      Ctl("ran_Inter_payee_phone").SetText("");
      FocusIfUsable("ran_Inter_payee_phone");
    }
  } else if (validation::TrimBlanks(Ctl("cmbCurrencyCode").Text()) == "CAD") {
    SetFXBiller(false);
  }
  SetFXPhoneNumber(!random_info_codes::IsNorthAmerican(code));
}

void frmRandomInfo::cmdFXBankingInfo_Click() {
  Trace("cmdFXBankingInfo_Click");
  // The foreign bank details dialog (frmFXBankInfo) opens here through ShowFXBankingInfoScreen
  // once that dialog exists; until then the button opens nothing.
}

}  // namespace nvrandom
