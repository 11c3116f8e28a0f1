#include "com/com_values.h"

#include <memory>
#include <new>

#include "platform/runtime_error.h"
#include "platform/win32/com_handles.h"
#include "platform/win32/wide_text.h"

namespace nvrandom::com {

namespace {

[[noreturn]] void TypeMismatch() {
  throw RuntimeError(vb_error::kTypeMismatch);
}

Variant FromArray(SAFEARRAY* array, VARTYPE element) {
  if (array == nullptr) TypeMismatch();
  const UINT dims = ::SafeArrayGetDim(array);
  if (dims < 1 || dims > 2 || (element != VT_BSTR && element != VT_VARIANT)) TypeMismatch();
  auto result = std::make_shared<VariantArray>();
  for (UINT d = 1; d <= dims; ++d) {
    LONG lower = 0;
    LONG upper = 0;
    if (FAILED(::SafeArrayGetLBound(array, d, &lower)) ||
        FAILED(::SafeArrayGetUBound(array, d, &upper))) {
      TypeMismatch();
    }
    result->lower.push_back(lower);
    result->upper.push_back(upper);
  }
  // Column by column, the first index running fastest: the order of StringArray and of the
  // SAFEARRAY's own storage.
  const LONG lower1 = dims == 2 ? result->lower[1] : 0;
  const LONG upper1 = dims == 2 ? result->upper[1] : 0;
  for (LONG j = lower1; j <= upper1; ++j) {
    for (LONG i = result->lower[0]; i <= result->upper[0]; ++i) {
      LONG index[2] = {i, j};
      if (element == VT_BSTR) {
        Bstr text;
        if (FAILED(::SafeArrayGetElement(array, index, text.put()))) TypeMismatch();
        result->elements.emplace_back(FromBstr(text.get()));
      } else {
        com::OwnedVariant owned;
        if (FAILED(::SafeArrayGetElement(array, index, owned.put()))) TypeMismatch();
        result->elements.push_back(FromVariant(*owned.get()));
      }
    }
  }
  return Variant::Array(std::move(*result));
}

}  // namespace

BSTR ToBstr(const std::string& text) {
  const std::wstring wide_text = wide::FromUtf8(text);
  BSTR b = ::SysAllocStringLen(wide_text.data(), static_cast<UINT>(wide_text.size()));
  if (b == nullptr) throw std::bad_alloc();
  return b;
}

std::string FromBstr(BSTR text) {
  return text == nullptr ? std::string() : wide::ToUtf8({text, ::SysStringLen(text)});
}

Variant FromVariant(const VARIANT& value) {
  const VARTYPE vt = value.vt;
  if (vt & VT_ARRAY) {
    SAFEARRAY* array = (vt & VT_BYREF) ? (value.pparray ? *value.pparray : nullptr) : value.parray;
    return FromArray(array, static_cast<VARTYPE>(vt & VT_TYPEMASK));
  }
  if (vt == (VT_BYREF | VT_VARIANT)) {
    if (value.pvarVal == nullptr) TypeMismatch();
    return FromVariant(*value.pvarVal);
  }
  if (vt & VT_BYREF) {
    // A reference to a simple value: its copy.
    com::OwnedVariant copy;
    if (FAILED(::VariantCopyInd(copy.get(), const_cast<VARIANT*>(&value)))) TypeMismatch();
    return FromVariant(*copy.get());
  }
  switch (vt) {
    case VT_EMPTY:
    case VT_NULL:
      return Variant();
    case VT_BSTR:
      return Variant(FromBstr(value.bstrVal));
    case VT_BOOL:
      return Variant::Boolean(value.boolVal != VARIANT_FALSE);
    case VT_I2:
      return Variant(static_cast<int32_t>(value.iVal));
    case VT_I4:
    case VT_INT:
      return Variant(static_cast<int32_t>(value.lVal));
    case VT_UI1:
      return Variant(static_cast<int32_t>(value.bVal));
    case VT_R4:
      return Variant::Double(value.fltVal);
    case VT_R8:
      return Variant::Double(value.dblVal);
    case VT_ERROR:
      if (value.scode == DISP_E_PARAMNOTFOUND) return Variant::Missing();
      TypeMismatch();
    default:
      TypeMismatch();
  }
}

void ToVariant(const Variant& value, VARIANT* out) {
  ::VariantInit(out);
  if (const auto* text = std::get_if<std::string>(&value.value)) {
    out->bstrVal = ToBstr(*text);
    out->vt = VT_BSTR;
  } else if (const auto* number = std::get_if<int32_t>(&value.value)) {
    out->lVal = *number;
    out->vt = VT_I4;
  } else if (const auto* flag = std::get_if<bool>(&value.value)) {
    out->boolVal = *flag ? VARIANT_TRUE : VARIANT_FALSE;
    out->vt = VT_BOOL;
  } else if (const auto* real = std::get_if<double>(&value.value)) {
    out->dblVal = *real;
    out->vt = VT_R8;
  }
}

}  // namespace nvrandom::com
