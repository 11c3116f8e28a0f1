#include "platform/posix/re2_regex.h"

#include <re2/re2.h>

#include "platform/runtime_error.h"

namespace nvrandom {

Re2Regex::Re2Regex() = default;
Re2Regex::~Re2Regex() = default;

const re2::RE2& Re2Regex::Compiled(std::string_view pattern, bool ignore_case) {
  if (last_ != nullptr && ignore_case == last_ignore_case_ && pattern == last_pattern_) {
    return *last_;
  }
  Cache& cache = cache_[ignore_case ? 1 : 0];
  auto it = cache.find(pattern);
  if (it == cache.end()) {
    re2::RE2::Options options;
    options.set_encoding(re2::RE2::Options::EncodingLatin1);
    options.set_case_sensitive(!ignore_case);
    options.set_log_errors(false);
    auto compiled =
        std::make_unique<re2::RE2>(re2::StringPiece(pattern.data(), pattern.size()), options);
    if (!compiled->ok()) {
      throw RuntimeError(vb_error::kInvalidProcedureCall,
                         "Syntax error in regular expression: " + compiled->error());
    }
    it = cache.emplace(std::string(pattern), std::move(compiled)).first;
  }
  // The key lives in the cache, so the view stays valid as long as the entry does.
  last_pattern_ = it->first;
  last_ignore_case_ = ignore_case;
  last_ = it->second.get();
  return *last_;
}

bool Re2Regex::Test(std::string_view pattern, std::string_view text, bool ignore_case) {
  const re2::RE2& re = Compiled(pattern, ignore_case);
  return re.Match(re2::StringPiece(text.data(), text.size()), 0, text.size(), re2::RE2::UNANCHORED,
                  nullptr, 0);
}

std::unique_ptr<RegexService> MakeSystemRegex() {
  return std::make_unique<Re2Regex>();
}

}  // namespace nvrandom
