#include "forms/form.h"

#include "forms/application.h"
#include "platform/runtime_error.h"

namespace nvrandom::forms {

Form::Form(Application& app, const FormDesign& design, std::span<const ControlDesign> controls)
    : app_(app), design_(design), name_(design.name) {
  controls_.reserve(controls.size());
  for (const ControlDesign& row : controls)
    controls_.push_back(std::make_unique<Control>(*this, row));
  for (size_t i = 0; i < controls.size(); ++i) {
    if (!controls[i].container.empty()) {
      controls_[i]->SetContainer(Find(controls[i].container));
    }
  }
  ResetToDesign();
}

Form::~Form() = default;

void Form::ResetToDesign() {
  font_name_ = std::string(design_.font_name);
  for (auto& control : controls_) control->Reset();
  caption_ = std::string(design_.caption);
  width_ = design_.width;
  height_ = design_.height;
  left_ = 0;
  top_ = 0;
  key_preview_ = design_.key_preview;
  back_color_ = colors::kButtonFace;
  active_control_ = nullptr;
}

Control* Form::Find(std::string_view name, int index) const {
  for (const auto& control : controls_) {
    if (control->Index() == index && control->Name() == name) return control.get();
  }
  return nullptr;
}

ControlEvents& Form::On(std::string_view name, int index) {
  if (Control* control = Find(name, index)) return control->events;
  std::string full(name);
  if (index >= 0) full += "(" + std::to_string(index) + ")";
  throw BindingError(name_ + ": a handler is bound to " + full + ", which the form does not have");
}

Control& Form::Ctl(std::string_view name, int index) {
  EnsureLoaded();
  if (Control* control = Find(name, index)) return *control;
  if (index >= 0)
    throw RuntimeError(730, "Control array element '" + std::to_string(index) + "' doesn't exist");
  throw RuntimeError(424, "Object required");
}

void Form::EnsureLoaded() {
  if (loaded_ || loading_) return;
  loading_ = true;
  ResetToDesign();
  hwnd_ = app_.NextWindowHandle();
  loaded_ = true;
  app_.FormLoaded(*this);
  try {
    Form_Load();
  } catch (...) {
    loading_ = false;
    throw;
  }
  loading_ = false;
}

void Form::Show(bool modal) {
  EnsureLoaded();
  if (!loaded_) return;  // Form_Load unloaded it
  if (modal && visible_) throw RuntimeError(400, "Form already displayed; can't show modally");
  modal_ = modal;
  owner_.reset();
  if (Form* front = app_.ActiveForm(); modal && front != nullptr && front != this) {
    owner_ = front->weak_from_this();
  }
  visible_ = true;
  app_.FormShown(*this, modal);
}

Form* Form::Owner() const {
  const std::shared_ptr<Form> owner = owner_.lock();
  return loaded_ && owner != nullptr && owner->IsLoaded() ? owner.get() : nullptr;
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  modal_ = false;
  app_.FormHidden(*this);
}

bool Form::Unload(int16_t mode) {
  if (!loaded_ || unloading_) return loaded_ ? false : true;
  // Keep this form alive until the runtime has let go of it, also when a handler below unloads
  // it and the runtime held the last reference.
  const auto self = shared_from_this();
  int16_t cancel = 0;
  Form_QueryUnload(cancel, mode);
  if (!loaded_) return true;  // the handler unloaded the form itself
  if (cancel != 0) return false;
  // Owned windows go before their owner, as on the platform: a dialog shown over this one must
  // not stay open, waiting on a form that no longer exists.
  for (const auto& form : app_.LoadedForms()) {
    if (form->Owner() == this && !form->Unload(mode)) return false;
  }
  if (!loaded_) return true;  // an owned form's handler unloaded this one
  unloading_ = true;
  Form_Unload(cancel);
  unloading_ = false;
  if (cancel != 0 || !loaded_) return !loaded_;
  visible_ = false;
  modal_ = false;
  loaded_ = false;
  active_control_ = nullptr;
  app_.FormUnloaded(*this);
  return true;
}

void Form::Notify(Property property) {
  app_.NotifyForm(*this, property);
}

void Form::SetCaption(std::string caption) {
  Assign(caption_, std::move(caption), Property::kCaption);
}

void Form::Move(int32_t left, int32_t top) {
  Assign(left_, left, Property::kLeft);
  Assign(top_, top, Property::kTop);
}

void Form::SetWidth(int32_t width) {
  Assign(width_, width, Property::kWidth);
}

void Form::SetHeight(int32_t height) {
  Assign(height_, height, Property::kHeight);
}

void Form::SetBackColor(uint32_t color) {
  Assign(back_color_, color, Property::kBackColor);
}

void Form::SetFontName(std::string name) {
  Assign(font_name_, std::move(name), Property::kFontName);
}

}  // namespace nvrandom::forms
