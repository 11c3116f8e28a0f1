#pragma once

#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <ole2.h>

#include <string>

#include "component/variant.h"

// The component's values to and from COM's: texts as BSTR, numbers, booleans, arrays.
namespace nvrandom::com {

// A VARIANT as the component's Variant: empty and null as empty, the numeric types as numbers,
// VARIANT_BOOL as a boolean, BSTR as text (a null BSTR is empty), arrays of BSTR or VARIANT of
// one or two dimensions with any bounds, and references followed. Anything else raises
// RuntimeError 13 (type mismatch).
Variant FromVariant(const VARIANT& value);

// A value the component returns, as a VARIANT the caller owns.
void ToVariant(const Variant& value, VARIANT* out);

// A UTF-8 text as a new BSTR (never null), and back.
BSTR ToBstr(const std::string& text);
std::string FromBstr(BSTR text);

}  // namespace nvrandom::com
