#pragma once

#include <string_view>

namespace nvrandom::random_info_codes {

// Canada and the United States, by their two- or three-letter codes: the countries whose phone
// numbers have an area code.
inline bool IsNorthAmerican(std::string_view country) {
  return country == "CA" || country == "CAN" || country == "US" || country == "USA";
}

}  // namespace nvrandom::random_info_codes
