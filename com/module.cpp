// The in-process server's entry points: class object, unloading, per-user registration.
#include <windows.h>
// Defines the type library's GUIDs in this one file.
#include <initguid.h>
// After initguid.h.
#include "com/com_ids.h"

#include <string>

#include "com/cls_random_object.h"
#include "com/com_error.h"
#include "com/inproc_server.h"
#include "win32_integration.h"

namespace nvrandom::com {

namespace {

// The Windows services and the Win32 view of this thread's dialogs, before its first object.
HRESULT CreateComposed(REFIID iid, void** out) {
  const HRESULT composed = Guarded([] {
    win32::InstallWin32Composition({&AddModuleReference, &ReleaseModuleReference});
  });
  return FAILED(composed) ? composed : CreateClsRandomObject(iid, out);
}

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

const ServerClass kServerClass{CLSID_ClsRandom, kClassName, kProgId, kVersionedProgId,
                               &LIBID_NVRandom};

}  // namespace

}  // namespace nvrandom::com

using namespace nvrandom::com;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID reserved) {
  if (reason == DLL_PROCESS_ATTACH) ::DisableThreadLibraryCalls(instance);
  // Unloaded by FreeLibrary (not at process exit): the window classes go with the module.
  if (reason == DLL_PROCESS_DETACH && reserved == nullptr) nvrandom::win32::ReleaseWin32Views();
  return TRUE;
}

HRESULT STDAPICALLTYPE DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
  return GetServerClassObject<&CreateComposed>(clsid, CLSID_ClsRandom, iid, out);
}

HRESULT STDAPICALLTYPE DllCanUnloadNow() {
  return CanUnloadServer();
}

// Per user: no administrator rights needed.
HRESULT STDAPICALLTYPE DllRegisterServer() {
  return Guarded([] {
           bool ok = RegisterServerClass(HKEY_CURRENT_USER, kServerClass);
           ComPtr<ITypeLib> library;
           if (ok && SUCCEEDED(ServerTypeLib(library.put()))) {
             const std::wstring path = nvrandom::ModuleFileName(ServerModule());
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
    UnregisterServerClass(HKEY_CURRENT_USER, kServerClass);
    const auto unregister_for_user =
        OleAutomationEntry<UnregisterForUser>("UnRegisterTypeLibForUser");
    if (unregister_for_user == nullptr) return;
    unregister_for_user(LIBID_NVRandom, 1, 0, LOCALE_NEUTRAL,
                        sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
  });
}

}  // extern "C"
