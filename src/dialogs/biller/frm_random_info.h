#pragma once

#include <cstdint>
#include <memory>
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

  // Host-facing procedures.
  void cmd_cancel_Click();
  void Form_QueryUnload(int16_t& Cancel, int16_t UnloadMode) override;
  void Form_KeyPress(int16_t& KeyAscii) override;
  void cmd_help_Click();
  void imgHelpCSFTInfo_Click(int Index);
  void cmdCheque_Click();
  void ctHyperLink1_Click();

 private:
  void Trace(std::string_view procedure);
  void ShowHelpTopic(unsigned topic);
  void RaiseCancel();

  Context& ctx_;
  RandomInfoEvents* events_;
};

}  // namespace nvrandom
