#include "verifier/institution_table.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/account_verifier.h"
#include "verifier/institution_data.h"

namespace nvrandom::verifier {
namespace {

TEST(InstitutionTable, TheCompiledInFileReadsWithoutErrors) {
  const InstitutionTable table = ReadInstitutionTable(kInstitutionsCsv, kInstitutionSourcesCsv);
  EXPECT_EQ(table.errors, std::vector<std::string>{});
  // What the public lists name together, and the business-number registry.
  EXPECT_GE(table.rows.size(), 120u);
  ASSERT_EQ(KnownInstitutions().size(), table.rows.size());
  for (const Institution& row : KnownInstitutions()) {
    EXPECT_EQ(FindInstitution(row.number), &row) << row.number;
  }
  EXPECT_EQ(FindInstitution("005"), nullptr);
  EXPECT_EQ(FindInstitution(""), nullptr);
  EXPECT_EQ(FindInstitution("0010"), nullptr);
}

constexpr std::string_view kSources = "key,repository\nAA,one/list\nBB,other/list\n";
constexpr std::string_view kHeading = "number,name,accounts,sources,read,notes\n";

// A well-formed row is kept; another is left out, its line named and what is wrong with it said.
TEST(InstitutionTable, KeepsAWellFormedRowAndSaysWhatIsWrongWithAnother) {
  const std::pair<std::string, std::string> rows[] = {
      {"001,Bank,7,AA,2026-11-22,", ""},
      {"001,\"Bank, N.A.\",7|12,AA BB,2026-11-22,\"a note, quoted\"", ""},
      {"828,Central,5-12|14,AA,2026-11-22,", ""},
      {std::string(kBusinessNumberBankId) + ",Registry,business-number,AA,2026-11-22,", ""},
      // fields
      {"001,Bank,7,AA,2026-11-22", "6 fields expected, 5 found"},
      {"001,\"Bank,7,AA,2026-11-22,", "unbalanced quotes"},
      // numbers: three digits, six for the registry
      {"01,Bank,7,AA,2026-11-22,", "3 digits"},
      {"001,Registry,business-number,AA,2026-11-22,", "6 digits"},
      // lengths from 1 to 30, rising
      {"001,Bank,31,AA,2026-11-22,", "account lengths"},
      {"001,Bank,12-7,AA,2026-11-22,", "account lengths"},
      // names: printable ASCII, as the hosts show them
      {"001,Qu\xC3\xA9"
       "bec,7,AA,2026-11-22,",
       "printable ASCII"},
      // every fact has a listed source and the date it was read
      {"001,Bank,7,,2026-11-22,", "no source"},
      {"001,Bank,7,AA CC,2026-11-22,", "unknown source CC"},
      {"001,Bank,7,AA,22/11/2026,", "YYYY-MM-DD"},
  };
  for (const auto& [line, error] : rows) {
    SCOPED_TRACE(line);
    const InstitutionTable table =
        ReadInstitutionTable(std::string(kHeading) + line + "\n", kSources);
    EXPECT_EQ(table.rows.size(), error.empty() ? 1u : 0u);
    if (error.empty()) {
      EXPECT_EQ(table.errors, std::vector<std::string>{});
    } else {
      ASSERT_EQ(table.errors.size(), 1u);
      EXPECT_EQ(table.errors[0].rfind("line 2: ", 0), 0u) << table.errors[0];
      EXPECT_NE(table.errors[0].find(error), std::string::npos) << table.errors[0];
    }
  }
}

TEST(InstitutionTable, NeedsItsHeadingAndRisingNumbers) {
  // The rows are views into the text, which must outlive them.
  const std::string csv = std::string(kHeading) +
                          "002,Two,7,AA,2026-11-22,\r\n"
                          "\n"
                          "001,One,7,AA,2026-11-22,\n"
                          "002,Again,7,AA,2026-11-22,\n"
                          "003,Three,7,AA,2026-11-22,";
  const InstitutionTable table = ReadInstitutionTable(csv, kSources);
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(table.rows[0].name, "Two");
  EXPECT_EQ(table.rows[1].number, "003");
  EXPECT_EQ(table.errors, (std::vector<std::string>{"line 4: numbers must rise from row to row",
                                                    "line 5: numbers must rise from row to row"}));

  const InstitutionTable headless =
      ReadInstitutionTable("001,One,7,AA,2026-11-22,\n002,Two,7,AA,2026-11-22,\n", kSources);
  ASSERT_EQ(headless.errors.size(), 1u);
  EXPECT_NE(headless.errors[0].find("line 1: the heading must be"), std::string::npos);
  EXPECT_EQ(headless.rows.size(), 1u);

  EXPECT_TRUE(ReadInstitutionTable("", kSources).rows.empty());
}

TEST(InstitutionTable, ReadsTheLengthsAsASet) {
  const InstitutionTable table = ReadInstitutionTable(
      std::string(kHeading) + "828,Central,5-7|9|12,AA,2026-11-22,\n", kSources);
  ASSERT_EQ(table.rows.size(), 1u);
  EXPECT_EQ(table.rows[0].account_lengths,
            Lengths(5) | Lengths(6) | Lengths(7) | Lengths(9) | Lengths(12));
  EXPECT_EQ(table.rows[0].rule, AccountRule::kDigits);
}

}  // namespace
}  // namespace nvrandom::verifier
