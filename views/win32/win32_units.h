#pragma once

#include <windows.h>

#include <cstdint>

namespace nvrandom::win32 {

// Twips (1440 per logical inch) to pixels at the system's logical DPI, and back; rounded to the
// nearest pixel.
int TwipsToPixels(int64_t twips, int dpi);
int64_t PixelsToTwips(int pixels, int dpi);
// The system's logical DPI (LOGPIXELSY of the screen; 96 when it cannot be read).
int SystemDpi();

// A colour as the model keeps it: 0x00BBGGRR, or with the high bit set a system colour index.
COLORREF ToColorRef(uint32_t color);

// The dialogs' fonts are designed at this size, in points.
inline constexpr int kPointSize = 8;

}  // namespace nvrandom::win32
