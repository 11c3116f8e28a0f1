// The province, postal-letter and post-office-box answers are in checks_address.scn; here, the
// word list's own reading and a street far longer than any host sends.
#include "validation/address_rules.h"

#include <gtest/gtest.h>

#include <string>

namespace nvrandom::validation {
namespace {

TEST(PoBoxWords, EntriesAreTrimmedAndAnEmptyListFindsNothing) {
  EXPECT_TRUE(HasPoBoxAddress("CP 12", {"  CP  "}));
  EXPECT_FALSE(HasPoBoxAddress("CP 12", {}));
  EXPECT_FALSE(HasPoBoxAddress("CP 12", {""}));
}

TEST(PoBoxWords, AMebibyteStreetIsJudgedByItsStart) {
  std::string street(1 << 20, ' ');
  street.replace(street.size() / 2, 7, "po box ");
  street += 'x';
  EXPECT_TRUE(HasPoBoxAddress(street, SplitPoBoxWords()));
  street[street.size() / 2] = 'q';
  EXPECT_FALSE(HasPoBoxAddress(street, SplitPoBoxWords()));
}

}  // namespace
}  // namespace nvrandom::validation
