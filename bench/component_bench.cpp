// The host-facing costs of the component: a property Let and Get with tracing off (a host sets
// some sixty properties per biller), one trace line against the bare open/write/close it is
// made of, and a modal show of the biller dialog cancelled at once.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "api/cls_random.h"
#include "app/headless_services.h"
#include "component/context.h"
#include "component/trace.h"
#include "forms/application.h"
#include "forms/form.h"
#include "forms/user_input.h"
#include "platform/path.h"

namespace nvrandom {
namespace {

namespace fs = std::filesystem;

constexpr const char* kLabel = "ClsRandom - Let PayeeName";

struct Component {
  headless::HeadlessServices headless = headless::MakeHeadlessServices();
  std::string now = headless.clock->Now();
  Context ctx{std::move(headless.services)};
  ClsRandom cls{ctx};
};

// An installation root with its Norvik folder, removed at the end.
class TraceRoot {
 public:
  TraceRoot() {
    dir_ = fs::temp_directory_path() / ("nvrandom-bench-" + std::to_string(::getpid()));
    fs::create_directories(dir_ / "Norvik");
  }
  ~TraceRoot() {
    std::error_code ignored;
    fs::remove_all(dir_, ignored);
  }
  TraceRoot(const TraceRoot&) = delete;
  TraceRoot& operator=(const TraceRoot&) = delete;
  std::string root() const { return dir_.string() + path::kSeparator; }
  std::string bare_file() const { return (dir_ / "Norvik" / "bare.txt").string(); }

 private:
  fs::path dir_;
};

void BM_LetString(benchmark::State& state) {
  Component c;
  const std::string name = "ACME";
  for (auto _ : state) {
    c.cls.PayeeName(name);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_LetString);

void BM_GetString(benchmark::State& state) {
  Component c;
  c.cls.PayeeName("ACME");
  for (auto _ : state) {
    std::string name = c.cls.PayeeName();
    benchmark::DoNotOptimize(name);
  }
}
BENCHMARK(BM_GetString);

void BM_LetFlag(benchmark::State& state) {
  Component c;
  for (auto _ : state) {
    c.cls.Add(-1);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_LetFlag);

void BM_GetFlag(benchmark::State& state) {
  Component c;
  for (auto _ : state) {
    int16_t flag = c.cls.PlayByPlayEnabled();
    benchmark::DoNotOptimize(flag);
  }
}
BENCHMARK(BM_GetFlag);

// One trace line and a bare POSIX append of the same bytes to a file of the same folder,
// interleaved so that both see the same disk and the same load; "ratio" is trace / bare.
void BM_TraceLineVsBareAppend(benchmark::State& state) {
  const TraceRoot root;
  Component c;
  c.ctx.store.PlayByPlayEnabled = -1;
  c.ctx.store.gstrInstallRoot = root.root();
  const std::string line = c.now + " NVRANDOM - " + kLabel + "\r\n";
  const std::string bare = root.bare_file();
  using Clock = std::chrono::steady_clock;
  Clock::duration trace_time{};
  Clock::duration bare_time{};
  for (auto _ : state) {
    const auto t0 = Clock::now();
    WritePlayByPlay(c.ctx, kLabel);
    const auto t1 = Clock::now();
    const int fd = ::open(bare.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    ssize_t written = ::write(fd, line.data(), line.size());
    benchmark::DoNotOptimize(written);
    ::close(fd);
    const auto t2 = Clock::now();
    trace_time += t1 - t0;
    bare_time += t2 - t1;
  }
  const auto ns = [&](Clock::duration d) {
    return std::chrono::duration<double, std::nano>(d).count() /
           static_cast<double>(state.iterations());
  };
  state.counters["trace_ns"] = ns(trace_time);
  state.counters["bare_ns"] = ns(bare_time);
  state.counters["ratio"] = ns(trace_time) / ns(bare_time);
  if (fs::file_size(TraceFilePath(c.ctx)) != fs::file_size(bare)) {
    state.SkipWithError("the trace did not write the same bytes");
  }
}
BENCHMARK(BM_TraceLineVsBareAppend);

// A person presses Cancel as soon as the modal dialog is up.
class CancelAtOnce final : public forms::ModalDriver {
 public:
  void RunModal(forms::Form& form) override { forms::user::Click(form.Ctl("cmd_cancel")); }
};

void BM_ShowFormCancel(benchmark::State& state) {
  Component c;
  CancelAtOnce driver;
  c.ctx.forms().SetModalDriver(&driver);
  for (auto _ : state) {
    if (c.cls.ShowForm() != 50000) {
      state.SkipWithError("the dialog was not cancelled");
      break;
    }
  }
}
BENCHMARK(BM_ShowFormCancel)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace nvrandom
