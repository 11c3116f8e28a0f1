#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

// A small timing harness for the Windows build, where Google Benchmark is not available (Debian
// ships it for Linux only): each case runs a warm-up, then `repetitions` batches of `iterations`
// calls timed with the performance counter; the median batch gives the time per call.
namespace nvrandom::bench {

struct Timing {
  std::string name;
  double median_ns = 0;  // per call
  double min_ns = 0;
  double max_ns = 0;
};

template <typename Body>
Timing Measure(std::string name, int iterations, int repetitions, Body&& body) {
  LARGE_INTEGER frequency{};
  ::QueryPerformanceFrequency(&frequency);
  for (int i = 0; i < iterations; ++i) body();  // warm-up: caches, first-use paths
  std::vector<double> per_call;
  per_call.reserve(static_cast<size_t>(repetitions));
  for (int r = 0; r < repetitions; ++r) {
    LARGE_INTEGER start{}, end{};
    ::QueryPerformanceCounter(&start);
    for (int i = 0; i < iterations; ++i) body();
    ::QueryPerformanceCounter(&end);
    per_call.push_back(static_cast<double>(end.QuadPart - start.QuadPart) * 1e9 /
                       static_cast<double>(frequency.QuadPart) / iterations);
  }
  std::sort(per_call.begin(), per_call.end());
  return Timing{std::move(name), per_call[per_call.size() / 2], per_call.front(), per_call.back()};
}

inline void PrintTable(const std::vector<Timing>& timings) {
  std::printf("%-52s %12s %12s %12s\n", "case", "median ns", "min ns", "max ns");
  for (const Timing& t : timings) {
    std::printf("%-52s %12.1f %12.1f %12.1f\n", t.name.c_str(), t.median_ns, t.min_ns, t.max_ns);
  }
}

}  // namespace nvrandom::bench
