#include "forms/application.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/keystroke.h"
#include "platform/clipboard.h"

namespace nvrandom::forms {

Application::Application(ClipboardService& clipboard) : clipboard_(clipboard) {}
Application::~Application() = default;

Form* Application::ActiveForm() const {
  return shown_.empty() ? nullptr : shown_.back();
}

Control* Application::Focused() const {
  const Form* form = ActiveForm();
  return form != nullptr ? form->ActiveControl() : nullptr;
}

namespace {
// The control and every container around it are visible and enabled.
bool ShownAndEnabled(const Control& control) {
  for (const Control* c = &control; c != nullptr; c = c->Container()) {
    if (!c->Visible() || !c->Enabled()) return false;
  }
  return true;
}
}  // namespace

bool Application::Available(const Control& control) {
  const Form& form = control.form();
  return form.IsLoaded() && form.Visible() && control.CanFocus() && ShownAndEnabled(control);
}

bool Application::TakesInput(const Control& control) const {
  return ActiveForm() == &control.form() && ShownAndEnabled(control);
}

bool Application::SetFocus(Control& control) {
  Form& form = control.form();
  if (!Available(control) || ActiveForm() != &form) {
    for (FormObserver* o : observers_) o->FocusRefused(control);
    return false;
  }
  if (focus_depth_ > 0) {
    // Asked from a LostFocus or GotFocus handler: the move follows the one under way.
    pending_focus_ = &control;
    return true;
  }
  MoveFocus(form, control);
  // Moves asked for during the handlers, in order; bounded so handlers that bounce the focus
  // between two controls cannot hang the host.
  for (int bounce = 0; pending_focus_ != nullptr && bounce < 64; ++bounce) {
    Control* next = std::exchange(pending_focus_, nullptr);
    if (Available(*next) && ActiveForm() == &next->form()) MoveFocus(next->form(), *next);
  }
  pending_focus_ = nullptr;
  return true;
}

void Application::MoveFocus(Form& form, Control& target) {
  Control* old = form.active_control_;
  if (old == &target) return;
  ++focus_depth_;
  form.active_control_ = &target;
  for (FormObserver* o : observers_) o->FocusChanged(form, &target);
  try {
    if (old != nullptr && old->events.LostFocus) old->events.LostFocus();
    if (form.IsLoaded() && target.events.GotFocus) target.events.GotFocus();
  } catch (...) {
    --focus_depth_;
    throw;
  }
  --focus_depth_;
}

void Application::SendKeys(std::string_view keys) {
  for (const char32_t c : DecodeKeys(keys)) sent_keys_.push_back(c);
  if (input_depth_ == 0) DeliverSentKeys();
}

Application::InputScope::InputScope(Application& app) : app_(app) {
  ++app_.input_depth_;
}

Application::InputScope::~InputScope() {
  if (--app_.input_depth_ == 0) {
    try {
      app_.DeliverSentKeys();
    } catch (...) {
      // A destructor must not throw; a failing handler of a sent key ends the delivery.
      app_.sent_keys_.clear();
    }
  }
}

void Application::DeliverSentKeys() {
  if (delivering_) return;
  delivering_ = true;
  // Each delivered key may send more (a handler that answers Enter with a key): bounded.
  for (int budget = 10000; !sent_keys_.empty() && budget > 0; --budget) {
    const char32_t key = sent_keys_.front();
    sent_keys_.pop_front();
    if (Control* target = Focused()) {
      // The key's handlers may unload the form: keep it until the key is done.
      const auto keep = target->form().shared_from_this();
      ++input_depth_;
      try {
        Keystroke(*target, key);
      } catch (...) {
        --input_depth_;
        delivering_ = false;
        throw;
      }
      --input_depth_;
    }
  }
  sent_keys_.clear();
  delivering_ = false;
}

std::shared_ptr<Form>& Application::DefaultInstance(std::string_view form_name) {
  auto it = default_instances_.find(form_name);
  if (it == default_instances_.end())
    it = default_instances_.emplace(std::string(form_name), nullptr).first;
  return it->second;
}

void Application::AddObserver(FormObserver* observer) {
  observers_.push_back(observer);
}

void Application::RemoveObserver(FormObserver* observer) {
  observers_.erase(std::remove(observers_.begin(), observers_.end(), observer), observers_.end());
}

void Application::NotifyControl(Control& control) {
  for (FormObserver* o : observers_) o->ControlChanged(control);
}

void Application::NotifyForm(Form& form) {
  for (FormObserver* o : observers_) o->FormChanged(form);
}

void Application::FormLoaded(Form& form) {
  loaded_.push_back(form.shared_from_this());
  NotifyForm(form);
}

void Application::FormShown(Form& form, bool modal) {
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
  shown_.push_back(&form);
  NotifyForm(form);
  form.Form_Activate();
  // The first available tab stop takes the focus unless Activate placed it.
  if (form.IsLoaded() && form.Visible() && form.ActiveControl() == nullptr) {
    Control* first = nullptr;
    for (const auto& c : form.Controls()) {
      if (c->TabStop() && Available(*c) &&
          (first == nullptr || c->TabIndex() < first->TabIndex())) {
        first = c.get();
      }
    }
    if (first != nullptr) SetFocus(*first);
  }
  if (!modal || !form.IsLoaded() || !form.Visible()) return;
  const auto keep = form.shared_from_this();
  // A modal show runs a message loop of its own: the input under way waits for it, and keys sent
  // before it opened reach the dialog, as they would through the platform's input queue.
  struct NestedLoop {
    Application& app;
    int outer_depth = std::exchange(app.input_depth_, 0);
    bool outer_delivering = std::exchange(app.delivering_, false);
    ~NestedLoop() {
      app.input_depth_ = outer_depth;
      app.delivering_ = outer_delivering;
    }
  } nested{*this};
  DeliverSentKeys();
  if (driver_ != nullptr && form.IsLoaded() && form.Visible()) driver_->RunModal(form);
  // Without a driver nobody can answer the dialog: it is closed by code, so nothing hangs.
  if (form.IsLoaded() && form.Visible()) form.Unload(unload_mode::kCode);
}

void Application::Reactivate() {
  if (Form* front = ActiveForm()) front->Form_Activate();
}

void Application::FormHidden(Form& form) {
  const bool was_front = ActiveForm() == &form;
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
  NotifyForm(form);
  if (was_front) Reactivate();
}

void Application::FormUnloaded(Form& form) {
  const bool was_front = ActiveForm() == &form;
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
  const auto self = form.shared_from_this();
  loaded_.erase(std::remove(loaded_.begin(), loaded_.end(), self), loaded_.end());
  NotifyForm(form);
  if (was_front) Reactivate();
}

}  // namespace nvrandom::forms
