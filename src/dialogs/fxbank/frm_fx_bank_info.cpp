#include "dialogs/fxbank/frm_fx_bank_info.h"

#include <memory>
#include <string>

#include "component/context.h"
#include "component/show_error.h"
#include "component/trace.h"
#include "dialogs/fxbank/fx_bank_info_design.h"
#include "dialogs/fxbank/fx_bank_info_texts.h"
#include "dialogs/support/mod_form_controller.h"
#include "forms/application.h"
#include "platform/message_box.h"

namespace nvrandom {

frmFXBankInfo& frmFXBankInfo::Instance(Context& ctx) {
  std::shared_ptr<forms::Form>& slot = ctx.forms().DefaultInstance(fx_bank_info_text::kFormName);
  if (!slot) slot = std::make_shared<frmFXBankInfo>(ctx);
  return static_cast<frmFXBankInfo&>(*slot);
}

frmFXBankInfo::frmFXBankInfo(Context& ctx)
    : forms::Form(ctx.forms(), FXBankInfoForm(), FXBankInfoControls()), ctx_(ctx) {
  BindEvents();
}

void frmFXBankInfo::BindEvents() {
  On("cmd_ok").Click = [this] { cmd_ok_Click(); };
  On("cmd_cancel").Click = [this] { cmd_cancel_Click(); };
  forms::ControlEvents& country = On("cmbBankCountry");
  country.LostFocus = [this] { cmbBankCountry_LostFocus(); };
  country.KeyPress = [this](int16_t& key) { cmbBankCountry_KeyPress(key); };
  forms::ControlEvents& province = On("cmbBankProv");
  province.Change = [this] { cmbBankProv_Change(); };
  province.KeyPress = [this](int16_t& key) { cmbBankProv_KeyPress(key); };
  BindEntryRules();
  BindPasteGuards();
}

void frmFXBankInfo::Trace(std::string_view procedure) {
  TraceEntry(ctx_, fx_bank_info_text::kLabelPrefix, procedure);
}

void frmFXBankInfo::Message(std::string_view text, std::string_view caption) {
  ctx_.services.message_box->Show(text, msgbox::kOKOnly | msgbox::kInformation,
                                  caption.empty() ? std::string_view(kApplicationTitle) : caption);
}

void frmFXBankInfo::Form_Load() {
  Trace("Form_Load");
  modFormController(ctx_).reStyleForm(*this);
  // Rows are country, code and telephone code; the code is what the box shows and its value.
  forms::Control& country = Ctl("cmbBankCountry");
  country.SetBoundColumn(1);
  country.SetDisplayColumn(1);
  accepted_ = false;
  account_changed_ = false;
  pending_account_.clear();
  // What the account test of acceptance compares with. The US section's account test starts
  // from the stored account as it is, routing number included.
  opening_account_ = ctx_.store.PayeeFXBankAccount;
  opening_swift_ = ctx_.store.PayeeFXBankSwift;
  opening_us_account_ = ctx_.store.PayeeFXBankAccount;
}

std::string frmFXBankInfo::CountryValue() const {
  const forms::Control* country = Find("cmbBankCountry");
  return country != nullptr ? country->BoundText() : std::string();
}

void frmFXBankInfo::CloseDialog() {
  Hide();
}

void frmFXBankInfo::cmd_cancel_Click() {
  Trace("cmd_cancel_Click");
  // The accepted flag stays as it is: false, since an accepted dialog is closed already.
  CloseDialog();
}

}  // namespace nvrandom
