// Where the host's paths take a platform's separators, which a scenario file cannot write: the
// trace folder's resolved name is kept between lines, and a folder that appears (in any case)
// after a line was lost still receives the next one.
#include <gtest/gtest.h>

#include <filesystem>

#include "api/cls_random.h"
#include "support/test_host.h"

namespace nvrandom::testing {
namespace {

TEST(Trace, AFolderCreatedLaterIsFound) {
  TempFolder root;
  Host h;
  ClsRandom cls(h.ctx);
  cls.PlayByPlayEnabled(-1);
  cls.DLLPath(root.DllPath());
  cls.PayeeName("lost");
  std::filesystem::create_directory(root.path() / "norvik");
  cls.PayeeCity("kept");
  EXPECT_EQ(ReadFile(root.path() / "norvik" / "PBP.txt"),
            h.now + " NVRANDOM - ClsRandom - Let PayeeCity\r\n");
}

}  // namespace
}  // namespace nvrandom::testing
