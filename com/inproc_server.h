#pragma once

#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <cguid.h>
#include <ole2.h>
#include <olectl.h>

#include <atomic>
#include <mutex>
#include <string>

#include "platform/win32/class_registry.h"
#include "platform/win32/com_handles.h"
#include "platform/win32/module_file.h"
#include "platform/win32/wide_text.h"

// What an in-process COM server needs besides its classes: the count of what is alive in it, a
// class factory, IDispatch answered by the embedded type library, rich errors and the registry
// keys of a class. Header only: every server module that includes it has its own copy of the
// state below, as it has its own objects.
namespace nvrandom::com {

// Objects, class factory references and locks alive in this module.
inline std::atomic<long> g_server_references{0};
inline void AddModuleReference() {
  ++g_server_references;
}
inline void ReleaseModuleReference() {
  --g_server_references;
}

// This module: the one whose image holds this function.
inline HMODULE ServerModule() {
  return ModuleHolding(reinterpret_cast<const void*>(&ServerModule));
}

// The type library embedded in this module (resource 1). Loading it costs a search for the file
// and a parse each time, which every object would pay: it is kept until ReleaseServerTypeLib.
struct ServerTypeLibCache {
  std::mutex mutex;
  ComPtr<ITypeLib> library;
};
inline ServerTypeLibCache g_server_type_lib;

inline HRESULT ServerTypeLib(ITypeLib** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  std::lock_guard lock(g_server_type_lib.mutex);
  if (!g_server_type_lib.library) {
    const std::wstring path = ModuleFileName(ServerModule());
    const HRESULT hr = ::LoadTypeLibEx(path.c_str(), REGKIND_NONE, g_server_type_lib.library.put());
    if (FAILED(hr)) return hr;
  }
  *out = ComPtr<ITypeLib>(g_server_type_lib.library).detach();
  return S_OK;
}

inline HRESULT ServerTypeInfo(REFGUID guid, ITypeInfo** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  ComPtr<ITypeLib> library;
  const HRESULT hr = ServerTypeLib(library.put());
  return FAILED(hr) ? hr : library->GetTypeInfoOfGuid(guid, out);
}

// DllCanUnloadNow: S_OK (the type library let go) only when nothing of the module is alive.
inline HRESULT CanUnloadServer() {
  if (g_server_references != 0) return S_FALSE;
  std::lock_guard lock(g_server_type_lib.mutex);
  g_server_type_lib.library.reset();
  return S_OK;
}

// Leaves `description` for the caller in the thread's IErrorInfo, as raised by `source` through
// the interface `iid`.
inline void SetServerErrorInfo(const std::string& description, const wchar_t* source, REFIID iid) {
  ComPtr<ICreateErrorInfo> create;
  if (FAILED(::CreateErrorInfo(create.put()))) return;
  const std::wstring text = wide::FromUtf8(description);
  create->SetDescription(const_cast<LPOLESTR>(text.c_str()));
  create->SetSource(const_cast<LPOLESTR>(source));
  create->SetGUID(iid);
  ComPtr<IErrorInfo> info;
  if (SUCCEEDED(create.As(info))) ::SetErrorInfo(0, info.get());
}

// The class factory of a server's one class: `Create(iid, out)` makes an object for the caller.
// The factory is static; its references and locks keep the module loaded.
template <HRESULT (*Create)(REFIID, void**)>
class ClassFactory final : public IClassFactory {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    return QueryOneInterface<IClassFactory>(this, IID_IClassFactory, iid, out);
  }
  STDMETHODIMP_(ULONG) AddRef() override {
    AddModuleReference();
    return 2;
  }
  STDMETHODIMP_(ULONG) Release() override {
    ReleaseModuleReference();
    return 1;
  }
  STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return outer != nullptr ? CLASS_E_NOAGGREGATION : Create(iid, out);
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

// DllGetClassObject for a server of the one class `served`.
template <HRESULT (*Create)(REFIID, void**)>
HRESULT GetServerClassObject(REFCLSID asked, REFCLSID served, REFIID iid, void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (asked != served) return CLASS_E_CLASSNOTAVAILABLE;
  static ClassFactory<Create> factory;
  return factory.QueryInterface(iid, out);
}

// IDispatch of the dual interface `Dual`, answered by its type information (type_info_, which
// the object loads with ServerTypeInfo before it is handed out).
template <typename Dual>
class TypeInfoDispatch : public Dual {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    *out = ComPtr<ITypeInfo>(type_info_).detach();
    return S_OK;
  }
  STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    return ::DispGetIDsOfNames(type_info_.get(), names, count, ids);
  }
  STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* params, VARIANT* result,
                      EXCEPINFO* error, UINT* arg_error) override {
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (params == nullptr) return E_INVALIDARG;
    ::SetErrorInfo(0, nullptr);
    // A copy: the call may release the object.
    const ComPtr<ITypeInfo> type_info = type_info_;
    return type_info->Invoke(static_cast<Dual*>(this), id, flags, params, result, error, arg_error);
  }

 protected:
  ComPtr<ITypeInfo> type_info_;
};

// An object of the server with the dual interface `Dual` (`dual_iid`): IDispatch through the
// type library, rich errors, its references, and the module kept loaded while it lives.
// QueryInterface answers IUnknown, IDispatch, the dual interface, ISupportErrorInfo and whatever
// OtherInterface gives.
template <typename Dual, const IID& dual_iid>
class ServerObject : public TypeInfoDispatch<Dual>, public ISupportErrorInfo {
 public:
  ServerObject() { AddModuleReference(); }
  virtual ~ServerObject() { ReleaseModuleReference(); }
  ServerObject(const ServerObject&) = delete;
  ServerObject& operator=(const ServerObject&) = delete;

  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (out == nullptr) return E_POINTER;
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == dual_iid) {
      *out = static_cast<Dual*>(this);
    } else if (iid == IID_ISupportErrorInfo) {
      *out = static_cast<ISupportErrorInfo*>(this);
    } else {
      *out = OtherInterface(iid);
      if (*out == nullptr) return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) override {
    return iid == dual_iid ? S_OK : S_FALSE;
  }

  // Hands a new object (whose one reference goes here) to the caller as `iid`, once its type
  // information is loaded.
  static HRESULT HandOut(ServerObject* object, REFIID iid, void** out) {
    HRESULT hr = ServerTypeInfo(dual_iid, object->type_info_.put());
    if (SUCCEEDED(hr)) hr = object->QueryInterface(iid, out);
    object->Release();
    return hr;
  }

 protected:
  virtual void* OtherInterface(REFIID) { return nullptr; }

 private:
  std::atomic<ULONG> references_{1};
};

// The registry keys of a class served by this module, under <root>\Software\Classes: the class
// id with the module as its in-process server (apartment threaded), its ProgIDs, its type library.
struct ServerClass {
  const CLSID& clsid;
  const wchar_t* name;
  const wchar_t* prog_id;
  // The ProgID with its version; null when the class has none.
  const wchar_t* versioned_prog_id;
  // The type library's id; null when the class names none.
  const GUID* libid;
};

inline bool RegisterServerClass(HKEY root, const ServerClass& server) {
  const auto set = [root](const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    return registry::SetClassesValue(root, key, name, value);
  };
  const std::wstring clsid = registry::GuidText(server.clsid);
  const std::wstring key = L"CLSID\\" + clsid;
  const std::wstring prog_id = server.prog_id;
  const std::wstring current = server.versioned_prog_id ? server.versioned_prog_id : prog_id;
  bool ok = set(key, nullptr, server.name) &&
            set(key + L"\\InprocServer32", nullptr, ModuleFileName(ServerModule())) &&
            set(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
            set(key + L"\\ProgID", nullptr, current) && set(prog_id, nullptr, server.name) &&
            set(prog_id + L"\\CLSID", nullptr, clsid);
  if (ok && server.libid != nullptr) {
    ok = set(key + L"\\TypeLib", nullptr, registry::GuidText(*server.libid));
  }
  if (ok && server.versioned_prog_id != nullptr) {
    ok = set(key + L"\\VersionIndependentProgID", nullptr, prog_id) &&
         set(prog_id + L"\\CurVer", nullptr, current) && set(current, nullptr, server.name) &&
         set(current + L"\\CLSID", nullptr, clsid);
  }
  return ok;
}

inline void UnregisterServerClass(HKEY root, const ServerClass& server) {
  registry::DeleteClassesKey(root, L"CLSID\\" + registry::GuidText(server.clsid));
  registry::DeleteClassesKey(root, server.prog_id);
  if (server.versioned_prog_id != nullptr) {
    registry::DeleteClassesKey(root, server.versioned_prog_id);
  }
}

}  // namespace nvrandom::com
