// frmRandomInfo: filling the dialog from the biller record and choosing its layout.
#include <string>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_codes.h"
#include "dialogs/biller/random_info_texts.h"
#include "forms/control.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

using validation::TrimBlanks;

// Margins of the layouts, in twips.
constexpr int32_t kUnderFrame1 = 40;    // Label15 and the buttons, below Frame1
constexpr int32_t kWindowMargin = 500;  // below the buttons: the window's frame and a margin
constexpr int32_t kUSBankMargin = 100;  // Frame1 below the US bank details
constexpr int32_t kBlockGap = 120;      // between blocks inside Frame1
constexpr int32_t kFrameFoot = 240;     // inside a frame, below its last field

int32_t Bottom(const forms::Control& control) {
  return control.Top() + control.Height();
}

}  // namespace

void frmRandomInfo::ChooseCode(std::string_view list, std::string_view code) {
  forms::Control& control = Ctl(list);
  if (!control.SelectBound(code)) control.SetText(std::string(code));
}

void frmRandomInfo::SetupForm() {
  Trace("SetupForm");
  const ComponentStore& s = ctx_.store;
  const bool us_mode = USMode();
  const std::string home_currency = s.CurrencyCodeFromMain;
  const std::string form_title = s.FormTitleFromMain;
  Random random(ctx_);
  random.Get_Windows_Dir();
  ctx_.store.gstrWindowsDir = random.WindowsDir();

  LoadCountries();
  LoadCurrencyCodes();
  LoadProvinces();

  Ctl("ran_payee_name").SetCaption(s.PayeeName);
  Ctl("ran_payee_account").SetCaption(s.PayeeBillAccount);
  Ctl("txtBusinessNum").SetText(s.PayeeBusinessNum);

  forms::Control& province = Ctl("ran_payee_prov");
  for (int i = 0; i < province.ListCount(); ++i) {
    if (province.List(i) == s.PayeeProv) {
      province.SetListIndex(i);
      break;
    }
  }

  Ctl("ran_payee_street").SetText(s.PayeeStreet);
  Ctl("ran_payee_city").SetText(s.PayeeCity);

  // A stored three-letter code ("CAN", "USA") selects the country of its first two letters.
  if (!s.PayeeCountry.empty()) {
    const std::string_view stored = TrimBlanks(s.PayeeCountry);
    ChooseCode("ran_payee_country", validation::CharacterCount(stored) == 3
                                        ? validation::LeftCharacters(stored, 2)
                                        : std::string_view(s.PayeeCountry));
  } else if (us_mode) {
    ChooseCode("ran_payee_country", home_currency == "USD" ? "US" : "CA");
  } else {
    ChooseCode("ran_payee_country", "CA");
  }
  const std::string country = Ctl("ran_payee_country").Text();

  const bool home_usd = home_currency == "USD";
  Ctl("lblPostalCode")
      .SetCaption(home_usd ? random_info_text::kZipCode : random_info_text::kPostalCode);
  Ctl("lblProvince").SetCaption(home_usd ? random_info_text::kState : random_info_text::kProvState);

  ChooseCode("cmbCurrencyCode", s.PayeeCurrency.empty() ? home_currency : s.PayeeCurrency);
  const std::string currency(TrimBlanks(Ctl("cmbCurrencyCode").Text()));

  foreign_currency_ = country != "CA" && country != "CAN" && !us_mode && currency != "CAD";
  SetFXPhoneNumber(!random_info_codes::IsNorthAmerican(country));
  if (currency != "CAD") SetFXBiller(true);

  Ctl("ran_payee_postal").SetText(s.PayeePostal);
  Ctl("ran_payee_email").SetText(s.PayeeEmail);
  Ctl("ran_payee_www").SetText(s.PayeeWeb);
  Ctl("ran_payee_contact").SetText(s.PayeeContactName);

  if (const forms::Control& area = Ctl("ran_payee_ph_area"); area.Visible() && area.Enabled()) {
    Ctl("ran_payee_ph_area").SetText(s.PayeePhoneArea);
    Ctl("ran_payee_phone").SetText(s.PayeePhoneNumber);
    Ctl("ran_payee_fax_area").SetText(s.PayeeFaxArea);
    Ctl("ran_payee_faxnumber").SetText(s.PayeeFaxNumber);
  } else {
    Ctl("ran_Inter_payee_phone").SetText(s.PayeeFXPhoneNumber);
    Ctl("ran_inter_payee_faxnumber").SetText(s.PayeeFXFaxNumber);
  }

  // The bank blocks. The help icon they share is the bank account's (index 4).
  const bool bank_permission = s.UserBankAcctPermission != 0;
  forms::Control& bank_help = Ctl("imgHelpCSFTInfo", 4);
  if (!us_mode) {
    if (s.PayeeIndBusnTag == "2") {
      Ctl("fraBankInfo").SetVisible(false);
      bank_help.SetVisible(true);
      Ctl("fraBankAcctInfo").SetEnabled(bank_permission);
    }
  } else if (bank_permission) {
    bank_help.SetVisible(false);
    Ctl("fraBankInfo").SetVisible(true);
    Ctl("fraBankAcctInfo").SetVisible(false);
    Ctl("cmdFXBankingInfo").SetVisible(false);
    Ctl("lblDisclaimerDetails").SetCaption(random_info_text::kDisclaimerDetails);
    Ctl("ctHyperLink1").SetCaption(random_info_text::kUSPaymentsLink);
    Ctl("ctHyperLink1").SetEnabled(true);
  } else {
    Ctl("ctHyperLink1").SetEnabled(false);
    bank_help.SetVisible(true);
    Ctl("fraBankInfo").SetEnabled(false);
    Ctl("fraBankInfo").SetVisible(false);
  }

  if (!s.PayeeBankId.empty()) {
    Ctl("txtBankID").SetText(s.PayeeBankId);
    Ctl("txtTransit").SetText(s.PayeeBankTransit);
    Ctl("txtAccount").SetText(s.PayeeBankAccount);
  }

  Ctl("lblbkclk").SetVisible(false);

  if (us_mode || s.PayeeIndBussFlg == " ") {
    Ctl("optCBusiness").SetValue(-1);
    if (s.PayeeBusinessNum.empty()) {
      Ctl("chkBNNotAvailable").SetValue(1);
    } else {
      Ctl("chkBNNotAvailable").SetValue(0);
      Ctl("txtBusinessNum").SetText(s.PayeeBusinessNum);
    }
  } else if (s.PayeeIndBussFlg == "I") {
    Ctl("optCIndividual").SetValue(-1);
  }

  forms::Control& discounts = Ctl("chkDiscountsApply");
  if (s.NVMemberType == "B") {
    discounts.SetEnabled(true);
    discounts.SetValue(s.PayeeDiscountsApply == "1" ? 1 : 0);
  } else {
    discounts.SetEnabled(false);
  }

  Ctl("txtPhoneCountryCode")
      .SetText(s.PayeePhoneCountryCode.empty() ? "1" : s.PayeePhoneCountryCode);
  Ctl("txtFaxCountryCode").SetText(s.PayeeFaxCountryCode.empty() ? "1" : s.PayeeFaxCountryCode);

  if (!us_mode) {
    SetCaption(random_info_text::kDomesticTitle);
  } else if (const std::string_view title = TrimBlanks(form_title); !title.empty()) {
    SetCaption(std::string(title));
  }
  Ctl("Frame1").SetCaption(random_info_text::kFrame1);

  if (us_mode) {
    SetupBusinessForm();
    Ctl("optCIndividual").SetValue(-1);
  } else if (s.PayeeIndBusnTag == "1") {
    SetupIndividualForm();
    Ctl("optCIndividual").SetValue(-1);
  } else {
    SetupBusinessForm();
    Ctl("optCBusiness").SetValue(-1);
  }
}

void frmRandomInfo::SetupBusinessForm() {
  Trace("SetupBusinessForm");
  const ComponentStore& s = ctx_.store;
  const bool us_mode = USMode();
  for (int i = 0; i <= 7; ++i) Ctl("lblAsterisk", i).SetVisible(true);
  for (int i = 50; i <= 52; ++i) Ctl("lblAsterisk", i).SetVisible(false);
  Ctl("lblNotification").SetVisible(false);

  if (!us_mode) Ctl("fraBusinessNum").SetVisible(true);

  SetBusinessNumberEntry(Ctl("chkBNNotAvailable").Value() == 0);
  Ctl("chkBNNotAvailable").SetBackColor(forms::colors::kButtonFace);
  Ctl("fraBankAcctInfo").SetCaption(random_info_text::kBankAccountOptional);

  forms::Control& frame3 = Ctl("Frame3");
  if (!us_mode) {
    Ctl("lblFXBankingInfo").SetVisible(true);
    Ctl("cmdCheque").SetVisible(false);
    Ctl("chkDiscountsApply").SetVisible(true);
    Ctl("cmbCurrencyCode").SetEnabled(true);
    Ctl("lbl_note").SetVisible(true);
  } else {
    Ctl("lblFXBankingInfo").SetVisible(false);
    Ctl("lbl_note").SetVisible(false);
    Ctl("cmdCheque").SetVisible(false);
    Ctl("txtBankName").SetText(s.PayeeFXBankName);
    frame3.SetHeight(frame3.Height() - Ctl("fraBusinessNum").Height());
    // A US bank's account field holds the routing number followed by the account number.
    if (s.PayeeFXBankCountry == "US") {
      Ctl("txtRoutingNumber")
          .SetText(std::string(validation::LeftCharacters(s.PayeeFXBankAccount, 9)));
      Ctl("txtBankAccountNumber")
          .SetText(
              std::string(validation::MidCharacters(s.PayeeFXBankAccount, 9, std::string::npos)));
    } else {
      Ctl("txtRoutingNumber").SetText(s.PayeeFXBankSwift);
      Ctl("txtBankAccountNumber").SetText(s.PayeeFXBankAccount);
    }
    Ctl("chkDiscountsApply").SetVisible(false);
    Ctl("cmbCurrencyCode").SetEnabled(false);
    Ctl("ran_payee_country").SetEnabled(false);

    // The note on accuracy closes the address block; the bank blocks (the US details, or the
    // international button in their place) follow it, and Frame1 ends just below them.
    forms::Control& note = Ctl("Label14");
    note.SetTop(Bottom(frame3) + kBlockGap / 2);
    const int32_t bank_top = Bottom(note) + kBlockGap;
    forms::Control& us_bank = Ctl("fraBankInfo");
    us_bank.SetTop(bank_top);
    Ctl("fraBankAcctInfo").SetTop(bank_top);
    forms::Control& fx_button = Ctl("cmdFXBankingInfo");
    fx_button.SetTop(bank_top);
    Ctl("imgHelpCSFTInfo", 5).SetVisible(false);
    Ctl("Frame1").SetHeight(Bottom(us_bank) + kUSBankMargin);
  }
  PlaceButtonsUnderFrame1();
}

void frmRandomInfo::SetupIndividualForm() {
  Trace("SetupIndividualForm");
  for (int i = 0; i <= 7; ++i) Ctl("lblAsterisk", i).SetVisible(false);
  for (int i = 50; i <= 52; ++i) Ctl("lblAsterisk", i).SetVisible(true);
  Ctl("lblNotification").SetVisible(false);

  Ctl("fraBusinessNum").SetEnabled(false);
  forms::Control& number = Ctl("txtBusinessNum");
  number.SetEnabled(false);
  number.SetBackColor(forms::colors::kButtonFace);
  forms::Control& not_available = Ctl("chkBNNotAvailable");
  not_available.SetEnabled(false);
  not_available.SetBackColor(forms::colors::kButtonFace);
  Ctl("fraBankAcctInfo").SetCaption(random_info_text::kBankAccountRequired);

  static constexpr const char* kHidden[] = {
      "lbl_note",
      "fraBusinessNum",
      "lblStreet",
      "ran_payee_street",
      "lblCity",
      "ran_payee_city",
      "lblProvince",
      "ran_payee_prov",
      "lblPostalCode",
      "ran_payee_postal",
      "lblCountry",
      "ran_payee_country",
      "lblCurrency",
      "cmbCurrencyCode",
      "lblWebsite",
      "ran_payee_www",
      "lblPhoneNo",
      "Label19",
      "txtPhoneCountryCode",
      "ran_payee_ph_area",
      "ran_payee_phone",
      "ran_Inter_payee_phone",
      "lblFax",
      "Label20",
      "txtFaxCountryCode",
      "ran_payee_fax_area",
      "ran_payee_faxnumber",
      "ran_inter_payee_faxnumber",
      "lblContact",
      "ran_payee_contact",
      "chkDiscountsApply",
      "Label3",
  };
  for (const char* name : kHidden) Ctl(name).SetVisible(false);
  // The address, phone and international payment help icons (the business number's goes with
  // its frame).
  for (int i : {1, 2, 5}) Ctl("imgHelpCSFTInfo", i).SetVisible(false);

  forms::Control& email_mark = Ctl("lblAsterisk", 2);
  email_mark.SetVisible(true);
  email_mark.SetEnabled(true);

  // E-mail alone at the top of the address block, the bank account under it, the note on
  // accuracy under that; the international button, when shown, stands in the bank account's
  // place.
  forms::Control& frame3 = Ctl("Frame3");
  forms::Control& email = Ctl("ran_payee_email");
  const int32_t email_top = Ctl("Label3").Top();
  const int32_t raise = email.Top() - email_top;
  email.SetTop(email_top);
  Ctl("lblEmail").SetTop(Ctl("lblEmail").Top() - raise);
  email_mark.SetTop(email_mark.Top() - raise);
  frame3.SetHeight(Bottom(email) + kFrameFoot);

  forms::Control& bank = Ctl("fraBankAcctInfo");
  bank.SetTop(Bottom(frame3) + kBlockGap);
  const int32_t fx_shift = bank.Top() - Ctl("lblFXBankingInfo").Top();
  for (forms::Control* fx :
       {&Ctl("lblFXBankingInfo"), &Ctl("cmdFXBankingInfo"), &Ctl("imgHelpCSFTInfo", 5)}) {
    fx->SetTop(fx->Top() + fx_shift);
  }
  forms::Control& note = Ctl("Label14");
  note.SetTop(Bottom(bank) + kBlockGap);
  Ctl("Frame1").SetHeight(Bottom(note) + kBlockGap);
  PlaceButtonsUnderFrame1();

  Ctl("lblEmail").SetCaption(random_info_text::kRecipientEmail);
  Ctl("fraBankInfo").SetVisible(false);
}

void frmRandomInfo::PlaceButtonsUnderFrame1() {
  const int32_t under = Bottom(Ctl("Frame1")) + kUnderFrame1;
  for (const char* name : {"Label15", "cmdCheque", "cmd_help", "cmd_ok", "cmd_cancel"}) {
    Ctl(name).SetTop(under);
  }
  const forms::Control& ok = Ctl("cmd_ok");
  SetHeight(ok.Top() + ok.Height() + kWindowMargin);
}

}  // namespace nvrandom
