#pragma once

#include <memory>
#include <string_view>

namespace nvrandom {

// The platform's regular-expression object, used for pattern tests only. Patterns use the
// ECMAScript-style syntax. A pattern the engine cannot compile raises RuntimeError.
class RegexService {
 public:
  virtual ~RegexService() = default;
  // True when `pattern` matches anywhere in `text` (anchors make it a whole-text match).
  virtual bool Test(std::string_view pattern, std::string_view text, bool ignore_case) = 0;
};

// The system's engine: RE2 on POSIX, the VBScript.RegExp object on Windows.
std::unique_ptr<RegexService> MakeSystemRegex();

}  // namespace nvrandom
