// The Qt composition root: the one place of the Linux library that names the Qt service classes.
#include "qt_integration.h"

#include "qt_composition.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QStringList>

#include "app/services_factory.h"
#include "app/thread_context.h"
#include "component/context.h"
#include "platform/posix/posix_services.h"
#include "qt_services.h"
#include "qt_view.h"

#ifndef NVRANDOM_WINE_FONTS_DIR
#define NVRANDOM_WINE_FONTS_DIR "/usr/share/wine/fonts"
#endif

namespace nvrandom::qt {

Services MakeQtServices() {
  Services services = MakePosixServices();
  services.message_box = std::make_unique<QtMessageBoxService>();
  services.clipboard = std::make_unique<QtClipboardService>();
  services.shell = std::make_unique<QtShellService>();
  services.help = std::make_unique<QtHelpService>();
  services.fonts = std::make_unique<QtFontService>(std::move(services.fonts));
  return services;
}

void InstallDialogFonts() {
  static const bool installed = [] {
    for (const char* file : {"ms_sans_serif.ttf", "tahoma.ttf", "tahomabd.ttf"}) {
      const QString path = QStringLiteral(NVRANDOM_WINE_FONTS_DIR "/") + QLatin1String(file);
      if (QFile::exists(path)) QFontDatabase::addApplicationFont(path);
    }
    // Segoe UI's free stand-ins, closest metrics first; fontconfig picks the first installed.
    QFont::insertSubstitutions(
        QStringLiteral("Segoe UI"),
        {QStringLiteral("Selawik"), QStringLiteral("Open Sans"), QStringLiteral("Noto Sans"),
         QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
    // Without fonts-wine, the dialogs' old fonts fall back to a sans face of similar size.
    QFont::insertSubstitutions(QStringLiteral("MS Sans Serif"),
                               {QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
    QFont::insertSubstitutions(QStringLiteral("Tahoma"),
                               {QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans")});
    return true;
  }();
  (void)installed;
}

Integration::Integration() {
  InstallDialogFonts();
  app::SetDefaultServicesFactory(MakeQtServices);
  view_ = std::make_unique<QtView>(app::ThreadContext().forms());
}

Integration::Integration(Context& ctx) {
  InstallDialogFonts();
  view_ = std::make_unique<QtView>(ctx.forms());
}

Integration::~Integration() = default;

void Integration::SetEmbedParent(QWidget* parent) {
  view_->SetEmbedParent(parent);
}

}  // namespace nvrandom::qt
