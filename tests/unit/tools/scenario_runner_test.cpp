// What no scenario file can show of its own runner: that a failure fails, with its file and line,
// and that each file of a run starts afresh.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "scenario_runner.h"

namespace nvrandom::scenario {
namespace {

struct Script {
  std::string file;
  explicit Script(const std::string& name, const char* text)
      : file((std::filesystem::temp_directory_path() / ("nvrandom-runner-" + name + ".scn"))
                 .string()) {
    std::ofstream(file) << text;
  }
  ~Script() { std::filesystem::remove(file); }
};

int RunFiles(const std::vector<std::string>& files, std::string& report) {
  std::ostringstream out;
  const int code = RunScenarioFiles(files, RunOptions{}, out);
  report = out.str();
  return code;
}

// A failed expectation names its line and what was found, and the file goes on; a malformed line
// stops it (exit 2); what a file leaves behind, or does not expect, fails at its own line.
TEST(ScenarioRunner, ExitCodeAndReport) {
  struct Case {
    const char* name;
    const char* script;
    int exit_code;
    const char* report;
  };
  const Case cases[] = {
      {"fail", "let PayeeName \"A\"\nexpect prop PayeeName \"B\"\nexpect prop X 1\n", 1,
       ":2: expected PayeeName = \"B\", got \"A\""},
      {"malformed", "let PayeeName \"A\"\nfrobnicate\n", 2, ":2: unknown statement"},
      {"no_dialog", "click cmd_ok\nexpect prop PayeeName \"\"\n", 1, ":1: cmd_ok is not available"},
      {"left_open", "show remote\n", 1, ":1: frmRandomInfo is still open"},
      {"unexpected_error", "let FormStyle \"x\"\nlet PayeeName \"A\"\n", 1,
       ":1: run-time error 13"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const Script script(c.name, c.script);
    std::string report;
    EXPECT_EQ(RunFiles({script.file}, report), c.exit_code) << report;
    EXPECT_NE(report.find(script.file + c.report), std::string::npos) << report;
  }
}

// Files run in order, each on a fresh record: what one sets, the next does not see.
TEST(ScenarioRunner, EachFileHasItsOwnRecord) {
  const Script first("first", "let PayeeName \"A\"\n");
  const Script second("second", "expect prop PayeeName \"\"\n");
  std::string report;
  EXPECT_EQ(RunFiles({first.file, second.file}, report), 0) << report;
  EXPECT_NE(report.find("2 passed, 0 failed"), std::string::npos);
}

}  // namespace
}  // namespace nvrandom::scenario
