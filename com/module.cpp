// The in-process server's entry points: class object, unloading, per-user registration.
#include <windows.h>
// Defines the type library's GUIDs in this one file.
#include <initguid.h>
// After initguid.h.
#include "com/com_ids.h"

#include <olectl.h>

#include <atomic>
#include <string>

#include "com/cls_random_object.h"
#include "com/com_error.h"
#include "platform/win32/com_handles.h"
#include "win32_integration.h"

namespace nvrandom::com {

namespace {

HMODULE g_module = nullptr;
std::atomic<long> g_references{0};

std::wstring ModulePath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD n = ::GetModuleFileNameW(g_module, path.data(), static_cast<DWORD>(path.size()));
    if (n == 0) return {};
    if (n < path.size()) {
      path.resize(n);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

std::wstring GuidText(REFGUID guid) {
  wchar_t text[40] = {};
  ::StringFromGUID2(guid, text, 40);
  return text;
}

class ClassFactory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (out == nullptr) return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IClassFactory) {
      *out = static_cast<IClassFactory*>(this);
      AddRef();
      return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
  }
  // Static: its references keep the module loaded.
  STDMETHODIMP_(ULONG) AddRef() override {
    AddModuleReference();
    return 2;
  }
  STDMETHODIMP_(ULONG) Release() override {
    ReleaseModuleReference();
    return 1;
  }
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
    // The Windows services and the Win32 view of this thread's dialogs, before its first object.
    const HRESULT composed = Guarded([] {
      win32::InstallWin32Composition({&AddModuleReference, &ReleaseModuleReference});
    });
    if (FAILED(composed)) return composed;
    return CreateClsRandomObject(outer, iid, out);
  }
  STDMETHODIMP LockServer(BOOL lock) override {
    if (lock) {
      AddModuleReference();
    } else {
      ReleaseModuleReference();
    }
    return S_OK;
  }
};

ClassFactory g_factory;

// The per-user type library registration of oleaut32 (Vista and later), which mingw-w64's headers
// do not declare.
template <typename Function>
Function OleAutomationEntry(const char* name) {
  const HMODULE oleaut = ::GetModuleHandleW(L"oleaut32.dll");
  return oleaut == nullptr
             ? nullptr
             : reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(oleaut, name)));
}
using RegisterForUser = HRESULT(WINAPI*)(ITypeLib*, OLECHAR*, OLECHAR*);
using UnregisterForUser = HRESULT(WINAPI*)(REFGUID, WORD, WORD, LCID, SYSKIND);

// HKCU\Software\Classes\<key>, default value `value` (and more named values).
bool SetKey(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  HKEY handle = nullptr;
  const std::wstring full = L"Software\\Classes\\" + key;
  if (::RegCreateKeyExW(HKEY_CURRENT_USER, full.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                        &handle, nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const LSTATUS status =
      ::RegSetValueExW(handle, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                       static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  ::RegCloseKey(handle);
  return status == ERROR_SUCCESS;
}

void DeleteKey(const std::wstring& key) {
  const std::wstring full = L"Software\\Classes\\" + key;
  ::RegDeleteTreeW(HKEY_CURRENT_USER, full.c_str());
}

}  // namespace

void AddModuleReference() {
  ++g_references;
}
void ReleaseModuleReference() {
  --g_references;
}
long ModuleReferences() {
  return g_references;
}

HRESULT ModuleTypeLib(ITypeLib** out) {
  const std::wstring path = ModulePath();
  return ::LoadTypeLibEx(path.c_str(), REGKIND_NONE, out);
}

HRESULT ModuleTypeInfo(REFGUID guid, ITypeInfo** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  // Loaded once per thread's first object: oleaut32 caches the library itself.
  ComPtr<ITypeLib> library;
  const HRESULT hr = ModuleTypeLib(library.put());
  if (FAILED(hr)) return hr;
  return library->GetTypeInfoOfGuid(guid, out);
}

}  // namespace nvrandom::com

using namespace nvrandom::com;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
  if (reason == DLL_PROCESS_ATTACH) {
    g_module = instance;
    ::DisableThreadLibraryCalls(instance);
  }
  // Unloaded by FreeLibrary (not at process exit): the window classes go with the module.
  if (reason == DLL_PROCESS_DETACH && reserved == nullptr) nvrandom::win32::ReleaseWin32Views();
  return TRUE;
}

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (clsid != CLSID_ClsRandom) return CLASS_E_CLASSNOTAVAILABLE;
  return g_factory.QueryInterface(iid, out);
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return ModuleReferences() == 0 ? S_OK : S_FALSE;
}

HRESULT STDAPICALLTYPE DllRegisterServer() {
  return Guarded([] {
           const std::wstring clsid = GuidText(CLSID_ClsRandom);
           const std::wstring libid = GuidText(LIBID_NVRandom);
           const std::wstring path = ModulePath();
           const std::wstring clsid_key = L"CLSID\\" + clsid;
           bool ok = SetKey(clsid_key, nullptr, kClassName) &&
                     SetKey(clsid_key + L"\\InprocServer32", nullptr, path) &&
                     SetKey(clsid_key + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
                     SetKey(clsid_key + L"\\ProgID", nullptr, kVersionedProgId) &&
                     SetKey(clsid_key + L"\\VersionIndependentProgID", nullptr, kProgId) &&
                     SetKey(clsid_key + L"\\TypeLib", nullptr, libid) &&
                     SetKey(kProgId, nullptr, kClassName) &&
                     SetKey(std::wstring(kProgId) + L"\\CLSID", nullptr, clsid) &&
                     SetKey(std::wstring(kProgId) + L"\\CurVer", nullptr, kVersionedProgId) &&
                     SetKey(kVersionedProgId, nullptr, kClassName) &&
                     SetKey(std::wstring(kVersionedProgId) + L"\\CLSID", nullptr, clsid);
           ComPtr<ITypeLib> library;
           if (ok && SUCCEEDED(ModuleTypeLib(library.put()))) {
             const auto register_for_user =
                 OleAutomationEntry<RegisterForUser>("RegisterTypeLibForUser");
             ok = register_for_user != nullptr &&
                  SUCCEEDED(register_for_user(library.get(), const_cast<LPOLESTR>(path.c_str()),
                                              nullptr));
           }
           if (!ok) throw std::runtime_error("registration failed");
         }) == S_OK
             ? S_OK
             : SELFREG_E_CLASS;
}

HRESULT STDAPICALLTYPE DllUnregisterServer() {
  return Guarded([] {
    DeleteKey(L"CLSID\\" + GuidText(CLSID_ClsRandom));
    DeleteKey(kProgId);
    DeleteKey(kVersionedProgId);
    const auto unregister_for_user =
        OleAutomationEntry<UnregisterForUser>("UnRegisterTypeLibForUser");
    if (unregister_for_user == nullptr) return;
    unregister_for_user(LIBID_NVRandom, 1, 0, LOCALE_NEUTRAL,
                        sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
  });
}

}  // extern "C"
