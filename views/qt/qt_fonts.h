#pragma once

namespace nvrandom::qt {

// Makes the fonts the dialogs name available through fontconfig: "MS Sans Serif" and "Tahoma"
// from the free fonts of those names that Debian's fonts-wine ships, "Segoe UI" mapped to a
// metric-close free font (fonts/dialog-fonts.conf). A font file that installSystemFont copies
// into the user's fonts folder is found by the same configuration. Idempotent; call it after the
// QApplication and before the first dialog is shown (Integration does).
void InstallDialogFonts();

}  // namespace nvrandom::qt
