#include "dialog_host.h"
// Defines the type library's GUIDs for this program.
#include <initguid.h>

#include <map>
#include <optional>
#include <string_view>

#include "NVRandom_h.h"

namespace nvrandom::com::test {

std::wstring g_install;
std::wstring g_screenshots;

namespace {

std::vector<std::wstring> g_message_boxes;
std::function<bool()> g_modal_action;
DWORD g_modal_deadline = 0;
// How long a modal action may wait for its dialog.
constexpr DWORD kModalLimit = 10000;

const std::vector<HostValue> kInstallation = {
    {L"Provpostalstr", L"ABTBCVMBRNBENLANSBNTXNUXONKONLONMONNONPPEUQCGQCHQCJSKSYTY"},
    {L"IPCurrencyList", std::vector<const wchar_t*>{L"CAD", L"USD", L"EUR", L"GBP"}},
    {L"CurrencyCodeFromMain", L"CAD"},
    {L"DescCurrencyCodeFromMain", L"Canadian Dollar"},
    {L"UserBankAcctPermission", short{-1}},
    {L"Add", short{-1}},
};

const std::map<std::string_view, std::vector<HostValue>>& Samples() {
  static const std::map<std::string_view, std::vector<HostValue>> samples = {
      {"business",
       {{L"PayeeIndBusnTag", L"2"},
        {L"PayeeIndBussFlg", L" "},
        {L"PayeeName", L"NORTHERN HYDRO LTD"},
        {L"PayeeBillAccount", L"4417 1234 5678"},
        {L"PayeeStreet", L"100 KING ST W"},
        {L"PayeeCity", L"TORONTO"},
        {L"PayeeProv", L"ON"},
        {L"PayeeCountry", L"CA"},
        {L"PayeePostal", L"M5X1A9"},
        {L"PayeePhoneArea", L"416"},
        {L"PayeePhoneNumber", L"5550100"},
        {L"PayeeEmail", L"billing@example.com"},
        {L"PayeeBusinessNum", L"046454286RT0001"},
        {L"PayeeCurrency", L"CAD"}}},
      {"individual",
       {{L"PayeeIndBusnTag", L"1"},
        {L"PayeeIndBussFlg", L"I"},
        {L"PayeeName", L"JANE TREMBLAY"},
        {L"PayeeBillAccount", L"RENT 12B"},
        {L"PayeeEmail", L"jane.tremblay@example.com"},
        {L"PayeeBankId", L"003"},
        {L"PayeeBankTransit", L"00011"},
        {L"PayeeBankAccount", L"1234567"},
        {L"PayeeCurrency", L"CAD"}}},
      {"us",
       {{L"WhatKindOfBiller", L"U"},
        {L"PayeeIndBusnTag", L"2"},
        {L"PayeeIndBussFlg", L" "},
        {L"PayeeName", L"LAKESHORE UTILITIES INC"},
        {L"PayeeBillAccount", L"88-0042-17"},
        {L"PayeeStreet", L"200 MAIN ST"},
        {L"PayeeCity", L"BUFFALO"},
        {L"PayeeProv", L"NY"},
        {L"PayeeCountry", L"US"},
        {L"PayeePostal", L"14202"},
        {L"PayeePhoneArea", L"716"},
        {L"PayeePhoneNumber", L"5550199"},
        {L"PayeeEmail", L"ap@lakeshore.example.com"},
        {L"PayeeBankTransit", L"021000021"},
        {L"PayeeCurrency", L"USD"}}},
      {"international",
       {{L"InternationalPayment", short{-1}},
        {L"IPBillerNameAcctExist", short{0}},
        {L"PayeeIndBusnTag", L"2"},
        {L"PayeeIndBussFlg", L" "},
        {L"PayeeName", L"RHEIN TEXTIL GMBH"},
        {L"PayeeBillAccount", L"DE-2024-7781"},
        {L"PayeeStreet", L"HAUPTSTRASSE 12"},
        {L"PayeeCity", L"KOELN"},
        {L"PayeeCountry", L"DE"},
        {L"PayeePostal", L"50667"},
        {L"PayeePhoneCountryCode", L"49"},
        {L"PayeeFXPhoneNumber", L"2215550123"},
        {L"PayeeEmail", L"rechnung@example.de"},
        {L"PayeeBusinessNum", L""},
        {L"PayeeCurrency", L"EUR"},
        {L"PayeeFXBankName", L"RHEINBANK AG"},
        {L"PayeeFXBankAddress", L"BANKPLATZ 1"},
        {L"PayeeFXBankCity", L"KOELN"},
        {L"PayeeFXBankCountry", L"DE"},
        {L"PayeeFXBankAccount", L"DE89370400440532013000"},
        {L"PayeeFXBankSwift", L"COBADEFFXXX"}}},
  };
  return samples;
}

DISPID IdOf(IDispatch& object, const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  auto* text = const_cast<LPOLESTR>(name);
  object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

// Answers the message boxes of this thread with their default button, recording their texts: a
// check that fails in a test shows its message instead of waiting for a person.
BOOL CALLBACK AnswerMessageBox(HWND hwnd, LPARAM) {
  wchar_t window_class[16] = {};
  ::GetClassNameW(hwnd, window_class, 16);
  if (std::wstring_view(window_class) != L"#32770" || !::IsWindowVisible(hwnd)) return TRUE;
  constexpr int kMessageText = 0xFFFF;
  g_message_boxes.push_back(WindowText(::GetDlgItem(hwnd, kMessageText)));
  ::PostMessageW(hwnd, WM_COMMAND, IDOK, 0);
  ::PostMessageW(hwnd, WM_CLOSE, 0, 0);
  return TRUE;
}

BOOL CALLBACK CloseForm(HWND hwnd, LPARAM) {
  wchar_t window_class[32] = {};
  ::GetClassNameW(hwnd, window_class, 32);
  if (std::wstring_view(window_class) == L"NVRandomForm") ::PostMessageW(hwnd, WM_CLOSE, 0, 0);
  return TRUE;
}

void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
  ::EnumThreadWindows(::GetCurrentThreadId(), &AnswerMessageBox, 0);
  // An action may pump messages itself: it is not run again from inside itself.
  static bool acting = false;
  if (acting || !g_modal_action) return;
  acting = true;
  if (g_modal_action()) {
    g_modal_action = nullptr;
  } else if (static_cast<LONG>(::GetTickCount() - g_modal_deadline) > 0) {
    // Never waits for ever: the dialogs of the thread are closed and the test fails.
    g_modal_action = nullptr;
    g_message_boxes.push_back(L"the modal action found no dialog to act on");
    ::EnumThreadWindows(::GetCurrentThreadId(), &CloseForm, 0);
  }
  acting = false;
}

struct Search {
  const wchar_t* caption;
  HWND found;
};

// A caption as a person reads it: "&OK" reads "OK".
std::wstring Readable(std::wstring caption) {
  std::erase(caption, L'&');
  return caption;
}

BOOL CALLBACK MatchCaption(HWND hwnd, LPARAM data) {
  auto* search = reinterpret_cast<Search*>(data);
  if (Readable(WindowText(hwnd)) != search->caption || !::IsWindowVisible(hwnd)) return TRUE;
  search->found = hwnd;
  return FALSE;
}

BOOL CALLBACK MatchForm(HWND hwnd, LPARAM data) {
  wchar_t window_class[32] = {};
  ::GetClassNameW(hwnd, window_class, 32);
  if (std::wstring_view(window_class) != L"NVRandomForm") return TRUE;
  return MatchCaption(hwnd, data);
}

}  // namespace

const std::vector<HostValue>& InstallationValues() {
  return kInstallation;
}

const std::vector<HostValue>& SampleBiller(std::string_view layout) {
  return Samples().at(layout);
}

STDMETHODIMP RecordingSink::QueryInterface(REFIID iid, void** out) {
  if (iid == IID_IUnknown || iid == IID_IDispatch || iid == DIID___ClsRandom) {
    *out = this;
    AddRef();
    return S_OK;
  }
  *out = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP RecordingSink::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP RecordingSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*,
                                   EXCEPINFO*, UINT*) {
  events += std::to_string(id);
  if (id == 2 && params != nullptr && params->cArgs == 1 &&
      params->rgvarg[0].vt == (VT_BYREF | VT_I2)) {
    tops.push_back(*params->rgvarg[0].piVal);
  }
  return S_OK;
}

DialogHost::DialogHost() {
  module_ = ::LoadLibraryW(L"NVRandom.dll");
  if (module_ == nullptr) return;
  get_class_object_ = reinterpret_cast<decltype(get_class_object_)>(
      reinterpret_cast<void*>(::GetProcAddress(module_, "DllGetClassObject")));
  can_unload_now_ = reinterpret_cast<decltype(can_unload_now_)>(
      reinterpret_cast<void*>(::GetProcAddress(module_, "DllCanUnloadNow")));
  timer_ = ::SetTimer(nullptr, 0, 50, &Tick);
}

DialogHost::~DialogHost() {
  if (timer_ != 0) ::KillTimer(nullptr, timer_);
  g_modal_action = nullptr;
  g_message_boxes.clear();
  if (module_ != nullptr) ::FreeLibrary(module_);
}

ComPtr<IDispatch> DialogHost::Create(std::string_view layout) {
  ComPtr<IClassFactory> factory;
  ComPtr<IDispatch> object;
  if (get_class_object_(CLSID_ClsRandom, IID_IClassFactory, factory.put_void()) != S_OK ||
      factory->CreateInstance(nullptr, IID_IDispatch, object.put_void()) != S_OK) {
    return {};
  }
  Let(*object, {L"DLLPath", g_install.c_str()});
  for (const HostValue& value : kInstallation) Let(*object, value);
  for (const HostValue& value : SampleBiller(layout)) Let(*object, value);
  return object;
}

HRESULT DialogHost::Let(IDispatch& object, const HostValue& value) {
  VARIANT argument{};
  Bstr text;
  std::optional<SafeArray> list;
  if (const auto* s = std::get_if<const wchar_t*>(&value.value)) {
    text = Bstr(std::wstring(*s));
    argument.vt = VT_BSTR;
    argument.bstrVal = text.get();
  } else if (const auto* n = std::get_if<short>(&value.value)) {
    argument.vt = VT_I2;
    argument.iVal = *n;
  } else {
    const auto& items = std::get<std::vector<const wchar_t*>>(value.value);
    SAFEARRAYBOUND bound{static_cast<ULONG>(items.size()), 0};
    list.emplace(::SafeArrayCreate(VT_BSTR, 1, &bound));
    for (LONG i = 0; i < static_cast<LONG>(items.size()); ++i) {
      Bstr item{std::wstring(items[static_cast<size_t>(i)])};
      ::SafeArrayPutElement(list->get(), &i, item.get());
    }
    argument.vt = VT_ARRAY | VT_BSTR;
    argument.parray = list->get();
  }
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS params{&argument, &named, 1, 1};
  return object.Invoke(IdOf(object, value.name), IID_NULL, LOCALE_USER_DEFAULT,
                       DISPATCH_PROPERTYPUT, &params, nullptr, nullptr, nullptr);
}

long DialogHost::Call(IDispatch& object, const wchar_t* method) {
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  OwnedVariant result;
  const HRESULT hr = object.Invoke(IdOf(object, method), IID_NULL, LOCALE_USER_DEFAULT,
                                   DISPATCH_METHOD, &none, result.put(), nullptr, nullptr);
  if (FAILED(hr)) return -1;
  return result.get()->vt == VT_I4 ? result.get()->lVal : 0;
}

DWORD DialogHost::Advise(IDispatch& object, RecordingSink& sink) {
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> point;
  DWORD cookie = 0;
  if (object.QueryInterface(IID_IConnectionPointContainer, container.put_void()) == S_OK &&
      container->FindConnectionPoint(DIID___ClsRandom, point.put()) == S_OK) {
    point->Advise(&sink, &cookie);
  }
  return cookie;
}

bool DialogHost::PumpUntil(const std::function<bool()>& done, DWORD milliseconds) {
  const DWORD start = ::GetTickCount();
  MSG message;
  while (!done()) {
    if (::GetTickCount() - start > milliseconds) return false;
    if (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      ::TranslateMessage(&message);
      ::DispatchMessageW(&message);
    } else {
      ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
  }
  return true;
}

void DialogHost::WhileModal(std::function<bool()> action) {
  g_modal_action = std::move(action);
  g_modal_deadline = ::GetTickCount() + kModalLimit;
}

const std::vector<std::wstring>& DialogHost::message_boxes() const {
  return g_message_boxes;
}

HWND FindControl(HWND form, const wchar_t* caption) {
  Search search{caption, nullptr};
  ::EnumChildWindows(form, &MatchCaption, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

HWND FindForm(const wchar_t* caption) {
  Search search{caption, nullptr};
  ::EnumThreadWindows(::GetCurrentThreadId(), &MatchForm, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void PostKey(HWND target, WPARAM virtual_key) {
  const auto scan = static_cast<LPARAM>(::MapVirtualKeyW(static_cast<UINT>(virtual_key), 0));
  ::PostMessageW(target, WM_KEYDOWN, virtual_key, 1 | (scan << 16));
  ::PostMessageW(target, WM_KEYUP, virtual_key, static_cast<LPARAM>(0xC0000001) | (scan << 16));
}

std::wstring WindowText(HWND hwnd) {
  std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(hwnd)) + 1, L'\0');
  text.resize(
      static_cast<size_t>(::GetWindowTextW(hwnd, text.data(), static_cast<int>(text.size()))));
  return text;
}

}  // namespace nvrandom::com::test
