#pragma once

#include <string>

namespace nvrandom {

// The local date and time in the system's general date-and-time text form.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::string Now() = 0;
};

}  // namespace nvrandom
