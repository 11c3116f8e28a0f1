// The biller dialog's geometry in each of its layouts: what a person sees through a view, where
// a scenario can only read single positions. Every control shown lies inside its container, no
// two shown side by side overlap, and every caption fits its control at the designed font
// ("MS Sans Serif" 8pt: about 90 twips a character, 195 twips a line).
#include <gtest/gtest.h>

#include <functional>
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

struct Layout {
  const char* name;
  std::function<void(ComponentStore&)> set;
};

class RandomInfoLayoutTest : public ::testing::TestWithParam<Layout> {};

TEST_P(RandomInfoLayoutTest, ShownControlsFitTheirContainersAndCaptionsFit) {
  testing::Host h;
  ComponentStore& s = h.ctx.store;
  s.PayeeName = "A BILLER WITH A NAME OF THIRTY5";
  s.Provpostalstr = "ONKQCG";
  GetParam().set(s);
  auto dialog = frmRandomInfo::Create(h.ctx, nullptr);
  dialog->EnsureLoaded();

  std::vector<const forms::Control*> shown;
  for (const auto& control : dialog->Controls()) {
    if (Shown(*control)) shown.push_back(control.get());
  }
  ASSERT_GT(shown.size(), 10u);

  testing::ExpectLaidOut(*dialog, shown);
}

INSTANTIATE_TEST_SUITE_P(Layouts, RandomInfoLayoutTest,
                         ::testing::Values(Layout{"DomesticBusiness",
                                                  [](ComponentStore& s) {
                                                    s.PayeeIndBussFlg = " ";
                                                    s.NVMemberType = "B";
                                                  }},
                                           Layout{"DomesticIndividual",
                                                  [](ComponentStore& s) {
                                                    s.PayeeIndBusnTag = "1";
                                                    s.PayeeIndBussFlg = "I";
                                                    s.UserBankAcctPermission = -1;
                                                  }},
                                           Layout{"USModeWithBankPermission",
                                                  [](ComponentStore& s) {
                                                    s.WhatKindOfBiller = "U";
                                                    s.CurrencyCodeFromMain = "USD";
                                                    s.UserBankAcctPermission = -1;
                                                  }},
                                           Layout{"USModeWithoutBankPermission",
                                                  [](ComponentStore& s) {
                                                    s.WhatKindOfBiller = "U";
                                                    s.CurrencyCodeFromMain = "USD";
                                                  }},
                                           Layout{"International",
                                                  [](ComponentStore& s) {
                                                    s.PayeeCurrency = "EUR";
                                                    s.PayeeCountry = "GB";
                                                  }}),
                         [](const ::testing::TestParamInfo<Layout>& info) {
                           return std::string(info.param.name);
                         });

}  // namespace
}  // namespace nvrandom
