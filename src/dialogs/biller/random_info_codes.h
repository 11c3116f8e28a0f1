#pragma once

#include <array>
#include <string_view>

namespace nvrandom::random_info_codes {

// The United States codes of US mode, in their order: the states, the District of Columbia and
// the territories and freely associated states. The province list offers them and the
// acceptance holds a US province to them.
inline constexpr std::array<std::string_view, 59> kUSStates = {
    "AK", "AL", "AR", "AS", "AZ", "CA", "CO", "CT", "DC", "DE", "FL", "FM", "GA", "GU", "HI",
    "IA", "ID", "IL", "IN", "KS", "KY", "LA", "MA", "MD", "ME", "MH", "MI", "MN", "MO", "MP",
    "MS", "MT", "NC", "ND", "NE", "NH", "NJ", "NM", "NV", "NY", "OH", "OK", "OR", "PA", "PR",
    "PW", "RI", "SC", "SD", "TN", "TX", "UT", "VA", "VI", "VT", "WA", "WI", "WV", "WY"};

// Canada and the United States, by their two- or three-letter codes: the countries whose phone
// numbers have an area code.
inline bool IsNorthAmerican(std::string_view country) {
  return country == "CA" || country == "CAN" || country == "US" || country == "USA";
}

}  // namespace nvrandom::random_info_codes
