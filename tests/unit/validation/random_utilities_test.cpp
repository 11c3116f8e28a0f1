#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "app/headless_services.h"
#include "component/show_error.h"
#include "platform/message_box.h"
#include "support/test_host.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

// The answers for present, empty and absent files and folders are in checks_text.scn. A NUL,
// which no scenario can write, would end the name early and name the existing file.
TEST(Fileexists, ANulDoesNotEndTheName) {
  testing::TempFolder folder;
  const auto file = folder.path() / "present.txt";
  std::ofstream(file) << "x";
  testing::Host h;
  EXPECT_EQ(Random(h.ctx).Fileexists(file.string() + std::string(1, '\0') + "tail"), kFalse);
}

struct FolderRow {
  std::string windows;
  std::string expected;
};

class WindowsDirTest : public ::testing::TestWithParam<FolderRow> {};

TEST_P(WindowsDirTest, AlwaysEndsInASeparator) {
  auto headless = headless::MakeHeadlessServices(GetParam().windows);
  Context ctx(std::move(headless.services));
  Random random(ctx);
  random.Get_Windows_Dir();
  EXPECT_EQ(random.WindowsDir(), GetParam().expected);
  EXPECT_EQ(random.SystemDir(), "/usr/lib/");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WindowsDirTest,
    ::testing::Values(FolderRow{"/home/u/.local/share", "/home/u/.local/share/"},
                      FolderRow{"/home/u/.local/share/", "/home/u/.local/share/"},
                      FolderRow{"", "/"}));

struct BrowserRow {
  int32_t code;      // what the shell answers
  bool box;          // a message is shown
  std::string part;  // part of its text
};

class OpenBrowserTest : public ::testing::TestWithParam<BrowserRow> {};

TEST_P(OpenBrowserTest, ExplainsOnlyTheCodesItTestsFor) {
  testing::Host h;
  h.shell.result = GetParam().code;
  Random(h.ctx).OpenBrowser("https://bills.example.org");
  ASSERT_EQ(h.shell.calls.size(), 1u);
  EXPECT_EQ(h.shell.calls[0].verb, "open");
  EXPECT_EQ(h.shell.calls[0].file, "https://bills.example.org");
  EXPECT_EQ(h.shell.calls[0].show_mode, 3);
  if (!GetParam().box) {
    EXPECT_TRUE(h.boxes.shown.empty());
    return;
  }
  ASSERT_EQ(h.boxes.shown.size(), 1u);
  EXPECT_EQ(h.boxes.shown[0].caption, "Browser Unavailable");
  EXPECT_EQ(h.boxes.shown[0].style, msgbox::kOKOnly | msgbox::kExclamation);
  EXPECT_NE(h.boxes.shown[0].text.find(GetParam().part), std::string::npos)
      << h.boxes.shown[0].text;
}

INSTANTIATE_TEST_SUITE_P(
    Codes, OpenBrowserTest,
    ::testing::Values(BrowserRow{0, true, "correctly installed. (Error 0)"},
                      BrowserRow{2, true, "Problem running your web browser."},
                      BrowserRow{30, true, "(Error 30)"},
                      // 31 is the system's "no association", deliberately not tested for
                      BrowserRow{31, false, ""},
                      BrowserRow{
                          32, true,
                          std::string(kApplicationTitle) +
                              " could not find a file association for https://bills.example.org on "
                              "your system."},
                      BrowserRow{33, false, ""}, BrowserRow{42, false, ""}));

TEST(OpenBrowser, WithoutAnAddressOpensTheMakersSite) {
  testing::Host h;
  Random(h.ctx).OpenBrowser();
  ASSERT_EQ(h.shell.calls.size(), 1u);
  EXPECT_EQ(h.shell.calls[0].file, kMakerWebSite);
}

}  // namespace
}  // namespace nvrandom
