#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/regex.h"

namespace re2 {
class RE2;
}

namespace nvrandom {

// Pattern tests with RE2: linear time and constant stack whatever the input. Compiled patterns
// are kept, so a check that tests the same pattern on every keystroke compiles it once. Texts are
// matched byte by byte (Latin-1), so a byte that is not UTF-8 is just another character and
// case-insensitive ASCII classes fold only ASCII letters, as the platform's engine does.
class Re2Regex final : public RegexService {
 public:
  Re2Regex();
  ~Re2Regex() override;
  bool Test(std::string_view pattern, std::string_view text, bool ignore_case) override;

 private:
  const re2::RE2& Compiled(std::string_view pattern, bool ignore_case);
  std::unordered_map<std::string, std::unique_ptr<re2::RE2>> cache_;
};

}  // namespace nvrandom
