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

// The first entry beginning with the text, ignoring case, replaces it in the entry's spelling and
// the completed part stands selected (in characters); an empty list's one-past-the-end entry
// reads as empty and selects no row. (What the foreign bank dialog's province shows, a text no
// entry begins with included: fxbank_acceptance.scn.)
TEST(ComboBoxAutoComplete, CompletesWithTheFirstEntryBeginningWithTheText) {
  struct Row {
    std::vector<std::string> list;
    std::string typed, text;
    int list_index, sel_start, sel_length;
  };
  const std::string quebec =
      "Qu\xC3\xA9"
      "bec";
  const Row rows[] = {
      {{"Alberta", "Ontario", "Onslow"}, "on", "Ontario", 1, 2, 5},
      {{"Ontario"}, "ontario", "Ontario", 0, 7, 0},
      {{"Alberta", "Ontario"}, "", "Alberta", 0, 0, 7},
      {{}, "", "", -1, 0, 0},
      {{quebec}, "qu", quebec, 0, 2, 4},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.typed);
    testing::Host h;
    auto form = std::make_shared<forms::Form>(h.ctx.forms(), kDesign, kControls);
    forms::Control& combo = form->Ctl("cmbProvince");
    for (const std::string& item : row.list) combo.AddItem(item);
    combo.SetText(row.typed);
    int changes = 0;
    combo.events.Change = [&] { ++changes; };
    Random(h.ctx).ComboBoxAutoComplete(combo);
    EXPECT_EQ(combo.Text(), row.text);
    EXPECT_EQ(combo.ListIndex(), row.list_index);
    EXPECT_EQ(combo.SelStart(), row.sel_start);
    EXPECT_EQ(combo.SelLength(), row.sel_length);
    EXPECT_EQ(changes, row.text != row.typed ? 1 : 0);
  }
}

}  // namespace
}  // namespace nvrandom
