#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"
#include "support/test_host.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

constexpr std::array<forms::ControlDesign, 1> kControls = {
    {{.kind = forms::ControlKind::kComboBox, .name = "cmbProvince"}}};
constexpr forms::FormDesign kDesign{.name = "frmTest", .caption = "Test"};

struct CompletionRow {
  std::vector<std::string> list;
  std::string typed;
  std::string text;  // afterwards
  int list_index;
  int sel_start;
  int sel_length;  // as the control clipped it
};

class ComboBoxAutoCompleteTest : public ::testing::TestWithParam<CompletionRow> {
 protected:
  testing::Host h;
};

TEST_P(ComboBoxAutoCompleteTest, CompletesWithTheFirstEntryBeginningWithTheText) {
  auto form = std::make_shared<forms::Form>(h.ctx.forms(), kDesign, kControls);
  forms::Control& combo = form->Ctl("cmbProvince");
  for (const std::string& item : GetParam().list) combo.AddItem(item);
  combo.SetText(GetParam().typed);
  int changes = 0;
  combo.events.Change = [&] { ++changes; };

  Random(h.ctx).ComboBoxAutoComplete(combo);

  EXPECT_EQ(combo.Text(), GetParam().text);
  EXPECT_EQ(combo.ListIndex(), GetParam().list_index);
  EXPECT_EQ(combo.SelStart(), GetParam().sel_start);
  EXPECT_EQ(combo.SelLength(), GetParam().sel_length);
  EXPECT_EQ(changes, combo.Text() != GetParam().typed ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ComboBoxAutoCompleteTest,
    ::testing::Values(
        // the completed part stands selected
        CompletionRow{{"Alberta", "Ontario", "Onslow"}, "on", "Ontario", 1, 2, 5},
        // case is ignored; the entry's own spelling is taken
        CompletionRow{{"Alberta", "Ontario"}, "ONT", "Ontario", 1, 3, 4},
        // a full match selects nothing further
        CompletionRow{{"Ontario"}, "ontario", "Ontario", 0, 7, 0},
        // no entry begins with the text: nothing changes
        CompletionRow{{"Alberta", "Ontario"}, "x", "x", -1, 1, 0},
        // an empty text matches the first entry
        CompletionRow{{"Alberta", "Ontario"}, "", "Alberta", 0, 0, 7},
        // an empty list: the one-past-the-end entry reads as empty and selects no row
        CompletionRow{{}, "", "", -1, 0, 0},
        // characters, not bytes, for the selection
        CompletionRow{{"Qu\xC3\xA9"
                       "bec"},
                      "qu",
                      "Qu\xC3\xA9"
                      "bec",
                      0,
                      2,
                      4}));

TEST(ComboBoxAutoComplete, AChangeHandlerCallingItAgainSettles) {
  testing::Host h;
  auto form = std::make_shared<forms::Form>(h.ctx.forms(), kDesign, kControls);
  forms::Control& combo = form->Ctl("cmbProvince");
  combo.AddItem("Manitoba");
  Random random(h.ctx);
  int calls = 0;
  combo.events.Change = [&] {
    ++calls;
    random.ComboBoxAutoComplete(combo);
  };
  combo.SetText("ma");
  EXPECT_EQ(combo.Text(), "Manitoba");
  EXPECT_EQ(combo.SelText(), "nitoba");
  EXPECT_EQ(calls, 2);
}

}  // namespace
}  // namespace nvrandom
