// The foreign bank dialog's geometry with everything shown (both sections and both
// confirmation steps): what a person sees through a view, where a scenario reads single
// positions. Every control lies inside its container, no two side by side overlap, every
// caption fits at the designed font ("MS Sans Serif" 8pt: about 90 twips a character), and the
// widest box holds its maximum length of capitals.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/fxbank/frm_fx_bank_info.h"
#include "forms/control.h"
#include "support/layout_check.h"
#include "support/test_host.h"

namespace nvrandom {
namespace {

// A capital or a digit of the boxes' font, on average, and the box's edges.
constexpr int32_t kCapitalWidth = 80;
constexpr int32_t kBoxEdges = 120;

TEST(FXBankInfoLayout, EverythingShownFitsWithoutOverlapping) {
  testing::Host h;
  frmFXBankInfo& dialog = frmFXBankInfo::Instance(h.ctx);
  dialog.EnsureLoaded();
  for (const char* hidden : {"lblConfirmInt", "txtSwiftNumberConf", "txtBankAccountConf",
                             "lblConfirmUS", "txtUSABAConf", "txtUSBankAccountConf"}) {
    dialog.Ctl(hidden).SetVisible(true);
  }

  std::vector<const forms::Control*> shown;
  for (const auto& control : dialog.Controls()) {
    ASSERT_TRUE(control->Visible()) << control->FullName();
    shown.push_back(control.get());
  }

  testing::ExpectLaidOut(dialog, shown);
  for (const forms::Control* c : shown) {
    if (c->kind() == forms::ControlKind::kTextBox) {
      // A full box is read whole, without scrolling: an IBAN is checked at a glance.
      EXPECT_LE(c->MaxLength() * kCapitalWidth + kBoxEdges, c->Width())
          << c->FullName() << " cannot show its " << c->MaxLength() << " characters";
    }
  }
}

}  // namespace
}  // namespace nvrandom
