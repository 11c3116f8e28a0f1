#pragma once

#include <string>

namespace nvrandom {

// The system's fonts: putting a font file where the system looks for fonts, and adding it to
// the fonts programs may use.
class FontService {
 public:
  virtual ~FontService() = default;
  // Copies `source` over `target`, making the target's folder when it is missing; false when
  // the copy failed.
  virtual bool CopyFontFile(const std::string& source, const std::string& target) = 0;
  // Adds the fonts of the file `font_file` to those programs may use; the number of fonts added
  // (0: none, the file is missing or holds no font).
  virtual int AddFontResource(const std::string& font_file) = 0;
};

// How many fonts a font file holds by its signature: 1 for a TrueType or OpenType file, the
// count of a TrueType collection, 0 for anything else (or a file that cannot be read).
int FontsInFile(const std::string& font_file);

}  // namespace nvrandom
