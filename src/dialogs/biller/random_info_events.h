#pragma once

#include <cstdint>

namespace nvrandom {

// The events the biller dialog raises to the class it is connected to.
class RandomInfoEvents {
 public:
  virtual ~RandomInfoEvents() = default;
  virtual void CSBOK() = 0;
  virtual void CurrentFieldTop(int16_t Top) = 0;
  virtual void Cancel() = 0;
  virtual void ViewSampleCheque() = 0;
};

}  // namespace nvrandom
