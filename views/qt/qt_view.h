#pragma once

#include <QPointer>
#include <QWidget>
#include <map>
#include <vector>

#include "forms/application.h"

class QEventLoop;

namespace nvrandom::qt {

class FormWindow;

// Mirrors every form of one forms::Application into Qt windows: a form gets its window when it
// loads and loses it when it unloads; a modal show runs a nested event loop until the form is
// hidden or unloaded; an embedded show places the window inside the host's parent widget. Create
// it on the GUI thread, after the QApplication.
class QtView final : public forms::FormObserver, public forms::ModalDriver {
 public:
  explicit QtView(forms::Application& app);
  ~QtView() override;
  QtView(const QtView&) = delete;
  QtView& operator=(const QtView&) = delete;

  // The widget that embedded forms (ShowForm_Remote) are shown in; nullptr: their own window.
  // The view does not own it; when the host destroys it, the embedded window goes with it and the
  // form gets a new window the next time it is shown.
  void SetEmbedParent(QWidget* parent);
  QWidget* EmbedParent() const { return embed_parent_; }

  // The window of a loaded form (nullptr when it has none).
  FormWindow* WindowOf(const forms::Form& form) const;

  void ControlChanged(forms::Control& control, forms::Property property) override;
  void FormChanged(forms::Form& form, forms::Property property) override;
  void FormLifecycle(forms::Form& form, forms::FormEvent event) override;
  void FocusChanged(forms::Form& form, forms::Control* now) override;
  void RunModal(forms::Form& form) override;

 private:
  FormWindow& Ensure(forms::Form& form, QWidget* parent);
  void Place(forms::Form& form, FormWindow& window, QWidget* parent, Qt::WindowFlags flags);
  void Close(forms::Form& form, bool unloaded);

  forms::Application& app_;
  QPointer<QWidget> embed_parent_;
  std::map<const forms::Form*, QPointer<FormWindow>> windows_;
  struct ModalLoop {
    const forms::Form* form;
    QEventLoop* loop;
  };
  std::vector<ModalLoop> loops_;
};

}  // namespace nvrandom::qt
