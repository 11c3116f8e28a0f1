#include "platform/win32/wide_text.h"

#include "platform/utf8.h"

namespace nvrandom::wide {

std::wstring FromUtf8(std::string_view utf8) {
  std::wstring out;
  out.reserve(utf8.size());
  for (const char32_t cp : utf8::Decode(utf8)) {
    if (cp < 0x10000) {
      out += static_cast<wchar_t>(cp);
    } else {
      const char32_t v = cp - 0x10000;
      out += static_cast<wchar_t>(0xD800 + (v >> 10));
      out += static_cast<wchar_t>(0xDC00 + (v & 0x3FF));
    }
  }
  return out;
}

std::string ToUtf8(std::wstring_view utf16) {
  std::string out;
  out.reserve(utf16.size());
  for (size_t i = 0; i < utf16.size(); ++i) {
    char32_t cp = static_cast<char16_t>(utf16[i]);
    if (cp >= 0xD800 && cp < 0xDC00 && i + 1 < utf16.size()) {
      const char32_t low = static_cast<char16_t>(utf16[i + 1]);
      if (low >= 0xDC00 && low < 0xE000) {
        cp = 0x10000 + ((cp - 0xD800) << 10) + (low - 0xDC00);
        ++i;
      }
    }
    out += utf8::EncodeCodePoint(cp);
  }
  return out;
}

}  // namespace nvrandom::wide
