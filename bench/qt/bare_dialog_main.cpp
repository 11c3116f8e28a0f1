// The bare-dialog program that `nvrandom demo`'s peak memory is compared with: the same run on
// the offscreen platform (the biller dialog shown four times and the foreign bank dialog once,
// each pictured into a PNG), with bare QDialogs of the same number and kinds of widgets instead
// of the component. Prints its peak resident memory in KiB.
#include <sys/resource.h>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <cstdio>

#include "bare_dialog.h"
#include "dialogs/biller/random_info_design.h"
#include "dialogs/fxbank/fx_bank_info_design.h"
#include "qt_fonts.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  nvrandom::qt::InstallDialogFonts();  // the same fonts as the component's dialogs
  const QString out = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::tempPath();
  // The biller dialog for each of the demo's four samples, and the foreign bank dialog once.
  for (int show = 0; show < 5; ++show) {
    auto dialog = show < 4 ? nvrandom::bench::MakeBareDialog(nvrandom::RandomInfoForm(),
                                                             nvrandom::RandomInfoControls())
                           : nvrandom::bench::MakeBareDialog(nvrandom::FXBankInfoForm(),
                                                             nvrandom::FXBankInfoControls());
    dialog->show();
    QCoreApplication::processEvents();
    dialog->grab().save(QDir(out).filePath(QStringLiteral("bare-%1.png").arg(show)), "PNG");
  }
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("%ld\n", usage.ru_maxrss);
  return 0;
}
