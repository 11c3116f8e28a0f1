#include <gtest/gtest.h>
#include "component/store.h"
TEST(Smoke, Root) {
  EXPECT_EQ(nvrandom::InstallRootOf("/a/NORVIK/b"), "/a/");
}
