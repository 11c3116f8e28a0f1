#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace nvrandom::forms {

class Form;

enum class ControlKind {
  kLabel,
  kTextBox,
  kComboBox,  // a drop-down combo: editable text and a one-column list
  kDataList,  // a multi-column drop-down list with a bound (code) column
  kCheckBox,
  kOptionButton,
  kCommandButton,
  kFrame,
  kImage,
  kHyperLink,
};

std::string_view KindName(ControlKind kind);

// System colours as the platform encodes them (high bit set: a system colour index).
namespace colors {
inline constexpr uint32_t kWindowBackground = 0x80000005;
inline constexpr uint32_t kButtonFace = 0x8000000F;
}  // namespace colors

// One row of a form's control table: the designed properties of a control. Positions and sizes
// are in twips (15 per pixel at 96 dpi).
struct ControlDesign {
  ControlKind kind = ControlKind::kLabel;
  std::string_view name;
  int index = -1;              // >= 0 for a member of a control array
  std::string_view container;  // empty: the form itself
  std::string_view caption;    // Caption, or Text for text boxes and combo boxes
  int32_t left = 0;
  int32_t top = 0;
  int32_t width = 0;
  int32_t height = 0;
  int max_length = 0;  // 0: no limit
  int tab_index = -1;  // -1: not a tab stop
  bool visible = true;
  bool enabled = true;
};

// The handlers of a control's events. Key and mouse arguments are by reference where the
// platform lets a handler change them (setting a key code to 0 discards the key).
struct ControlEvents {
  std::function<void()> Click;
  std::function<void()> Change;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
  std::function<void(int16_t& key_ascii)> KeyPress;
  std::function<void(int16_t& key_code, int16_t& shift)> KeyDown;
  std::function<void(int16_t button, int16_t shift, float x, float y)> MouseDown;
};

// A control of a form: the common properties of every kind and each kind's own. Setting a
// property to a new value tells the form's observers; Text and Value changes fire the events the
// platform fires (Change; Click for check boxes and option buttons), also when set from code.
class Control {
 public:
  Control(Form& form, const ControlDesign& design);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // Back to the designed values (a form being loaded again).
  void Reset();

  Form& form() const { return form_; }
  ControlKind kind() const { return design_.kind; }
  const std::string& Name() const { return name_; }
  int Index() const { return design_.index; }
  // "lblAsterisk(2)" for array members, the name otherwise.
  std::string FullName() const;
  Control* Container() const { return container_; }
  void SetContainer(Control* container) { container_ = container; }

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  int32_t Left() const { return left_; }
  int32_t Top() const { return top_; }
  int32_t Width() const { return width_; }
  int32_t Height() const { return height_; }
  void SetLeft(int32_t v);
  void SetTop(int32_t v);
  void SetWidth(int32_t v);
  void SetHeight(int32_t v);
  void Move(int32_t left, int32_t top);
  int TabIndex() const { return tab_index_; }
  bool TabStop() const { return tab_index_ >= 0; }
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  uint32_t BackColor() const { return back_color_; }
  void SetBackColor(uint32_t color);
  uint32_t ForeColor() const { return fore_color_; }
  void SetForeColor(uint32_t color);
  const std::string& FontName() const { return font_name_; }
  void SetFontName(std::string name);
  int ButtonStyle() const { return button_style_; }
  void SetButtonStyle(int style);

  // Caption of labels, frames, buttons, check boxes, option buttons and hyperlinks.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  // Text of text boxes and combo boxes (for a data list: the text shown in its box).
  const std::string& Text() const { return text_; }
  // A different text fires Change; the same text fires nothing. SelStart moves to the end.
  void SetText(std::string text);
  int SelStart() const { return sel_start_; }
  int SelLength() const { return sel_length_; }
  // Clipped to the text, as the platform does.
  void SetSelStart(int start);
  void SetSelLength(int length);
  std::string SelText() const;
  int MaxLength() const { return max_length_; }
  void SetMaxLength(int length) { max_length_ = length; }
  const std::string& PasswordChar() const { return password_char_; }
  void SetPasswordChar(std::string c);
  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { locked_ = locked; }

  // Replaces the selection with `inserted`, keeping within MaxLength (what does not fit is cut;
  // nothing at all when no room is left); fires Change when the text changed.
  void ReplaceSelection(std::string_view inserted);

  // Check box: 0 clear, 1 ticked, 2 grey. Option button: true (-1) selected. A new value fires
  // Click; selecting an option button clears the others of its container.
  int16_t Value() const { return value_; }
  void SetValue(int16_t value);

  // Lists. Combo boxes have one column; data lists have several and a bound column whose value
  // is the row's code.
  void Clear();
  void AddItem(std::string item);
  void AddRow(std::vector<std::string> row);
  int ListCount() const { return static_cast<int>(rows_.size()); }
  // The displayed column of row `index` (empty outside the list).
  std::string List(int index) const;
  const std::vector<std::string>& Row(int index) const;
  int ListIndex() const { return list_index_; }
  // Selects a row (-1: none): the text becomes its displayed column; fires Click (and Change
  // when the text changed).
  void SetListIndex(int index);
  int BoundColumn() const { return bound_column_; }
  void SetBoundColumn(int column) { bound_column_ = column; }
  int DisplayColumn() const { return display_column_; }
  void SetDisplayColumn(int column) { display_column_ = column; }
  // The bound column of the current row ("" when none is selected).
  std::string BoundText() const;
  // Selects the first row whose bound column equals `code`; false (and no change) when none.
  bool SelectBound(std::string_view code);

  // Whether the control can ever hold the focus (labels, frames and images cannot).
  bool CanFocus() const;

  ControlEvents events;

 private:
  void Notify();
  void Fire(const std::function<void()>& handler);

  Form& form_;
  ControlDesign design_;
  std::string name_;
  Control* container_ = nullptr;
  bool visible_ = true;
  bool enabled_ = true;
  int32_t left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  int tab_index_ = -1;
  std::string tag_;
  uint32_t back_color_ = 0;
  uint32_t fore_color_ = 0;
  std::string font_name_;
  int button_style_ = 0;
  std::string caption_;
  std::string text_;
  int sel_start_ = 0;
  int sel_length_ = 0;
  int max_length_ = 0;
  std::string password_char_;
  bool locked_ = false;
  int16_t value_ = 0;
  std::vector<std::vector<std::string>> rows_;
  int list_index_ = -1;
  int bound_column_ = 0;
  int display_column_ = 0;
};

}  // namespace nvrandom::forms
