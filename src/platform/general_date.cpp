#include "platform/general_date.h"

#include <cstdio>

namespace nvrandom {

std::string GeneralDate(const std::tm& t) {
  const int hour12 = t.tm_hour % 12 == 0 ? 12 : t.tm_hour % 12;
  char buffer[64];
  const int n =
      std::snprintf(buffer, sizeof buffer, "%d/%d/%d %d:%02d:%02d %s", t.tm_mday, t.tm_mon + 1,
                    t.tm_year + 1900, hour12, t.tm_min, t.tm_sec, t.tm_hour < 12 ? "AM" : "PM");
  return std::string(buffer, n > 0 ? static_cast<size_t>(n) : 0);
}

}  // namespace nvrandom
