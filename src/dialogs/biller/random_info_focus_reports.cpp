// frmRandomInfo: telling the host where the current field is, so that it can scroll to it.
#include <array>

#include "dialogs/biller/frm_random_info.h"
#include "forms/control.h"

namespace nvrandom {

namespace {
struct FocusReport {
  const char* control;
  const char* procedure;
};

constexpr std::array kFocusReports = {
    FocusReport{"ran_payee_street", "ran_payee_street_GotFocus"},
    FocusReport{"ran_payee_city", "ran_payee_city_GotFocus"},
    FocusReport{"ran_payee_prov", "ran_payee_prov_GotFocus"},
    FocusReport{"ran_payee_postal", "ran_payee_postal_GotFocus"},
    FocusReport{"ran_payee_ph_area", "ran_payee_ph_area_GotFocus"},
    FocusReport{"ran_payee_phone", "ran_payee_phone_GotFocus"},
    FocusReport{"ran_payee_fax_area", "ran_payee_fax_area_GotFocus"},
    FocusReport{"ran_payee_faxnumber", "ran_payee_faxnumber_GotFocus"},
    FocusReport{"ran_payee_email", "ran_payee_email_GotFocus"},
    FocusReport{"ran_payee_www", "ran_payee_www_GotFocus"},
    FocusReport{"ran_payee_contact", "ran_payee_contact_GotFocus"},
    FocusReport{"txtPhoneCountryCode", "txtPhoneCountryCode_GotFocus"},
    FocusReport{"txtFaxCountryCode", "txtFaxCountryCode_GotFocus"},
    FocusReport{"ran_Inter_payee_phone", "ran_Inter_payee_phone_GotFocus"},
    FocusReport{"ran_inter_payee_faxnumber", "ran_inter_payee_faxnumber_GotFocus"},
    FocusReport{"txtTransit", "txtTransit_GotFocus"},
    FocusReport{"txtBankID", "txtBankID_GotFocus"},
    FocusReport{"txtAccount", "txtAccount_GotFocus"},
};
}  // namespace

void frmRandomInfo::BindFocusReports() {
  for (const FocusReport& report : kFocusReports) {
    On(report.control).GotFocus = [this, &report] {
      RunProcedure(report.procedure, [&] { RaiseCurrentFieldTop(Ctl(report.control)); });
    };
  }
}

}  // namespace nvrandom
