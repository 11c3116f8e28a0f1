// The biller dialog's geometry in each of its layouts: what a person sees through a view, where
// a scenario can only read single positions. Every control shown lies inside its container, no
// two shown side by side overlap, and every caption fits its control at the designed font
// ("MS Sans Serif" 8pt: about 90 twips a character, 195 twips a line).
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "component/context.h"
#include "dialogs/biller/frm_random_info.h"
#include "forms/control.h"
#include "support/test_host.h"

namespace nvrandom {
namespace {

constexpr int32_t kCharWidth = 90;
constexpr int32_t kLineHeight = 195;
// The window's frame and title bar, around the form's client area.
constexpr int32_t kFrameWidth = 120;
constexpr int32_t kTitleAndFrameHeight = 420;

bool Shown(const forms::Control& control) {
  for (const forms::Control* c = &control; c != nullptr; c = c->Container()) {
    if (!c->Visible()) return false;
  }
  return true;
}

// The lines a caption takes when wrapped at `width` twips (hard line breaks kept).
int32_t WrappedLines(const std::string& caption, int32_t width) {
  const int32_t per_line = std::max<int32_t>(1, width / kCharWidth);
  int32_t lines = 0;
  std::istringstream paragraphs(caption);
  for (std::string paragraph; std::getline(paragraphs, paragraph, '\n');) {
    if (!paragraph.empty() && paragraph.back() == '\r') paragraph.pop_back();
    int32_t used = 0;
    ++lines;
    std::istringstream words(paragraph);
    for (std::string word; words >> word;) {
      const auto length = static_cast<int32_t>(word.size());
      if (used > 0 && used + 1 + length > per_line) {
        ++lines;
        used = 0;
      }
      used += (used > 0 ? 1 : 0) + length;
    }
  }
  return lines;
}

// Room a control needs beside its caption's text: the box of a check box or option button, a
// button's edges.
int32_t CaptionPadding(forms::ControlKind kind) {
  switch (kind) {
    case forms::ControlKind::kCheckBox:
    case forms::ControlKind::kOptionButton:
      return 300;
    case forms::ControlKind::kCommandButton:
    case forms::ControlKind::kFrame:
      return 240;
    default:
      return 0;
  }
}

std::string CaptionText(const std::string& caption) {
  std::string text;
  for (const char c : caption) {
    if (c != '&') text += c;
  }
  return text;
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

  for (const forms::Control* c : shown) {
    const forms::Control* box = c->Container();
    const int32_t width = box ? box->Width() : dialog->Width() - kFrameWidth;
    const int32_t height = box ? box->Height() : dialog->Height() - kTitleAndFrameHeight;
    EXPECT_GE(c->Left(), 0) << c->FullName();
    EXPECT_GE(c->Top(), 0) << c->FullName();
    EXPECT_LE(c->Left() + c->Width(), width) << c->FullName() << " sticks out on the right";
    EXPECT_LE(c->Top() + c->Height(), height) << c->FullName() << " sticks out at the foot";

    const std::string caption = CaptionText(c->Caption());
    if (caption.empty() || c->kind() == forms::ControlKind::kImage) continue;
    const int32_t room = c->Width() - CaptionPadding(c->kind());
    if (c->kind() == forms::ControlKind::kLabel || c->kind() == forms::ControlKind::kHyperLink) {
      const int32_t lines = std::max<int32_t>(1, c->Height() / kLineHeight);
      EXPECT_LE(WrappedLines(caption, room), lines)
          << c->FullName() << " cannot show \"" << caption << "\"";
    } else {
      EXPECT_LE(static_cast<int32_t>(caption.size()) * kCharWidth, room)
          << c->FullName() << " cannot show \"" << caption << "\"";
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
