#pragma once

#include <memory>

#include "forms/form.h"

namespace nvrandom {

class Context;

// The sample cheque: a picture of a cheque and the common Canadian bank ids. One instance per
// component, created on first use.
class frmCheque final : public forms::Form {
 public:
  static frmCheque& Instance(Context& ctx);

  explicit frmCheque(Context& ctx);

  void Form_Load() override;
  void LoadBankList();

 private:
  Context& ctx_;
};

}  // namespace nvrandom
