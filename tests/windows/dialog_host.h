#pragma once

// A host of NVRandom.dll for the tests: the server loaded as COM loads it, objects driven through
// IDispatch by name, a recording event sink, and a message pump with a time limit in which the
// person's input is posted to the dialog's windows.
#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/com_handles.h"

namespace nvrandom::com::test {

// Events as the sink saw them: their DISPIDs in order ("1" CSBOK, "2" CurrentFieldTop, "3" Cancel,
// "4" ViewSampleCheque) and each CurrentFieldTop's Top. A dispatch-only sink answers IDispatch
// but not the events' interface, as a script host's does.
class RecordingSink final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* params, VARIANT*, EXCEPINFO*,
                      UINT*) override;

  bool dispatch_only = false;
  ULONG references = 1;
  std::string events;
  std::vector<short> tops;
};

class DialogHost {
 public:
  // Loads the server from the program's folder.
  DialogHost();
  ~DialogHost();
  DialogHost(const DialogHost&) = delete;
  DialogHost& operator=(const DialogHost&) = delete;

  bool loaded() const { return get_class_object_ != nullptr && can_unload_now_ != nullptr; }
  HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** out) const {
    return get_class_object_(clsid, iid, out);
  }
  HRESULT CanUnloadNow() const { return can_unload_now_(); }

  // A new object; with a sample biller's name, the host settings and that biller set (the
  // demo's samples).
  ComPtr<IDispatch> Create(std::string_view sample = {});

  // Runs this thread's messages until `done` holds or `milliseconds` pass; false on time-out.
  // Message boxes that open meanwhile are answered with their default button and recorded.
  bool PumpUntil(const std::function<bool()>& done, DWORD milliseconds = 5000);
  // While a modal loop of the server runs (inside a call): `action` is tried every few
  // milliseconds from a timer until it returns true. After 10 s the thread's dialogs are closed
  // and the failure is recorded with the message boxes.
  void WhileModal(std::function<bool()> action);

  // The texts of the message boxes answered so far (and of modal actions that gave up).
  const std::vector<std::wstring>& message_boxes() const;

 private:
  HMODULE module_ = nullptr;
  HRESULT(WINAPI* get_class_object_)(REFCLSID, REFIID, void**) = nullptr;
  HRESULT(WINAPI* can_unload_now_)() = nullptr;
  UINT_PTR timer_ = 0;
};

// IDispatch by name, as a late-bound host calls it.
DISPID Id(IDispatch& object, const wchar_t* name);
HRESULT Put(IDispatch& object, DISPID id, VARIANT value, EXCEPINFO* error = nullptr);
// A property's value, or with DISPATCH_METHOD a method's result; no arguments.
HRESULT Get(IDispatch& object, DISPID id, OwnedVariant& result, WORD flags = DISPATCH_PROPERTYGET);
// A property set as a scenario file's `let` writes it: "PayeeName \"ACME\"", "FormStyle 2".
HRESULT Let(IDispatch& object, std::string_view statement);
// Calls a method without arguments; its Long result, or the failed HRESULT as -1.
long Call(IDispatch& object, const wchar_t* method);
// Advises `sink` on the object's event connection point; the cookie (0 on failure).
DWORD Advise(IDispatch& object, RecordingSink& sink);

// The installation folder the tests give DLLPath (set from the command line by main).
extern std::wstring g_install;
// Where screenshots go (empty: no screenshots are taken).
extern std::wstring g_screenshots;

// A shown control of the dialog, found as a person finds it: by its caption as it reads (access
// key marks left out).
HWND FindControl(HWND form, const wchar_t* caption);
// A shown top-level form window with that caption (nullptr when none).
HWND FindForm(const wchar_t* caption);
// Posts a key's press and release to `target`, as the keyboard would: the message loop's
// TranslateMessage makes the character the key types.
void PostKey(HWND target, WPARAM virtual_key);
std::wstring WindowText(HWND hwnd);

// A test as a host of NVRandom.dll: COM on the thread and the server loaded; a message box that
// came up and was answered for the person fails the test.
class HostTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(apartment_.usable());
    ASSERT_TRUE(host_.loaded());
  }
  void TearDown() override { EXPECT_TRUE(host_.message_boxes().empty()); }

  ApartmentScope apartment_;
  DialogHost host_;
};

}  // namespace nvrandom::com::test
