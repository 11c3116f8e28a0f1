#include "dialogs/biller/frm_random_info.h"

#include <string>

#include "component/context.h"
#include "component/trace.h"
#include "dialogs/biller/random_info_design.h"
#include "dialogs/biller/random_info_events.h"
#include "dialogs/biller/random_info_texts.h"
#include "dialogs/support/frm_cheque.h"
#include "dialogs/support/mod_form_controller.h"
#include "forms/application.h"
#include "platform/message_box.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {
// Close result of a dialog that was cancelled, or accepted without a change.
constexpr int32_t kClosedWithoutChange = 50000;
}  // namespace

std::shared_ptr<frmRandomInfo> frmRandomInfo::Create(Context& ctx, RandomInfoEvents* events) {
  return std::make_shared<frmRandomInfo>(ctx, events);
}

frmRandomInfo::frmRandomInfo(Context& ctx, RandomInfoEvents* events)
    : forms::Form(ctx.forms(), RandomInfoForm(), RandomInfoControls()), ctx_(ctx), events_(events) {
  BindEvents();
}

void frmRandomInfo::BindEvents() {
  On("cmd_cancel").Click = [this] { cmd_cancel_Click(); };
  On("cmd_help").Click = [this] { cmd_help_Click(); };
  On("cmdCheque").Click = [this] { cmdCheque_Click(); };
  On("ctHyperLink1").Click = [this] { ctHyperLink1_Click(); };
  On("cmdFXBankingInfo").Click = [this] { cmdFXBankingInfo_Click(); };
  for (int i = 0; Find("imgHelpCSFTInfo", i) != nullptr; ++i) {
    On("imgHelpCSFTInfo", i).Click = [this, i] { imgHelpCSFTInfo_Click(i); };
  }

  forms::ControlEvents& individual = On("optCIndividual");
  individual.Click = [this] { optCIndividual_Click(); };
  individual.GotFocus = [this] { optCIndividual_GotFocus(); };
  forms::ControlEvents& business = On("optCBusiness");
  business.Click = [this] { optCBusiness_Click(); };
  business.GotFocus = [this] { optCBusiness_GotFocus(); };
  forms::ControlEvents& pay_business = On("optBusiness");
  pay_business.Click = [this] { optBusiness_Click(); };
  pay_business.KeyPress = [this](int16_t& key) { optBusiness_KeyPress(key); };
  forms::ControlEvents& employee = On("optEmployee");
  employee.Click = [this] { optEmployee_Click(); };
  employee.KeyPress = [this](int16_t& key) { optEmployee_KeyPress(key); };
  forms::ControlEvents& not_available = On("chkBNNotAvailable");
  not_available.Click = [this] { chkBNNotAvailable_Click(); };
  not_available.GotFocus = [this] { chkBNNotAvailable_GotFocus(); };
  not_available.KeyPress = [this](int16_t& key) { chkBNNotAvailable_KeyPress(key); };
  On("chkDiscountsApply").KeyPress = [this](int16_t& key) { chkDiscountsApply_KeyPress(key); };

  forms::ControlEvents& country = On("ran_payee_country");
  country.GotFocus = [this] { ran_payee_country_GotFocus(); };
  country.KeyPress = [this](int16_t& key) { ran_payee_country_KeyPress(key); };
  country.LostFocus = [this] { ran_payee_country_LostFocus(); };
  forms::ControlEvents& currency = On("cmbCurrencyCode");
  currency.KeyPress = [this](int16_t& key) { cmbCurrencyCode_KeyPress(key); };
  currency.LostFocus = [this] { cmbCurrencyCode_LostFocus(); };
}

void frmRandomInfo::LockForImport(bool has_foreign_bank) {
  // The address block holds the biller's fields, Frame1 everything else of the biller including
  // the foreign bank button. With foreign bank details Frame1 stays enabled for that button, so
  // the bank account block is locked on its own.
  Ctl("Frame3").SetEnabled(false);
  if (has_foreign_bank) {
    Ctl("fraBankAcctInfo").SetEnabled(false);
    Ctl("fraBankInfo").SetEnabled(false);
    Ctl("cmdFXBankingInfo").SetCaption(random_info_text::kViewBankingInformation);
  } else {
    Ctl("Frame1").SetEnabled(false);
  }
}

void frmRandomInfo::Trace(std::string_view procedure) {
  TraceEntry(ctx_, random_info_text::kLabelPrefix, procedure);
}

void frmRandomInfo::RaiseCancel() {
  if (events_ != nullptr) events_->Cancel();
}

void frmRandomInfo::RaiseCurrentFieldTop(const forms::Control& control) {
  if (events_ != nullptr) events_->CurrentFieldTop(static_cast<int16_t>(control.Top()));
}

int frmRandomInfo::Message(std::string_view text, int style) {
  return ctx_.services.message_box->Show(text, style, Caption());
}

bool frmRandomInfo::USMode() const {
  return ctx_.store.WhatKindOfBiller != " ";
}

bool frmRandomInfo::FocusIfUsable(std::string_view name) {
  forms::Control& control = Ctl(name);
  if (!control.Visible() || !control.Enabled()) return false;
  app().SetFocus(control);
  return true;
}

void frmRandomInfo::Form_Load() {
  Trace("Form_Load");
  frame3_height_at_load_ = Ctl("Frame3").Height();
  // The biller's name and account read as fields this dialog does not change; restyling leaves
  // them so.
  for (const char* shown : {"ran_payee_name", "ran_payee_account"}) {
    Ctl(shown).SetBackColor(forms::colors::kWindowBackground);
    Ctl(shown).SetTag(random_info_text::kNoStyle);
  }
  SetupForm();
  bank_texts_at_setup_ = {Ctl("txtAccount").Text(), Ctl("txtBankID").Text(),
                          Ctl("txtTransit").Text(), Ctl("txtRoutingNumber").Text(),
                          Ctl("txtBankAccountNumber").Text()};
}

void frmRandomInfo::Form_Activate() {
  Trace("Form_Activate");
  modFormController(ctx_).reStyleForm(*this);
  forms::Control& frame3 = Ctl("Frame3");
  forms::Control& us_bank = Ctl("fraBankInfo");
  if (frame3.Enabled() && Ctl("ran_payee_street").Visible()) {
    app().SetFocus(Ctl("ran_payee_street"));
  }
  if (!frame3.Enabled() && us_bank.Visible()) us_bank.SetEnabled(false);
  if (us_bank.Enabled() || Ctl("Frame1").Enabled()) Ctl("ctHyperLink1").SetEnabled(true);
}

void frmRandomInfo::cmd_cancel_Click() {
  Trace("cmd_cancel_Click");
  ctx_.store.closeResult = kClosedWithoutChange;
  Unload(forms::unload_mode::kCode);
  RaiseCancel();
}

void frmRandomInfo::Form_QueryUnload(int16_t& Cancel, int16_t UnloadMode) {
  (void)Cancel;
  Trace("Form_QueryUnload");
  if (UnloadMode == forms::unload_mode::kCode) return;
  ctx_.store.closeResult = kClosedWithoutChange;
  // Pending window events have nothing left to do here: the sent keys wait for the input that
  // is under way, and that input is this close.
  Unload(forms::unload_mode::kCode);
  RaiseCancel();
}

void frmRandomInfo::Form_KeyPress(int16_t& KeyAscii) {
  Trace("Form_KeyPress");
  // Enter sends the text "9" to the focused control and is itself passed on: kept as the
  // dialog has always behaved.
  if (KeyAscii == 13) app().SendKeys(std::to_string(9));
}

void frmRandomInfo::ShowHelpTopic(unsigned topic) {
  ctx_.services.help->ShowTopic(ctx_.store.gstrInstallRoot + random_info_text::kHelpFile, topic);
}

void frmRandomInfo::cmd_help_Click() {
  Trace("cmd_help_Click");
  ShowHelpTopic(random_info_text::kHelpTopicBiller);
}

void frmRandomInfo::imgHelpCSFTInfo_Click(int Index) {
  Trace("imgHelpCSFTInfo_Click");
  switch (Index) {
    case 0:
      ShowHelpTopic(506000012);
      break;
    case 1:
    case 2:
      ShowHelpTopic(506000014);
      break;
    case 3:
      ShowHelpTopic(506000013);
      break;
    case 4:
      ShowHelpTopic(506000018);
      break;
    case 5:
      ShowHelpTopic(506000019);
      break;
    default:
      break;
  }
}

void frmRandomInfo::cmdCheque_Click() {
  Trace("cmdCheque_Click");
  frmCheque::Instance(ctx_).Show(true);
}

void frmRandomInfo::ctHyperLink1_Click() {
  Trace("ctHyperLink1_Click");
  Random(ctx_).OpenBrowser(validation::TrimBlanks(ctx_.store.USBillPaymentURL));
}

}  // namespace nvrandom
