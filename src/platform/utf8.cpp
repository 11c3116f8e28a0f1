#include "platform/utf8.h"

namespace nvrandom::utf8 {

namespace {
// Length in bytes of the character starting at `p`, 1 for a byte that is not a valid start or
// whose sequence is cut short.
size_t CharSize(std::string_view text, size_t p) {
  const auto b = static_cast<unsigned char>(text[p]);
  size_t n = 1;
  if (b >= 0xC2 && b <= 0xDF) {
    n = 2;
  } else if (b >= 0xE0 && b <= 0xEF) {
    n = 3;
  } else if (b >= 0xF0 && b <= 0xF4) {
    n = 4;
  }
  if (p + n > text.size()) return 1;
  for (size_t i = 1; i < n; ++i) {
    if ((static_cast<unsigned char>(text[p + i]) & 0xC0) != 0x80) return 1;
  }
  return n;
}
}  // namespace

size_t Length(std::string_view text) {
  size_t count = 0;
  for (size_t p = 0; p < text.size(); p += CharSize(text, p)) ++count;
  return count;
}

size_t Offset(std::string_view text, size_t index) {
  size_t p = 0;
  for (size_t i = 0; i < index && p < text.size(); ++i) p += CharSize(text, p);
  return p;
}

std::string Mid(std::string_view text, size_t start, size_t count) {
  const size_t from = Offset(text, start);
  const size_t to = from + Offset(text.substr(from), count);
  return std::string(text.substr(from, to - from));
}

std::string EncodeCodePoint(char32_t cp) {
  std::string out;
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
  return out;
}

std::vector<char32_t> Decode(std::string_view text) {
  std::vector<char32_t> out;
  for (size_t p = 0; p < text.size();) {
    const size_t size = CharSize(text, p);
    char32_t cp = static_cast<unsigned char>(text[p]);
    if (size > 1) {
      cp &= 0xFFu >> (size + 1);
      for (size_t k = 1; k < size; ++k) {
        cp = (cp << 6) | (static_cast<unsigned char>(text[p + k]) & 0x3F);
      }
    }
    out.push_back(cp);
    p += size;
  }
  return out;
}

}  // namespace nvrandom::utf8
