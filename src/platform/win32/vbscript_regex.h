#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/regex.h"

namespace nvrandom {

// Pattern tests with the system's VBScript.RegExp object, driven through IDispatch. One object
// serves every test; its pattern and case setting are changed only when a test asks for others.
// Created on first use in the calling thread's apartment (entered if the thread has none).
// The engine backtracks, so a pattern such as ".+\." costs the square of the text's length: a
// text longer than kMaxText characters, far beyond any field the component checks, is answered
// "no match" without asking it, so hostile input cannot hang the dialog.
class VbscriptRegex final : public RegexService {
 public:
  VbscriptRegex();
  ~VbscriptRegex() override;
  bool Test(std::string_view pattern, std::string_view text, bool ignore_case) override;

  static constexpr size_t kMaxText = 4096;

 private:
  struct Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace nvrandom
