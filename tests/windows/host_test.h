#pragma once

#include <gtest/gtest.h>

#include "dialog_host.h"

namespace nvrandom::com::test {

// A test as a host of NVRandom.dll: COM on the thread and the server loaded; a message box that
// came up and was answered for the person fails the test.
class HostTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(apartment_.usable());
    ASSERT_TRUE(host_.loaded());
  }
  void TearDown() override { EXPECT_TRUE(host_.message_boxes().empty()); }

  ApartmentScope apartment_;
  DialogHost host_;
};

}  // namespace nvrandom::com::test
