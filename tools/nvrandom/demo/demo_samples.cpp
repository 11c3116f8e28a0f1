#include "demo_samples.h"

#include <algorithm>

#include "api/cls_random.h"
#include "sample_billers.h"
#include "scenario_line.h"
#include "scenario_values.h"

namespace nvrandom::demo {

const std::vector<std::string_view>& SampleNames() {
  static const std::vector<std::string_view> names = [] {
    std::vector<std::string_view> all;
    for (const SampleBiller& sample : kSampleBillers) all.push_back(sample.name);
    return all;
  }();
  return names;
}

bool IsSample(std::string_view name) {
  return std::ranges::find(SampleNames(), name) != SampleNames().end();
}

void LoadSample(ClsRandom& biller, std::string_view name, const std::string& install) {
  LetSample(name, [&](std::string_view line) {
    const auto words = scenario::SplitWords(line);
    if (words.size() == 2) {
      biller.Let(words[0].text, scenario::HostValue(words[1], install, install));
    }
    return true;
  });
}

}  // namespace nvrandom::demo
