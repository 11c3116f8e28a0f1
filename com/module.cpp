// The in-process server's entry points: class object, unloading, per-user registration.
#include <windows.h>
// Defines the type library's GUIDs in this one file.
#include <initguid.h>
// After initguid.h.
#include "com/com_ids.h"

#include <olectl.h>

#include <atomic>
#include <mutex>
#include <string>

#include "com/cls_random_object.h"
#include "com/com_error.h"
#include "platform/win32/class_registry.h"
#include "platform/win32/com_handles.h"
#include "platform/win32/module_file.h"
#include "win32_integration.h"

namespace nvrandom::com {

namespace {

using registry::GuidText;

HMODULE g_module = nullptr;
std::atomic<long> g_references{0};

// The embedded type library, loaded by the first object and kept until the module may unload.
struct TypeLibraryCache {
  std::mutex mutex;
  ComPtr<ITypeLib> library;
};
TypeLibraryCache g_type_library;

std::wstring ModulePath() {
  return ModuleFileName(g_module);
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

// Per user: no administrator rights needed.
bool SetKey(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  return registry::SetClassesValue(HKEY_CURRENT_USER, key, name, value);
}

void DeleteKey(const std::wstring& key) {
  registry::DeleteClassesKey(HKEY_CURRENT_USER, key);
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
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  // Loading it costs a search for the file and a parse each time: every object would pay that.
  std::lock_guard lock(g_type_library.mutex);
  if (!g_type_library.library) {
    const std::wstring path = ModulePath();
    const HRESULT hr = ::LoadTypeLibEx(path.c_str(), REGKIND_NONE, g_type_library.library.put());
    if (FAILED(hr)) return hr;
  }
  *out = ComPtr<ITypeLib>(g_type_library.library).detach();
  return S_OK;
}

void ReleaseModuleTypeLib() {
  std::lock_guard lock(g_type_library.mutex);
  g_type_library.library.reset();
}

HRESULT ModuleTypeInfo(REFGUID guid, ITypeInfo** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
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
  if (ModuleReferences() != 0) return S_FALSE;
  ReleaseModuleTypeLib();
  return S_OK;
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
