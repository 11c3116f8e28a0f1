#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "app/headless_services.h"
#include "component/show_error.h"
#include "platform/message_box.h"
#include "support/test_host.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

TEST(Fileexists, TrueOnlyForAFileWhoseLengthCanBeAsked) {
  testing::TempFolder folder;
  const auto file = folder.path() / "present.txt";
  std::ofstream(file) << "x";
  std::ofstream(folder.path() / "empty.txt");
  testing::Host h;
  Random random(h.ctx);
  EXPECT_EQ(random.Fileexists(file.string()), kTrue);
  EXPECT_EQ(random.Fileexists((folder.path() / "empty.txt").string()), kTrue);
  EXPECT_EQ(random.Fileexists((folder.path() / "absent.txt").string()), kFalse);
  EXPECT_EQ(random.Fileexists(folder.path().string()), kFalse);
  EXPECT_EQ(random.Fileexists(""), kFalse);
  // A NUL would end the name early and name the existing file.
  EXPECT_EQ(random.Fileexists(file.string() + std::string(1, '\0') + "tail"), kFalse);
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
  EXPECT_EQ(random.WindowsDir(), testing::P(GetParam().expected));
  EXPECT_EQ(random.SystemDir(), "/usr/lib" + std::string(1, path::kSeparator));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WindowsDirTest,
    ::testing::Values(FolderRow{testing::P("/home/u/.local/share"), "/home/u/.local/share/"},
                      FolderRow{testing::P("/home/u/.local/share/"), "/home/u/.local/share/"},
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

// Every procedure writes its label on entry when tracing is on, in the order entered, also when
// another procedure of the module calls it (the account check pads through PadLeft and PadRight).
TEST(RandomTrace, EachProcedureWritesItsLabel) {
  testing::TempFolder folder;
  const auto install = folder.path() / "NORVIK" / "Bin";
  std::filesystem::create_directories(folder.path() / "Norvik");
  std::filesystem::create_directories(install);
  testing::Host h;
  h.ctx.store.DLLPath = install.string();
  h.ctx.store.gstrInstallRoot = InstallRootOf(h.ctx.store.DLLPath);
  h.ctx.store.PlayByPlayEnabled = -1;
  Random random(h.ctx);
  std::string message;
  int16_t length = 0;
  random.CleanseCharacters("a");
  random.PadLeft("a", 2);
  random.PadRight("a", 2);
  random.IsAlpha("a");
  random.Fileexists("a");
  random.Get_Windows_Dir();
  random.OpenBrowser();
  random.lookupProvince("ON");
  random.LookupPostcode("ONK");
  random.Has_PO_Box_Address("a");
  random.ValidateBankId("001", message, length);
  random.ValidateBankAccount("001", "12345", "1234567", message, length);
  random.ValidateABANumber("021000021");
  random.VerifyBusinessNumber("046454286");
  const std::string trace = testing::ReadFile(folder.path() / "Norvik" / "PBP.txt");
  size_t at = 0;
  for (const char* label :
       {"CleanseCharacters", "PadLeft", "PadRight", "IsAlpha", "Fileexists", "Get_Windows_Dir",
        "OpenBrowser", "lookupProvince", "LookupPostcode", "Has_PO_Box_Address", "ValidateBankId",
        "ValidateBankAccount", "ValidateABANumber", "VerifyBusinessNumber", "VerifyAccount",
        "PadLeft", "PadRight"}) {
    const std::string line = std::string("NVRANDOM - Random - ") + label + "\r\n";
    const size_t found = trace.find(line, at);
    ASSERT_NE(found, std::string::npos) << label << " missing or out of order in\n" << trace;
    at = found + line.size();
  }
}

}  // namespace
}  // namespace nvrandom
