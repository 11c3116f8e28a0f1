#include "api/property_table.h"
#include "platform/ascii.h"

#include <array>
#include <string>

#include "component/context.h"
#include "component/trace.h"
#include "platform/runtime_error.h"

namespace nvrandom {

namespace {

constexpr bool kLetGet = true;
constexpr bool kLet = false;
constexpr bool kTraced = true;
constexpr bool kUntraced = false;

constexpr std::array<PropertyInfo, kPropertyCount> kProperties = {{
#define NVRANDOM_PROPERTY_INFO(name, type, access, trace) \
  {PropertyId::name, #name, PropertyType::k##type, k##access, k##trace},
    NVRANDOM_CLSRANDOM_PROPERTIES(NVRANDOM_PROPERTY_INFO)
#undef NVRANDOM_PROPERTY_INFO
}};

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

int16_t* IntegerMember(ComponentStore& s, PropertyId id) {
  switch (id) {
    case PropertyId::FormStyle:
      return &s.FormStyle;
    case PropertyId::PlayByPlayEnabled:
      return &s.PlayByPlayEnabled;
    case PropertyId::Add:
      return &s.Add;
    case PropertyId::UserBankAcctPermission:
      return &s.UserBankAcctPermission;
    case PropertyId::InternationalPayment:
      return &s.InternationalPayment;
    case PropertyId::BillerPaid:
      return &s.BillerPaid;
    case PropertyId::UseAcctvfy:
      return &s.UseAcctvfy;
    default:
      return nullptr;
  }
}

std::string* StringMember(ComponentStore& s, PropertyId id) {
  switch (id) {
    case PropertyId::CountryListAll:
      return &s.gstrCountryListAll;
    case PropertyId::CountryListPartial:
      return &s.gstrCountryListPartial;
#define NVRANDOM_STRING_MEMBER_String(name) \
  case PropertyId::name:                    \
    return &s.name;
#define NVRANDOM_STRING_MEMBER_Integer(name)
#define NVRANDOM_STRING_MEMBER_Flag(name)
#define NVRANDOM_STRING_MEMBER_Variant(name)
#define NVRANDOM_STRING_MEMBER_Global(name)
#define NVRANDOM_STRING_MEMBER(name, type, access, trace) NVRANDOM_STRING_MEMBER_##type(name)
      NVRANDOM_CLSRANDOM_PROPERTIES(NVRANDOM_STRING_MEMBER)
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

}  // namespace

const PropertyInfo& Property(PropertyId id) {
  return kProperties[static_cast<size_t>(id)];
}

const PropertyInfo* FindProperty(std::string_view name) {
  // Member names are matched ignoring case, as a late-bound caller names them.
  for (const PropertyInfo& p : kProperties) {
    if (ascii::EqualsIgnoreCase(p.name, name)) return &p;
  }
  return nullptr;
}

void LetProperty(Context& ctx, PropertyId id, const Variant& value) {
  ComponentStore& s = ctx.store;
  // A typed parameter is converted by the call itself, before the procedure is entered: a value
  // that cannot be converted fails the call and leaves no trace line. Variant parameters are
  // converted inside the procedure, after its label.
  switch (Property(id).type) {
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
  switch (id) {
    case PropertyId::Prov_areacode:
      LetProvAreaCode(s, value);
      return;
    case PropertyId::NVMemberType:
      s.NVMemberType = ToText(value);
      return;
    case PropertyId::IPBillerNameAcctExist:
      s.IPBillerNameAcctExist = ToFlag(value);
      return;
    case PropertyId::IPCurrencyList:
      s.IPCurrencyList = ToArray(value);
      return;
    case PropertyId::IPBillerCurrencies:
      s.IPBillerCurrencies = ToArray(value);
      return;
    default:
      return;
  }
}

Variant GetProperty(Context& ctx, PropertyId id) {
  const PropertyInfo& info = Property(id);
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
