#include "dialog_host.h"
// Defines the type library's GUIDs for this program.
#include <initguid.h>

#include <string_view>

#include "NVRandom_h.h"
#include "platform/win32/wide_text.h"
#include "sample_billers.h"
#include "scenario_line.h"
#include "scenario_values.h"

namespace nvrandom::com::test {

std::wstring g_install;
std::wstring g_screenshots;

namespace {

std::vector<std::wstring> g_message_boxes;
std::function<bool()> g_modal_action;
DWORD g_modal_deadline = 0;
// How long a modal action may wait for its dialog.
constexpr DWORD kModalLimit = 10000;

// A host's value as the VARIANT a host passes for it: a text, a number, or an array of texts.
void ToHostVariant(const Variant& value, VARIANT* out) {
  if (const auto* text = std::get_if<std::string>(&value.value)) {
    out->vt = VT_BSTR;
    out->bstrVal = Bstr(wide::FromUtf8(*text)).detach();
  } else if (const auto* number = std::get_if<int32_t>(&value.value)) {
    out->vt = VT_I4;
    out->lVal = *number;
  } else if (const auto* array = std::get_if<StringArray>(&value.value)) {
    SAFEARRAYBOUND bounds[2] = {};
    for (int d = 0; d < array->dimensions(); ++d) {
      bounds[d].cElements = static_cast<ULONG>(array->UBound(d + 1) - array->LBound(d + 1) + 1);
      bounds[d].lLbound = array->LBound(d + 1);
    }
    out->vt = VT_ARRAY | VT_BSTR;
    out->parray = ::SafeArrayCreate(VT_BSTR, static_cast<UINT>(array->dimensions()), bounds);
    // Both keep the elements with the first index running fastest.
    BSTR* items = nullptr;
    ::SafeArrayAccessData(out->parray, reinterpret_cast<void**>(&items));
    const int32_t last_column = array->dimensions() == 2 ? array->UBound(2) : 0;
    for (int32_t j = array->dimensions() == 2 ? array->LBound(2) : 0; j <= last_column; ++j) {
      for (int32_t i = array->LBound(1); i <= array->UBound(1); ++i) {
        const std::string& item = array->dimensions() == 2 ? array->at(i, j) : array->at(i);
        *items++ = Bstr(wide::FromUtf8(item)).detach();
      }
    }
    ::SafeArrayUnaccessData(out->parray);
  }
}

// Answers the message boxes of this thread with their default button, recording their texts: a
// check that fails in a test shows its message instead of waiting for a person.
bool HasClass(HWND hwnd, std::wstring_view name) {
  wchar_t window_class[32] = {};
  ::GetClassNameW(hwnd, window_class, 32);
  return name == window_class;
}

BOOL CALLBACK AnswerMessageBox(HWND hwnd, LPARAM) {
  if (!HasClass(hwnd, L"#32770") || !::IsWindowVisible(hwnd)) return TRUE;
  constexpr int kMessageText = 0xFFFF;
  g_message_boxes.push_back(WindowText(::GetDlgItem(hwnd, kMessageText)));
  ::PostMessageW(hwnd, WM_COMMAND, IDOK, 0);
  ::PostMessageW(hwnd, WM_CLOSE, 0, 0);
  return TRUE;
}

BOOL CALLBACK CloseForm(HWND hwnd, LPARAM) {
  if (HasClass(hwnd, L"NVRandomForm")) ::PostMessageW(hwnd, WM_CLOSE, 0, 0);
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

// Matches a caption as a person reads it: "&OK" reads "OK".
BOOL CALLBACK MatchCaption(HWND hwnd, LPARAM data) {
  auto* search = reinterpret_cast<Search*>(data);
  std::wstring caption = WindowText(hwnd);
  std::erase(caption, L'&');
  if (caption != search->caption || !::IsWindowVisible(hwnd)) return TRUE;
  search->found = hwnd;
  return FALSE;
}

}  // namespace

STDMETHODIMP RecordingSink::QueryInterface(REFIID iid, void** out) {
  if (iid == IID_IUnknown || iid == IID_IDispatch || (iid == DIID___ClsRandom && !dispatch_only)) {
    *out = this;
    AddRef();
    return S_OK;
  }
  *out = nullptr;
  return E_NOINTERFACE;
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

ComPtr<IDispatch> DialogHost::Create(std::string_view sample) {
  ComPtr<IClassFactory> factory;
  ComPtr<IDispatch> object;
  if (GetClassObject(CLSID_ClsRandom, IID_IClassFactory, factory.put_void()) != S_OK ||
      factory->CreateInstance(nullptr, IID_IDispatch, object.put_void()) != S_OK) {
    return {};
  }
  if (sample.empty()) return object;
  const bool set =
      demo::LetSample(sample, [&](std::string_view line) { return SUCCEEDED(Let(*object, line)); });
  return set ? object : ComPtr<IDispatch>{};
}

DISPID Id(IDispatch& object, const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  auto* text = const_cast<LPOLESTR>(name);
  object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

HRESULT Put(IDispatch& object, DISPID id, VARIANT value, EXCEPINFO* error) {
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS params{&value, &named, 1, 1};
  return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &params, nullptr,
                       error, nullptr);
}

HRESULT Get(IDispatch& object, DISPID id, OwnedVariant& result, WORD flags) {
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &none, result.put(), nullptr,
                       nullptr);
}

HRESULT Let(IDispatch& object, std::string_view statement) {
  const auto words = scenario::SplitWords(statement);
  if (words.size() != 2) return E_INVALIDARG;
  const std::string install = wide::ToUtf8(g_install);
  OwnedVariant value;
  ToHostVariant(scenario::HostValue(words[1], install, install), value.get());
  return Put(object, Id(object, wide::FromUtf8(words[0].text).c_str()), *value.get());
}

long Call(IDispatch& object, const wchar_t* method) {
  OwnedVariant result;
  if (FAILED(Get(object, Id(object, method), result, DISPATCH_METHOD))) return -1;
  return result.get()->vt == VT_I4 ? result.get()->lVal : 0;
}

DWORD Advise(IDispatch& object, RecordingSink& sink) {
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
  const HWND form = ::FindWindowW(L"NVRandomForm", caption);
  return form != nullptr && ::IsWindowVisible(form) ? form : nullptr;
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
