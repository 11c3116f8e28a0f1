#include "win32_view.h"

#include "form_window.h"
#include "forms/form.h"
#include "win32_units.h"
#include "window_classes.h"

namespace nvrandom::win32 {

using forms::FormEvent;

Win32View::Win32View(forms::Application& app, WindowHold hold)
    : app_(app), hold_(std::move(hold)), dpi_(SystemDpi()) {
  RegisterWindowClasses();
  app_.AddObserver(this);
  app_.SetModalDriver(this);
}

Win32View::~Win32View() {
  app_.RemoveObserver(this);
  app_.SetModalDriver(nullptr);
  for (auto& [form, window] : windows_) {
    window->Detach();
    retired_.push_back(std::move(window));
  }
  windows_.clear();
  input_depth_ = 0;
  DestroyRetired();
  UnregisterWindowClasses();
}

Win32View::InputScope::InputScope(Win32View& view) : view_(view) {
  ++view_.input_depth_;
}

Win32View::InputScope::~InputScope() {
  if (--view_.input_depth_ == 0) view_.DestroyRetired();
}

FormWindow* Win32View::WindowOf(const forms::Form& form) const {
  const auto it = windows_.find(&form);
  return it == windows_.end() ? nullptr : it->second.get();
}

FormWindow& Win32View::Ensure(forms::Form& form) {
  if (FormWindow* window = WindowOf(form)) return *window;
  auto window = std::make_unique<FormWindow>(*this, form, dpi_);
  if (hold_.acquire) hold_.acquire();
  form.SetWindowHandle(static_cast<int64_t>(reinterpret_cast<intptr_t>(window->hwnd())));
  return *(windows_[&form] = std::move(window));
}

void Win32View::DestroyRetired() {
  while (!retired_.empty()) {
    retired_.pop_back();
    if (hold_.release) hold_.release();
  }
}

void Win32View::ControlChanged(forms::Control& control, forms::Property property) {
  if (FormWindow* window = WindowOf(control.form())) window->ControlChanged(control, property);
}

void Win32View::FormChanged(forms::Form& form, forms::Property property) {
  if (FormWindow* window = WindowOf(form)) window->FormChanged(property);
}

void Win32View::FocusChanged(forms::Form& form, forms::Control*) {
  if (FormWindow* window = WindowOf(form)) window->ShowFocus();
}

void Win32View::FormLifecycle(forms::Form& form, FormEvent event) {
  switch (event) {
    case FormEvent::kLoaded:
      Ensure(form);
      break;
    case FormEvent::kShownModal: {
      FormWindow& window = Ensure(form);
      // The window that was active when the show began: another form, or the host's.
      HWND owner = ::GetActiveWindow();
      if (owner == window.hwnd()) owner = nullptr;
      window.ShowModal(owner);
      break;
    }
    case FormEvent::kShownEmbedded:
      Ensure(form).ShowEmbedded();
      break;
    case FormEvent::kActivated:
      if (FormWindow* window = WindowOf(form)) window->ShowFocus();
      break;
    case FormEvent::kHidden:
      Close(form, false);
      break;
    case FormEvent::kUnloaded:
      Close(form, true);
      break;
  }
}

void Win32View::Close(forms::Form& form, bool unloaded) {
  const auto it = windows_.find(&form);
  if (it == windows_.end()) return;
  it->second->Hide();
  if (!unloaded) return;
  // The input that unloaded the form may still be running in one of the window's controls.
  it->second->Detach();
  retired_.push_back(std::move(it->second));
  windows_.erase(it);
  if (input_depth_ == 0) DestroyRetired();
}

void Win32View::RunModal(forms::Form& form) {
  // The runtime keeps the form alive while its modal show lasts.
  MSG message;
  while (form.IsLoaded() && form.Visible()) {
    const BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
    if (got == 0) {
      // WM_QUIT ends the host's loop too: pass it on once this show has ended.
      ::PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (got == -1) return;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

}  // namespace nvrandom::win32
