#include "qt_view.h"

#include <QEventLoop>

#include "form_window.h"
#include "forms/form.h"
#include "qt_units.h"

namespace nvrandom::qt {

using forms::FormEvent;

QtView::QtView(forms::Application& app) : app_(app) {
  app_.AddObserver(this);
  app_.SetModalDriver(this);
}

QtView::~QtView() {
  app_.RemoveObserver(this);
  app_.SetModalDriver(nullptr);
  for (auto& [form, window] : windows_) {
    if (window) {
      window->Detach();
      delete window.data();
    }
  }
}

void QtView::SetEmbedParent(QWidget* parent) {
  embed_parent_ = parent;
}

FormWindow* QtView::WindowOf(const forms::Form& form) const {
  const auto it = windows_.find(&form);
  return it == windows_.end() ? nullptr : it->second.data();
}

FormWindow& QtView::Ensure(forms::Form& form, QWidget* parent) {
  if (FormWindow* window = WindowOf(form)) return *window;
  auto* window = new FormWindow(form, ScreenDpi(), parent);
  windows_[&form] = window;
  form.SetWindowHandle(static_cast<int64_t>(window->winId()));
  return *window;
}

// Moves the window under `parent` (nullptr: a window of its own); its native handle changes
// with it, and the form's follows.
void QtView::Place(forms::Form& form, FormWindow& window, QWidget* parent, Qt::WindowFlags flags) {
  if (window.parentWidget() != parent || window.windowFlags() != flags) {
    window.setParent(parent, flags);
    form.SetWindowHandle(static_cast<int64_t>(window.winId()));
  }
}

void QtView::ControlChanged(forms::Control& control, forms::Property property) {
  if (FormWindow* window = WindowOf(control.form())) window->ControlChanged(control, property);
}

void QtView::FormChanged(forms::Form& form, forms::Property property) {
  if (FormWindow* window = WindowOf(form)) window->FormChanged(property);
}

void QtView::FocusChanged(forms::Form& form, forms::Control* now) {
  if (FormWindow* window = WindowOf(form)) window->ShowFocus(now);
}

void QtView::FormLifecycle(forms::Form& form, FormEvent event) {
  switch (event) {
    case FormEvent::kLoaded:
      Ensure(form, embed_parent_);
      break;
    case FormEvent::kShownModal: {
      FormWindow& window = Ensure(form, nullptr);
      Place(form, window, nullptr, Qt::Dialog);
      window.Wake();
      window.setWindowModality(Qt::ApplicationModal);
      window.show();
      window.raise();
      window.activateWindow();
      window.ShowFocus(form.ActiveControl());
      break;
    }
    case FormEvent::kShownEmbedded: {
      FormWindow& window = Ensure(form, embed_parent_);
      window.Wake();
      if (embed_parent_) {
        Place(form, window, embed_parent_, Qt::Widget);
        window.move(0, 0);
      } else {
        Place(form, window, nullptr, Qt::Window);
      }
      window.show();
      window.ShowFocus(form.ActiveControl());
      break;
    }
    case FormEvent::kActivated:
      if (FormWindow* window = WindowOf(form); window != nullptr && window->isWindow()) {
        window->activateWindow();
      }
      break;
    case FormEvent::kHidden:
      Close(form, false);
      break;
    case FormEvent::kUnloaded:
      Close(form, true);
      break;
  }
}

void QtView::Close(forms::Form& form, bool unloaded) {
  for (const ModalLoop& modal : loops_) {
    if (modal.form == &form) modal.loop->quit();
  }
  const auto it = windows_.find(&form);
  if (it == windows_.end()) return;
  if (FormWindow* window = it->second.data()) {
    window->hide();
    if (unloaded) {
      // The input that unloaded the form may still be running in one of the window's widgets.
      window->Detach();
      window->deleteLater();
    }
  }
  if (unloaded) windows_.erase(it);
}

void QtView::RunModal(forms::Form& form) {
  if (!form.IsLoaded() || !form.Visible()) return;
  QEventLoop loop;
  loops_.push_back({&form, &loop});
  loop.exec(QEventLoop::DialogExec);
  loops_.pop_back();
}

}  // namespace nvrandom::qt
