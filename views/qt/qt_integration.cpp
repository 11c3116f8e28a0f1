// The Qt composition root: the one place of the Linux library that names the Qt service classes.
#include "qt_integration.h"

#include "qt_composition.h"

#include "app/services_factory.h"
#include "app/thread_context.h"
#include "component/context.h"
#include "platform/posix/posix_services.h"
#include "qt_fonts.h"
#include "qt_services.h"
#include "qt_view.h"

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
