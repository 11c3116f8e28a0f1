#include "qt_fonts.h"

#include <fontconfig/fontconfig.h>

#include "dialog_fonts_conf.h"

namespace nvrandom::qt {

void InstallDialogFonts() {
  static const bool installed = [] {
    if (FcInit() == FcFalse) return false;
    FcConfig* config = FcConfigGetCurrent();
    const auto* xml = reinterpret_cast<const FcChar8*>(kDialogFontsConf);
    if (FcConfigParseAndLoadFromMemory(config, xml, FcFalse) == FcFalse) return false;
    // Fontconfig has already built its font set: the rules' folder is scanned now, through the
    // accept and reject lists just loaded.
    return FcConfigAppFontAddDir(config, reinterpret_cast<const FcChar8*>(kWineFontsDir)) == FcTrue;
  }();
  (void)installed;
}

}  // namespace nvrandom::qt
