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
  struct Hash {
    using is_transparent = void;
    size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
  };
  using Cache = std::unordered_map<std::string, std::unique_ptr<re2::RE2>, Hash, std::equal_to<>>;

  const re2::RE2& Compiled(std::string_view pattern, bool ignore_case);

  Cache cache_[2];  // by case sensitivity: [0] exact, [1] ignoring case
  // The pattern tested last: a check that runs on every keystroke asks for the same one again.
  std::string_view last_pattern_;
  bool last_ignore_case_ = false;
  const re2::RE2* last_ = nullptr;
};

}  // namespace nvrandom
