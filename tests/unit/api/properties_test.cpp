#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "api/cls_random.h"
#include "api/property_table.h"
#include "platform/runtime_error.h"
#include "support/test_host.h"

namespace nvrandom::testing {
namespace {

// Runs `f` and gives the run-time error number it raised, 0 for none.
int ErrorOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.number();
  }
  return 0;
}

// Every property of the member table is reachable by name and stores what it is given: read back
// where the host may read it, 451 where it may only set it. Methods are reached by name too;
// a property is no method and a method no property (438).
TEST(Properties, EveryMemberIsReachableByName) {
  Host h;
  ClsRandom cls(h.ctx);
  StringArray array = StringArray::TwoDimensional(0, 1, 0, 1);
  for (const MemberInfo& m : Members()) {
    SCOPED_TRACE(std::string(m.name));
    if (m.kind == MemberKind::kMethod) {
      EXPECT_EQ(ErrorOf([&] { cls.Let(m.name, 1); }), 438);
      continue;
    }
    EXPECT_EQ(ErrorOf([&] { cls.Call(m.name); }), 438);
    const bool integer =
        m.property_type == PropertyType::kInteger || m.property_type == PropertyType::kFlag;
    const Variant value = integer ? Variant(1) : Variant("1");
    if (ErrorOf([&] { cls.Let(m.name, value); }) == 13) {
      EXPECT_EQ(ErrorOf([&] { cls.Let(m.name, array); }), 0);  // an array property
    }
    if (m.can_get) {
      EXPECT_EQ(cls.Get(m.name), value);
    } else {
      EXPECT_EQ(ErrorOf([&] { cls.Get(m.name); }), 451);
    }
  }
  EXPECT_EQ(cls.Call("get_width"), Variant(cls.Get_Width()));
}

// The installation root is DLLPath up to and including the separator before the first
// "NORVIK" folder name, compared case-sensitively; each new DLLPath replaces it. trace_root.scn
// shows the everyday cases through where the trace goes.
TEST(Properties, DllPathDerivesTheInstallationRoot) {
  struct Case {
    std::string dll_path;
    std::string root;
  };
  const std::string long_folder(100000 - 12, 'a');
  const Case cases[] = {
      {P("/a/NORVIK/b/NORVIK/c"), P("/a/")},
      {P("/NORVIKSOFT/x"), P("/")},  // the name is matched as a prefix
      {P("NORVIK/x"), ""},           // no separator before it
      {P("/\xFF\xFE/NORVIK/b"), P("/\xFF\xFE/")},
      {P("/" + long_folder + "/NORVIK/b"), P("/" + long_folder + "/")},
  };
  Host h;
  ClsRandom cls(h.ctx);
  for (const Case& row : cases) {
    SCOPED_TRACE(row.dll_path.substr(0, 40));
    cls.DLLPath(row.dll_path);
    EXPECT_EQ(h.ctx.store.DLLPath, row.dll_path);
    EXPECT_EQ(h.ctx.store.gstrInstallRoot, row.root);
  }
}

}  // namespace
}  // namespace nvrandom::testing
