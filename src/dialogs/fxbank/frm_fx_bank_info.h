#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace nvrandom {

class Context;

// The foreign bank details dialog: the bank's name and address, and either a SWIFT code with an
// account (any country but the United States) or an ABA routing number with an account (the
// United States). A changed account is confirmed by typing it a second time. The biller dialog
// shows it modally; OK and Cancel hide it, so that the caller can read its fields before
// unloading it.
class frmFXBankInfo final : public forms::Form {
 public:
  // The component's one instance, created on first use.
  static frmFXBankInfo& Instance(Context& ctx);

  explicit frmFXBankInfo(Context& ctx);

  // True once OK accepted the details (reset when the dialog loads).
  bool OKClicked() const { return accepted_; }
  // The country box's value: the code of its current row, empty when no row is chosen.
  std::string CountryValue() const;

  // Set-up and the two account sections.
  void Form_Load() override;
  void EnableUSBankDetails();
  void EnableIntlBankDetails();
  void cmbBankCountry_LostFocus();
  void cmbBankCountry_KeyPress(int16_t& KeyAscii);
  void cmbBankProv_Change();
  void cmbBankProv_KeyPress(int16_t& KeyAscii);

  // Acceptance.
  void cmd_ok_Click();
  void cmd_cancel_Click();

 private:
  // The boxes of one account section: its number (SWIFT code or ABA routing number), its
  // account, their confirmations and the confirmations' heading.
  struct AccountSection {
    const char* number;
    const char* account;
    const char* number_conf;
    const char* account_conf;
    const char* confirm_label;
  };
  static const AccountSection kIntlSection;
  static const AccountSection kUSSection;

  void BindEvents();
  // The field entry rules (fx_bank_info_entry.cpp).
  void BindEntryRules();
  void BindPasteGuards();
  // The change rule of the text box `box`: `cleansed` (the box itself, but for one kept
  // exception) is cleansed and upper-cased; when `box` has reached its maximum length, `next`
  // takes the focus if it is visible and enabled. `unmask`: a first entry drops its password
  // character as soon as it is edited.
  void EntryRule(const std::string& box, const char* cleansed, const char* next, bool unmask);
  // Pasting is refused in the account, SWIFT and ABA boxes and their confirmations: the keys
  // that paste are discarded, and the right button empties the clipboard before the context
  // menu can paste.
  void PasteGuard_KeyDown(const std::string& box, int16_t& KeyCode, int16_t& Shift);
  void PasteGuard_MouseDown(const std::string& box, int16_t Button);
  void Trace(std::string_view procedure);
  void Message(std::string_view text, std::string_view caption = {});
  // Steps 1 to 5 of acceptance: a blank field is emptied, named and focused.
  bool Required(const char* box, const char* message);
  // The account section's part of acceptance once its own checks passed: the change test and
  // the confirmation step.
  void ConfirmAccount(const AccountSection& section, const std::string& opening_account,
                      const std::string& opening_number);
  void OpenConfirmation(const AccountSection& section, std::string account);
  void CloseConfirmation(const AccountSection& section);
  void ShowConfirmationAgain(const AccountSection& section);
  // Closes the dialog as OK and Cancel do: hidden, still loaded for the caller to read.
  void CloseDialog();

  Context& ctx_;
  bool accepted_ = false;
  bool account_changed_ = false;
  std::string pending_account_;
  std::string opening_account_;
  std::string opening_swift_;
  std::string opening_us_account_;
  bool completing_province_ = false;
};

}  // namespace nvrandom
