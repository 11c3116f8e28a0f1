// frmFXBankInfo: the field entry rules, and the paste guards of the account numbers.
#include <array>
#include <string>

#include "component/context.h"
#include "component/trace.h"
#include "dialogs/fxbank/frm_fx_bank_info.h"
#include "dialogs/fxbank/fx_bank_info_texts.h"
#include "forms/application.h"
#include "forms/control.h"
#include "forms/keystroke.h"
#include "platform/ascii.h"
#include "platform/clipboard.h"
#include "validation/error_trap.h"
#include "validation/random.h"
#include "validation/text.h"

namespace nvrandom {

namespace {

struct ChangeRule {
  const char* box;
  const char* cleansed;
  const char* next;
  bool unmask;
};

// The change rules, one per text box. txtUSABAConf cleanses the routing number it confirms, not
// itself: kept as it is.
constexpr std::array<ChangeRule, 11> kChangeRules = {{
    {"txtBankName", "txtBankName", "txtBankStreet", false},
    {"txtBankStreet", "txtBankStreet", "txtBankCity", false},
    {"txtBankCity", "txtBankCity", "cmbBankProv", false},
    {"txtSwiftNumber", "txtSwiftNumber", "txtBankAccount", true},
    {"txtBankAccount", "txtBankAccount", "cmd_ok", true},
    {"txtSwiftNumberConf", "txtSwiftNumberConf", "txtBankAccountConf", false},
    {"txtBankAccountConf", "txtBankAccountConf", "cmd_ok", false},
    {"txtUSABA", "txtUSABA", "txtUSBankAccount", true},
    {"txtUSBankAccount", "txtUSBankAccount", "cmd_ok", true},
    {"txtUSABAConf", "txtUSABA", "txtUSBankAccountConf", false},
    {"txtUSBankAccountConf", "txtUSBankAccountConf", "cmd_ok", false},
}};

constexpr std::array<const char*, 8> kGuardedBoxes = {
    "txtSwiftNumber", "txtBankAccount",   "txtSwiftNumberConf", "txtBankAccountConf",
    "txtUSABA",       "txtUSBankAccount", "txtUSABAConf",       "txtUSBankAccountConf"};

using forms::keys::kRightButton;

std::string UpperCase(std::string text) {
  for (char& c : text) c = ascii::ToUpper(c);
  return text;
}

}  // namespace

void frmFXBankInfo::BindEntryRules() {
  for (const ChangeRule& rule : kChangeRules) {
    const std::string box = rule.box;
    On(box).Change = [this, box, rule] { EntryRule(box, rule.cleansed, rule.next, rule.unmask); };
  }
}

void frmFXBankInfo::EntryRule(const std::string& box, const char* cleansed, const char* next,
                              bool unmask) {
  Trace(box + "_Change");
  forms::Control& own = Ctl(box);
  if (unmask) own.SetPasswordChar("");
  forms::Control& target = Ctl(cleansed);
  target.SetText(UpperCase(Random(ctx_).CleanseCharacters(target.Text())));
  const int max_length = own.MaxLength();
  if (max_length <= 0 || validation::CharacterCount(own.Text()) < static_cast<size_t>(max_length)) {
    return;
  }
  forms::Control& next_field = Ctl(next);
  if (next_field.Visible() && next_field.Enabled()) app().SetFocus(next_field);
}

void frmFXBankInfo::BindPasteGuards() {
  for (const char* name : kGuardedBoxes) {
    const std::string box = name;
    forms::ControlEvents& events = On(box);
    events.KeyDown = [this, box](int16_t& key_code, int16_t& shift) {
      PasteGuard_KeyDown(box, key_code, shift);
    };
    events.MouseDown = [this, box](int16_t button, int16_t, float, float) {
      PasteGuard_MouseDown(box, button);
    };
  }
}

void frmFXBankInfo::PasteGuard_KeyDown(const std::string& box, int16_t& KeyCode, int16_t& Shift) {
  const std::string label = fx_bank_info_text::kGuardLabelPrefix + box + "_KeyDown";
  TraceEntry(ctx_, label);
  if (forms::keys::IsPasteKeyDown(KeyCode, Shift)) KeyCode = 0;
}

void frmFXBankInfo::PasteGuard_MouseDown(const std::string& box, int16_t Button) {
  const std::string label = fx_bank_info_text::kGuardLabelPrefix + box + "_MouseDown";
  TraceEntry(ctx_, label);
  if (Button != kRightButton) return;
  try {
    ctx_.services.clipboard->Clear();
  } catch (...) {
    validation::ReportTrappedError(ctx_, label);
  }
}

}  // namespace nvrandom
