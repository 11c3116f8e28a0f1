#include "qt_units.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace nvrandom::qt {

namespace {
constexpr double kTwipsPerInch = 1440.0;
}

int TwipsToPixels(int64_t twips, double logical_dpi) {
  return static_cast<int>(std::lround(static_cast<double>(twips) * logical_dpi / kTwipsPerInch));
}

int64_t PixelsToTwips(int pixels, double logical_dpi) {
  return std::llround(static_cast<double>(pixels) * kTwipsPerInch / logical_dpi);
}

double ScreenDpi() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->logicalDotsPerInch() : 96.0;
}

QColor ToQColor(uint32_t color, const QPalette& palette) {
  constexpr uint32_t kSystemBit = 0x80000000U;
  if ((color & kSystemBit) == 0) {
    return {static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
            static_cast<int>((color >> 16) & 0xFF)};
  }
  // The platform's system colour indexes that dialogs use.
  switch (color & 0xFF) {
    case 0x05:  // window background
      return palette.color(QPalette::Base);
    case 0x08:  // window text
    case 0x12:  // button text
      return palette.color(QPalette::WindowText);
    case 0x0D:  // highlight
      return palette.color(QPalette::Highlight);
    case 0x0E:  // highlighted text
      return palette.color(QPalette::HighlightedText);
    case 0x11:  // grey text
      return palette.color(QPalette::Disabled, QPalette::Text);
    case 0x0F:  // button face: the dialog's own background
    default:
      return palette.color(QPalette::Window);
  }
}

QString WithoutAccessKeys(std::string_view caption) {
  // Most captions have no access key: no copy character by character.
  if (caption.find('&') == std::string_view::npos) return ToQString(caption);
  QString out;
  const QString in = ToQString(caption);
  for (qsizetype i = 0; i < in.size(); ++i) {
    if (in[i] == u'&' && i + 1 < in.size()) ++i;
    out += in[i];
  }
  return out;
}

}  // namespace nvrandom::qt
