#pragma once

#include <string>

#include "platform/clipboard.h"

namespace nvrandom {

// A clipboard private to the process, for runs without a window system.
class MemoryClipboard final : public ClipboardService {
 public:
  std::string Text() override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }
  void Clear() override { text_.clear(); }

 private:
  std::string text_;
};

}  // namespace nvrandom
