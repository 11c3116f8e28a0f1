// The scenario runner as a host's test harness: exit codes, failure reports with file and line,
// and the rules for dialogs and errors a script leaves behind.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "scenario_line.h"
#include "scenario_runner.h"

namespace nvrandom::scenario {
namespace {

// Each script's exit code, and the report it must give with its file and line: a failed
// expectation names what was found and the file goes on; a malformed line stops it.
TEST(ScenarioRunner, ExitCodeAndReport) {
  struct Case {
    const char* name;
    const char* script;
    int exit_code;
    const char* report;
  };
  const Case cases[] = {
      // A failed expectation names its line and what was found; the file goes on.
      {"fail", "let PayeeName \"A\"\nexpect prop PayeeName \"B\"\nexpect prop X 1\n", 1,
       ":2: expected PayeeName = \"B\", got \"A\""},
      // An unknown statement is malformed: exit 2.
      {"malformed", "let PayeeName \"A\"\nfrobnicate\n", 2, ":2: unknown statement"},
      // A statement short of words, and an unclosed quote, are malformed too.
      {"short", "new\nlet PayeeName\n", 2, ":2: 'let' needs more words"},
      {"quote", "let PayeeName \"A\n", 2, ":1: a quoted word is not closed"},
      // A person statement with no dialog open fails without stopping the file.
      {"no_dialog", "click cmd_ok\nexpect prop PayeeName \"\"\n", 1, ":1: cmd_ok is not available"},
      // A hidden control cannot be typed into.
      {"hidden", "show remote\ntype ran_Inter_payee_phone \"1\"\nunload\n", 1,
       ":2: ran_Inter_payee_phone is not available"},
      // A dialog left open at the end is closed by code and reported.
      {"left_open", "show remote\n", 1, ":1: frmRandomInfo is still open"},
      // A modal dialog the script never closes is reported too, and the run ends.
      {"modal_open", "show modal\n", 1, ":1: frmRandomInfo is still open"},
      // A host error that the script does not expect is a failure at its own line.
      {"unexpected_error", "let FormStyle \"x\"\nlet PayeeName \"A\"\n", 1,
       ":1: run-time error 13"},
      // The wrong error number fails.
      {"wrong_error", "get DLLPath\nexpect error 13\n", 1, ":2: expected error 13, got 451"},
      // Message boxes are matched oldest first; none left over when none was shown.
      {"nomsg", "expect nomsg\nexpect msg \"x\"\n", 1, ":2: expected message box \"x\", got none"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const auto file = (std::filesystem::temp_directory_path() /
                       ("nvrandom-runner-" + std::string(c.name) + ".scn"))
                          .string();
    std::ofstream(file) << c.script;
    std::ostringstream out;
    EXPECT_EQ(RunScenarioFiles({file}, RunOptions{}, out), c.exit_code) << out.str();
    EXPECT_NE(out.str().find(file + c.report), std::string::npos) << out.str();
    std::filesystem::remove(file);
  }
}

// Files run in order, each on a fresh record: what one sets, the next does not see.
TEST(ScenarioRunner, EachFileHasItsOwnRecord) {
  const auto dir = std::filesystem::temp_directory_path();
  const std::string first = (dir / "nvrandom-runner-first.scn").string();
  const std::string second = (dir / "nvrandom-runner-second.scn").string();
  std::ofstream(first) << "let PayeeName \"A\"\n";
  std::ofstream(second) << "expect prop PayeeName \"\"\n";
  std::ostringstream out;
  EXPECT_EQ(RunScenarioFiles({first, second}, RunOptions{}, out), 0) << out.str();
  EXPECT_NE(out.str().find("2 passed, 0 failed"), std::string::npos);
}

// The countries statement writes an enciphered file whose plain text is the rows given.
TEST(ScenarioRunner, CountriesStatementEnciphersRows) {
  const auto dir = std::filesystem::temp_directory_path();
  const std::string script = (dir / "nvrandom-runner-countries.scn").string();
  std::ofstream(script) << "countries Apps/NORVIK/Bin/FXCountries\n"
                           "Country,Code,Phone\nFrance,FR,33\nend\n"
                           "expect file Apps/NORVIK/Bin/FXCountries \"NVCF\"\n";
  std::ostringstream out;
  EXPECT_EQ(RunScenarioFiles({script}, RunOptions{}, out), 0) << out.str();
}

// Words: quotes group and escape, lists run to their bracket, comments and blanks are nothing.
TEST(ScenarioLine, SplitsWords) {
  const auto words = SplitWords(R"(let Prov_areacode [["ON", "416 647"]] "a \"b\"\t")");
  ASSERT_EQ(words.size(), 4u);
  EXPECT_EQ(words[2].text, R"([["ON", "416 647"]])");
  EXPECT_EQ(words[3].text, "a \"b\"\t");
  EXPECT_TRUE(words[3].quoted);
  EXPECT_TRUE(SplitWords("   # a comment").empty());
  EXPECT_THROW(SplitWords(R"(type x "\q")"), MalformedLine);
  EXPECT_EQ(Expand("$ROOTa/$INSTALL", "/r/", "/r/i/"), "/r/a//r/i/");
}

}  // namespace
}  // namespace nvrandom::scenario
