#include "api/property_table.h"

#include <array>
#include <string>

#include "component/context.h"
#include "component/trace.h"
#include "platform/ascii.h"
#include "platform/runtime_error.h"

namespace nvrandom {

namespace {

#define NVRANDOM_IGNORE(...)

constexpr bool kLetGet = true;
constexpr bool kLet = false;
constexpr bool kTraced = true;
constexpr bool kUntraced = false;

constexpr AutomationType kTypeInteger = AutomationType::kI2;
constexpr AutomationType kTypeFlag = AutomationType::kI2;
constexpr AutomationType kTypeString = AutomationType::kBstr;
constexpr AutomationType kTypeGlobal = AutomationType::kBstr;
constexpr AutomationType kTypeVariant = AutomationType::kVariant;
constexpr AutomationType kTypeLong = AutomationType::kI4;
constexpr AutomationType kTypeVoid = AutomationType::kVoid;

#define NVRANDOM_PROPERTY_MEMBER(dispid, name, type, access, trace) \
  MemberInfo{dispid,                                                \
             #name,                                                 \
             MemberKind::kProperty,                                 \
             kType##type,                                           \
             static_cast<int>(PropertyId::name),                    \
             PropertyType::k##type,                                 \
             k##access,                                             \
             k##trace},
#define NVRANDOM_METHOD_MEMBER(dispid, name, result) \
  MemberInfo{dispid, #name, MemberKind::kMethod, kType##result, static_cast<int>(MethodId::name)},
constexpr MemberInfo kMembers[] = {
    NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_PROPERTY_MEMBER, NVRANDOM_METHOD_MEMBER)};
#undef NVRANDOM_PROPERTY_MEMBER
#undef NVRANDOM_METHOD_MEMBER

#define NVRANDOM_COUNT(...) +1
constexpr size_t kPropertyCount = 0 NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_COUNT, NVRANDOM_IGNORE);
constexpr size_t kMethodCount = 0 NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_IGNORE, NVRANDOM_COUNT);
#undef NVRANDOM_COUNT

// Where each property and method sits in kMembers.
template <MemberKind kind, size_t count>
constexpr std::array<size_t, count> Positions() {
  std::array<size_t, count> positions{};
  for (size_t i = 0; i < std::size(kMembers); ++i) {
    if (kMembers[i].kind == kind) positions[static_cast<size_t>(kMembers[i].index)] = i;
  }
  return positions;
}
constexpr auto kPropertyPositions = Positions<MemberKind::kProperty, kPropertyCount>();
constexpr auto kMethodPositions = Positions<MemberKind::kMethod, kMethodCount>();

constexpr AutomationType kNoParameters[] = {AutomationType::kVoid};
constexpr AutomationType kTopParameters[] = {AutomationType::kI2};
constexpr EventInfo kEvents[] = {
    {1, "CSBOK", std::span(kNoParameters, 0)},
    {2, "CurrentFieldTop", kTopParameters},
    {3, "Cancel", std::span(kNoParameters, 0)},
    {4, "ViewSampleCheque", std::span(kNoParameters, 0)},
};
// The event table above follows the list's order and numbers.
#define NVRANDOM_CHECK_EVENT(number, event, parameters, arguments)               \
  static_assert(kEvents[static_cast<size_t>(EventId::event)].dispid == number && \
                kEvents[static_cast<size_t>(EventId::event)].name == std::string_view(#event));
NVRANDOM_CLSRANDOM_EVENTS(NVRANDOM_CHECK_EVENT)
#undef NVRANDOM_CHECK_EVENT

// The country-list selectors are stored under (and traced with) their globals' names.
std::string_view LabelName(PropertyId id) {
  switch (id) {
    case PropertyId::CountryListAll:
      return "gstrCountryListAll";
    case PropertyId::CountryListPartial:
      return "gstrCountryListPartial";
    default:
      return Property(id).name;
  }
}

void TraceProcedure(Context& ctx, PropertyId id, std::string_view verb) {
  if (Property(id).traced) TraceEntry(ctx, "ClsRandom - ", verb, LabelName(id));
}

// Row i of the table comes from elements (0, i) and (1, i), for i up to the upper bound of the
// second dimension minus one: the last column passed is not copied. Rows past the table raise
// error 9 after the rows before them have been copied.
void LetProvAreaCode(ComponentStore& store, const Variant& value) {
  const StringArray& array = ToArray(value);
  const int32_t upper = array.UBound(2);
  for (int32_t i = 0; i < upper; ++i) {
    if (i >= ComponentStore::kProvAreaCodeRows) throw RuntimeError(vb_error::kSubscriptOutOfRange);
    store.Prov_areacode[static_cast<size_t>(i)] = {array.at(0, i), array.at(1, i)};
  }
}

// Every Integer and Flag property is the store member of its name: a new one without a member
// does not build.
int16_t* IntegerMember(ComponentStore& s, PropertyId id) {
  switch (id) {
#define NVRANDOM_INTEGER_MEMBER_Integer(name) \
  case PropertyId::name:                      \
    return &s.name;
#define NVRANDOM_INTEGER_MEMBER_Flag(name) NVRANDOM_INTEGER_MEMBER_Integer(name)
#define NVRANDOM_INTEGER_MEMBER_String(name)
#define NVRANDOM_INTEGER_MEMBER_Global(name)
#define NVRANDOM_INTEGER_MEMBER_Variant(name)
#define NVRANDOM_INTEGER_MEMBER(dispid, name, type, access, trace) \
  NVRANDOM_INTEGER_MEMBER_##type(name)
    NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_INTEGER_MEMBER, NVRANDOM_IGNORE)
#undef NVRANDOM_INTEGER_MEMBER
#undef NVRANDOM_INTEGER_MEMBER_Integer
#undef NVRANDOM_INTEGER_MEMBER_Flag
#undef NVRANDOM_INTEGER_MEMBER_String
#undef NVRANDOM_INTEGER_MEMBER_Global
#undef NVRANDOM_INTEGER_MEMBER_Variant
    default:
      return nullptr;
  }
}

// Likewise every String property (Global ones under gstr<name>).
std::string* StringMember(ComponentStore& s, PropertyId id) {
  switch (id) {
#define NVRANDOM_STRING_MEMBER_String(name) \
  case PropertyId::name:                    \
    return &s.name;
#define NVRANDOM_STRING_MEMBER_Global(name) \
  case PropertyId::name:                    \
    return &s.gstr##name;
#define NVRANDOM_STRING_MEMBER_Integer(name)
#define NVRANDOM_STRING_MEMBER_Flag(name)
#define NVRANDOM_STRING_MEMBER_Variant(name)
#define NVRANDOM_STRING_MEMBER(dispid, name, type, access, trace) \
  NVRANDOM_STRING_MEMBER_##type(name)
    NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_STRING_MEMBER, NVRANDOM_IGNORE)
#undef NVRANDOM_STRING_MEMBER
#undef NVRANDOM_STRING_MEMBER_String
#undef NVRANDOM_STRING_MEMBER_Integer
#undef NVRANDOM_STRING_MEMBER_Flag
#undef NVRANDOM_STRING_MEMBER_Variant
#undef NVRANDOM_STRING_MEMBER_Global
    default:
      return nullptr;
  }
}

// The Let rule of each Variant property; one declared in the list but not defined here fails
// the link.
template <PropertyId id>
void LetVariant(ComponentStore& store, const Variant& value);

template <>
void LetVariant<PropertyId::Prov_areacode>(ComponentStore& store, const Variant& value) {
  LetProvAreaCode(store, value);
}
template <>
void LetVariant<PropertyId::NVMemberType>(ComponentStore& store, const Variant& value) {
  store.NVMemberType = ToText(value);
}
template <>
void LetVariant<PropertyId::IPBillerNameAcctExist>(ComponentStore& store, const Variant& value) {
  store.IPBillerNameAcctExist = ToFlag(value);
}
template <>
void LetVariant<PropertyId::IPCurrencyList>(ComponentStore& store, const Variant& value) {
  store.IPCurrencyList = ToArray(value);
}
template <>
void LetVariant<PropertyId::IPBillerCurrencies>(ComponentStore& store, const Variant& value) {
  store.IPBillerCurrencies = ToArray(value);
}

void LetVariantProperty(ComponentStore& store, PropertyId id, const Variant& value) {
  switch (id) {
#define NVRANDOM_LET_VARIANT_Variant(name) \
  case PropertyId::name:                   \
    return LetVariant<PropertyId::name>(store, value);
#define NVRANDOM_LET_VARIANT_Integer(name)
#define NVRANDOM_LET_VARIANT_Flag(name)
#define NVRANDOM_LET_VARIANT_String(name)
#define NVRANDOM_LET_VARIANT_Global(name)
#define NVRANDOM_LET_VARIANT(dispid, name, type, access, trace) NVRANDOM_LET_VARIANT_##type(name)
    NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_LET_VARIANT, NVRANDOM_IGNORE)
#undef NVRANDOM_LET_VARIANT
#undef NVRANDOM_LET_VARIANT_Variant
#undef NVRANDOM_LET_VARIANT_Integer
#undef NVRANDOM_LET_VARIANT_Flag
#undef NVRANDOM_LET_VARIANT_String
#undef NVRANDOM_LET_VARIANT_Global
    default:
      return;
  }
}

}  // namespace

std::span<const MemberInfo> Members() {
  return kMembers;
}

std::span<const EventInfo> Events() {
  return kEvents;
}

const MemberInfo& Property(PropertyId id) {
  return kMembers[kPropertyPositions[static_cast<size_t>(id)]];
}

const MemberInfo& Method(MethodId id) {
  return kMembers[kMethodPositions[static_cast<size_t>(id)]];
}

const MemberInfo* FindMember(std::string_view name) {
  for (const MemberInfo& m : kMembers) {
    if (ascii::EqualsIgnoreCase(m.name, name)) return &m;
  }
  return nullptr;
}

void LetProperty(Context& ctx, PropertyId id, const Variant& value) {
  ComponentStore& s = ctx.store;
  // A typed parameter is converted by the call itself, before the procedure is entered: a value
  // that cannot be converted fails the call and leaves no trace line. Variant parameters are
  // converted inside the procedure, after its label.
  switch (Property(id).property_type) {
    case PropertyType::kInteger:
    case PropertyType::kFlag: {
      const int16_t number = ToInteger(value);
      if (id != PropertyId::PlayByPlayEnabled) TraceProcedure(ctx, id, "Let ");
      *IntegerMember(s, id) = number;
      return;
    }
    case PropertyType::kString:
    case PropertyType::kGlobal: {
      std::string text = ToText(value);
      TraceProcedure(ctx, id, "Let ");
      if (id == PropertyId::DLLPath) s.gstrInstallRoot = InstallRootOf(text);
      *StringMember(s, id) = std::move(text);
      return;
    }
    case PropertyType::kVariant:
      break;
  }
  TraceProcedure(ctx, id, "Let ");
  LetVariantProperty(s, id, value);
}

Variant GetProperty(Context& ctx, PropertyId id) {
  const MemberInfo& info = Property(id);
  if (!info.can_get) {
    throw RuntimeError(451,
                       "Property let procedure not defined and property get procedure did not "
                       "return an object");
  }
  TraceProcedure(ctx, id, "Get ");
  if (const int16_t* member = IntegerMember(ctx.store, id)) return Variant(int32_t{*member});
  if (const std::string* text = StringMember(ctx.store, id)) return Variant(*text);
  return Variant();
}

}  // namespace nvrandom
