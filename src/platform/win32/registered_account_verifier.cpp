#include "platform/win32/registered_account_verifier.h"

#include <array>
#include <span>

#include "platform/runtime_error.h"
#include "platform/win32/com_handles.h"
#include "platform/win32/wide_text.h"

namespace nvrandom {

namespace {

using com::Bstr;
using com::ComPtr;
using com::OwnedVariant;

RuntimeError ErrorOf(HRESULT hr, EXCEPINFO& info) {
  if (hr == DISP_E_EXCEPTION) {
    if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
    hr = info.scode != 0 ? info.scode : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, info.wCode);
  }
  std::string description =
      info.bstrDescription != nullptr ? wide::ToUtf8(info.bstrDescription) : std::string();
  ::SysFreeString(info.bstrSource);
  ::SysFreeString(info.bstrDescription);
  ::SysFreeString(info.bstrHelpFile);
  info = EXCEPINFO{};
  // A run-time error raised by the object keeps its number; any other failure is reported by its
  // HRESULT, as an automation error.
  const bool raised = HRESULT_FACILITY(hr) == FACILITY_CONTROL;
  const int32_t number = raised ? HRESULT_CODE(hr) : static_cast<int32_t>(hr);
  if (description.empty()) {
    description = raised ? DefaultErrorDescription(number) : std::string("Automation error");
  }
  return RuntimeError(number, description);
}

VARIANT Text(const Bstr& text) {
  VARIANT v;
  v.vt = VT_BSTR;
  v.bstrVal = text.get();
  return v;
}

VARIANT Truth(bool value) {
  VARIANT v;
  v.vt = VT_BOOL;
  v.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return v;
}

VARIANT Integer(int16_t value) {
  VARIANT v;
  v.vt = VT_I2;
  v.iVal = value;
  return v;
}

VARIANT TextRef(BSTR* text) {
  VARIANT v;
  v.vt = VT_BYREF | VT_BSTR;
  v.pbstrVal = text;
  return v;
}

VARIANT IntegerRef(short* value) {
  VARIANT v;
  v.vt = VT_BYREF | VT_I2;
  v.piVal = value;
  return v;
}

class DispatchAccountVerifier final : public AccountVerifier {
 public:
  DispatchAccountVerifier(std::unique_ptr<com::ApartmentScope> apartment, ComPtr<IDispatch> object)
      : apartment_(std::move(apartment)), object_(std::move(object)) {}

  void put_PlayByPlay(bool value) override { Put(L"PlayByPlay", Truth(value)); }
  void put_BusinessPIN(const std::string& value) override { PutText(L"BusinessPIN", value); }
  std::string get_BillerSearchID() override {
    OwnedVariant value;
    DISPPARAMS none{nullptr, nullptr, 0, 0};
    Invoke(L"BillerSearchID", DISPATCH_PROPERTYGET, none, value.put());
    if (FAILED(::VariantChangeType(value.get(), value.get(), 0, VT_BSTR))) {
      throw RuntimeError(vb_error::kTypeMismatch);
    }
    return wide::ToUtf8({value.get()->bstrVal, ::SysStringLen(value.get()->bstrVal)});
  }
  void put_BillerSearchID(const std::string& value) override { PutText(L"BillerSearchID", value); }
  void put_AccessNumber(const std::string& value) override { PutText(L"AccessNumber", value); }
  void put_ProgramVersion(const std::string& value) override { PutText(L"ProgramVersion", value); }
  void put_BillerSearchURL(const std::string& value) override {
    PutText(L"BillerSearchURL", value);
  }
  void put_SessionNumber(const std::string& value) override { PutText(L"SessionNumber", value); }
  void put_DataPath(const std::string& value) override { PutText(L"DataPath", value); }
  void put_RequestSourceCode(const std::string& value) override {
    PutText(L"RequestSourceCode", value);
  }
  void put_BankIdLength(int16_t value) override { Put(L"BankIdLength", Integer(value)); }
  void put_AccountLength(int16_t value) override { Put(L"AccountLength", Integer(value)); }

  void VerifyAccount(std::string_view bank_id, std::string_view account, bool flag,
                     std::string& error_message, int16_t& second_result, int16_t& result) override {
    const Bstr id(wide::FromUtf8(bank_id));
    const Bstr acct(wide::FromUtf8(account));
    Bstr message(wide::FromUtf8(error_message));
    short second = second_result;
    short answer = result;
    // DISPPARAMS hold the arguments last first.
    std::array<VARIANT, 6> args = {
        IntegerRef(&answer), IntegerRef(&second), TextRef(message.inout()),
        Truth(flag),         Text(acct),          Text(id)};
    Call(L"VerifyAccount", args);
    error_message = wide::ToUtf8(message.view());
    second_result = second;
    result = answer;
  }
  void ValidateBankId(std::string_view bank_id, bool flag, std::string& error_message,
                      int16_t& error_length, int16_t& result) override {
    const Bstr id(wide::FromUtf8(bank_id));
    Bstr message(wide::FromUtf8(error_message));
    short length = error_length;
    short answer = result;
    std::array<VARIANT, 5> args = {IntegerRef(&answer), IntegerRef(&length),
                                   TextRef(message.inout()), Truth(flag), Text(id)};
    Call(L"ValidateBankId", args);
    error_message = wide::ToUtf8(message.view());
    error_length = length;
    result = answer;
  }
  void ValidateBankAccount(std::string_view bank_id, std::string_view transit,
                           std::string_view account, std::string& error_message,
                           int16_t& error_length, bool flag, int16_t& result) override {
    const Bstr id(wide::FromUtf8(bank_id));
    const Bstr branch(wide::FromUtf8(transit));
    const Bstr acct(wide::FromUtf8(account));
    Bstr message(wide::FromUtf8(error_message));
    short length = error_length;
    short answer = result;
    std::array<VARIANT, 7> args = {
        IntegerRef(&answer), Truth(flag), IntegerRef(&length), TextRef(message.inout()), Text(acct),
        Text(branch),        Text(id)};
    Call(L"ValidateBankAccount", args);
    error_message = wide::ToUtf8(message.view());
    error_length = length;
    result = answer;
  }

 private:
  DISPID IdOf(const wchar_t* name) {
    DISPID id = DISPID_UNKNOWN;
    auto* names = const_cast<LPOLESTR>(name);
    const HRESULT hr = object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(hr)) throw RuntimeError(vb_error::kObjectDoesNotSupport);
    return id;
  }
  void Invoke(const wchar_t* name, WORD kind, DISPPARAMS& params, VARIANT* result) {
    EXCEPINFO info{};
    UINT bad_argument = 0;
    const HRESULT hr = object_->Invoke(IdOf(name), IID_NULL, LOCALE_USER_DEFAULT, kind, &params,
                                       result, &info, &bad_argument);
    if (FAILED(hr)) throw ErrorOf(hr, info);
  }
  void Put(const wchar_t* name, VARIANT value) {
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params{&value, &named, 1, 1};
    Invoke(name, DISPATCH_PROPERTYPUT, params, nullptr);
  }
  void PutText(const wchar_t* name, const std::string& value) {
    const Bstr text(wide::FromUtf8(value));
    Put(name, Text(text));
  }
  void Call(const wchar_t* name, std::span<VARIANT> args) {
    DISPPARAMS params{args.data(), nullptr, static_cast<UINT>(args.size()), 0};
    OwnedVariant ignored;
    Invoke(name, DISPATCH_METHOD, params, ignored.put());
  }

  // Released after the object: the apartment it was made in outlives it.
  std::unique_ptr<com::ApartmentScope> apartment_;
  ComPtr<IDispatch> object_;
};

}  // namespace

std::unique_ptr<AccountVerifier> RegisteredAccountVerifierFactory::Create() {
  // The host's thread is normally in its apartment already; one that is not enters one for as
  // long as the verifier lives.
  auto apartment = std::make_unique<com::ApartmentScope>();
  CLSID clsid{};
  if (!apartment->usable()) throw RuntimeError(vb_error::kCannotCreateObject);
  if (FAILED(::CLSIDFromProgID(prog_id_, &clsid))) return fallback_->Create();
  ComPtr<IDispatch> object;
  const HRESULT hr =
      ::CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, object.put_void());
  if (hr == REGDB_E_CLASSNOTREG) return fallback_->Create();
  if (FAILED(hr)) throw RuntimeError(vb_error::kCannotCreateObject);
  return std::make_unique<DispatchAccountVerifier>(std::move(apartment), std::move(object));
}

}  // namespace nvrandom
