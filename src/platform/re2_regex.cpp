#include "platform/re2_regex.h"

#include <re2/re2.h>

#include "platform/runtime_error.h"

namespace nvrandom {

Re2Regex::Re2Regex() = default;
Re2Regex::~Re2Regex() = default;

const re2::RE2& Re2Regex::Compiled(std::string_view pattern, bool ignore_case) {
  std::string key(1, ignore_case ? 'i' : 'c');
  key += pattern;
  auto it = cache_.find(key);
  if (it == cache_.end()) {
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
    it = cache_.emplace(std::move(key), std::move(compiled)).first;
  }
  return *it->second;
}

bool Re2Regex::Test(std::string_view pattern, std::string_view text, bool ignore_case) {
  return re2::RE2::PartialMatch(re2::StringPiece(text.data(), text.size()),
                                Compiled(pattern, ignore_case));
}

}  // namespace nvrandom
