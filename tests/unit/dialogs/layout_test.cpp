// The dialogs' geometry: what a person sees through a view, where a scenario reads single
// positions. On each layout's shown controls: each lies inside its container, no two in one
// container overlap, and every caption fits at the designed font ("MS Sans Serif" 8pt: about 90
// twips a character, 195 a line; labels may wrap onto the lines they have). The views' tests
// measure the captions again in the fonts they really draw with, on the demo's samples.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
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

constexpr int32_t kCharWidth = 90;
constexpr int32_t kLineHeight = 195;
// The window's frame and title bar, around the form's client area.
constexpr int32_t kWindowFrameWidth = 120;
constexpr int32_t kTitleAndFrameHeight = 420;

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
// button's or frame's edges.
int32_t CaptionPadding(forms::ControlKind kind) {
  if (kind == forms::ControlKind::kCheckBox || kind == forms::ControlKind::kOptionButton) {
    return 300;
  }
  return forms::IsButtonKind(kind) || kind == forms::ControlKind::kFrame ? 240 : 0;
}

std::string CaptionText(const std::string& caption) {
  std::string text;
  for (const char c : caption) {
    if (c != '&') text += c;
  }
  return text;
}

void ExpectLaidOut(const forms::Form& form, const std::vector<const forms::Control*>& shown) {
  for (const forms::Control* c : shown) {
    const forms::Control* box = c->Container();
    const int32_t width = box ? box->Width() : form.Width() - kWindowFrameWidth;
    const int32_t height = box ? box->Height() : form.Height() - kTitleAndFrameHeight;
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
