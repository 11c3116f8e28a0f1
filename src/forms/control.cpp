#include "forms/control.h"

#include <algorithm>
#include <utility>

#include "forms/application.h"
#include "forms/form.h"
#include "platform/ascii.h"
#include "platform/utf8.h"

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
    case ControlKind::kStyledButton:
      return "styledbutton";
    case ControlKind::kFrame:
      return "frame";
    case ControlKind::kImage:
      return "image";
    case ControlKind::kHyperLink:
      return "hyperlink";
  }
  return "control";
}

std::vector<std::string> SplitRow(std::string_view row, char separator) {
  std::vector<std::string> columns;
  size_t start = 0;
  for (size_t at = row.find(separator); at != std::string_view::npos;
       at = row.find(separator, start)) {
    columns.emplace_back(row.substr(start, at - start));
    start = at + 1;
  }
  columns.emplace_back(row.substr(start));
  return columns;
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
  const bool has_text = IsTextKind(design_.kind);
  back_color_ = has_text ? colors::kWindowBackground : colors::kButtonFace;
  fore_color_ = colors::kWindowText;
  font_name_ = std::string(design_.font_name.empty() ? form_.FontName() : design_.font_name);
  button_style_ = 0;
  back_style_ = 1;
  caption_ = has_text ? std::string() : std::string(design_.caption);
  text_ = has_text ? std::string(design_.caption) : std::string();
  sel_start_ = 0;
  sel_length_ = 0;
  max_length_ = design_.max_length;
  password_char_.clear();
  locked_ = false;
  value_ = 0;
  rows_.clear();
  column_headings_.assign(design_.column_headings.begin(), design_.column_headings.end());
  list_index_ = -1;
}

std::string Control::FullName() const {
  if (design_.index < 0) return name_;
  return name_ + "(" + std::to_string(design_.index) + ")";
}

void Control::Notify(Property property) {
  form_.app().NotifyControl(*this, property);
}

void Control::Fire(const std::function<void()>& handler) {
  if (handler) handler();
}

void Control::SetVisible(bool visible) {
  if (Assign(visible_, visible, Property::kVisible)) form_.app().FocusMayBeLost(*this);
}

void Control::SetEnabled(bool enabled) {
  if (Assign(enabled_, enabled, Property::kEnabled)) form_.app().FocusMayBeLost(*this);
}

void Control::SetLeft(int32_t v) {
  Assign(left_, v, Property::kLeft);
}
void Control::SetTop(int32_t v) {
  Assign(top_, v, Property::kTop);
}
void Control::Move(int32_t left, int32_t top) {
  SetLeft(left);
  SetTop(top);
}
void Control::SetWidth(int32_t v) {
  Assign(width_, v, Property::kWidth);
}
void Control::SetHeight(int32_t v) {
  Assign(height_, v, Property::kHeight);
}
void Control::SetTabIndex(int index) {
  Assign(tab_index_, index, Property::kTabIndex);
}
void Control::SetTag(std::string tag) {
  Assign(tag_, std::move(tag), Property::kTag);
}
void Control::SetBackColor(uint32_t color) {
  Assign(back_color_, color, Property::kBackColor);
}
void Control::SetForeColor(uint32_t color) {
  Assign(fore_color_, color, Property::kForeColor);
}
void Control::SetFontName(std::string name) {
  Assign(font_name_, std::move(name), Property::kFontName);
}
void Control::SetButtonStyle(int style) {
  Assign(button_style_, style, Property::kButtonStyle);
}
void Control::SetBackStyle(int style) {
  Assign(back_style_, style, Property::kBackStyle);
}
void Control::SetCaption(std::string caption) {
  Assign(caption_, std::move(caption), Property::kCaption);
}
void Control::SetMaxLength(int length) {
  Assign(max_length_, length, Property::kMaxLength);
}
void Control::SetPasswordChar(std::string c) {
  Assign(password_char_, std::move(c), Property::kPasswordChar);
}
void Control::SetLocked(bool locked) {
  Assign(locked_, locked, Property::kLocked);
}
void Control::SetBoundColumn(int column) {
  Assign(bound_column_, column, Property::kBoundColumn);
}
void Control::SetDisplayColumn(int column) {
  Assign(display_column_, column, Property::kDisplayColumn);
}
void Control::SetColumnHeadings(std::vector<std::string> headings) {
  Assign(column_headings_, std::move(headings), Property::kColumnHeadings);
}

void Control::SetText(std::string text) {
  if (text_ == text) return;
  const auto caret = static_cast<int>(utf8::Length(text));
  ChangeText(std::move(text), caret);
}

void Control::ChangeText(std::string text, int caret) {
  Assign(text_, std::move(text), Property::kText);
  SetSelection(caret, 0);
  if (design_.kind == ControlKind::kDataList) MatchRowToText();
  Fire(events.Change);
}

void Control::MatchRowToText() {
  int match = -1;
  for (int i = 0; i < ListCount() && match < 0; ++i) {
    if (ascii::EqualsIgnoreCase(List(i), text_)) match = i;
  }
  Assign(list_index_, match, Property::kListIndex);
}

void Control::SetSelection(int start, int length) {
  const int text_length = static_cast<int>(utf8::Length(text_));
  start = std::clamp(start, 0, text_length);
  length = std::clamp(length, 0, text_length - start);
  if (sel_start_ == start && sel_length_ == length) return;
  sel_start_ = start;
  sel_length_ = length;
  Notify(Property::kSelection);
}

void Control::SetSelStart(int start) {
  SetSelection(start, 0);
}

void Control::SetSelLength(int length) {
  SetSelection(sel_start_, length);
}

std::string Control::SelText() const {
  return utf8::Mid(text_, static_cast<size_t>(sel_start_), static_cast<size_t>(sel_length_));
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
    SetSelection(caret, 0);
    return;
  }
  ChangeText(std::move(updated), caret);
}

void Control::SetValue(int16_t value) {
  if (design_.kind == ControlKind::kOptionButton) value = value != 0 ? -1 : 0;
  if (value_ == value) return;
  if (design_.kind == ControlKind::kOptionButton && value != 0) {
    for (const auto& other : form_.Controls()) {
      if (other.get() != this && other->kind() == ControlKind::kOptionButton &&
          other->Container() == container_) {
        other->Assign(other->value_, int16_t{0}, Property::kValue);
      }
    }
  }
  Assign(value_, value, Property::kValue);
  if (design_.kind == ControlKind::kCheckBox || value != 0) Fire(events.Click);
}

void Control::Clear() {
  if (rows_.empty() && list_index_ < 0) return;
  rows_.clear();
  list_index_ = -1;
  Notify(Property::kList);
}

void Control::AddItem(std::string item) {
  rows_.push_back({std::move(item)});
  Notify(Property::kList);
}

void Control::AddRow(std::vector<std::string> row) {
  rows_.push_back(std::move(row));
  Notify(Property::kList);
}

void Control::SetRows(std::vector<std::vector<std::string>> rows) {
  if (rows_ == rows && list_index_ < 0) return;
  rows_ = std::move(rows);
  list_index_ = -1;
  Notify(Property::kList);
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
  Assign(list_index_, index, Property::kListIndex);
  // A plain combo box's choice fires Click alone; a data list's text box fires Change too.
  if (ShowRowText(index) && design_.kind == ControlKind::kDataList) Fire(events.Change);
  Fire(events.Click);
}

bool Control::ShowRowText(int index) {
  if (index < 0 || text_ == List(index)) return false;
  std::string shown = List(index);
  const auto caret = static_cast<int>(utf8::Length(shown));
  Assign(text_, std::move(shown), Property::kText);
  SetSelection(caret, 0);
  return true;
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
      Assign(list_index_, i, Property::kListIndex);
      if (ShowRowText(i)) Fire(events.Change);
      return true;
    }
  }
  return false;
}

bool Control::IsWithin(const Control& container) const {
  for (const Control* c = this; c != nullptr; c = c->Container()) {
    if (c == &container) return true;
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
