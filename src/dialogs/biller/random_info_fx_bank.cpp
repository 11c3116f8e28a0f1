// frmRandomInfo: handing the foreign bank details to frmFXBankInfo and taking them back.
#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_texts.h"
#include "dialogs/fxbank/frm_fx_bank_info.h"
#include "forms/control.h"
#include "validation/error_trap.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

using validation::TrimBlanks;

constexpr const char* kUnitedStates = "US";
// A US bank's stored account is its 9-digit routing number followed by the account.
constexpr size_t kRoutingLength = 9;

std::string Trimmed(const forms::Control& box) {
  return std::string(TrimBlanks(box.Text()));
}

// The rows of a list, for another list of the same kind.
std::vector<std::vector<std::string>> RowsOf(const forms::Control& list) {
  std::vector<std::vector<std::string>> rows;
  rows.reserve(static_cast<size_t>(list.ListCount()));
  for (int i = 0; i < list.ListCount(); ++i) rows.push_back(list.Row(i));
  return rows;
}

}  // namespace

void frmRandomInfo::ShowFXBankingInfoScreen() {
  Trace("ShowFXBankingInfoScreen");
  ComponentStore& s = ctx_.store;
  frmFXBankInfo& bank = frmFXBankInfo::Instance(ctx_);
  try {
    // Touching the dialog loads it: its opening values are taken before it is filled.
    bank.Ctl("cmbBankProv").SetRows(RowsOf(Ctl("ran_payee_prov")));
    forms::Control& country = bank.Ctl("cmbBankCountry");
    country.SetRows(RowsOf(Ctl("ran_payee_country")));

    bank.Ctl("txtBankName").SetText(s.PayeeFXBankName);
    bank.Ctl("txtBankStreet").SetText(s.PayeeFXBankAddress);
    bank.Ctl("txtBankCity").SetText(s.PayeeFXBankCity);
    bank.Ctl("cmbBankProv").SetText(s.PayeeFXBankProv);
    // A code the list lacks is shown as stored; the box then has no value until one is chosen.
    if (!country.SelectBound(s.PayeeFXBankCountry)) country.SetText(s.PayeeFXBankCountry);
    // The stored country's section is the one open; with no country yet both are.
    const bool us_bank = s.PayeeFXBankCountry == kUnitedStates;
    if (us_bank) {
      bank.EnableUSBankDetails();
      bank.Ctl("txtUSABA")
          .SetText(std::string(validation::LeftCharacters(s.PayeeFXBankAccount, kRoutingLength)));
      bank.Ctl("txtUSBankAccount")
          .SetText(std::string(
              validation::MidCharacters(s.PayeeFXBankAccount, kRoutingLength, std::string::npos)));
    } else {
      if (!TrimBlanks(s.PayeeFXBankCountry).empty()) bank.EnableIntlBankDetails();
      bank.Ctl("txtBankAccount").SetText(s.PayeeFXBankAccount);
      bank.Ctl("txtSwiftNumber").SetText(s.PayeeFXBankSwift);
    }

    if (s.importFlag != 0) {
      bank.Ctl("cmd_ok").SetVisible(false);
      bank.Ctl("cmd_cancel").SetCaption(random_info_text::kCloseCaption);
      for (const char* frame : {"FraBankName", "fraIntlBanks", "fraUSBanks"}) {
        bank.Ctl(frame).SetEnabled(false);
      }
    }

    bank.Show(true);

    if (bank.IsLoaded() && bank.OKClicked()) {
      const std::string name = Trimmed(bank.Ctl("txtBankName"));
      const std::string street = Trimmed(bank.Ctl("txtBankStreet"));
      const std::string city = Trimmed(bank.Ctl("txtBankCity"));
      const std::string province = Trimmed(bank.Ctl("cmbBankProv"));
      const std::string code = bank.CountryValue();
      std::string account;
      std::string swift;
      bool changed =
          name != TrimBlanks(s.PayeeFXBankName) || street != TrimBlanks(s.PayeeFXBankAddress) ||
          city != TrimBlanks(s.PayeeFXBankCity) || province != TrimBlanks(s.PayeeFXBankProv) ||
          code != TrimBlanks(s.PayeeFXBankCountry);
      if (code == kUnitedStates) {
        const std::string routing = Trimmed(bank.Ctl("txtUSABA"));
        const std::string us_account = Trimmed(bank.Ctl("txtUSBankAccount"));
        changed = changed ||
                  routing != TrimBlanks(validation::LeftCharacters(s.PayeeFXBankAccount,
                                                                   kRoutingLength)) ||
                  us_account != TrimBlanks(validation::MidCharacters(
                                    s.PayeeFXBankAccount, kRoutingLength, std::string::npos));
        account = routing + us_account;
      } else {
        account = Trimmed(bank.Ctl("txtBankAccount"));
        swift = Trimmed(bank.Ctl("txtSwiftNumber"));
        changed = changed || account != TrimBlanks(s.PayeeFXBankAccount) ||
                  swift != TrimBlanks(s.PayeeFXBankSwift);
      }
      fx_bank_changed_ = fx_bank_changed_ || changed;
      s.PayeeFXBankName = name;
      s.PayeeFXBankAddress = street;
      s.PayeeFXBankCity = city;
      s.PayeeFXBankProv = province;
      s.PayeeFXBankCountry = code;
      s.PayeeFXBankAccount = std::move(account);
      s.PayeeFXBankSwift = std::move(swift);
    }
  } catch (...) {
    validation::ReportTrappedError(ctx_, "RandomInfo - ShowFXBankingInfoScreen");
  }
  if (bank.IsLoaded()) bank.Unload();
}

}  // namespace nvrandom
