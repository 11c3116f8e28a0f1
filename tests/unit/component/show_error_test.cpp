#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "component/show_error.h"
#include "platform/message_box.h"
#include "platform/runtime_error.h"
#include "support/test_host.h"

namespace nvrandom::testing {
namespace {

namespace fs = std::filesystem;

// A host whose installation root is a fresh folder, where error.log and the trace go.
class ShowErrorTest : public ::testing::Test {
 protected:
  ShowErrorTest() { h.ctx.store.gstrInstallRoot = root.root(); }
  std::string Log() const { return ReadFile(root.path() / "error.log"); }

  TempFolder root;
  Host h;
};

// One critical OK box with the fixed message, captioned with the title or, when the title is
// blank, the application's; then one comma-separated line in error.log of the root.
TEST_F(ShowErrorTest, ShowsTheMessageAndLogsOneLine) {
  for (const auto& [title, caption] :
       {std::pair{"", "NVRandom"}, {"   ", "NVRandom"}, {"Biller", "Biller"}}) {
    SCOPED_TRACE(std::string("title '") + title + "'");
    fs::remove(root.path() / "error.log");
    h.boxes.shown.clear();
    ShowError(h.ctx, 5, "D", "P", false, title);
    ASSERT_EQ(h.boxes.shown.size(), 1U);
    EXPECT_EQ(h.boxes.shown[0].text,
              "The following error: 'D (Error 5)' occurred in procedure 'P'.");
    EXPECT_EQ(h.boxes.shown[0].style, msgbox::kOKOnly | msgbox::kCritical);
    EXPECT_EQ(h.boxes.shown[0].caption, caption);
    EXPECT_EQ(Log(), h.now + ",NVRandom, , ,5,\"D\",\"P\"\r\n");
  }
}

// Silent reports show nothing but are logged all the same; lines accumulate, and quotation
// marks in the description are written as they are.
TEST_F(ShowErrorTest, SilentReportsAreLoggedAndLinesAppend) {
  ShowError(h.ctx, 13, "say \"hi\"", "Random.VerifyBusinessNumber", true);
  ShowError(h.ctx, RuntimeError(9), "Random.Has_PO_Box_Address");
  EXPECT_EQ(h.boxes.shown.size(), 1U);
  EXPECT_EQ(h.boxes.shown.back().text,
            "The following error: 'Subscript out of range (Error 9)' occurred in procedure "
            "'Random.Has_PO_Box_Address'.");
  EXPECT_EQ(Log(),
            h.now + ",NVRandom, , ,13,\"say \"hi\"\",\"Random.VerifyBusinessNumber\"\r\n" + h.now +
                ",NVRandom, , ,9,\"Subscript out of range\",\"Random.Has_PO_Box_Address\"\r\n");
}

// The log cannot be written (its name is taken by a folder): the box has been shown and the
// failure is not reported again.
TEST_F(ShowErrorTest, ALogThatCannotBeWrittenIsPassedOver) {
  fs::create_directory(root.path() / "error.log");
  EXPECT_NO_THROW(ShowError(h.ctx, 5, "D", "P"));
  EXPECT_EQ(h.boxes.shown.size(), 1U);
}

// When tracing, the report first writes its trace entry, which spans two lines of the file.
TEST_F(ShowErrorTest, TraceEntrySpansTwoLines) {
  fs::create_directory(root.path() / "Norvik");
  h.ctx.store.PlayByPlayEnabled = -1;
  ShowError(h.ctx, 5, "D", "P", true);
  EXPECT_EQ(ReadFile(root.path() / "Norvik" / "PBP.txt"),
            h.now + " NVRANDOM - Random - ShowError D\r\nLastOP=P\r\n");
}

}  // namespace
}  // namespace nvrandom::testing
