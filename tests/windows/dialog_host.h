#pragma once

// A host of NVRandom.dll for the tests: the server loaded as COM loads it, objects driven through
// IDispatch by name, a recording event sink, and a message pump with a time limit in which the
// person's input is posted to the dialog's windows. One file of the program defines the type
// library's GUIDs (initguid.h before NVRandom_h.h).
#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "NVRandom_h.h"
#include "platform/win32/com_handles.h"
#include "platform/win32/wide_text.h"
#include "sample_billers.h"
#include "scenario_line.h"
#include "scenario_values.h"

namespace nvrandom::com::test {

// The installation folder the tests give DLLPath (set from the command line by main).
inline std::wstring g_install;
// Where screenshots go (empty: no screenshots are taken).
inline std::wstring g_screenshots;
// The texts of the message boxes answered so far (and of modal actions that gave up).
inline std::vector<std::wstring> g_message_boxes;

inline std::wstring WindowText(HWND hwnd) {
  std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(hwnd)) + 1, L'\0');
  text.resize(
      static_cast<size_t>(::GetWindowTextW(hwnd, text.data(), static_cast<int>(text.size()))));
  return text;
}

// A shown control of the dialog, found as a person finds it: by its caption as it reads (access
// key marks left out).
inline HWND FindControl(HWND form, const wchar_t* caption) {
  struct Search {
    const wchar_t* caption;
    HWND found;
    static BOOL CALLBACK Match(HWND hwnd, LPARAM data) {
      auto* search = reinterpret_cast<Search*>(data);
      std::wstring text = WindowText(hwnd);
      std::erase(text, L'&');
      if (text != search->caption || !::IsWindowVisible(hwnd)) return TRUE;
      search->found = hwnd;
      return FALSE;
    }
  } search{caption, nullptr};
  ::EnumChildWindows(form, &Search::Match, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// A shown top-level form window with that caption (nullptr when none).
inline HWND FindForm(const wchar_t* caption) {
  const HWND form = ::FindWindowW(L"NVRandomForm", caption);
  return form != nullptr && ::IsWindowVisible(form) ? form : nullptr;
}

// Posts a key's press and release to `target`, as the keyboard would: the message loop's
// TranslateMessage makes the character the key types.
inline void PostKey(HWND target, WPARAM virtual_key) {
  const auto scan = static_cast<LPARAM>(::MapVirtualKeyW(static_cast<UINT>(virtual_key), 0));
  ::PostMessageW(target, WM_KEYDOWN, virtual_key, 1 | (scan << 16));
  ::PostMessageW(target, WM_KEYUP, virtual_key, static_cast<LPARAM>(0xC0000001) | (scan << 16));
}

// IDispatch by name, as a late-bound host calls it.
inline DISPID Id(IDispatch& object, const wchar_t* name) {
  DISPID id = DISPID_UNKNOWN;
  auto* text = const_cast<LPOLESTR>(name);
  object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
  return id;
}

inline HRESULT Put(IDispatch& object, DISPID id, VARIANT value, EXCEPINFO* error = nullptr) {
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS params{&value, &named, 1, 1};
  return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &params, nullptr,
                       error, nullptr);
}

// A property's value, or with DISPATCH_METHOD a method's result; no arguments.
inline HRESULT Get(IDispatch& object, DISPID id, OwnedVariant& result,
                   WORD flags = DISPATCH_PROPERTYGET) {
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &none, result.put(), nullptr,
                       nullptr);
}

// Calls a method without arguments; its Long result, or the failed HRESULT as -1.
inline long Call(IDispatch& object, const wchar_t* method) {
  OwnedVariant result;
  if (FAILED(Get(object, Id(object, method), result, DISPATCH_METHOD))) return -1;
  return result.get()->vt == VT_I4 ? result.get()->lVal : 0;
}

// A property set as a scenario file's `let` writes it: "PayeeName \"ACME\"", "FormStyle 2". The
// value goes as the VARIANT a host passes for it: a text, a number, or an array of texts.
inline HRESULT Let(IDispatch& object, std::string_view statement) {
  const auto words = scenario::SplitWords(statement);
  if (words.size() != 2) return E_INVALIDARG;
  const std::string install = wide::ToUtf8(g_install);
  const Variant host = scenario::HostValue(words[1], install, install);
  OwnedVariant value;
  VARIANT* out = value.get();
  if (const auto* text = std::get_if<std::string>(&host.value)) {
    out->vt = VT_BSTR;
    out->bstrVal = Bstr(wide::FromUtf8(*text)).detach();
  } else if (const auto* number = std::get_if<int32_t>(&host.value)) {
    out->vt = VT_I4;
    out->lVal = *number;
  } else if (const auto* array = std::get_if<StringArray>(&host.value)) {
    const int dimensions = array->dimensions();
    SAFEARRAYBOUND bounds[2] = {};
    for (int d = 0; d < dimensions; ++d) {
      bounds[d] = {static_cast<ULONG>(array->UBound(d + 1) - array->LBound(d + 1) + 1),
                   array->LBound(d + 1)};
    }
    out->vt = VT_ARRAY | VT_BSTR;
    out->parray = ::SafeArrayCreate(VT_BSTR, static_cast<UINT>(dimensions), bounds);
    const int32_t last = dimensions == 2 ? array->UBound(2) : 0;
    for (LONG at[2] = {0, dimensions == 2 ? array->LBound(2) : 0}; at[1] <= last; ++at[1]) {
      for (at[0] = array->LBound(1); at[0] <= array->UBound(1); ++at[0]) {
        Bstr item(wide::FromUtf8(dimensions == 2 ? array->at(at[0], at[1]) : array->at(at[0])));
        ::SafeArrayPutElement(out->parray, at, item.get());
      }
    }
  }
  return Put(object, Id(object, wide::FromUtf8(words[0].text).c_str()), *out);
}

// Events as the sink saw them: their DISPIDs in order ("1" CSBOK, "2" CurrentFieldTop, "3" Cancel,
// "4" ViewSampleCheque) and each CurrentFieldTop's Top. A dispatch-only sink answers IDispatch
// but not the events' interface, as a script host's does.
class RecordingSink final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    const bool known =
        iid == IID_IUnknown || iid == IID_IDispatch || (iid == DIID___ClsRandom && !dispatch_only);
    *out = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    events += std::to_string(id);
    if (id == 2 && params != nullptr && params->cArgs == 1 &&
        params->rgvarg[0].vt == (VT_BYREF | VT_I2)) {
      tops.push_back(*params->rgvarg[0].piVal);
    }
    return S_OK;
  }

  bool dispatch_only = false;
  ULONG references = 1;
  std::string events;
  std::vector<short> tops;
};

// Advises `sink` on the object's event connection point; the cookie (0 on failure).
inline DWORD Advise(IDispatch& object, RecordingSink& sink) {
  ComPtr<IConnectionPointContainer> container;
  ComPtr<IConnectionPoint> point;
  DWORD cookie = 0;
  if (object.QueryInterface(IID_IConnectionPointContainer, container.put_void()) == S_OK &&
      container->FindConnectionPoint(DIID___ClsRandom, point.put()) == S_OK) {
    point->Advise(&sink, &cookie);
  }
  return cookie;
}

class DialogHost {
 public:
  // Loads the server from the program's folder.
  DialogHost() : module_(::LoadLibraryW(L"NVRandom.dll")) {
    if (module_ == nullptr) return;
    get_class_object_ = reinterpret_cast<decltype(get_class_object_)>(
        reinterpret_cast<void*>(::GetProcAddress(module_, "DllGetClassObject")));
    can_unload_now_ = reinterpret_cast<decltype(can_unload_now_)>(
        reinterpret_cast<void*>(::GetProcAddress(module_, "DllCanUnloadNow")));
    timer_ = ::SetTimer(nullptr, 0, 50, &Tick);
  }
  ~DialogHost() {
    if (timer_ != 0) ::KillTimer(nullptr, timer_);
    modal_action_ = nullptr;
    g_message_boxes.clear();
    if (module_ != nullptr) ::FreeLibrary(module_);
  }
  DialogHost(const DialogHost&) = delete;
  DialogHost& operator=(const DialogHost&) = delete;

  bool loaded() const { return get_class_object_ != nullptr && can_unload_now_ != nullptr; }
  HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** out) const {
    return get_class_object_(clsid, iid, out);
  }
  HRESULT CanUnloadNow() const { return can_unload_now_(); }

  // A new object; with a sample biller's name, the host settings and that biller set (the
  // demo's samples).
  ComPtr<IDispatch> Create(std::string_view sample = {}) {
    ComPtr<IClassFactory> factory;
    ComPtr<IDispatch> object;
    if (GetClassObject(CLSID_ClsRandom, IID_IClassFactory, factory.put_void()) != S_OK ||
        factory->CreateInstance(nullptr, IID_IDispatch, object.put_void()) != S_OK) {
      return {};
    }
    const bool set = sample.empty() || demo::LetSample(sample, [&](std::string_view line) {
                       return SUCCEEDED(Let(*object, line));
                     });
    return set ? object : ComPtr<IDispatch>{};
  }

  // Runs this thread's messages until `done` holds or `milliseconds` pass; false on time-out.
  // Message boxes that open meanwhile are answered with their default button and recorded.
  bool PumpUntil(const std::function<bool()>& done, DWORD milliseconds = 5000) {
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
  // While a modal loop of the server runs (inside a call): `action` is tried every few
  // milliseconds from a timer until it returns true. After 10 s the thread's dialogs are closed
  // and the failure is recorded with the message boxes.
  void WhileModal(std::function<bool()> action) {
    modal_action_ = std::move(action);
    modal_deadline_ = ::GetTickCount() + 10000;
  }

 private:
  static bool HasClass(HWND hwnd, std::wstring_view name) {
    wchar_t window_class[32] = {};
    ::GetClassNameW(hwnd, window_class, 32);
    return name == window_class;
  }
  // Answers the message boxes of this thread with their default button, recording their texts:
  // a check that fails in a test shows its message instead of waiting for a person.
  static BOOL CALLBACK AnswerMessageBox(HWND hwnd, LPARAM) {
    if (!HasClass(hwnd, L"#32770") || !::IsWindowVisible(hwnd)) return TRUE;
    constexpr int kMessageText = 0xFFFF;
    g_message_boxes.push_back(WindowText(::GetDlgItem(hwnd, kMessageText)));
    ::PostMessageW(hwnd, WM_COMMAND, IDOK, 0);
    ::PostMessageW(hwnd, WM_CLOSE, 0, 0);
    return TRUE;
  }
  static BOOL CALLBACK CloseForm(HWND hwnd, LPARAM) {
    if (HasClass(hwnd, L"NVRandomForm")) ::PostMessageW(hwnd, WM_CLOSE, 0, 0);
    return TRUE;
  }
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    ::EnumThreadWindows(::GetCurrentThreadId(), &AnswerMessageBox, 0);
    // An action may pump messages itself: it is not run again from inside itself.
    static bool acting = false;
    if (acting || !modal_action_) return;
    acting = true;
    if (modal_action_()) {
      modal_action_ = nullptr;
    } else if (static_cast<LONG>(::GetTickCount() - modal_deadline_) > 0) {
      // Never waits for ever: the dialogs of the thread are closed and the test fails.
      modal_action_ = nullptr;
      g_message_boxes.push_back(L"the modal action found no dialog to act on");
      ::EnumThreadWindows(::GetCurrentThreadId(), &CloseForm, 0);
    }
    acting = false;
  }

  static inline std::function<bool()> modal_action_;
  static inline DWORD modal_deadline_ = 0;
  HMODULE module_ = nullptr;
  HRESULT(WINAPI* get_class_object_)(REFCLSID, REFIID, void**) = nullptr;
  HRESULT(WINAPI* can_unload_now_)() = nullptr;
  UINT_PTR timer_ = 0;
};

// A test as a host of NVRandom.dll: COM on the thread and the server loaded; a message box that
// came up and was answered for the person fails the test.
class HostTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(apartment_.usable());
    ASSERT_TRUE(host_.loaded());
  }
  void TearDown() override { EXPECT_TRUE(g_message_boxes.empty()); }

  ApartmentScope apartment_;
  DialogHost host_;
};

}  // namespace nvrandom::com::test
