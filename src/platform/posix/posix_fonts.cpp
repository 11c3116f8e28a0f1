#include "platform/posix/posix_fonts.h"

#include "platform/path.h"
#include "platform/posix/run_program.h"

namespace nvrandom::posix {

bool PosixFonts::CopyFontFile(const std::string& source, const std::string& target) {
  return path::CopyFileReplacing(source, target);
}

int PosixFonts::AddFontResource(const std::string& font_file) {
  const int fonts = FontsInFile(font_file);
  if (fonts == 0) return 0;
  return RunProgram("fc-cache", user_fonts_folder_) ? fonts : 0;
}

}  // namespace nvrandom::posix
