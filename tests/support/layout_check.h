#pragma once

// The geometry a person sees through a view, checked on a form's shown controls: each lies inside
// its container, no two in one container overlap, and every caption fits at the designed font
// ("MS Sans Serif" 8pt: about 90 twips a character; labels may wrap onto the lines they have).
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/form.h"

namespace nvrandom::testing {

inline constexpr int32_t kCharWidth = 90;
inline constexpr int32_t kLineHeight = 195;
// The window's frame and title bar, around the form's client area.
inline constexpr int32_t kWindowFrameWidth = 120;
inline constexpr int32_t kTitleAndFrameHeight = 420;

// The lines a caption takes when wrapped at `width` twips (hard line breaks kept).
inline int32_t WrappedLines(const std::string& caption, int32_t width) {
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
inline int32_t CaptionPadding(forms::ControlKind kind) {
  if (kind == forms::ControlKind::kCheckBox || kind == forms::ControlKind::kOptionButton) {
    return 300;
  }
  return forms::IsButtonKind(kind) || kind == forms::ControlKind::kFrame ? 240 : 0;
}

inline std::string CaptionText(const std::string& caption) {
  std::string text;
  for (const char c : caption) {
    if (c != '&') text += c;
  }
  return text;
}

inline void ExpectLaidOut(const forms::Form& form,
                          const std::vector<const forms::Control*>& shown) {
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

}  // namespace nvrandom::testing
