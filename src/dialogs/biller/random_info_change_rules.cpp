// frmRandomInfo: the change rules, which clean the fields' texts and move on when one is full.
#include <array>
#include <string>
#include <string_view>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/biller/random_info_codes.h"
#include "forms/application.h"
#include "forms/control.h"
#include "platform/ascii.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

struct ChangeRule {
  const char* control;
  const char* procedure;
  bool cleanse;
  bool upper;
  // The next field when the text is full, or nullptr.
  const char* next;
  // Only for a North-American address (whose area code and number are fixed-length).
  bool north_american_only = false;
};

constexpr std::array kChangeRules = {
    ChangeRule{"ran_payee_street", "ran_payee_street_Change", true, true, "ran_payee_city"},
    ChangeRule{"ran_payee_city", "ran_payee_city_Change", true, true, "ran_payee_prov"},
    ChangeRule{"ran_payee_contact", "ran_payee_contact_Change", true, true, "chkDiscountsApply"},
    ChangeRule{"ran_payee_email", "ran_payee_email_Change", true, false, "ran_payee_www"},
    ChangeRule{"ran_payee_www", "ran_payee_www_Change", true, false, "ran_payee_contact"},
    ChangeRule{"ran_payee_ph_area", "ran_payee_ph_area_Change", false, false, "ran_payee_phone",
               true},
    ChangeRule{"ran_payee_phone", "ran_payee_phone_Change", false, false, "ran_payee_fax_area"},
    ChangeRule{"ran_payee_fax_area", "ran_payee_fax_area_Change", false, false,
               "ran_payee_faxnumber", true},
    ChangeRule{"ran_payee_faxnumber", "ran_payee_faxnumber_Change", false, false,
               "ran_payee_email"},
    ChangeRule{"ran_Inter_payee_phone", "ran_Inter_payee_phone_Change", false, false,
               "ran_inter_payee_faxnumber"},
    ChangeRule{"ran_inter_payee_faxnumber", "ran_inter_payee_faxnumber_Change", false, false,
               "ran_payee_email"},
    ChangeRule{"txtBankAccountNumber", "txtBankAccountNumber_Change", true, false, nullptr},
    ChangeRule{"txtTransitConf", "txtTransitConf_Change", false, false, "txtBankIDConf"},
    ChangeRule{"txtBankIDConf", "txtBankIDConf_Change", false, false, "txtAccountConf"},
    ChangeRule{"txtAccountConf", "txtAccountConf_Change", false, false, "cmd_ok"},
};

std::string UpperCased(std::string text) {
  for (char& c : text) c = ascii::ToUpper(c);
  return text;
}

// Writes the cleaned text back (a Change of its own, which finds nothing more to clean), keeping
// the caret where the person was typing.
void ReplaceText(forms::Control& field, std::string text) {
  if (text == field.Text()) return;
  const int caret = field.SelStart();
  const int length = static_cast<int>(validation::CharacterCount(text));
  field.SetText(std::move(text));
  field.SetSelection(caret < length ? caret : length, 0);
}

bool IsFull(const forms::Control& field) {
  return field.MaxLength() > 0 &&
         validation::CharacterCount(field.Text()) == static_cast<size_t>(field.MaxLength());
}

}  // namespace

void frmRandomInfo::BindChangeRules() {
  for (const ChangeRule& rule : kChangeRules) {
    On(rule.control).Change = [this, &rule] {
      RunProcedure(rule.procedure, [&] {
        forms::Control& field = Ctl(rule.control);
        if (rule.cleanse) {
          std::string text = Random(ctx_).CleanseCharacters(field.Text());
          ReplaceText(field, rule.upper ? UpperCased(std::move(text)) : std::move(text));
        }
        // A masked account number is shown in clear again once it is edited.
        if (rule.control == std::string_view("txtBankAccountNumber")) field.SetPasswordChar("");
        if (rule.next == nullptr || !IsFull(field)) return;
        if (rule.north_american_only &&
            !random_info_codes::IsNorthAmerican(Ctl("ran_payee_country").Text())) {
          return;
        }
        FocusFirstAvailable({rule.next});
      });
    };
  }

  for (const char* code_box : {"txtPhoneCountryCode", "txtFaxCountryCode"}) {
    const bool phone = code_box == std::string_view("txtPhoneCountryCode");
    On(code_box).Change = [this, phone, code_box] {
      RunProcedure(phone ? "txtPhoneCountryCode_Change" : "txtFaxCountryCode_Change", [&] {
        if (!IsFull(Ctl(code_box))) return;
        if (phone) {
          FocusFirstAvailable({"ran_Inter_payee_phone", "ran_payee_ph_area"});
        } else {
          FocusFirstAvailable({"ran_inter_payee_faxnumber", "ran_payee_fax_area"});
        }
      });
    };
  }

  On("ran_payee_prov").Change = [this] {
    RunProcedure("ran_payee_prov_Change", [&] {
      forms::Control& province = Ctl("ran_payee_prov");
      ReplaceText(province, UpperCased(Random(ctx_).CleanseCharacters(province.Text())));
      // A province the address rules know is taken as the list's row.
      if (validation::CharacterCount(province.Text()) == 2 &&
          Random(ctx_).lookupProvince(province.Text()) != kFalse) {
        for (int i = 0; i < province.ListCount(); ++i) {
          if (province.List(i) == province.Text()) {
            if (province.ListIndex() != i) province.SetListIndex(i);
            break;
          }
        }
      }
    });
  };

  On("ran_payee_postal").Change = [this] {
    RunProcedure("ran_payee_postal_Change", [&] {
      forms::Control& postal = Ctl("ran_payee_postal");
      ReplaceText(postal, UpperCased(Random(ctx_).CleanseCharacters(postal.Text())));
      if (!IsFull(postal)) return;
      // A North-American address goes on to its area code; a foreign one to its currency
      // while it has none, else to its international telephone.
      if (random_info_codes::IsNorthAmerican(Ctl("ran_payee_country").Text())) {
        FocusFirstAvailable({"ran_payee_ph_area"});
        return;
      }
      const std::string_view currency = validation::TrimBlanks(Ctl("cmbCurrencyCode").Text());
      if (currency.empty() || currency == "CAD") {
        FocusFirstAvailable({"cmbCurrencyCode"});
      } else {
        FocusFirstAvailable({"ran_Inter_payee_phone"});
      }
    });
  };

  On("txtBusinessNum").Change = [this] {
    RunProcedure("txtBusinessNum_Change", [&] {
      forms::Control& number = Ctl("txtBusinessNum");
      const std::string cleansed = Random(ctx_).CleanseCharacters(number.Text());
      ReplaceText(number, UpperCased(std::string(validation::TrimBlanks(cleansed))));
      // A business number makes the biller a business.
      forms::Control& business = Ctl("optCBusiness");
      if (!number.Text().empty() && business.Value() == 0) business.SetValue(-1);
      if (IsFull(number)) FocusFirstAvailable({"txtTransit"});
    });
  };

  for (const char* box : {"txtTransit", "txtBankID", "txtAccount"}) {
    On(box).Change = [this, box] { BankNumberChanged(box); };
  }
}

void frmRandomInfo::BankNumberChanged(std::string_view box) {
  const char* procedure = box == "txtTransit"  ? "txttransit_Change"
                          : box == "txtBankID" ? "txtBankID_Change"
                                               : "txtAccount_Change";
  RunProcedure(procedure, [&] {
    forms::Control& field = Ctl(box);
    // A corrected value is seen in clear.
    if (field.PasswordChar() == "*") field.SetPasswordChar("");
    if (box == "txtBankID" && validation::CharacterCount(field.Text()) == 3) {
      FocusFirstAvailable({"txtAccount"});
    }
    if (Ctl("txtBankID").Text().empty() && Ctl("txtTransit").Text().empty() &&
        Ctl("txtAccount").Text().empty()) {
      HideBankConfirmation();
      // Nothing is left to confirm: the re-keying is over.
      pending_account_.clear();
    }
  });
}

void frmRandomInfo::HideBankConfirmation() {
  for (const char* box : {"txtTransitConf", "txtBankIDConf", "txtAccountConf"}) {
    Ctl(box).SetText("");
  }
  for (const char* name : {"lblConfirm", "lblTransitConf", "txtTransitConf", "lblBankIdConf",
                           "txtBankIDConf", "lblAccountConf", "txtAccountConf"}) {
    Ctl(name).SetVisible(false);
  }
}

void frmRandomInfo::ShowBankConfirmation() {
  for (const char* name : {"lblConfirm", "lblTransitConf", "txtTransitConf", "lblBankIdConf",
                           "txtBankIDConf", "lblAccountConf", "txtAccountConf"}) {
    Ctl(name).SetVisible(true);
  }
  for (const char* box : {"txtBankID", "txtTransit", "txtAccount"}) Ctl(box).SetPasswordChar("*");
}

}  // namespace nvrandom
