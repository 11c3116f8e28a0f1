#include "platform/win32/vbscript_regex.h"

#include <array>
#include <optional>
#include <string>

#include "platform/runtime_error.h"
#include "platform/win32/com_handles.h"
#include "platform/win32/wide_text.h"

namespace nvrandom {

namespace {

enum Member { kPattern, kIgnoreCase, kTest, kMemberCount };
constexpr std::array<const wchar_t*, kMemberCount> kMemberNames = {L"Pattern", L"IgnoreCase",
                                                                   L"Test"};

}  // namespace

struct VbscriptRegex::Engine {
  com::ApartmentScope apartment;
  com::ComPtr<IDispatch> regexp;
  std::array<DISPID, kMemberCount> ids{};
  std::optional<std::string> pattern;
  std::optional<bool> ignore_case;

  Engine() {
    if (!apartment.usable()) return;
    CLSID clsid{};
    if (FAILED(::CLSIDFromProgID(L"VBScript.RegExp", &clsid)) ||
        FAILED(::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                  regexp.put_void()))) {
      regexp.reset();
      return;
    }
    for (size_t i = 0; i < kMemberCount; ++i) {
      auto* name = const_cast<LPOLESTR>(kMemberNames[i]);
      if (FAILED(regexp->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &ids[i]))) {
        regexp.reset();
        return;
      }
    }
  }

  HRESULT Put(Member member, VARIANT& value) {
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params{&value, &named, 1, 1};
    return regexp->Invoke(ids[member], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &params,
                          nullptr, nullptr, nullptr);
  }
};

VbscriptRegex::VbscriptRegex() = default;
VbscriptRegex::~VbscriptRegex() = default;

bool VbscriptRegex::Test(std::string_view pattern, std::string_view text, bool ignore_case) {
  if (!engine_) engine_ = std::make_unique<Engine>();
  Engine& e = *engine_;
  if (!e.regexp) {
    throw RuntimeError(vb_error::kCannotCreateObject, "ActiveX component can't create object");
  }
  if (e.pattern != pattern) {
    com::Bstr wide_pattern(wide::FromUtf8(pattern));
    VARIANT value{};
    value.vt = VT_BSTR;
    value.bstrVal = wide_pattern.get();
    e.pattern.reset();
    if (FAILED(e.Put(kPattern, value))) {
      throw RuntimeError(vb_error::kInvalidProcedureCall, "Invalid regular expression pattern");
    }
    e.pattern = std::string(pattern);
  }
  if (e.ignore_case != ignore_case) {
    VARIANT value{};
    value.vt = VT_BOOL;
    value.boolVal = ignore_case ? VARIANT_TRUE : VARIANT_FALSE;
    e.ignore_case.reset();
    if (FAILED(e.Put(kIgnoreCase, value))) {
      throw RuntimeError(vb_error::kInvalidProcedureCall, "Invalid regular expression setting");
    }
    e.ignore_case = ignore_case;
  }
  const std::wstring utf16 = wide::FromUtf8(text);
  if (utf16.size() > kMaxText) return false;
  com::Bstr wide_text(utf16);
  VARIANT argument{};
  argument.vt = VT_BSTR;
  argument.bstrVal = wide_text.get();
  DISPPARAMS params{&argument, nullptr, 1, 0};
  com::OwnedVariant result;
  EXCEPINFO error{};
  const HRESULT hr = e.regexp->Invoke(e.ids[kTest], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                      &params, result.put(), &error, nullptr);
  std::string description = "Syntax error in regular expression";
  if (error.bstrDescription != nullptr) {
    description += ": " + wide::ToUtf8(error.bstrDescription);
  }
  ::SysFreeString(error.bstrSource);
  ::SysFreeString(error.bstrDescription);
  ::SysFreeString(error.bstrHelpFile);
  if (FAILED(hr)) throw RuntimeError(vb_error::kInvalidProcedureCall, description);
  if (FAILED(::VariantChangeType(result.get(), result.get(), 0, VT_BOOL))) return false;
  return result.get()->boolVal != VARIANT_FALSE;
}

std::unique_ptr<RegexService> MakeSystemRegex() {
  return std::make_unique<VbscriptRegex>();
}

}  // namespace nvrandom
