// frmFXBankInfo: the country's choice between the US and the international account sections,
// and the keys and province rule of the address's lists.
#include <string>

#include "component/context.h"
#include "dialogs/fxbank/frm_fx_bank_info.h"
#include "dialogs/fxbank/fx_bank_info_texts.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/keystroke.h"
#include "platform/ascii.h"
#include "validation/random.h"

namespace nvrandom {

namespace {

// The lists take capital letters only. Backspace and Tab are editing and moving, not
// characters of a code, and pass.
int16_t CodeKey(int16_t key) {
  if (key == forms::keys::kBackspace || key == forms::keys::kTab) return key;
  return key >= 'A' && key <= 'Z' ? key : int16_t{0};
}

std::string UpperCase(std::string text) {
  for (char& c : text) c = ascii::ToUpper(c);
  return text;
}

}  // namespace

void frmFXBankInfo::EnableUSBankDetails() {
  Trace("EnableUSBankDetails");
  for (const char* name :
       {"fraUSBanks", "txtUSABA", "txtUSBankAccount", "lblUSABA", "lblUSBankAccount"}) {
    Ctl(name).SetEnabled(true);
  }
  Ctl("txtSwiftNumber").SetText("");
  Ctl("txtBankAccount").SetText("");
  for (const char* name :
       {"txtSwiftNumber", "txtBankAccount", "lblSwiftNumber", "lblBankAccount", "fraIntlBanks"}) {
    Ctl(name).SetEnabled(false);
  }
  Ctl("lblConfirmInt").SetVisible(false);
  for (const char* name : {"txtSwiftNumberConf", "txtBankAccountConf"}) {
    forms::Control& box = Ctl(name);
    box.SetText("");
    box.SetEnabled(false);
    box.SetVisible(false);
  }
}

void frmFXBankInfo::EnableIntlBankDetails() {
  Trace("EnableIntlBankDetails");
  for (const char* name :
       {"fraIntlBanks", "txtSwiftNumber", "txtBankAccount", "lblSwiftNumber", "lblBankAccount"}) {
    Ctl(name).SetEnabled(true);
  }
  Ctl("lblConfirmUS").SetVisible(false);
  Ctl("txtUSABA").SetText("");
  Ctl("txtUSBankAccount").SetText("");
  for (const char* name :
       {"txtUSABA", "txtUSBankAccount", "lblUSABA", "lblUSBankAccount", "fraUSBanks"}) {
    Ctl(name).SetEnabled(false);
  }
  for (const char* name : {"txtUSABAConf", "txtUSBankAccountConf"}) {
    forms::Control& box = Ctl(name);
    box.SetText("");
    box.SetEnabled(false);
    box.SetVisible(false);
  }
}

void frmFXBankInfo::cmbBankCountry_LostFocus() {
  Trace("cmbBankCountry_LostFocus");
  // Leaving the dialog decides nothing.
  const forms::Control* next = ActiveControl();
  if (next != nullptr && next->Name() == fx_bank_info_text::kCancelButtonName) return;
  forms::Control& country = Ctl("cmbBankCountry");
  if (country.ListIndex() >= 0) country.SetText(country.BoundText());
  if (CountryValue() != fx_bank_info_text::kUnitedStates) {
    EnableIntlBankDetails();
    app().SetFocus(Ctl("txtSwiftNumber"));
  } else {
    EnableUSBankDetails();
    app().SetFocus(Ctl("txtUSABA"));
  }
}

void frmFXBankInfo::cmbBankCountry_KeyPress(int16_t& KeyAscii) {
  Trace("cmbBankCountry_KeyPress");
  KeyAscii = CodeKey(KeyAscii);
}

void frmFXBankInfo::cmbBankProv_KeyPress(int16_t& KeyAscii) {
  Trace("cmbBankProv_KeyPress");
  KeyAscii = CodeKey(KeyAscii);
}

// The province is cleansed and upper-cased like the other fields (a menu paste reaches it
// without keys). For a Canadian bank what is typed is completed from the province list, the
// completed part selected so that typing on replaces it; other countries' regions are free.
void frmFXBankInfo::cmbBankProv_Change() {
  Trace("cmbBankProv_Change");
  // Completing sets the text, which comes back here.
  if (completing_province_) return;
  forms::Control& province = Ctl("cmbBankProv");
  std::string cleansed = UpperCase(Random(ctx_).CleanseCharacters(province.Text()));
  if (cleansed != province.Text()) {
    province.SetText(std::move(cleansed));  // its change comes back here
    return;
  }
  const std::string country = CountryValue();
  bool canadian = false;
  for (const char* code : fx_bank_info_text::kCanadaCodes) canadian = canadian || country == code;
  if (!canadian || province.Text().empty()) return;
  completing_province_ = true;
  try {
    Random(ctx_).ComboBoxAutoComplete(province);
  } catch (...) {
    completing_province_ = false;
    throw;
  }
  completing_province_ = false;
}

}  // namespace nvrandom
