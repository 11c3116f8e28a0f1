// The dialogs' geometry: what a person sees through a view, where a scenario reads single
// positions. On each layout's shown controls: each lies inside its container and no two in one
// container overlap. Whether the captions fit is measured by the views' tests, in the fonts they
// really draw with.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "dialogs/fxbank/frm_fx_bank_info.h"
#include "forms/control.h"
#include "forms/form.h"
#include "support/test_host.h"

namespace nvrandom {
namespace {

// The window's frame and title bar, around the form's client area.
constexpr int32_t kWindowFrameWidth = 120;
constexpr int32_t kTitleAndFrameHeight = 420;

void ExpectLaidOut(const forms::Form& form, const std::vector<const forms::Control*>& shown) {
  for (size_t i = 0; i < shown.size(); ++i) {
    const forms::Control& a = *shown[i];
    const forms::Control* box = a.Container();
    const int32_t width = box ? box->Width() : form.Width() - kWindowFrameWidth;
    const int32_t height = box ? box->Height() : form.Height() - kTitleAndFrameHeight;
    EXPECT_TRUE(a.Left() >= 0 && a.Top() >= 0) << a.FullName();
    EXPECT_LE(a.Left() + a.Width(), width) << a.FullName() << " sticks out on the right";
    EXPECT_LE(a.Top() + a.Height(), height) << a.FullName() << " sticks out at the foot";
    for (size_t j = i + 1; j < shown.size(); ++j) {
      const forms::Control& b = *shown[j];
      if (a.Container() != b.Container()) continue;
      const bool apart = a.Left() + a.Width() <= b.Left() || b.Left() + b.Width() <= a.Left() ||
                         a.Top() + a.Height() <= b.Top() || b.Top() + b.Height() <= a.Top();
      EXPECT_TRUE(apart) << a.FullName() << " overlaps " << b.FullName();
    }
  }
}

bool Shown(const forms::Control& control) {
  for (const forms::Control* c = &control; c != nullptr; c = c->Container()) {
    if (!c->Visible()) return false;
  }
  return true;
}

// Each layout, by what the host sets for it.
TEST(RandomInfoLayout, ShownControlsFitTheirContainers) {
  struct Layout {
    const char* name;
    const char *kind, *tag, *flag, *currency, *country, *member;
    int16_t bank_permission;
  };
  const Layout layouts[] = {
      {"domestic business", " ", "", " ", "", "", "B", 0},
      {"domestic individual", " ", "1", "I", "", "", "", -1},
      {"US with bank permission", "U", "", "", "", "", "", -1},
      {"US without bank permission", "U", "", "", "", "", "", 0},
      {"international", " ", "", "", "EUR", "GB", "", 0},
  };
  for (const Layout& layout : layouts) {
    SCOPED_TRACE(layout.name);
    testing::Host h;
    ComponentStore& s = h.ctx.store;
    s.PayeeName = "A BILLER WITH A NAME OF THIRTY5";
    s.Provpostalstr = "ONKQCG";
    s.WhatKindOfBiller = layout.kind;
    s.CurrencyCodeFromMain = s.WhatKindOfBiller == "U" ? "USD" : "CAD";
    s.PayeeIndBusnTag = layout.tag;
    s.PayeeIndBussFlg = layout.flag;
    s.PayeeCurrency = layout.currency;
    s.PayeeCountry = layout.country;
    s.NVMemberType = layout.member;
    s.UserBankAcctPermission = layout.bank_permission;
    auto dialog = frmRandomInfo::Create(h.ctx, nullptr);
    dialog->EnsureLoaded();

    std::vector<const forms::Control*> shown;
    for (const auto& control : dialog->Controls()) {
      if (Shown(*control)) shown.push_back(control.get());
    }
    ASSERT_GT(shown.size(), 10u);
    ExpectLaidOut(*dialog, shown);
  }
}

// A capital or a digit of the boxes' font, on average, and the box's edges.
constexpr int32_t kCapitalWidth = 80;
constexpr int32_t kBoxEdges = 120;

// The foreign bank dialog with everything shown, both sections and both confirmation steps; the
// widest box holds its maximum length of capitals.
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

  ExpectLaidOut(dialog, shown);
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
