#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "api/cls_random.h"
#include "app/headless_services.h"
#include "app/services_factory.h"
#include "app/thread_context.h"
#include "component/context.h"

namespace nvrandom {
namespace {

// Default instances of one thread share its record, built by the installed services factory and
// completed with the component's own services; another thread has a record of its own; a
// released record is rebuilt afresh.
TEST(ThreadContext, OneRecordPerThreadFromTheInstalledFactory) {
  int built = 0;
  app::SetDefaultServicesFactory([&built] {
    ++built;
    return headless::MakeHeadlessServices().services;
  });
  app::ReleaseThreadContext();
  {
    ClsRandom first;
    first.PayeeName("ACME");
    ClsRandom second;
    EXPECT_EQ(second.PayeeName(), "ACME");
    EXPECT_EQ(&first.context(), &second.context());
    EXPECT_NE(first.context().services.verifiers, nullptr);
  }
  std::string other_thread_name = "unset";
  std::thread([&] { other_thread_name = ClsRandom().PayeeName(); }).join();
  EXPECT_EQ(other_thread_name, "");
  EXPECT_EQ(ClsRandom().PayeeName(), "ACME");  // the record outlives its instances
  app::ReleaseThreadContext();
  EXPECT_EQ(ClsRandom().PayeeName(), "");
  EXPECT_EQ(built, 3);
  app::SetDefaultServicesFactory(nullptr);
  app::ReleaseThreadContext();
}

}  // namespace
}  // namespace nvrandom
