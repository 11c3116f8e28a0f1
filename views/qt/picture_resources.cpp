#include "picture_resources.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSvgRenderer>

#include "forms/form.h"
#include "qt_units.h"

// The pictures are compiled into the library; a static library's resources are registered
// by hand.
static void RegisterPictures() {
  Q_INIT_RESOURCE(pictures);
}

namespace nvrandom::qt {

QPixmap PictureOf(const forms::Control& control) {
  static const bool registered = (RegisterPictures(), true);
  (void)registered;
  const QString path = QStringLiteral(":/nvrandom/pictures/%1.%2.svg")
                           .arg(ToQString(control.form().Name()), ToQString(control.Name()));
  const double dpi = ScreenDpi();
  const QSize size(TwipsToPixels(control.Width(), dpi), TwipsToPixels(control.Height(), dpi));
  if (size.isEmpty()) return {};
  // A control array's images (the help icons) share one drawing of each size, found before the
  // resources are searched.
  static QHash<QString, QPixmap> drawn;
  const QString key = QStringLiteral("%1@%2x%3").arg(path).arg(size.width()).arg(size.height());
  const bool shared = control.Index() >= 0;
  if (const auto it = drawn.constFind(key); shared && it != drawn.constEnd()) return *it;
  if (!QFile::exists(path)) return {};
  QSvgRenderer renderer(path);
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.render(&painter);
  painter.end();
  if (shared) drawn.insert(key, pixmap);
  return pixmap;
}

}  // namespace nvrandom::qt
