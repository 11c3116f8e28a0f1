#pragma once

#include <ctime>
#include <string>

namespace nvrandom {

// The general date-and-time text form: day/month/year, hours 1-12, minutes and seconds, AM/PM:
// "15/11/2026 1:58:04 PM".
std::string GeneralDate(const std::tm& t);

}  // namespace nvrandom
