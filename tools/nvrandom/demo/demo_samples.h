#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nvrandom {
class ClsRandom;
}

namespace nvrandom::demo {

// The sample billers of `nvrandom demo`, one for each layout of the biller dialog.
const std::vector<std::string_view>& SampleNames();
bool IsSample(std::string_view name);

// Hands the sample biller and its host settings to `biller`, as a host would, with the
// installation folder `install` (which holds the country file).
void LoadSample(ClsRandom& biller, std::string_view name, const std::string& install);

}  // namespace nvrandom::demo
