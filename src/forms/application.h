#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

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

// Views and transcripts observe the model; nothing polls.
class FormObserver {
 public:
  virtual ~FormObserver() = default;
  virtual void ControlChanged(Control& control) { (void)control; }
  virtual void FormChanged(Form& form) { (void)form; }
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
  // Moves the focus (LostFocus on the old control with ActiveControl already moved, then
  // GotFocus). A request for an unavailable control leaves the focus where it is, raises nothing
  // and is reported to the observers; returns false then.
  bool SetFocus(Control& control);

  // Queues keystrokes for the focused control, delivered once the current event has finished.
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
  void NotifyControl(Control& control);
  void NotifyForm(Form& form);
  void FormLoaded(Form& form);
  void FormShown(Form& form, bool modal);
  void FormHidden(Form& form);
  void FormUnloaded(Form& form);
  int64_t NextWindowHandle() { return next_hwnd_ += 4; }

 private:
  void MoveFocus(Form& form, Control& target);
  void DeliverSentKeys();
  void Reactivate();

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
