#pragma once

#include <string_view>

namespace nvrandom::validation {

// The Federal Reserve routing symbols a US routing number may begin with, as a pattern for the
// platform's regular-expression object (whole words 01-12, 21-32, 61-72).
inline constexpr std::string_view kRoutingPrefixPattern =
    "\\b(01|02|03|04|05|06|07|08|09|10|11|12|21|22|23|24|25|26|27|28|29|30|31|32|61|62|63|64|65|"
    "66|67|68|69|70|71|72)\\b";

// The weighted checksum of an ABA routing number: nine characters weighted 3, 7, 1 in turn, a
// non-digit counting as 0; valid when the sum is divisible by 10. `trimmed` must already be the
// trimmed number; any length other than nine characters is invalid.
bool RoutingChecksumValid(std::string_view trimmed);

}  // namespace nvrandom::validation
