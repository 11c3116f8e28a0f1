// The biller dialog in a real window of the display it is given, for a driver that sends real
// key events to it. Opens the business sample in a top-level window and runs until the window
// is gone; when the window is asked to close, prints what the model and the widgets held then:
// the street and city texts (each as the model has it and as its edit field shows it), the
// "Individual" option and the control that had the focus.
#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QWidget>
#include <cstdio>
#include <memory>

#include "../biller_windows.h"
#include "api/cls_random.h"
#include "demo_samples.h"

namespace {

// Prints the state of the form the moment its window is asked to close, before the model hears
// of it.
class CloseWatch final : public QObject {
 public:
  explicit CloseWatch(nvrandom::qt::FormWindow& window) : window_(window) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != &window_ || event->type() != QEvent::Close || printed_) return false;
    printed_ = true;
    nvrandom::forms::Form& form = *window_.form();
    for (const char* name : {"ran_payee_street", "ran_payee_city"}) {
      const auto* edit = qobject_cast<QLineEdit*>(window_.WidgetOf(name));
      std::printf("%s=%s\n%s shown=%s\n", name, form.Ctl(name).Text().c_str(), name,
                  edit != nullptr ? edit->text().toStdString().c_str() : "(none)");
    }
    std::printf("individual=%d\n", form.Ctl("optCIndividual").Value());
    const nvrandom::forms::Control* focused = form.ActiveControl();
    std::printf("focus=%s\n", focused != nullptr ? focused->FullName().c_str() : "(none)");
    std::fflush(stdout);
    return false;
  }

 private:
  nvrandom::qt::FormWindow& window_;
  bool printed_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const nvrandom::qt::BillerWindows windows;
  nvrandom::ClsRandom biller;
  nvrandom::demo::LoadSample(biller, "business", windows.install());
  biller.ShowForm_Remote();
  nvrandom::qt::FormWindow* window = windows.WindowOf("frmRandomInfo");
  if (window == nullptr) return 1;
  CloseWatch watch(*window);
  window->installEventFilter(&watch);
  // The window goes when the form is unloaded: the run is over.
  QObject::connect(window, &QObject::destroyed, &application, &QApplication::quit);
  return application.exec();
}
