#include "win32_units.h"

#include <cmath>

namespace nvrandom::win32 {

namespace {
constexpr double kTwipsPerInch = 1440.0;
constexpr int kDefaultDpi = 96;
}  // namespace

int TwipsToPixels(int64_t twips, int dpi) {
  return static_cast<int>(std::lround(static_cast<double>(twips) * dpi / kTwipsPerInch));
}

int64_t PixelsToTwips(int pixels, int dpi) {
  return std::llround(static_cast<double>(pixels) * kTwipsPerInch / dpi);
}

int SystemDpi() {
  const HDC screen = ::GetDC(nullptr);
  if (screen == nullptr) return kDefaultDpi;
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : kDefaultDpi;
}

COLORREF ToColorRef(uint32_t color) {
  constexpr uint32_t kSystemBit = 0x80000000U;
  if ((color & kSystemBit) != 0) return ::GetSysColor(static_cast<int>(color & 0xFF));
  return static_cast<COLORREF>(color & 0x00FFFFFF);
}

}  // namespace nvrandom::win32
