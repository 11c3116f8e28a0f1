#pragma once

#include <QColor>
#include <QPalette>
#include <QString>
#include <cstdint>
#include <string>
#include <string_view>

namespace nvrandom::qt {

// Twips (1440 per logical inch) to device-independent pixels at the screen's logical DPI, and
// back; rounded to the nearest pixel.
int TwipsToPixels(int64_t twips, double logical_dpi);
int64_t PixelsToTwips(int pixels, double logical_dpi);
// The logical DPI of the primary screen (96 when there is none).
double ScreenDpi();

// A colour as the model keeps it: 0x00BBGGRR, or with the high bit set a system colour index,
// resolved against `palette` (window background, button face, window text...).
QColor ToQColor(uint32_t color, const QPalette& palette);

inline QString ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline std::string ToUtf8(const QString& text) {
  return text.toUtf8().toStdString();
}

// A caption with the platform's access-key marks ("&Name", "&&" for a literal ampersand) as
// plain text, for widgets that draw no access key.
QString WithoutAccessKeys(std::string_view caption);

}  // namespace nvrandom::qt
