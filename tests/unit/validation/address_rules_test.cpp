#include "validation/address_rules.h"

#include <gtest/gtest.h>

#include <string>

#include "support/test_host.h"
#include "validation/random.h"

namespace nvrandom {
namespace {

// Ontario with K, L, M, N and P; Quebec with G, H and J; Nunavut with X; and a last unit cut
// short to "Y" so that the end of the string is exercised.
constexpr const char* kProvPostal = "ONKONLONMONNONPQCGQCHQCJNUXY";

struct LookupRow {
  const char* provpostal;
  std::string code;
  int16_t province;  // lookupProvince(code)
  int16_t postcode;  // LookupPostcode(code)
};

class LookupTest : public ::testing::TestWithParam<LookupRow> {
 protected:
  testing::Host h;
};

TEST_P(LookupTest, ReadsUnitsAtTheirBoundariesOnly) {
  h.ctx.store.Provpostalstr = GetParam().provpostal;
  Random random(h.ctx);
  EXPECT_EQ(random.lookupProvince(GetParam().code), GetParam().province);
  EXPECT_EQ(random.LookupPostcode(GetParam().code), GetParam().postcode);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LookupTest,
    ::testing::Values(
        // a province code
        LookupRow{kProvPostal, "ON", kTrue, kFalse},
        // case matters
        LookupRow{kProvPostal, "on", kFalse, kFalse},
        // "NK" appears at character 2, which is not a unit boundary
        LookupRow{kProvPostal, "NK", kFalse, kFalse},
        // a province with its postal letter
        LookupRow{kProvPostal, "ONM", kFalse, kTrue}, LookupRow{kProvPostal, "QCJ", kFalse, kTrue},
        // a letter of another province
        LookupRow{kProvPostal, "ONG", kFalse, kFalse},
        // D, F, I, O, Q end the postal lookup at once, even when the unit exists
        LookupRow{"ONDONFONIONOONQ", "OND", kFalse, kFalse},
        LookupRow{"ONDONFONIONOONQ", "ONQ", kFalse, kFalse},
        // U, W and Z are left to the table
        LookupRow{"NUUNUW", "NUW", kFalse, kTrue}, LookupRow{"NUUNUW", "NUZ", kFalse, kFalse},
        // the cut-short last unit compares as the one character left
        LookupRow{kProvPostal, "Y", kTrue, kTrue},
        // an empty string knows nothing
        LookupRow{"", "ON", kFalse, kFalse}, LookupRow{"", "", kFalse, kFalse},
        // an empty code matches no unit
        LookupRow{kProvPostal, "", kFalse, kFalse}));

struct PoBoxRow {
  std::string street;
  int16_t expected;
};

class PoBoxTest : public ::testing::TestWithParam<PoBoxRow> {
 protected:
  testing::Host h;
};

TEST_P(PoBoxTest, OnlyABoxWordFollowedByABlankAtTheStartCounts) {
  EXPECT_EQ(Random(h.ctx).Has_PO_Box_Address(GetParam().street), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PoBoxTest,
    ::testing::Values(PoBoxRow{"PO BOX 12", 1},
                      // upper-casing and blank collapsing come first
                      PoBoxRow{"p.o.   box 12", 1}, PoBoxRow{"   Post   Office Box 7  ", 1},
                      // not a spelling in the list
                      PoBoxRow{"POBOX 12", 0}, PoBoxRow{"C.P. 55", 1},
                      // "CP" must be followed by a blank
                      PoBoxRow{"CPL STREET", 0},
                      // a box word elsewhere does not count
                      PoBoxRow{"12 MAIN ST PO BOX 5", 0},
                      // a word at the very end has no blank after it once trimmed
                      PoBoxRow{"BP", 0}, PoBoxRow{"PO BOX   ", 0}, PoBoxRow{"boite postale 9", 1},
                      PoBoxRow{"B.P. 4", 1},
                      // blanks only, and nothing
                      PoBoxRow{"      ", 0}, PoBoxRow{"", 0},
                      // a tab is not a blank
                      PoBoxRow{"PO\tBOX 1", 0}));

TEST(PoBoxWords, FifteenEntriesInTheirOrder) {
  const auto words = validation::SplitPoBoxWords();
  ASSERT_EQ(words.size(), 15u);
  EXPECT_EQ(words.front(), "PO BOX");
  EXPECT_EQ(words[7], "CP");
  EXPECT_EQ(words.back(), "B.P.");
}

TEST(PoBoxWords, EntriesAreTrimmedAndAnEmptyListFindsNothing) {
  EXPECT_TRUE(validation::HasPoBoxAddress("CP 12", {"  CP  "}));
  EXPECT_FALSE(validation::HasPoBoxAddress("CP 12", {}));
  EXPECT_FALSE(validation::HasPoBoxAddress("CP 12", {""}));
}

TEST(PoBoxLargeInput, AMebibyteStreetIsJudgedByItsStart) {
  std::string street(1 << 20, ' ');
  street.replace(street.size() / 2, 7, "po box ");
  street += 'x';
  EXPECT_TRUE(validation::HasPoBoxAddress(street, validation::SplitPoBoxWords()));
  street[street.size() / 2] = 'q';
  EXPECT_FALSE(validation::HasPoBoxAddress(street, validation::SplitPoBoxWords()));
}

}  // namespace
}  // namespace nvrandom
