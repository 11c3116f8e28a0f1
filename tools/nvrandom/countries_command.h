#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace nvrandom {

// `nvrandom countries encipher|decipher|list ...`; returns the exit code.
int CountriesCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace nvrandom
