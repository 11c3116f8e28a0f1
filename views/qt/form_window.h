#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/form.h"
#include "forms/property.h"

namespace nvrandom::qt {

struct ControlRecord;

// The real window of one loaded Form: one widget per control, kept equal to the model through
// the observer notifications, and the person's input on those widgets passed to the runtime's
// one input path (forms/user_input.h). It decides nothing itself: every key, click and focus
// request goes to the model, and what the model then holds is what the widgets show.
class FormWindow final : public QWidget {
 public:
  FormWindow(forms::Form& form, double logical_dpi, QWidget* parent);
  ~FormWindow() override;

  forms::Form* form() const { return form_; }
  // The widgets take the model's values when the form is first shown, all at once: while it
  // loads (set-up changes most of them) the window is dormant and ignores the notifications.
  void Wake();
  // The form was unloaded: the window stops forwarding input and no longer touches the model.
  void Detach();

  void ControlChanged(forms::Control& control, forms::Property property);
  void FormChanged(forms::Property property);
  // Puts the keyboard focus where the model has it.
  void ShowFocus(forms::Control* control);

  // The widget that mirrors `control` (nullptr for a control of another form).
  QWidget* WidgetOf(const forms::Control& control) const;
  QWidget* WidgetOf(std::string_view name, int index = -1) const;
  // The widget that takes the keyboard input of `control` (a combo box's edit field).
  QWidget* InputWidgetOf(const forms::Control& control) const;
  double dpi() const { return dpi_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ControlRecord* RecordOf(const QObject* widget) const;
  void CreateWidget(ControlRecord& record);
  void FollowSelection(ControlRecord& record);
  void ApplyAll(ControlRecord& record);
  void ShowForm(forms::Property property);
  void KeepOwnLooks(const QWidget& container, forms::Property property);
  void NameInputs();
  void Update(ControlRecord& record, forms::Property property);
  bool Key(ControlRecord& record, QKeyEvent* event);
  bool Mouse(ControlRecord& record, QEvent* event);
  void Clicks(ControlRecord& record, QEvent* event);
  void FocusIn(ControlRecord& record);
  void SyncFocusLater();

  forms::Form* form_;
  double dpi_;
  bool awake_ = false;
  std::vector<std::unique_ptr<ControlRecord>> records_;
  std::vector<ControlRecord*> tree_order_;  // each container before the controls inside it
  // Every event of every widget and every notification looks its record up: by hash, not by a
  // walk over the form's controls.
  std::unordered_map<const QObject*, ControlRecord*> by_widget_;
  std::unordered_map<const forms::Control*, ControlRecord*> by_control_;
};

}  // namespace nvrandom::qt
