#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "api/class_members.h"
#include "component/variant.h"

namespace nvrandom {

class Context;

#define NVRANDOM_IGNORE(...)
#define NVRANDOM_ENUMERATE(dispid, name, ...) name,
enum class PropertyId : int { NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_ENUMERATE, NVRANDOM_IGNORE) };
enum class MethodId : int { NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_IGNORE, NVRANDOM_ENUMERATE) };
enum class EventId : int { NVRANDOM_CLSRANDOM_EVENTS(NVRANDOM_ENUMERATE) };
#undef NVRANDOM_ENUMERATE
#undef NVRANDOM_IGNORE

enum class PropertyType { kInteger, kFlag, kString, kGlobal, kVariant };

// The automation types the type library declares, numbered as the platform's VARTYPE.
enum class AutomationType : uint16_t { kI2 = 2, kI4 = 3, kBstr = 8, kVariant = 12, kVoid = 24 };

enum class MemberKind { kProperty, kMethod };

// One member of the default interface, in interface order. `index` is the member's PropertyId
// or MethodId. A property's automation type is its value's; a method's is its result's.
struct MemberInfo {
  int32_t dispid;
  std::string_view name;
  MemberKind kind;
  AutomationType type;
  int index;
  PropertyType property_type;  // properties only
  bool can_get;                // properties only
  bool traced;                 // properties only
};

struct EventInfo {
  int32_t dispid;
  std::string_view name;
  // Parameter types, in order (CurrentFieldTop's Top is the only one).
  std::span<const AutomationType> parameters;
};

// Every member, in interface order; every event, in its order.
std::span<const MemberInfo> Members();
std::span<const EventInfo> Events();

// nullptr for a name that is not a member (names match ignoring case, as a late-bound caller
// gives them).
const MemberInfo* FindMember(std::string_view name);
const MemberInfo& Property(PropertyId id);
const MemberInfo& Method(MethodId id);

// The property procedures behind every Let and Get of ClsRandom: the entry trace line, then the
// store. Let converts the value as the property's type requires and raises RuntimeError as the
// platform would (13 type mismatch, 6 overflow, 9 for Prov_areacode's rows); Get of a property
// the host may only set raises 451.
void LetProperty(Context& ctx, PropertyId id, const Variant& value);
Variant GetProperty(Context& ctx, PropertyId id);

}  // namespace nvrandom
