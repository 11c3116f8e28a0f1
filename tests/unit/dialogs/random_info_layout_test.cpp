// The biller dialog's geometry in each of its layouts: what a person sees through a view, where
// a scenario can only read single positions. Every control shown lies inside its container, no
// two shown side by side overlap, and every caption fits its control at the designed font
// ("MS Sans Serif" 8pt: about 90 twips a character, 195 twips a line).
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "forms/control.h"
#include "support/layout_check.h"
#include "support/test_host.h"

namespace nvrandom {
namespace {

bool Shown(const forms::Control& control) {
  for (const forms::Control* c = &control; c != nullptr; c = c->Container()) {
    if (!c->Visible()) return false;
  }
  return true;
}

// Each layout, by what the host sets for it.
TEST(RandomInfoLayout, ShownControlsFitTheirContainersAndCaptionsFit) {
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
    testing::ExpectLaidOut(*dialog, shown);
  }
}

}  // namespace
}  // namespace nvrandom
