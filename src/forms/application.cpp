#include "forms/application.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/keystroke.h"
#include "platform/clipboard.h"

namespace nvrandom::forms {

std::string_view FormEventName(FormEvent event) {
  switch (event) {
    case FormEvent::kLoaded:
      return "loaded";
    case FormEvent::kShownModal:
      return "shown modal";
    case FormEvent::kShownEmbedded:
      return "shown embedded";
    case FormEvent::kActivated:
      return "activated";
    case FormEvent::kHidden:
      return "hidden";
    case FormEvent::kUnloaded:
      return "unloaded";
  }
  return "?";
}

Application::Application(ClipboardService& clipboard) : clipboard_(clipboard) {}
Application::~Application() = default;

// Calls every observer on a copy of the list, skipping those removed meanwhile: an observer may
// add or remove observers, itself included, from inside a notification.
template <typename Call>
void Application::Tell(const Call& call) {
  if (observers_.empty()) return;
  const std::vector<FormObserver*> snapshot = observers_;
  for (FormObserver* o : snapshot) {
    if (std::find(observers_.begin(), observers_.end(), o) != observers_.end()) call(*o);
  }
}

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

Control* Application::NextTabStop(const Control& from) {
  Control* next = nullptr;
  Control* first = nullptr;
  for (const auto& c : from.form().Controls()) {
    if (!c->TabStop() || c.get() == &from || !Available(*c)) continue;
    if (first == nullptr || c->TabIndex() < first->TabIndex()) first = c.get();
    if (c->TabIndex() > from.TabIndex() && (next == nullptr || c->TabIndex() < next->TabIndex())) {
      next = c.get();
    }
  }
  return next != nullptr ? next : first;
}

Control* Application::PreviousTabStop(const Control& from) {
  Control* previous = nullptr;
  Control* last = nullptr;
  for (const auto& c : from.form().Controls()) {
    if (!c->TabStop() || c.get() == &from || !Available(*c)) continue;
    if (last == nullptr || c->TabIndex() > last->TabIndex()) last = c.get();
    if (c->TabIndex() < from.TabIndex() &&
        (previous == nullptr || c->TabIndex() > previous->TabIndex())) {
      previous = c.get();
    }
  }
  return previous != nullptr ? previous : last;
}

bool Application::SetFocus(Control& control) {
  Form& form = control.form();
  if (!Available(control) || ActiveForm() != &form) {
    Tell([&](FormObserver& o) { o.FocusRefused(control); });
    return false;
  }
  if (focus_depth_ > 0) {
    // Asked from a LostFocus or GotFocus handler: the move follows the one under way.
    pending_focus_ = &control;
    return true;
  }
  MoveFocus(form, &control);
  // Moves asked for during the handlers, in order; bounded so handlers that bounce the focus
  // between two controls cannot hang the host.
  for (int bounce = 0; bounce < 64; ++bounce) {
    if (pending_focus_ != nullptr) {
      Control* next = std::exchange(pending_focus_, nullptr);
      if (Available(*next) && ActiveForm() == &next->form()) MoveFocus(next->form(), next);
      continue;
    }
    // A handler disabled or hid the control the focus went to, and asked for no move that is
    // still possible: the focus goes on in tab order, as when a focused control is disabled.
    Control* active = form.active_control_;
    if (active == nullptr || Available(*active) || !form.Visible()) break;
    MoveFocus(form, NextTabStop(*active));
  }
  pending_focus_ = nullptr;
  return true;
}

// The focused control (or a container around it) was hidden or disabled: the focus moves to the
// next control in tab order that can take it, as the platform moves it. When none is left, no
// control has the focus (LostFocus still fires on the old one) and keys go nowhere until a
// control is focused again.
void Application::FocusMayBeLost(Control& changed) {
  Form& form = changed.form();
  Control* active = form.active_control_;
  if (active == nullptr || Available(*active) || !active->IsWithin(changed)) return;
  Control* next = NextTabStop(*active);
  if (!form.Visible() || ActiveForm() != &form) {
    // Not on screen: the form remembers where the focus will be when it is shown again.
    form.active_control_ = next;
    return;
  }
  if (next == nullptr) {
    MoveFocus(form, nullptr);
  } else if (focus_depth_ > 0) {
    pending_focus_ = next;  // follows the move under way
  } else {
    SetFocus(*next);
  }
}

void Application::MoveFocus(Form& form, Control* target) {
  Control* old = form.active_control_;
  if (old == target) return;
  ++focus_depth_;
  form.active_control_ = target;
  Tell([&](FormObserver& o) { o.FocusChanged(form, target); });
  try {
    if (old != nullptr && old->events.LostFocus) old->events.LostFocus();
    if (target != nullptr && form.IsLoaded() && target->events.GotFocus) target->events.GotFocus();
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

void Application::NotifyControl(Control& control, Property property) {
  Tell([&](FormObserver& o) { o.ControlChanged(control, property); });
}

void Application::NotifyForm(Form& form, Property property) {
  Tell([&](FormObserver& o) { o.FormChanged(form, property); });
}

void Application::Lifecycle(Form& form, FormEvent event) {
  Tell([&](FormObserver& o) { o.FormLifecycle(form, event); });
}

void Application::Activate(Form& form) {
  Lifecycle(form, FormEvent::kActivated);
  form.Form_Activate();
}

void Application::FormLoaded(Form& form) {
  loaded_.push_back(form.shared_from_this());
  Lifecycle(form, FormEvent::kLoaded);
}

void Application::FormShown(Form& form, bool modal) {
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
  shown_.push_back(&form);
  Lifecycle(form, modal ? FormEvent::kShownModal : FormEvent::kShownEmbedded);
  Activate(form);
  // The first available tab stop takes the focus unless Activate placed it.
  if (form.IsLoaded() && form.Visible() &&
      (form.ActiveControl() == nullptr || !Available(*form.ActiveControl()))) {
    form.active_control_ = nullptr;
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
  if (Form* front = ActiveForm()) Activate(*front);
}

void Application::FormHidden(Form& form) {
  const bool was_front = ActiveForm() == &form;
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
  Lifecycle(form, FormEvent::kHidden);
  if (was_front) Reactivate();
}

void Application::FormUnloaded(Form& form) {
  const bool was_front = ActiveForm() == &form;
  shown_.erase(std::remove(shown_.begin(), shown_.end(), &form), shown_.end());
  const auto self = form.shared_from_this();
  loaded_.erase(std::remove(loaded_.begin(), loaded_.end(), self), loaded_.end());
  Lifecycle(form, FormEvent::kUnloaded);
  if (was_front) Reactivate();
}

}  // namespace nvrandom::forms
