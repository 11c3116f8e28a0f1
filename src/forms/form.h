#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace nvrandom::forms {

class Application;

// How an unload was started, as QueryUnload is told.
namespace unload_mode {
inline constexpr int16_t kCloseBox = 0;
inline constexpr int16_t kCode = 1;
inline constexpr int16_t kSystemShutdown = 2;
inline constexpr int16_t kTaskList = 3;
}  // namespace unload_mode

struct FormDesign {
  std::string_view name;
  std::string_view caption;
  int32_t width = 0;   // twips
  int32_t height = 0;  // twips
  bool key_preview = false;
  std::string_view font_name = "MS Sans Serif";  // the controls' font unless they set their own
};

// A handler bound to a control the form does not have: a fault of the dialog's code, raised
// while the form is being constructed.
class BindingError : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

// A form: its controls, made from the form's control table, and its event procedures. Dialogs
// derive from it, bind their controls' events in their constructor and override the form's own
// events. Forms are created with std::make_shared: the application holds loaded forms.
//
// Lifecycle, as on the platform the dialogs were written for: a form loads (Form_Load, controls
// back to their design) the first time it is shown or one of its controls is looked up through
// Ctl(); Show makes it visible and activates it; Unload asks QueryUnload, runs Form_Unload and
// removes it from the loaded forms; a modal Show returns when the form is unloaded or hidden.
class Form : public std::enable_shared_from_this<Form> {
 public:
  Form(Application& app, const FormDesign& design, std::span<const ControlDesign> controls);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Application& app() const { return app_; }
  const std::string& Name() const { return name_; }

  // The control of that name (and index, for control arrays); loads the form first, as touching
  // a control does. Unknown names raise RuntimeError 730 ("Control array element doesn't exist")
  // or 424 ("Object required").
  Control& Ctl(std::string_view name, int index = -1);
  // The same lookup without loading; nullptr when there is no such control.
  Control* Find(std::string_view name, int index = -1) const;
  // The events of a control, for binding handlers in the constructor: throws BindingError
  // naming the form and the control when the form has no such control.
  ControlEvents& On(std::string_view name, int index = -1);
  const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }

  bool IsLoaded() const { return loaded_; }
  void EnsureLoaded();
  bool Visible() const { return visible_; }
  bool IsModal() const { return modal_; }

  // Shows the form; modal: returns once it is unloaded or hidden. A modal form is owned by the
  // form that was front-most when it was shown, and closes with it.
  void Show(bool modal = false);
  void Hide();
  // Unloads (QueryUnload, then the forms it owns, then Form_Unload); false when a handler
  // cancelled it, its own or an owned form's.
  bool Unload(int16_t mode = unload_mode::kCode);
  // The form this one was shown modally over, while both are loaded; nullptr otherwise.
  Form* Owner() const;

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);
  int32_t Left() const { return left_; }
  int32_t Top() const { return top_; }
  int32_t Width() const { return width_; }
  int32_t Height() const { return height_; }
  void Move(int32_t left, int32_t top);
  void SetWidth(int32_t width);
  void SetHeight(int32_t height);
  bool KeyPreview() const { return key_preview_; }
  uint32_t BackColor() const { return back_color_; }
  void SetBackColor(uint32_t color);
  const std::string& FontName() const { return font_name_; }
  void SetFontName(std::string name);
  // By name, ignoring case: BackColor, FontName, Caption, Left, Top, Width, Height (RuntimeError
  // 438 for any other name, 13 for a value of the wrong type).
  PropertyValue GetProperty(std::string_view name) const;
  void SetProperty(std::string_view name, const PropertyValue& value);

  // The control that has (or, during LostFocus, is receiving) the focus.
  Control* ActiveControl() const { return active_control_; }

  // The window's handle: the view's, or a number of the runtime's own when headless.
  int64_t hWnd() const { return hwnd_; }
  void SetWindowHandle(int64_t hwnd) { hwnd_ = hwnd; }

  // Form events; also called by the runtime's input dispatch.
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_QueryUnload(int16_t& cancel, int16_t unload_mode) {
    (void)cancel;
    (void)unload_mode;
  }
  virtual void Form_Unload(int16_t& cancel) { (void)cancel; }
  virtual void Form_KeyPress(int16_t& key_ascii) { (void)key_ascii; }
  virtual void Form_KeyDown(int16_t& key_code, int16_t& shift) {
    (void)key_code;
    (void)shift;
  }
  virtual void Form_KeyUp(int16_t& key_code, int16_t& shift) {
    (void)key_code;
    (void)shift;
  }

 private:
  friend class Application;
  template <typename T, typename V>
  void Assign(T& field, V&& value, Property property) {
    if (field == value) return;
    field = std::forward<V>(value);
    Notify(property);
  }
  void Notify(Property property);
  void ResetToDesign();

  Application& app_;
  FormDesign design_;
  std::string name_;
  std::vector<std::unique_ptr<Control>> controls_;
  bool loaded_ = false;
  bool loading_ = false;
  bool visible_ = false;
  bool modal_ = false;
  bool unloading_ = false;
  std::string caption_;
  int32_t left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  bool key_preview_ = false;
  uint32_t back_color_ = 0;
  std::string font_name_;
  Control* active_control_ = nullptr;
  int64_t hwnd_ = 0;
  std::weak_ptr<Form> owner_;
};

}  // namespace nvrandom::forms
