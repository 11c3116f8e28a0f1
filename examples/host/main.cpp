// A bill-payment host window that embeds the biller dialog: it makes room for it, scrolls to the
// field that has the focus, and shows the accepted biller.
//
//   nvrandom_host [--check]   (--check: embed, type into the dialog, close, and report)
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <cstring>
#include <iostream>

#include "api/cls_random.h"
#include "qt_integration.h"

namespace {

// Twips to pixels at the screen's logical DPI.
int Pixels(int twips) {
  const double dpi = QGuiApplication::primaryScreen()->logicalDotsPerInch();
  return static_cast<int>(twips * dpi / 1440.0 + 0.5);
}

}  // namespace

int main(int argc, char** argv) {
  const bool check = argc > 1 && std::strcmp(argv[1], "--check") == 0;
  QApplication application(argc, argv);
  nvrandom::qt::Integration component;  // before the first ClsRandom
  if (check) {
    // Nobody reads the check's message boxes (no installation folder here): each is dismissed.
    auto* dismiss = new QTimer(&application);
    QObject::connect(dismiss, &QTimer::timeout, [] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->reject();
    });
    dismiss->start(50);
  }

  QMainWindow window;
  window.setWindowTitle("Bill payments - new biller");
  auto* scroll = new QScrollArea(&window);
  auto* panel = new QWidget;
  scroll->setWidget(panel);
  window.setCentralWidget(scroll);
  auto* accepted = new QLabel(&window);
  window.statusBar()->addWidget(accepted);

  nvrandom::ClsRandom biller;
  biller.PayeeName("CITY OF OTTAWA");
  biller.PayeeBillAccount("1234 5678");
  biller.PayeeIndBusnTag("2");

  nvrandom::ClsRandomCallbacks events;
  events.OnCurrentFieldTop = [&](int16_t top) { scroll->ensureVisible(0, Pixels(top), 0, 60); };
  events.OnCSBOK = [&] {
    accepted->setText(QString::fromStdString("Accepted: " + biller.PayeeName() + ", account " +
                                             biller.PayeeBillAccount()));
  };
  events.OnCancel = [&] { accepted->setText("Cancelled"); };
  biller.Advise(events);

  // Room for the dialog, then the dialog in it.
  panel->resize(Pixels(biller.Get_Width()), Pixels(biller.Get_Height()));
  component.SetEmbedParent(panel);
  biller.ShowForm_Remote();
  window.resize(panel->width() + 40, 600);
  window.show();

  if (!check) return application.exec();

  // The check: the dialog is inside the panel, typing reaches it, and closing it is heard.
  QWidget* dialog = panel->findChild<QWidget*>("frmRandomInfo");
  const bool embedded = dialog != nullptr && dialog->parentWidget() == panel &&
                        static_cast<int32_t>(dialog->winId()) == biller.Get_hWnd();
  QWidget* focus = QApplication::focusWidget();
  if (focus != nullptr) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
    QApplication::sendEvent(focus, &key);
  }
  biller.Unload_From_Remote();
  std::cout << "embedded: " << (embedded ? "yes" : "no") << "\n"
            << "hWnd: " << biller.Get_hWnd() << "\n";
  return embedded ? 0 : 1;
}
