#include "demo_samples.h"

#include <algorithm>
#include <sstream>

#include "api/cls_random.h"
#include "sample_billers.h"
#include "scenario_line.h"
#include "scenario_values.h"

namespace nvrandom::demo {

namespace {

void LetLines(ClsRandom& biller, std::string_view lines, const std::string& install) {
  std::istringstream in{std::string(lines)};
  for (std::string line; std::getline(in, line);) {
    const auto words = scenario::SplitWords(line);
    if (words.size() != 2) continue;
    biller.Let(words[0].text, scenario::HostValue(words[1], install, install));
  }
}

}  // namespace

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
  LetLines(biller, kHostSettings, install);
  for (const SampleBiller& sample : kSampleBillers) {
    if (sample.name == name) LetLines(biller, sample.settings, install);
  }
}

}  // namespace nvrandom::demo
