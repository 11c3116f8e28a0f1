#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/property.h"

namespace nvrandom {
class ClipboardService;
}

namespace nvrandom::forms {

class Control;
class Form;

// Runs a modal show: returns once `form` is no longer shown (unloaded or hidden). A view runs an
// event loop; the scenario runner carries on with its script; tests drive it with a function.
class ModalDriver {
 public:
  virtual ~ModalDriver() = default;
  virtual void RunModal(Form& form) = 0;
};

// The stages of a form's life, each told to the observers once, in this order for a form shown
// and closed: kLoaded (its controls exist and hold their designed values), kShownModal or
// kShownEmbedded (visible; embedded: shown without a modal loop, inside the host's window),
// kActivated (it became the front-most form, also again when a form over it went away),
// kHidden, kUnloaded.
enum class FormEvent : uint8_t {
  kLoaded,
  kShownModal,
  kShownEmbedded,
  kActivated,
  kHidden,
  kUnloaded,
};

std::string_view FormEventName(FormEvent event);

// Views and transcripts observe the model; nothing polls. Observers may be added and removed
// during a notification: one added then hears the next notification, one removed hears no more.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  // One property of a control changed (a whole list fill is one kList).
  virtual void ControlChanged(Control& control, Property property) {
    (void)control;
    (void)property;
  }
  // One of the form's own properties changed (Caption, Left, Top, Width, Height, BackColor,
  // FontName).
  virtual void FormChanged(Form& form, Property property) {
    (void)form;
    (void)property;
  }
  virtual void FormLifecycle(Form& form, FormEvent event) {
    (void)form;
    (void)event;
  }
  // The focus moved to `now` (nullptr: no control of the form has it).
  virtual void FocusChanged(Form& form, Control* now) {
    (void)form;
    (void)now;
  }
  // A focus request the runtime refused (the control was not available).
  virtual void FocusRefused(Control& control) { (void)control; }
};

// The forms of one component instance set: which are loaded and shown, where the focus is, the
// queue of sent keystrokes and the modal driver. The one place the platform's form semantics
// live.
class Application {
 public:
  explicit Application(ClipboardService& clipboard);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  // Loaded forms, in load order (walked by code that closes forms by name).
  std::vector<std::shared_ptr<Form>> LoadedForms() const { return loaded_; }
  // The front-most shown form, or nullptr.
  Form* ActiveForm() const;
  // The control with the focus on the front-most form.
  Control* Focused() const;

  // Whether the control can take the focus: its form is shown and it and all its containers are
  // visible and enabled.
  static bool Available(const Control& control);
  // Whether the control takes the mouse: the same, for any kind of control (labels and images
  // too), on the front-most form.
  bool TakesInput(const Control& control) const;
  // The next control after `from` in tab order that can take the focus, wrapping round to the
  // first; nullptr when no other control can.
  static Control* NextTabStop(const Control& from);
  // The available tab stop before `from` in tab order, wrapping round to the last (Shift+Tab).
  static Control* PreviousTabStop(const Control& from);
  // Moves the focus (LostFocus on the old control with ActiveControl already moved, then
  // GotFocus). A request for an unavailable control leaves the focus where it is, raises nothing
  // and is reported to the observers; returns false then.
  bool SetFocus(Control& control);

  // Queues keystrokes for the focused control, delivered once the key or event under way has
  // finished (after a typed key's KeyUp, before the next typed key).
  void SendKeys(std::string_view keys);

  // The slot of a form class's one default instance, kept for the application's lifetime.
  std::shared_ptr<Form>& DefaultInstance(std::string_view form_name);

  void SetModalDriver(ModalDriver* driver) { driver_ = driver; }
  void AddObserver(FormObserver* observer);
  void RemoveObserver(FormObserver* observer);
  ClipboardService& clipboard() const { return clipboard_; }

  // Marks the outermost user input; when it ends, the sent keystrokes are delivered.
  class InputScope {
   public:
    explicit InputScope(Application& app);
    ~InputScope();
    InputScope(const InputScope&) = delete;
    InputScope& operator=(const InputScope&) = delete;

   private:
    Application& app_;
  };

  // For the runtime's own parts.
  void NotifyControl(Control& control, Property property);
  void NotifyForm(Form& form, Property property);
  // A control was hidden or disabled: when it, or a control inside it, has the focus, the focus
  // moves on in tab order (see Application::FocusMayBeLost in the source).
  void FocusMayBeLost(Control& changed);
  void FormLoaded(Form& form);
  void FormShown(Form& form, bool modal);
  void FormHidden(Form& form);
  void FormUnloaded(Form& form);
  int64_t NextWindowHandle() { return next_hwnd_ += 4; }

 private:
  void MoveFocus(Form& form, Control* target);
  void DeliverSentKeys();
  void Reactivate();
  void Activate(Form& form);
  void Lifecycle(Form& form, FormEvent event);
  template <typename Call>
  void Tell(const Call& call);

  ClipboardService& clipboard_;
  std::vector<std::shared_ptr<Form>> loaded_;
  std::vector<Form*> shown_;
  std::map<std::string, std::shared_ptr<Form>, std::less<>>
      default_instances_;  // z-order, front-most last
  std::vector<FormObserver*> observers_;
  ModalDriver* driver_ = nullptr;
  std::deque<char32_t> sent_keys_;
  int input_depth_ = 0;
  bool delivering_ = false;
  int focus_depth_ = 0;
  Control* pending_focus_ = nullptr;
  int64_t next_hwnd_ = 0x10000;
};

}  // namespace nvrandom::forms
