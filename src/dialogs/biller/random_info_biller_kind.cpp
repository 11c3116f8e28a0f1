// frmRandomInfo: the biller kind, the business number and the bank block's payment kind.
#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/keystroke.h"

namespace nvrandom {

namespace {
using forms::keys::kEnter;
}  // namespace

void frmRandomInfo::SetBusinessNumberEntry(bool enabled) {
  forms::Control& number = Ctl("txtBusinessNum");
  number.SetEnabled(enabled);
  number.SetBackColor(enabled ? forms::colors::kWindowBackground : forms::colors::kButtonFace);
}

void frmRandomInfo::optCBusiness_Click() {
  Trace("optCBusiness_Click");
  forms::Control& not_available = Ctl("chkBNNotAvailable");
  if (not_available.Value() != 0 || !Ctl("optCBusiness").Enabled()) return;
  not_available.SetEnabled(true);
  SetBusinessNumberEntry(true);
  app().SetFocus(Ctl("txtBusinessNum"));
}

void frmRandomInfo::optCIndividual_Click() {
  Trace("optCIndividual_Click");
  forms::Control& not_available = Ctl("chkBNNotAvailable");
  not_available.SetEnabled(false);
  not_available.SetBackColor(forms::colors::kButtonFace);
  SetBusinessNumberEntry(false);
  not_available.SetValue(0);
  Ctl("txtBusinessNum").SetText("");
  if (!FocusIfUsable("ran_Inter_payee_phone")) FocusIfUsable("ran_payee_ph_area");
}

void frmRandomInfo::optCBusiness_GotFocus() {
  Trace("optCBusiness_GotFocus");
  RaiseCurrentFieldTop(Ctl("optCBusiness"));
}

void frmRandomInfo::optCIndividual_GotFocus() {
  Trace("optCIndividual_GotFocus");
  RaiseCurrentFieldTop(Ctl("optCIndividual"));
}

void frmRandomInfo::chkBNNotAvailable_Click() {
  Trace("chkBNNotAvailable_Click");
  const bool ticked = Ctl("chkBNNotAvailable").Value() == 1;
  forms::Control& business = Ctl("optCBusiness");
  if (ticked && business.Value() == 0) business.SetValue(-1);
  if (business.Value() != 0) SetBusinessNumberEntry(!ticked);
}

void frmRandomInfo::chkBNNotAvailable_GotFocus() {
  Trace("chkBNNotAvailable_GotFocus");
  RaiseCurrentFieldTop(Ctl("chkBNNotAvailable"));
}

void frmRandomInfo::chkBNNotAvailable_KeyPress(int16_t& KeyAscii) {
  Trace("chkBNNotAvailable_KeyPress");
  if (KeyAscii == kEnter) FocusIfUsable("txtTransit");
}

void frmRandomInfo::chkDiscountsApply_KeyPress(int16_t& KeyAscii) {
  Trace("chkDiscountsApply_KeyPress");
  if (KeyAscii == kEnter) FocusIfUsable("ran_payee_contact");
}

void frmRandomInfo::optBusiness_Click() {
  Trace("optBusiness_Click");
  forms::Control& bank = Ctl("fraBankAcctInfo");
  if (ctx_.store.UserBankAcctPermission == 0) {
    bank.SetEnabled(false);
    Ctl("txtTransit").SetText("");
    Ctl("txtBankID").SetText("");
    Ctl("txtAccount").SetText("");
  } else {
    bank.SetEnabled(true);
  }
}

void frmRandomInfo::optBusiness_KeyPress(int16_t& KeyAscii) {
  Trace("optBusiness_KeyPress");
  if (KeyAscii != kEnter) return;
  forms::Control& transit = Ctl("txtTransit");
  app().SetFocus(transit.Enabled() ? transit : Ctl("cmd_ok"));
}

void frmRandomInfo::optEmployee_Click() {
  Trace("optEmployee_Click");
  Ctl("fraBankAcctInfo").SetEnabled(true);
  app().SetFocus(Ctl("txtTransit"));
}

void frmRandomInfo::optEmployee_KeyPress(int16_t& KeyAscii) {
  Trace("optEmployee_KeyPress");
  if (KeyAscii == kEnter) app().SetFocus(Ctl("txtTransit"));
}

}  // namespace nvrandom
