#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <utility>

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

// The shell's answers that the procedure explains, each with its own text, and those it passes
// over (31, the system's "no association", deliberately); without an address, the maker's site.
TEST(OpenBrowser, ExplainsOnlyTheCodesItTestsFor) {
  const std::pair<int32_t, std::string> rows[] = {
      {0, "correctly installed. (Error 0)"},
      {2, "Problem running your web browser."},
      {31, ""},
      {32, std::string(kApplicationTitle) +
               " could not find a file association for https://bills.example.org on your system."},
  };
  for (const auto& [code, part] : rows) {
    SCOPED_TRACE(code);
    testing::Host h;
    h.shell.result = code;
    Random(h.ctx).OpenBrowser("https://bills.example.org");
    ASSERT_EQ(h.shell.calls.size(), 1u);
    EXPECT_EQ(h.shell.calls[0].verb, "open");
    EXPECT_EQ(h.shell.calls[0].file, "https://bills.example.org");
    EXPECT_EQ(h.shell.calls[0].show_mode, 3);
    ASSERT_EQ(h.boxes.shown.size(), part.empty() ? 0u : 1u);
    if (part.empty()) continue;
    EXPECT_EQ(h.boxes.shown[0].caption, "Browser Unavailable");
    EXPECT_EQ(h.boxes.shown[0].style, msgbox::kOKOnly | msgbox::kExclamation);
    EXPECT_NE(h.boxes.shown[0].text.find(part), std::string::npos) << h.boxes.shown[0].text;
  }
  testing::Host h;
  Random(h.ctx).OpenBrowser();
  ASSERT_EQ(h.shell.calls.size(), 1u);
  EXPECT_EQ(h.shell.calls[0].file, kMakerWebSite);
}

}  // namespace
}  // namespace nvrandom
