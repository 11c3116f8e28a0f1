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
#include "support/test_host.h"

namespace nvrandom {
namespace {

constexpr int32_t kCharWidth = 90;
// A capital or a digit of the boxes' font, on average, and the box's edges.
constexpr int32_t kCapitalWidth = 80;
constexpr int32_t kBoxEdges = 120;
// The window's frame and title bar, around the form's client area.
constexpr int32_t kFrameWidth = 120;
constexpr int32_t kTitleAndFrameHeight = 420;

int32_t CaptionPadding(forms::ControlKind kind) {
  return forms::IsButtonKind(kind) || kind == forms::ControlKind::kFrame ? 240 : 0;
}

std::string CaptionText(const std::string& caption) {
  std::string text;
  for (const char c : caption) {
    if (c != '&') text += c;
  }
  return text;
}

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

  for (const forms::Control* c : shown) {
    const forms::Control* box = c->Container();
    const int32_t width = box ? box->Width() : dialog.Width() - kFrameWidth;
    const int32_t height = box ? box->Height() : dialog.Height() - kTitleAndFrameHeight;
    EXPECT_GE(c->Left(), 0) << c->FullName();
    EXPECT_GE(c->Top(), 0) << c->FullName();
    EXPECT_LE(c->Left() + c->Width(), width) << c->FullName() << " sticks out on the right";
    EXPECT_LE(c->Top() + c->Height(), height) << c->FullName() << " sticks out at the foot";
    const std::string caption = CaptionText(c->Caption());
    EXPECT_LE(static_cast<int32_t>(caption.size()) * kCharWidth,
              c->Width() - CaptionPadding(c->kind()))
        << c->FullName() << " cannot show \"" << caption << "\"";
    if (c->kind() == forms::ControlKind::kTextBox) {
      // A full box is read whole, without scrolling: an IBAN is checked at a glance.
      EXPECT_LE(c->MaxLength() * kCapitalWidth + kBoxEdges, c->Width())
          << c->FullName() << " cannot show its " << c->MaxLength() << " characters";
    }
  }

  for (size_t i = 0; i < shown.size(); ++i) {
    for (size_t j = i + 1; j < shown.size(); ++j) {
      const forms::Control& a = *shown[i];
      const forms::Control& b = *shown[j];
      if (a.Container() != b.Container()) continue;
      const bool apart = a.Left() + a.Width() <= b.Left() || b.Left() + b.Width() <= a.Left() ||
                         a.Top() + a.Height() <= b.Top() || b.Top() + b.Height() <= a.Top();
      EXPECT_TRUE(apart) << a.FullName() << " overlaps " << b.FullName();
    }
  }
}

}  // namespace
}  // namespace nvrandom
