#include "platform/fonts.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace nvrandom {

int FontsInFile(const std::string& font_file) {
  std::ifstream in(font_file, std::ios::binary);
  std::array<char, 12> head{};
  if (!in.read(head.data(), head.size())) return 0;
  const std::string_view tag(head.data(), 4);
  // TrueType (version 1.0, or Apple's "true"), OpenType with PostScript outlines ("OTTO").
  if (tag == std::string_view("\0\1\0\0", 4) || tag == "true" || tag == "OTTO") return 1;
  if (tag == "ttcf") {
    // A collection: its font count follows the tag and version, big-endian.
    uint32_t count = 0;
    for (size_t i = 8; i < 12; ++i) count = (count << 8) | static_cast<unsigned char>(head[i]);
    return count > 0 && count < 0x10000 ? static_cast<int>(count) : 0;
  }
  return 0;
}

}  // namespace nvrandom
