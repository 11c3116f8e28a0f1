#include <sys/stat.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

#include "api/cls_random.h"
#include "component/component_host.h"
#include "component/show_error.h"
#include "component/trace.h"
#include "platform/runtime_error.h"

namespace nvrandom::component_test {
namespace {

namespace fs = std::filesystem;

bool AnyTraceFileUnder(const fs::path& dir) {
  for (const auto& entry : fs::recursive_directory_iterator(dir)) {
    if (entry.path().filename() == "PBP.txt") return true;
  }
  return false;
}

// The trace line is "<general date> NVRANDOM - <label>" CR LF, in PBP.txt of the root's Norvik
// folder, reached through the doubled separator that the root's own trailing one gives; the
// folder is matched whatever its case, as on Windows.
TEST(Trace, LineFormatAndPlace) {
  for (const char* folder : {"Norvik", "NORVIK", "norvik"}) {
    SCOPED_TRACE(folder);
    TempRoot root;
    fs::create_directory(root.dir() / folder);
    Host h;
    ClsRandom cls(h.ctx);
    cls.PlayByPlayEnabled(-1);
    cls.DLLPath(root.DllPath());
    cls.PayeeName("ACME");
    EXPECT_EQ(ReadFile(root.dir() / folder / "PBP.txt"),
              h.now + " NVRANDOM - ClsRandom - Let PayeeName\r\n");
    EXPECT_EQ(TraceFilePath(h.ctx),
              root.root() + path::kSeparator + folder + path::kSeparator + "PBP.txt");
  }
}

// Each property procedure writes its own label, except the few that write none; the country-list
// selectors carry their globals' names. A call refused at the boundary (the value cannot become
// the property's type) never enters the procedure; an error inside the procedure comes after
// its label.
TEST(Trace, PropertyProceduresWriteTheirLabels) {
  struct Case {
    const char* what;
    std::function<void(ClsRandom&)> act;
    const char* label;  // nullptr: no line
  };
  const auto swallow = [](const std::function<void()>& f) {
    try {
      f();
    } catch (const RuntimeError&) {
    }
  };
  const Case cases[] = {
      {"typed Let", [](ClsRandom& c) { c.PayeeName("A"); }, "ClsRandom - Let PayeeName"},
      {"typed Get", [](ClsRandom& c) { c.PayeeName(); }, "ClsRandom - Get PayeeName"},
      {"Let by name", [](ClsRandom& c) { c.Let("PayeeCity", "X"); }, "ClsRandom - Let PayeeCity"},
      {"Get of the trace switch", [](ClsRandom& c) { c.PlayByPlayEnabled(); },
       "ClsRandom - Get PlayByPlayEnabled"},
      {"CountryListAll", [](ClsRandom& c) { c.CountryListAll("N"); },
       "ClsRandom - Let gstrCountryListAll"},
      {"CountryListPartial", [](ClsRandom& c) { c.CountryListPartial("Y"); },
       "ClsRandom - Let gstrCountryListPartial"},
      {"Let of the trace switch", [](ClsRandom& c) { c.PlayByPlayEnabled(-1); }, nullptr},
      {"WhatKindOfBiller",
       [](ClsRandom& c) {
         c.WhatKindOfBiller("U");
         c.WhatKindOfBiller();
       },
       nullptr},
      {"the host's currency and title",
       [](ClsRandom& c) {
         c.CurrencyCodeFromMain("USD");
         c.CurrencyCodeFromMain();
         c.DescCurrencyCodeFromMain("US Dollar");
         c.DescCurrencyCodeFromMain();
         c.FormTitleFromMain("T");
         c.FormTitleFromMain();
       },
       nullptr},
      {"a value the property's type refuses",
       [&](ClsRandom& c) { swallow([&] { c.Let("FormStyle", "abc"); }); }, nullptr},
      {"an error inside the procedure",
       [&](ClsRandom& c) {
         swallow([&] { c.Prov_areacode(Variant(StringArray::OneDimensional(0, 3))); });
       },
       "ClsRandom - Let Prov_areacode"},
      {"class initialisation", [](ClsRandom& c) { ClsRandom another(c.context()); },
       "ClsRandom - Class_Initialize"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    TempRoot root;
    fs::create_directory(root.dir() / "Norvik");
    Host h;
    ClsRandom cls(h.ctx);
    cls.DLLPath(root.DllPath());
    cls.PlayByPlayEnabled(-1);
    row.act(cls);
    const std::string expected =
        row.label != nullptr ? h.now + " NVRANDOM - " + row.label + "\r\n" : std::string();
    EXPECT_EQ(ReadFile(root.dir() / "Norvik" / "PBP.txt"), expected);
  }
}

// With tracing off nothing at all is written to the trace folder, whatever the component does;
// with tracing on but a DLLPath whose folder is "norvik" in lower case there is no root, so no
// trace either.
TEST(Trace, NoFileWithoutTracingOrWithoutRoot) {
  for (const bool tracing : {false, true}) {
    SCOPED_TRACE(tracing ? "root in lower case" : "tracing off");
    TempRoot root;
    fs::create_directory(root.dir() / "Norvik");
    fs::create_directory(root.dir() / "norvik");
    const CurrentDirectory cwd(root.dir());
    Host h;
    h.driver.script = [](forms::Form& f) { f.Unload(); };
    ClsRandom cls(h.ctx);
    cls.PlayByPlayEnabled(tracing ? -1 : 0);
    cls.DLLPath(tracing ? root.DllPath("norvik") : root.DllPath());
    cls.PayeeName("ACME");
    cls.PayeeName();
    cls.ShowForm();
    ShowError(h.ctx, 5, "D", "P", true);
    EXPECT_FALSE(AnyTraceFileUnder(root.dir()));
    EXPECT_TRUE(fs::is_empty(root.dir() / "Norvik"));
  }
}

// The trace never disturbs its caller: a missing or read-only folder, a path too long to open or
// a trace file that cannot be opened is passed over, and the procedure does its work.
TEST(Trace, WriteFailuresAreSwallowed) {
  struct Case {
    const char* what;
    std::function<void(const fs::path&)> prepare;
    std::string above_norvik;  // folders between the temporary root and NORVIK
  };
  const Case cases[] = {
      {"folder missing", [](const fs::path&) {}},
      {"root longer than a path may be", [](const fs::path&) {}, std::string(100000, 'a')},
      {"folder read-only",
       [](const fs::path& dir) {
         fs::create_directory(dir / "Norvik");
         ::chmod((dir / "Norvik").c_str(), 0555);
       }},
      {"trace file is a folder",
       [](const fs::path& dir) { fs::create_directories(dir / "Norvik" / "PBP.txt"); }},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    TempRoot root;
    row.prepare(root.dir());
    Host h;
    ClsRandom cls(h.ctx);
    cls.PlayByPlayEnabled(-1);
    cls.DLLPath(row.above_norvik.empty() ? root.DllPath()
                                         : root.root() + row.above_norvik + P("/NORVIK/Bin"));
    EXPECT_NO_THROW(cls.PayeeName("ACME"));
    EXPECT_EQ(h.ctx.store.PayeeName, "ACME");
    ::chmod((root.dir() / "Norvik").c_str(), 0755);
  }
}

// The trace folder's resolved name is kept between lines; a folder that appears (in any case)
// after a line was lost must still receive the next one.
TEST(Trace, AFolderCreatedLaterIsFound) {
  TempRoot root;
  Host h;
  ClsRandom cls(h.ctx);
  cls.PlayByPlayEnabled(-1);
  cls.DLLPath(root.DllPath());
  cls.PayeeName("lost");
  fs::create_directory(root.dir() / "NORVIK");
  cls.PayeeCity("kept");
  EXPECT_EQ(ReadFile(root.dir() / "NORVIK" / "PBP.txt"),
            h.now + " NVRANDOM - ClsRandom - Let PayeeCity\r\n");
}

// Lines are appended, one open and close each; a new file starts afresh.
TEST(Trace, LinesAppendAndANewFileTruncates) {
  TempRoot root;
  fs::create_directory(root.dir() / "Norvik");
  Host h;
  h.ctx.store.PlayByPlayEnabled = -1;
  h.ctx.store.gstrInstallRoot = root.root();
  WritePlayByPlay(h.ctx, "one");
  WritePlayByPlay(h.ctx, "two");
  const fs::path file = root.dir() / "Norvik" / "PBP.txt";
  EXPECT_EQ(ReadFile(file), h.now + " NVRANDOM - one\r\n" + h.now + " NVRANDOM - two\r\n");
  WritePlayByPlay(h.ctx, "three", true);
  EXPECT_EQ(ReadFile(file), h.now + " NVRANDOM - three\r\n");
}

}  // namespace
}  // namespace nvrandom::component_test
