#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "api/property_list.h"
#include "component/variant.h"

namespace nvrandom {

class Context;

enum class PropertyId : int {
#define NVRANDOM_PROPERTY_ID(name, type, access, trace) name,
  NVRANDOM_CLSRANDOM_PROPERTIES(NVRANDOM_PROPERTY_ID)
#undef NVRANDOM_PROPERTY_ID
};

enum class PropertyType { kInteger, kFlag, kString, kGlobal, kVariant };

struct PropertyInfo {
  PropertyId id;
  std::string_view name;
  PropertyType type;
  bool can_get;
  bool traced;
};

inline constexpr size_t kPropertyCount = static_cast<size_t>(PropertyId::UseAcctvfy) + 1;

const PropertyInfo& Property(PropertyId id);
// nullptr for a name that is not a property.
const PropertyInfo* FindProperty(std::string_view name);

// The property procedures behind every Let and Get of ClsRandom: the entry trace line, then the
// store. Let converts the value as the property's type requires and raises RuntimeError as the
// platform would (13 type mismatch, 6 overflow, 9 for Prov_areacode's rows); Get of a property
// the host may only set raises 451.
void LetProperty(Context& ctx, PropertyId id, const Variant& value);
Variant GetProperty(Context& ctx, PropertyId id);

}  // namespace nvrandom
