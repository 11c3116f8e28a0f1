#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "forms/application.h"

namespace nvrandom::win32 {

class FormWindow;

// Mirrors every form of one forms::Application into native windows: a form gets its window when
// it loads and loses it when it unloads; a modal show runs a nested message loop until the form
// is hidden or unloaded; an embedded show (ShowForm_Remote) shows the window modeless, where a
// host may reparent it (see FormWindow). Create it on the thread that owns the forms.
class Win32View final : public forms::FormObserver, public forms::ModalDriver {
 public:
  // Called once for every window the view creates and once when it is destroyed: the COM server
  // keeps its module loaded while a window (whose procedure is in the module) exists.
  struct WindowHold {
    std::function<void()> acquire;
    std::function<void()> release;
  };

  explicit Win32View(forms::Application& app, WindowHold hold = {});
  ~Win32View() override;
  Win32View(const Win32View&) = delete;
  Win32View& operator=(const Win32View&) = delete;

  // The window of a loaded form (nullptr when it has none).
  FormWindow* WindowOf(const forms::Form& form) const;
  int dpi() const { return dpi_; }

  void ControlChanged(forms::Control& control, forms::Property property) override;
  void FormChanged(forms::Form& form, forms::Property property) override;
  void FormLifecycle(forms::Form& form, forms::FormEvent event) override;
  void FocusChanged(forms::Form& form, forms::Control* now) override;
  void RunModal(forms::Form& form) override;

  // Marks a window procedure handling a person's input: a form unloaded meanwhile keeps its
  // window (hidden, detached) until the outermost input has returned.
  class InputScope {
   public:
    explicit InputScope(Win32View& view);
    ~InputScope();
    InputScope(const InputScope&) = delete;
    InputScope& operator=(const InputScope&) = delete;

   private:
    Win32View& view_;
  };

 private:
  FormWindow& Ensure(forms::Form& form);
  void Close(forms::Form& form, bool unloaded);
  void DestroyRetired();

  forms::Application& app_;
  WindowHold hold_;
  int dpi_;
  std::map<const forms::Form*, std::unique_ptr<FormWindow>> windows_;
  std::vector<std::unique_ptr<FormWindow>> retired_;  // unloaded, destroyed when no input runs
  int input_depth_ = 0;
};

}  // namespace nvrandom::win32
