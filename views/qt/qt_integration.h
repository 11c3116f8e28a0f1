#pragma once

#include <memory>

class QWidget;

namespace nvrandom {
class Context;
}

namespace nvrandom::qt {

class QtView;

// The Qt composition of the component for a Linux host: the Qt services over the platform's
// (message boxes, clipboard, browser, help), the dialogs' fonts, and a view of the forms.
//
// A host creates one Integration on its GUI thread after its QApplication and before its first
// ClsRandom, keeps it while it uses the component, and gives it the widget that ShowForm_Remote
// embeds the biller dialog in:
//
//   QApplication app(argc, argv);
//   nvrandom::qt::Integration nvrandom_qt;
//   nvrandom_qt.SetEmbedParent(&host_panel);
//   nvrandom::ClsRandom biller;   // modal shows open Qt dialogs; ShowForm_Remote embeds
class Integration {
 public:
  // Installs the Qt services as the default (app::SetDefaultServicesFactory) and shows the forms
  // of this thread's component state.
  Integration();
  // Shows the forms of an explicit component state (tests, a host with its own Context).
  explicit Integration(Context& ctx);
  ~Integration();
  Integration(const Integration&) = delete;
  Integration& operator=(const Integration&) = delete;

  // Where ShowForm_Remote places the biller dialog (nullptr: a window of its own). The host keeps
  // ownership; destroying it while the dialog is embedded is allowed.
  void SetEmbedParent(QWidget* parent);
  QtView& view() const { return *view_; }

 private:
  std::unique_ptr<QtView> view_;
};

}  // namespace nvrandom::qt
