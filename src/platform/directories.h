#pragma once

#include <string>

namespace nvrandom {

// The system folders the component uses. Results may or may not end in a separator.
class DirectoryService {
 public:
  virtual ~DirectoryService() = default;
  // The folder that plays the role of the Windows directory; its "fonts" subfolder holds the
  // user's fonts.
  virtual std::string WindowsDirectory() = 0;
  virtual std::string SystemDirectory() = 0;
};

}  // namespace nvrandom
