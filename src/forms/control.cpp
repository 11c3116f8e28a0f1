#include "forms/control.h"

#include <algorithm>

#include "forms/application.h"
#include "forms/form.h"
#include "forms/utf8_text.h"

namespace nvrandom::forms {

std::string_view KindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::kLabel:
      return "label";
    case ControlKind::kTextBox:
      return "text";
    case ControlKind::kComboBox:
      return "combo";
    case ControlKind::kDataList:
      return "datalist";
    case ControlKind::kCheckBox:
      return "check";
    case ControlKind::kOptionButton:
      return "option";
    case ControlKind::kCommandButton:
      return "button";
    case ControlKind::kFrame:
      return "frame";
    case ControlKind::kImage:
      return "image";
    case ControlKind::kHyperLink:
      return "hyperlink";
  }
  return "control";
}

Control::Control(Form& form, const ControlDesign& design)
    : form_(form), design_(design), name_(design.name) {
  Reset();
}

void Control::Reset() {
  visible_ = design_.visible;
  enabled_ = design_.enabled;
  left_ = design_.left;
  top_ = design_.top;
  width_ = design_.width;
  height_ = design_.height;
  tab_index_ = design_.tab_index;
  tag_.clear();
  const bool window_colored = design_.kind == ControlKind::kTextBox ||
                              design_.kind == ControlKind::kComboBox ||
                              design_.kind == ControlKind::kDataList;
  back_color_ = window_colored ? colors::kWindowBackground : colors::kButtonFace;
  fore_color_ = 0x80000008;
  font_name_ = "MS Sans Serif";
  button_style_ = 0;
  const bool has_text = window_colored;
  caption_ = has_text ? std::string() : std::string(design_.caption);
  text_ = has_text ? std::string(design_.caption) : std::string();
  sel_start_ = 0;
  sel_length_ = 0;
  max_length_ = design_.max_length;
  password_char_.clear();
  locked_ = false;
  value_ = 0;
  rows_.clear();
  list_index_ = -1;
}

std::string Control::FullName() const {
  if (design_.index < 0) return name_;
  return name_ + "(" + std::to_string(design_.index) + ")";
}

void Control::Notify() {
  form_.app().NotifyControl(*this);
}

void Control::Fire(const std::function<void()>& handler) {
  if (handler) handler();
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Notify();
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Notify();
}

void Control::SetLeft(int32_t v) {
  Move(v, top_);
}
void Control::SetTop(int32_t v) {
  Move(left_, v);
}

void Control::Move(int32_t left, int32_t top) {
  if (left_ == left && top_ == top) return;
  left_ = left;
  top_ = top;
  Notify();
}

void Control::SetWidth(int32_t v) {
  if (width_ == v) return;
  width_ = v;
  Notify();
}

void Control::SetHeight(int32_t v) {
  if (height_ == v) return;
  height_ = v;
  Notify();
}

void Control::SetBackColor(uint32_t color) {
  if (back_color_ == color) return;
  back_color_ = color;
  Notify();
}

void Control::SetForeColor(uint32_t color) {
  if (fore_color_ == color) return;
  fore_color_ = color;
  Notify();
}

void Control::SetFontName(std::string name) {
  if (font_name_ == name) return;
  font_name_ = std::move(name);
  Notify();
}

void Control::SetButtonStyle(int style) {
  if (button_style_ == style) return;
  button_style_ = style;
  Notify();
}

void Control::SetCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  Notify();
}

void Control::SetText(std::string text) {
  if (text_ == text) return;
  text_ = std::move(text);
  sel_start_ = static_cast<int>(utf8::Length(text_));
  sel_length_ = 0;
  Notify();
  Fire(events.Change);
}

void Control::SetSelStart(int start) {
  const int length = static_cast<int>(utf8::Length(text_));
  sel_start_ = std::clamp(start, 0, length);
  sel_length_ = 0;
  Notify();
}

void Control::SetSelLength(int length) {
  const int text_length = static_cast<int>(utf8::Length(text_));
  sel_length_ = std::clamp(length, 0, text_length - sel_start_);
  Notify();
}

std::string Control::SelText() const {
  return utf8::Mid(text_, static_cast<size_t>(sel_start_), static_cast<size_t>(sel_length_));
}

void Control::SetPasswordChar(std::string c) {
  if (password_char_ == c) return;
  password_char_ = std::move(c);
  Notify();
}

void Control::ReplaceSelection(std::string_view inserted) {
  const size_t length = utf8::Length(text_);
  size_t room = std::string::npos;
  if (max_length_ > 0) {
    const size_t kept = length - static_cast<size_t>(sel_length_);
    room = static_cast<size_t>(max_length_) > kept ? static_cast<size_t>(max_length_) - kept : 0;
  }
  std::string piece(inserted);
  const size_t piece_length = utf8::Length(piece);
  if (room != std::string::npos && piece_length > room) {
    if (room == 0 && sel_length_ == 0) return;  // full: the key is refused
    piece = utf8::Mid(piece, 0, room);
  }
  const size_t from = utf8::Offset(text_, static_cast<size_t>(sel_start_));
  const size_t to = utf8::Offset(text_, static_cast<size_t>(sel_start_ + sel_length_));
  std::string updated = text_.substr(0, from) + piece + text_.substr(to);
  const int caret = sel_start_ + static_cast<int>(utf8::Length(piece));
  if (updated == text_) {
    sel_start_ = caret;
    sel_length_ = 0;
    return;
  }
  text_ = std::move(updated);
  sel_start_ = caret;
  sel_length_ = 0;
  Notify();
  Fire(events.Change);
}

void Control::SetValue(int16_t value) {
  if (design_.kind == ControlKind::kOptionButton) value = value != 0 ? -1 : 0;
  if (value_ == value) return;
  value_ = value;
  if (design_.kind == ControlKind::kOptionButton && value != 0) {
    for (const auto& other : form_.Controls()) {
      if (other.get() != this && other->kind() == ControlKind::kOptionButton &&
          other->Container() == container_ && other->value_ != 0) {
        other->value_ = 0;
        other->Notify();
      }
    }
  }
  Notify();
  if (design_.kind == ControlKind::kCheckBox || value != 0) Fire(events.Click);
}

void Control::Clear() {
  rows_.clear();
  list_index_ = -1;
  Notify();
}

void Control::AddItem(std::string item) {
  rows_.push_back({std::move(item)});
  Notify();
}

void Control::AddRow(std::vector<std::string> row) {
  rows_.push_back(std::move(row));
  Notify();
}

std::string Control::List(int index) const {
  if (index < 0 || index >= ListCount()) return {};
  const auto& row = rows_[static_cast<size_t>(index)];
  const auto column = static_cast<size_t>(display_column_);
  return column < row.size() ? row[column] : std::string();
}

const std::vector<std::string>& Control::Row(int index) const {
  static const std::vector<std::string> kNoRow;
  if (index < 0 || index >= ListCount()) return kNoRow;
  return rows_[static_cast<size_t>(index)];
}

void Control::SetListIndex(int index) {
  if (index < -1 || index >= ListCount()) index = -1;
  list_index_ = index;
  Notify();
  if (index >= 0) SetText(List(index));
  Fire(events.Click);
}

std::string Control::BoundText() const {
  const auto& row = Row(list_index_);
  const auto column = static_cast<size_t>(bound_column_);
  return column < row.size() ? row[column] : std::string();
}

bool Control::SelectBound(std::string_view code) {
  for (int i = 0; i < ListCount(); ++i) {
    const auto& row = rows_[static_cast<size_t>(i)];
    const auto column = static_cast<size_t>(bound_column_);
    if (column < row.size() && row[column] == code) {
      list_index_ = i;
      Notify();
      SetText(List(i));
      return true;
    }
  }
  return false;
}

bool Control::CanFocus() const {
  switch (design_.kind) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kImage:
    case ControlKind::kHyperLink:
      return false;
    default:
      return true;
  }
}

}  // namespace nvrandom::forms
