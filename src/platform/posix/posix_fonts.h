#pragma once

#include <string>

#include "platform/fonts.h"

namespace nvrandom::posix {

// Fonts through fontconfig: a font file copied into the per-user fonts folder (which fontconfig
// reads, ~/.local/share/fonts) becomes usable once fontconfig has scanned that folder again.
class PosixFonts final : public FontService {
 public:
  explicit PosixFonts(std::string user_fonts_folder)
      : user_fonts_folder_(std::move(user_fonts_folder)) {}
  bool CopyFontFile(const std::string& source, const std::string& target) override;
  // Fontconfig registers folders, not files: a file that holds fonts counts as added once
  // `fc-cache` has rescanned the per-user fonts folder, where the copy went.
  int AddFontResource(const std::string& font_file) override;

 private:
  std::string user_fonts_folder_;
};

}  // namespace nvrandom::posix
