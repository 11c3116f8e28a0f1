#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "forms/form.h"

namespace nvrandom {

class Context;
class RandomInfoEvents;

// The biller information dialog: its controls come from the design table, its behaviour is the
// event procedures below, named after control and event.
class frmRandomInfo final : public forms::Form {
 public:
  // `events`: the class the dialog is connected to, or nullptr for an unconnected instance whose
  // events reach nobody.
  static std::shared_ptr<frmRandomInfo> Create(Context& ctx, RandomInfoEvents* events);

  frmRandomInfo(Context& ctx, RandomInfoEvents* events);

  // The class this dialog was connected to is gone.
  void Disconnect() { events_ = nullptr; }

  // Read-only viewing of an imported biller: no field can be edited; the foreign bank details
  // stay reachable (through their button) only when the biller has them.
  void LockForImport(bool has_foreign_bank);

  // Set-up and layout.
  void Form_Load() override;
  void Form_Activate() override;
  void SetupForm();
  void SetupBusinessForm();
  void SetupIndividualForm();

  // The pick lists.
  void LoadCountries();
  void LoadCurrencyCodes();
  void LoadProvinces();

  // The international state.
  void SetFXBiller(bool isFX);
  void SetFXPhoneNumber(bool isFX);
  bool FXCurrencyExists(std::string_view code) const;
  // Whether the biller has been taken as international (set at set-up or by the user's Yes).
  bool ForeignCurrency() const { return foreign_currency_; }

  // The bank numbers as set-up left them, to tell later whether the user changed them.
  struct BankTexts {
    std::string account, bank_id, transit, routing_number, bank_account_number;
  };
  const BankTexts& BankTextsAtSetup() const { return bank_texts_at_setup_; }
  // The address block's height as designed, read when the dialog loaded.
  int32_t Frame3HeightAtLoad() const { return frame3_height_at_load_; }

  // Host-facing procedures.
  void cmd_cancel_Click();
  void Form_QueryUnload(int16_t& Cancel, int16_t UnloadMode) override;
  void Form_KeyPress(int16_t& KeyAscii) override;
  void cmd_help_Click();
  void imgHelpCSFTInfo_Click(int Index);
  void cmdCheque_Click();
  void ctHyperLink1_Click();
  void cmdFXBankingInfo_Click();

  // Biller kind, payment kind and business number.
  void optCIndividual_Click();
  void optCBusiness_Click();
  void optCBusiness_GotFocus();
  void optCIndividual_GotFocus();
  void optBusiness_Click();
  void optBusiness_KeyPress(int16_t& KeyAscii);
  void optEmployee_Click();
  void optEmployee_KeyPress(int16_t& KeyAscii);
  void chkBNNotAvailable_Click();
  void chkBNNotAvailable_GotFocus();
  void chkBNNotAvailable_KeyPress(int16_t& KeyAscii);
  void chkDiscountsApply_KeyPress(int16_t& KeyAscii);

  // The lists' events.
  void ran_payee_country_GotFocus();
  void ran_payee_country_KeyPress(int16_t& KeyAscii);
  void ran_payee_country_LostFocus();
  void cmbCurrencyCode_KeyPress(int16_t& KeyAscii);
  void cmbCurrencyCode_LostFocus();

 private:
  void BindEvents();
  void Trace(std::string_view procedure);
  void ShowHelpTopic(unsigned topic);
  void RaiseCancel();
  void RaiseCurrentFieldTop(const forms::Control& control);
  int Message(std::string_view text, int style);
  bool USMode() const;
  // Focus to `name` when it is visible and enabled itself.
  bool FocusIfUsable(std::string_view name);
  void SetBusinessNumberEntry(bool enabled);
  // Selects the list row of that code, or shows the code as typed when the list lacks it.
  void ChooseCode(std::string_view list, std::string_view code);
  // Answers the question of an international payment; true when the biller became one.
  bool AcceptInternational();
  // Places Label15 and the buttons under Frame1 and fits the window around them.
  void PlaceButtonsUnderFrame1();

  Context& ctx_;
  RandomInfoEvents* events_;
  bool foreign_currency_ = false;
  int32_t frame3_height_at_load_ = 0;
  BankTexts bank_texts_at_setup_;
};

}  // namespace nvrandom
