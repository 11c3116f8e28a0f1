#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace nvrandom::forms {

// The properties of controls and forms that a view mirrors. Every change of one of them reaches
// the observers as exactly one notification naming it (a whole list fill is one kList).
enum class Property : uint8_t {
  kVisible,
  kEnabled,
  kLeft,
  kTop,
  kWidth,
  kHeight,
  kTabIndex,
  kTag,
  kBackColor,
  kForeColor,
  kBackStyle,  // labels: 0 transparent, 1 opaque
  kFontName,
  kButtonStyle,  // command buttons: 0 standard, 1 graphical; styled buttons: their drawing style
  kCaption,
  kText,
  kSelection,  // SelStart and SelLength
  kMaxLength,
  kPasswordChar,
  kLocked,
  kValue,
  kList,  // the rows of a list (filled, cleared, added to)
  kListIndex,
  kBoundColumn,
  kDisplayColumn,
  kColumnHeadings,
};

std::string_view PropertyName(Property property);

// A property value read or set by name: numbers (colours, twips, truth values as -1 and 0) or
// texts.
using PropertyValue = std::variant<int64_t, std::string>;

std::string DescribeValue(const PropertyValue& value);

}  // namespace nvrandom::forms
