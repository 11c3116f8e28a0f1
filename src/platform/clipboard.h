#pragma once

#include <string>

namespace nvrandom {

class ClipboardService {
 public:
  virtual ~ClipboardService() = default;
  virtual std::string Text() = 0;
  virtual void SetText(const std::string& text) = 0;
  virtual void Clear() = 0;
};

}  // namespace nvrandom
