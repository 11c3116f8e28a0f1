#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "api/cls_random.h"
#include "component/trace.h"
#include "support/test_host.h"

namespace nvrandom::testing {
namespace {

namespace fs = std::filesystem;

// The trace line is "<general date> NVRANDOM - <label>" CR LF, in PBP.txt of the root's Norvik
// folder, reached through the doubled separator that the root's own trailing one gives; the
// folder is matched whatever its case, as on Windows. Appending, and a folder named in capitals,
// are in trace.scn.
TEST(Trace, LineFormatAndPlace) {
  TempFolder root;
  fs::create_directory(root.path() / "norvik");
  Host h;
  ClsRandom cls(h.ctx);
  cls.PlayByPlayEnabled(-1);
  cls.DLLPath(root.DllPath());
  cls.PayeeName("ACME");
  EXPECT_EQ(ReadFile(root.path() / "norvik" / "PBP.txt"),
            h.now + " NVRANDOM - ClsRandom - Let PayeeName\r\n");
  EXPECT_EQ(TraceFilePath(h.ctx),
            root.root() + path::kSeparator + "norvik" + path::kSeparator + "PBP.txt");
}

// The trace never disturbs its caller (a missing folder: trace_root.scn): a read-only folder, a
// path too long to open or a trace file that cannot be opened is passed over, and the procedure
// does its work.
TEST(Trace, WriteFailuresAreSwallowed) {
  struct Case {
    const char* what;
    std::function<void(const fs::path&)> prepare;
    std::string above_norvik;  // folders between the temporary root and NORVIK
  };
  const Case cases[] = {
      {"root longer than a path may be", [](const fs::path&) {}, std::string(100000, 'a')},
      {"folder read-only",
       [](const fs::path& dir) {
         fs::create_directory(dir / "Norvik");
         fs::permissions(dir / "Norvik", fs::perms::owner_read | fs::perms::owner_exec);
       }},
      {"trace file is a folder",
       [](const fs::path& dir) { fs::create_directories(dir / "Norvik" / "PBP.txt"); }},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    TempFolder root;
    row.prepare(root.path());
    Host h;
    ClsRandom cls(h.ctx);
    cls.PlayByPlayEnabled(-1);
    cls.DLLPath(row.above_norvik.empty() ? root.DllPath()
                                         : root.root() + row.above_norvik + P("/NORVIK/Bin"));
    EXPECT_NO_THROW(cls.PayeeName("ACME"));
    EXPECT_EQ(h.ctx.store.PayeeName, "ACME");
    std::error_code ignored;
    fs::permissions(root.path() / "Norvik", fs::perms::owner_all, ignored);
  }
}

// The trace folder's resolved name is kept between lines; a folder that appears (in any case)
// after a line was lost must still receive the next one.
TEST(Trace, AFolderCreatedLaterIsFound) {
  TempFolder root;
  Host h;
  ClsRandom cls(h.ctx);
  cls.PlayByPlayEnabled(-1);
  cls.DLLPath(root.DllPath());
  cls.PayeeName("lost");
  fs::create_directory(root.path() / "NORVIK");
  cls.PayeeCity("kept");
  EXPECT_EQ(ReadFile(root.path() / "NORVIK" / "PBP.txt"),
            h.now + " NVRANDOM - ClsRandom - Let PayeeCity\r\n");
}

}  // namespace
}  // namespace nvrandom::testing
