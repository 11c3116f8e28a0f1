// Properties read and set by name, as the restyler and the scenario runner's `expect attr` do.
#include <array>
#include <string>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/property.h"
#include "platform/ascii.h"
#include "platform/runtime_error.h"

namespace nvrandom::forms {

std::string_view PropertyName(Property property) {
  static constexpr std::array<std::string_view, 25> kNames = {
      "Visible",   "Enabled",   "Left",         "Top",           "Width",
      "Height",    "TabIndex",  "Tag",          "BackColor",     "ForeColor",
      "BackStyle", "FontName",  "ButtonStyle",  "Caption",       "Text",
      "Selection", "MaxLength", "PasswordChar", "Locked",        "Value",
      "List",      "ListIndex", "BoundColumn",  "DisplayColumn", "ColumnHeadings"};
  const auto i = static_cast<size_t>(property);
  return i < kNames.size() ? kNames[i] : "?";
}

std::string DescribeValue(const PropertyValue& value) {
  if (const auto* n = std::get_if<int64_t>(&value)) return std::to_string(*n);
  return "\"" + std::get<std::string>(value) + "\"";
}

namespace {

[[noreturn]] void NoSuchProperty() {
  throw RuntimeError(438, "Object doesn't support this property or method");
}

int64_t Number(const PropertyValue& value) {
  if (const auto* n = std::get_if<int64_t>(&value)) return *n;
  throw RuntimeError(13, "Type mismatch");
}

std::string Text(const PropertyValue& value) {
  if (const auto* s = std::get_if<std::string>(&value)) return *s;
  throw RuntimeError(13, "Type mismatch");
}

int64_t Truth(bool b) {
  return b ? -1 : 0;
}

struct NamedControlProperty {
  std::string_view name;
  PropertyValue (*get)(const Control&);
  void (*set)(Control&, const PropertyValue&);
  bool (*applies)(ControlKind);
};

bool Any(ControlKind) {
  return true;
}
bool Labels(ControlKind kind) {
  return kind == ControlKind::kLabel;
}
bool TextKinds(ControlKind kind) {
  return IsTextKind(kind);
}
bool CaptionKinds(ControlKind kind) {
  return !IsTextKind(kind) && kind != ControlKind::kImage;
}
bool Lists(ControlKind kind) {
  return kind == ControlKind::kComboBox || kind == ControlKind::kDataList;
}
bool Values(ControlKind kind) {
  return kind == ControlKind::kCheckBox || kind == ControlKind::kOptionButton;
}

// clang-format off
const std::array<NamedControlProperty, 22> kControlProperties = {{
    {"BackColor",
     [](const Control& c) -> PropertyValue { return int64_t{c.BackColor()}; },
     [](Control& c, const PropertyValue& v) { c.SetBackColor(static_cast<uint32_t>(Number(v))); },
     Any},
    {"ForeColor",
     [](const Control& c) -> PropertyValue { return int64_t{c.ForeColor()}; },
     [](Control& c, const PropertyValue& v) { c.SetForeColor(static_cast<uint32_t>(Number(v))); },
     Any},
    {"BackStyle",
     [](const Control& c) -> PropertyValue { return int64_t{c.BackStyle()}; },
     [](Control& c, const PropertyValue& v) { c.SetBackStyle(static_cast<int>(Number(v))); },
     Labels},
    {"FontName",
     [](const Control& c) -> PropertyValue { return c.FontName(); },
     [](Control& c, const PropertyValue& v) { c.SetFontName(Text(v)); },
     Any},
    {"ButtonStyle",
     [](const Control& c) -> PropertyValue { return int64_t{c.ButtonStyle()}; },
     [](Control& c, const PropertyValue& v) { c.SetButtonStyle(static_cast<int>(Number(v))); },
     Any},
    {"Tag",
     [](const Control& c) -> PropertyValue { return c.Tag(); },
     [](Control& c, const PropertyValue& v) { c.SetTag(Text(v)); },
     Any},
    {"Caption",
     [](const Control& c) -> PropertyValue { return c.Caption(); },
     [](Control& c, const PropertyValue& v) { c.SetCaption(Text(v)); },
     CaptionKinds},
    {"Text",
     [](const Control& c) -> PropertyValue { return c.Text(); },
     [](Control& c, const PropertyValue& v) { c.SetText(Text(v)); },
     TextKinds},
    {"Left",
     [](const Control& c) -> PropertyValue { return int64_t{c.Left()}; },
     [](Control& c, const PropertyValue& v) { c.SetLeft(static_cast<int32_t>(Number(v))); },
     Any},
    {"Top",
     [](const Control& c) -> PropertyValue { return int64_t{c.Top()}; },
     [](Control& c, const PropertyValue& v) { c.SetTop(static_cast<int32_t>(Number(v))); },
     Any},
    {"Width",
     [](const Control& c) -> PropertyValue { return int64_t{c.Width()}; },
     [](Control& c, const PropertyValue& v) { c.SetWidth(static_cast<int32_t>(Number(v))); },
     Any},
    {"Height",
     [](const Control& c) -> PropertyValue { return int64_t{c.Height()}; },
     [](Control& c, const PropertyValue& v) { c.SetHeight(static_cast<int32_t>(Number(v))); },
     Any},
    {"Visible",
     [](const Control& c) -> PropertyValue { return Truth(c.Visible()); },
     [](Control& c, const PropertyValue& v) { c.SetVisible(Number(v) != 0); },
     Any},
    {"Enabled",
     [](const Control& c) -> PropertyValue { return Truth(c.Enabled()); },
     [](Control& c, const PropertyValue& v) { c.SetEnabled(Number(v) != 0); },
     Any},
    {"TabIndex",
     [](const Control& c) -> PropertyValue { return int64_t{c.TabIndex()}; },
     [](Control& c, const PropertyValue& v) { c.SetTabIndex(static_cast<int>(Number(v))); },
     Any},
    {"MaxLength",
     [](const Control& c) -> PropertyValue { return int64_t{c.MaxLength()}; },
     [](Control& c, const PropertyValue& v) { c.SetMaxLength(static_cast<int>(Number(v))); },
     TextKinds},
    {"PasswordChar",
     [](const Control& c) -> PropertyValue { return c.PasswordChar(); },
     [](Control& c, const PropertyValue& v) { c.SetPasswordChar(Text(v)); },
     TextKinds},
    {"Locked",
     [](const Control& c) -> PropertyValue { return Truth(c.Locked()); },
     [](Control& c, const PropertyValue& v) { c.SetLocked(Number(v) != 0); },
     TextKinds},
    {"SelStart",
     [](const Control& c) -> PropertyValue { return int64_t{c.SelStart()}; },
     [](Control& c, const PropertyValue& v) { c.SetSelStart(static_cast<int>(Number(v))); },
     TextKinds},
    {"SelLength",
     [](const Control& c) -> PropertyValue { return int64_t{c.SelLength()}; },
     [](Control& c, const PropertyValue& v) { c.SetSelLength(static_cast<int>(Number(v))); },
     TextKinds},
    {"Value",
     [](const Control& c) -> PropertyValue { return int64_t{c.Value()}; },
     [](Control& c, const PropertyValue& v) { c.SetValue(static_cast<int16_t>(Number(v))); },
     Values},
    {"ListIndex",
     [](const Control& c) -> PropertyValue { return int64_t{c.ListIndex()}; },
     [](Control& c, const PropertyValue& v) { c.SetListIndex(static_cast<int>(Number(v))); },
     Lists},
}};
// clang-format on

const NamedControlProperty& Lookup(const Control& control, std::string_view name) {
  for (const NamedControlProperty& p : kControlProperties) {
    if (ascii::EqualsIgnoreCase(p.name, name) && p.applies(control.kind())) return p;
  }
  NoSuchProperty();
}

}  // namespace

PropertyValue Control::GetProperty(std::string_view name) const {
  return Lookup(*this, name).get(*this);
}

void Control::SetProperty(std::string_view name, const PropertyValue& value) {
  Lookup(*this, name).set(*this, value);
}

PropertyValue Form::GetProperty(std::string_view name) const {
  if (ascii::EqualsIgnoreCase(name, "BackColor")) return int64_t{BackColor()};
  if (ascii::EqualsIgnoreCase(name, "FontName")) return FontName();
  if (ascii::EqualsIgnoreCase(name, "Caption")) return Caption();
  if (ascii::EqualsIgnoreCase(name, "Left")) return int64_t{Left()};
  if (ascii::EqualsIgnoreCase(name, "Top")) return int64_t{Top()};
  if (ascii::EqualsIgnoreCase(name, "Width")) return int64_t{Width()};
  if (ascii::EqualsIgnoreCase(name, "Height")) return int64_t{Height()};
  NoSuchProperty();
}

void Form::SetProperty(std::string_view name, const PropertyValue& value) {
  if (ascii::EqualsIgnoreCase(name, "BackColor")) {
    SetBackColor(static_cast<uint32_t>(Number(value)));
  } else if (ascii::EqualsIgnoreCase(name, "FontName")) {
    SetFontName(Text(value));
  } else if (ascii::EqualsIgnoreCase(name, "Caption")) {
    SetCaption(Text(value));
  } else if (ascii::EqualsIgnoreCase(name, "Left")) {
    Move(static_cast<int32_t>(Number(value)), Top());
  } else if (ascii::EqualsIgnoreCase(name, "Top")) {
    Move(Left(), static_cast<int32_t>(Number(value)));
  } else if (ascii::EqualsIgnoreCase(name, "Width")) {
    SetWidth(static_cast<int32_t>(Number(value)));
  } else if (ascii::EqualsIgnoreCase(name, "Height")) {
    SetHeight(static_cast<int32_t>(Number(value)));
  } else {
    NoSuchProperty();
  }
}

}  // namespace nvrandom::forms
