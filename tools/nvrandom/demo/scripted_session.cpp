#include "scripted_session.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
#include <cstdio>

#include "form_window.h"
#include "forms/application.h"
#include "forms/form.h"
#include "qt_view.h"

namespace nvrandom::demo {

namespace {
constexpr std::string_view kBillerForm = "frmRandomInfo";
}

ScriptedSession::ScriptedSession(std::filesystem::path folder, forms::Application& forms,
                                 qt::QtView& view)
    : folder_(std::move(folder)), forms_(forms), view_(view) {}

forms::Form* ScriptedSession::Find(std::string_view form_name) const {
  for (const auto& form : forms_.LoadedForms()) {
    if (form->Name() == form_name) return form.get();
  }
  return nullptr;
}

QWidget* ScriptedSession::Widget(std::string_view form_name, std::string_view control) const {
  forms::Form* form = Find(form_name);
  qt::FormWindow* window = form != nullptr ? view_.WindowOf(*form) : nullptr;
  return window != nullptr ? window->WidgetOf(control) : nullptr;
}

void ScriptedSession::Picture(QWidget& window, const std::string& step) {
  char name[64];
  std::snprintf(name, sizeof name, "%02d-%s.png", ++step_, step.c_str());
  window.grab().save(QString::fromStdString((folder_ / name).string()), "PNG");
  steps_.push_back({{"step", step}, {"picture", name}});
}

void ScriptedSession::Key(int key, const QString& text) {
  forms::Control* focused = forms_.Focused();
  if (focused == nullptr) return;
  qt::FormWindow* window = view_.WindowOf(focused->form());
  QWidget* target = window != nullptr ? window->InputWidgetOf(*focused) : nullptr;
  if (target == nullptr) return;
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(target, &press);
  // The key may have closed the form: its widgets are then gone.
  if (view_.WindowOf(focused->form()) == nullptr) return;
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(target, &release);
}

void ScriptedSession::TypeText(const QString& text) {
  for (const QChar c : text) {
    const int key = c.isLetter() ? Qt::Key_A + (c.toUpper().unicode() - u'A') : c.unicode();
    Key(key, QString(c));
  }
}

void ScriptedSession::Click(QWidget& widget) {
  const QPointF at(widget.width() / 2.0, widget.height() / 2.0);
  const QPointF global = widget.mapToGlobal(at);
  QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(&widget, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
  QApplication::sendEvent(&widget, &release);
}

void ScriptedSession::ClickOpening(QWidget& button, std::string_view form_name,
                                   const std::string& step) {
  QTimer::singleShot(0, [this, form_name, step] {
    forms::Form* form = Find(form_name);
    qt::FormWindow* window = form != nullptr ? view_.WindowOf(*form) : nullptr;
    if (window == nullptr) return;
    Picture(*window, step);
    window->close();  // the close box
  });
  Click(button);
}

void ScriptedSession::Answer(QMessageBox& box) {
  Picture(box, "message");
  steps_.back()["message"] = box.text().toStdString();
  steps_.back()["caption"] = box.windowTitle().toStdString();
  if (QAbstractButton* button = box.defaultButton()) {
    steps_.back()["answer"] = button->text().remove(u'&').toStdString();
    button->click();
  } else {
    box.close();
  }
}

void ScriptedSession::Run() {
  forms::Form* form = Find(kBillerForm);
  qt::FormWindow* window = form != nullptr ? view_.WindowOf(*form) : nullptr;
  if (window == nullptr) return;
  Picture(*window, "opened");
  // The person adds to the field that has the focus: the dialog's own key handling applies
  // (upper-casing, refused characters, maximum length).
  Key(Qt::Key_End);
  TypeText(QStringLiteral(" suite 400"));
  if ((window = view_.WindowOf(*form)) == nullptr) return;
  Picture(*window, "typed");
  if (QWidget* cheque = Widget(kBillerForm, "cmdCheque");
      cheque != nullptr && cheque->isVisibleTo(window) && cheque->isEnabled()) {
    ClickOpening(*cheque, "frmCheque", "sample-cheque");
  }
  if (QWidget* foreign = Widget(kBillerForm, "cmdFXBankingInfo");
      foreign != nullptr && foreign->isVisibleTo(window) && foreign->isEnabled()) {
    ClickOpening(*foreign, "frmFXBankInfo", "foreign-bank");
  }
  if (QWidget* ok = Widget(kBillerForm, "cmd_ok")) Click(*ok);
  if (Find(kBillerForm) == nullptr || view_.WindowOf(*form) == nullptr) return;
  Picture(*view_.WindowOf(*form), "not-accepted");
  if (QWidget* cancel = Widget(kBillerForm, "cmd_cancel");
      cancel != nullptr && cancel->isVisible()) {
    Click(*cancel);
  }
  if (Find(kBillerForm) != nullptr && view_.WindowOf(*form) != nullptr) {
    view_.WindowOf(*form)->close();
  }
}

}  // namespace nvrandom::demo
