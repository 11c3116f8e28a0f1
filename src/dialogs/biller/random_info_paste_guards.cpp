// frmRandomInfo: the bank numbers and their confirmations are typed, never pasted.
#include <array>
#include <string>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "forms/control.h"
#include "forms/keystroke.h"
#include "platform/clipboard.h"

namespace nvrandom {

namespace {

using forms::keys::kRightButton;

constexpr std::array<const char*, 9> kTypedOnly = {
    "txtBankID",       "txtTransit",     "txtAccount",           "txtTransitConf",
    "txtBankIDConf",   "txtAccountConf", "txtBankAccountNumber", "txtConfirmBankAccountNumber",
    "txtRoutingNumber"};

}  // namespace

void frmRandomInfo::BindPasteGuards() {
  for (const char* box : kTypedOnly) {
    const std::string key_down = std::string(box) + "_KeyDown";
    On(box).KeyDown = [this, key_down](int16_t& KeyCode, int16_t& Shift) {
      RunProcedure(key_down, [&] {
        if (forms::keys::IsPasteKeyDown(KeyCode, Shift)) {
          KeyCode = 0;
        }
      });
    };
  }
  std::array<const char*, kTypedOnly.size() + 1> right_button{};
  std::copy(kTypedOnly.begin(), kTypedOnly.end(), right_button.begin());
  right_button.back() = "ran_payee_email";
  for (const char* box : right_button) {
    const std::string mouse_down = std::string(box) + "_MouseDown";
    On(box).MouseDown = [this, mouse_down](int16_t Button, int16_t, float, float) {
      RunProcedure(mouse_down, [&] {
        // Emptied before the context menu opens, so that its Paste inserts nothing.
        if (Button == kRightButton) ctx_.services.clipboard->Clear();
      });
    };
  }
}

}  // namespace nvrandom
