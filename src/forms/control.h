#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/property.h"

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
  kStyledButton,  // a command button drawn in one of several styles (its ButtonStyle)
  kFrame,
  kImage,
  kHyperLink,
};

std::string_view KindName(ControlKind kind);

// Text boxes, combo boxes and data lists hold an editable Text (and a selection); every other
// kind shows a Caption.
constexpr bool IsTextKind(ControlKind kind) {
  return kind == ControlKind::kTextBox || kind == ControlKind::kComboBox ||
         kind == ControlKind::kDataList;
}

// Command buttons of either kind: focusable, pressed by a click, Enter or the space bar.
constexpr bool IsButtonKind(ControlKind kind) {
  return kind == ControlKind::kCommandButton || kind == ControlKind::kStyledButton;
}

// The columns of a list row written as one text: "001;Bank of Montreal".
std::vector<std::string> SplitRow(std::string_view row, char separator = ';');

// System colours as the platform encodes them (high bit set: a system colour index).
namespace colors {
inline constexpr uint32_t kWindowBackground = 0x80000005;
inline constexpr uint32_t kButtonFace = 0x8000000F;
inline constexpr uint32_t kWindowText = 0x80000008;
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
  std::span<const std::string_view> column_headings;  // data lists
  std::string_view font_name;                         // empty: the form's font
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
  std::function<void(int16_t& key_code, int16_t& shift)> KeyUp;
  std::function<void(int16_t button, int16_t shift, float x, float y)> MouseDown;
  std::function<void(int16_t button, int16_t shift, float x, float y)> MouseUp;
  std::function<void()> DblClick;
};

// A control of a form: the common properties of every kind and each kind's own. Setting a
// property to a new value tells the form's observers once, naming the property; Text and Value
// changes fire the events the platform fires (Change; Click for check boxes and option buttons),
// also when set from code.
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
  // Whether this is `container` or stands inside it, at any depth.
  bool IsWithin(const Control& container) const;
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
  void SetTabIndex(int index);
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag);
  uint32_t BackColor() const { return back_color_; }
  void SetBackColor(uint32_t color);
  uint32_t ForeColor() const { return fore_color_; }
  void SetForeColor(uint32_t color);
  const std::string& FontName() const { return font_name_; }
  void SetFontName(std::string name);
  int ButtonStyle() const { return button_style_; }
  void SetButtonStyle(int style);
  // Labels only (0 transparent, 1 opaque).
  int BackStyle() const { return back_style_; }
  void SetBackStyle(int style);

  // The properties above and the other simple ones by name, ignoring case (BackColor, BackStyle,
  // FontName, ButtonStyle, ForeColor, Tag, Caption, Text, Top, Left, Width, Height, Visible,
  // Enabled, MaxLength, PasswordChar, Locked, TabIndex, Value, ListIndex, SelStart, SelLength).
  // A name the control's kind does not have raises RuntimeError 438, a value of the wrong type
  // 13 (texts and numbers do not convert).
  PropertyValue GetProperty(std::string_view name) const;
  void SetProperty(std::string_view name, const PropertyValue& value);

  // Caption of labels, frames, buttons, check boxes, option buttons and hyperlinks.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  // Text of text boxes and combo boxes (for a data list: the text shown in its box).
  const std::string& Text() const { return text_; }
  // A different text fires Change; the same text fires nothing. SelStart moves to the end. A data
  // list's row follows its text: the first row whose displayed column reads the same (ignoring
  // case), or none.
  void SetText(std::string text);
  int SelStart() const { return sel_start_; }
  int SelLength() const { return sel_length_; }
  // Clipped to the text, as the platform does.
  void SetSelection(int start, int length);
  void SetSelStart(int start);
  void SetSelLength(int length);
  std::string SelText() const;
  int MaxLength() const { return max_length_; }
  void SetMaxLength(int length);
  const std::string& PasswordChar() const { return password_char_; }
  void SetPasswordChar(std::string c);
  bool Locked() const { return locked_; }
  void SetLocked(bool locked);

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
  // Replaces every row at once: one notification however many rows.
  void SetRows(std::vector<std::vector<std::string>> rows);
  // The headings of a data list's columns, as the dialog names them.
  const std::vector<std::string>& ColumnHeadings() const { return column_headings_; }
  void SetColumnHeadings(std::vector<std::string> headings);
  int ListCount() const { return static_cast<int>(rows_.size()); }
  // The displayed column of row `index` (empty outside the list).
  std::string List(int index) const;
  const std::vector<std::string>& Row(int index) const;
  int ListIndex() const { return list_index_; }
  // Selects a row (-1: none), as a choice from the list: the text becomes its displayed column.
  // A combo box fires Click only; a data list fires Change (when its text changed), then Click.
  void SetListIndex(int index);
  int BoundColumn() const { return bound_column_; }
  void SetBoundColumn(int column);
  int DisplayColumn() const { return display_column_; }
  void SetDisplayColumn(int column);
  // The bound column of the current row ("" when none is selected).
  std::string BoundText() const;
  // Selects the first row whose bound column equals `code`; false (and no change) when none.
  bool SelectBound(std::string_view code);

  // Whether the control can ever hold the focus (labels, frames and images cannot).
  bool CanFocus() const;

  ControlEvents events;

 private:
  // The one way a property changes: assigns, and tells the observers when the value is new.
  template <typename T, typename V>
  bool Assign(T& field, V&& value, Property property) {
    if (field == value) return false;
    field = std::forward<V>(value);
    Notify(property);
    return true;
  }
  void Notify(Property property);
  void Fire(const std::function<void()>& handler);
  // Text changed by editing or by code: a data list follows it to the row it names, or to none.
  void ChangeText(std::string text, int caret);
  void MatchRowToText();
  // Shows row `index`'s displayed column in the text box, firing nothing; true when it changed.
  bool ShowRowText(int index);

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
  int back_style_ = 1;
  std::string caption_;
  std::string text_;
  int sel_start_ = 0;
  int sel_length_ = 0;
  int max_length_ = 0;
  std::string password_char_;
  bool locked_ = false;
  int16_t value_ = 0;
  std::vector<std::vector<std::string>> rows_;
  std::vector<std::string> column_headings_;
  int list_index_ = -1;
  int bound_column_ = 0;
  int display_column_ = 0;
};

}  // namespace nvrandom::forms
