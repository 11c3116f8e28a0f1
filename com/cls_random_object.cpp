// The COM class ClsRandom: the dual interface _ClsRandom over the C++ ClsRandom, its IDispatch
// through the embedded type library, the events through connection points, class information
// and rich errors.
#include "com/cls_random_object.h"

#include <ocidl.h>
#include <olectl.h>

#include <atomic>
#include <memory>
#include <new>
#include <vector>

#include "api/cls_random.h"
#include "com/com_error.h"
#include "com/com_ids.h"
#include "com/com_values.h"
#include "com/inproc_server.h"
#include "com/snapshot_enumerator.h"
#include "platform/win32/com_handles.h"

namespace nvrandom::com {

namespace {

// The sinks of the outgoing interface, called through IDispatch::Invoke (a sink need answer
// nothing else). A cookie is its slot + 1; a freed slot stays empty.
class EventPoint final : public IConnectionPoint, public ClsRandomEvents {
 public:
  explicit EventPoint(IConnectionPointContainer& owner) : owner_(owner) {}

  // IUnknown: lives as long as its container.
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    return QueryOneInterface<IConnectionPoint>(this, IID_IConnectionPoint, iid, out);
  }
  STDMETHODIMP_(ULONG) AddRef() override { return owner_.AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return owner_.Release(); }

  STDMETHODIMP GetConnectionInterface(IID* iid) override {
    if (iid == nullptr) return E_POINTER;
    *iid = DIID___ClsRandom;
    return S_OK;
  }
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** out) override {
    if (out == nullptr) return E_POINTER;
    owner_.AddRef();
    *out = &owner_;
    return S_OK;
  }
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override {
    if (cookie != nullptr) *cookie = 0;
    if (sink == nullptr || cookie == nullptr) return E_POINTER;
    ComPtr<IDispatch> dispatch;
    if (FAILED(sink->QueryInterface(DIID___ClsRandom, dispatch.put_void())) &&
        FAILED(sink->QueryInterface(IID_IDispatch, dispatch.put_void()))) {
      return CONNECT_E_CANNOTCONNECT;
    }
    return Guarded([&] {
      sinks_.push_back(std::move(dispatch));
      *cookie = static_cast<DWORD>(sinks_.size());
    });
  }
  STDMETHODIMP Unadvise(DWORD cookie) override {
    if (cookie == 0 || cookie > sinks_.size() || !sinks_[cookie - 1]) {
      return CONNECT_E_NOCONNECTION;
    }
    sinks_[cookie - 1].reset();
    return S_OK;
  }
  STDMETHODIMP EnumConnections(IEnumConnections** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return Guarded([&] {
      auto connections = std::make_shared<std::vector<HeldConnection>>();
      for (size_t slot = 0; slot < sinks_.size(); ++slot) {
        if (!sinks_[slot]) continue;
        ComPtr<IUnknown> sink(static_cast<IUnknown*>(sinks_[slot].get()));
        connections->push_back(HeldConnection{std::move(sink), static_cast<DWORD>(slot + 1)});
      }
      const HRESULT hr = ConnectionEnumerator::Create(std::move(connections), 0, out);
      if (FAILED(hr)) throw std::bad_alloc();
    });
  }

  // ClsRandomEvents: the dialog's events, relayed to every sink in turn.
  void CSBOK() override { Raise(1, nullptr); }
  void CurrentFieldTop(int16_t Top) override {
    VARIANT top;
    top.vt = VT_BYREF | VT_I2;
    short value = Top;
    top.piVal = &value;
    Raise(2, &top);
  }
  void Cancel() override { Raise(3, nullptr); }
  void ViewSampleCheque() override { Raise(4, nullptr); }

 private:
  void Raise(DISPID id, VARIANT* argument) {
    // A copy: a sink may unadvise while it is called.
    const std::vector<ComPtr<IDispatch>> sinks = sinks_;
    for (const auto& sink : sinks) {
      if (!sink) continue;
      DISPPARAMS params{argument, nullptr, argument != nullptr ? 1u : 0u, 0};
      sink->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, nullptr, nullptr,
                   nullptr);
    }
  }

  IConnectionPointContainer& owner_;
  std::vector<ComPtr<IDispatch>> sinks_;
};

bool IsMember(DISPID id) {
  switch (id) {
#define NVRANDOM_COM_CASE_PROPERTY(dispid, name, type, access, trace) case dispid:
#define NVRANDOM_COM_CASE_METHOD(dispid, name, result) case dispid:
    NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_COM_CASE_PROPERTY, NVRANDOM_COM_CASE_METHOD)
#undef NVRANDOM_COM_CASE_METHOD
#undef NVRANDOM_COM_CASE_PROPERTY
    return true;
    default:
      return false;
  }
}

// Every member takes one value (a property put) or none: the type library's Invoke does not
// check the count itself.
HRESULT CheckArguments(DISPID id, WORD flags, const DISPPARAMS& params) {
  if (!IsMember(id)) return DISP_E_MEMBERNOTFOUND;
  if (params.cArgs > 0 && params.rgvarg == nullptr) return E_INVALIDARG;
  if (params.cNamedArgs > 0 && params.rgdispidNamedArgs == nullptr) return E_INVALIDARG;
  if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) {
    if (params.cArgs != 1) return DISP_E_BADPARAMCOUNT;
    if (params.cNamedArgs != 1 || params.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT) {
      return DISP_E_PARAMNOTFOUND;
    }
    return S_OK;
  }
  if (params.cNamedArgs > 0) return DISP_E_NONAMEDARGS;
  if (params.cArgs > 0) return DISP_E_BADPARAMCOUNT;
  return S_OK;
}

class ClsRandomObject final : public ServerObject<_ClsRandom, IID__ClsRandom>,
                              public IProvideClassInfo2,
                              public IConnectionPointContainer {
 public:
  ClsRandomObject() : events_(*this) { cls_.Advise(events_); }

  // IUnknown, the one of every interface.
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    return ServerObject::QueryInterface(iid, out);
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ServerObject::AddRef(); }
  STDMETHODIMP_(ULONG) Release() override { return ServerObject::Release(); }

  // IDispatch, through the type library, with the arguments checked first.
  STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* params,
                      VARIANT* result, EXCEPINFO* error, UINT* arg_error) override {
    if (iid == IID_NULL && params != nullptr) {
      if (const HRESULT hr = CheckArguments(id, flags, *params); FAILED(hr)) return hr;
    }
    const KeepAlive keep(*this);
    return TypeInfoDispatch::Invoke(id, iid, locale, flags, params, result, error, arg_error);
  }

  // _ClsRandom, generated from the member table.
#define NVRANDOM_COM_IN_Integer short
#define NVRANDOM_COM_IN_Flag short
#define NVRANDOM_COM_IN_String BSTR
#define NVRANDOM_COM_IN_Global BSTR
#define NVRANDOM_COM_IN_Variant VARIANT
#define NVRANDOM_COM_LET_Integer(name) cls_.name(value)
#define NVRANDOM_COM_LET_Flag(name) cls_.name(value)
#define NVRANDOM_COM_LET_String(name) cls_.name(FromBstr(value))
#define NVRANDOM_COM_LET_Global(name) cls_.name(FromBstr(value))
#define NVRANDOM_COM_LET_Variant(name) cls_.name(FromVariant(value))
#define NVRANDOM_COM_GET_Integer(name) *value = cls_.name()
#define NVRANDOM_COM_GET_Flag(name) *value = cls_.name()
#define NVRANDOM_COM_GET_String(name) *value = ToBstr(cls_.name())
#define NVRANDOM_COM_GETTER_Let(name, type)
#define NVRANDOM_COM_GETTER_LetGet(name, type)                      \
  STDMETHODIMP get_##name(NVRANDOM_COM_IN_##type* value) override { \
    if (value == nullptr) return E_POINTER;                         \
    return Guarded([&] { NVRANDOM_COM_GET_##type(name); });         \
  }
#define NVRANDOM_COM_PROPERTY(dispid, name, type, access, trace)   \
  STDMETHODIMP put_##name(NVRANDOM_COM_IN_##type value) override { \
    return Guarded([&] { NVRANDOM_COM_LET_##type(name); });        \
  }                                                                \
  NVRANDOM_COM_GETTER_##access(name, type)
#define NVRANDOM_COM_METHOD_Long(name)              \
  STDMETHODIMP name(long* result) override {        \
    if (result == nullptr) return E_POINTER;        \
    const KeepAlive keep(*this);                    \
    return Guarded([&] { *result = cls_.name(); }); \
  }
#define NVRANDOM_COM_METHOD_Void(name)    \
  STDMETHODIMP name() override {          \
    const KeepAlive keep(*this);          \
    return Guarded([&] { cls_.name(); }); \
  }
#define NVRANDOM_COM_METHOD(dispid, name, result) NVRANDOM_COM_METHOD_##result(name)
  NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_COM_PROPERTY, NVRANDOM_COM_METHOD)

  // IProvideClassInfo2
  STDMETHODIMP GetClassInfo(ITypeInfo** out) override {
    return ServerTypeInfo(CLSID_ClsRandom, out);
  }
  STDMETHODIMP GetGUID(DWORD kind, GUID* guid) override {
    if (guid == nullptr) return E_POINTER;
    *guid = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
    *guid = DIID___ClsRandom;
    return S_OK;
  }

  // IConnectionPointContainer, with the one outgoing interface's point.
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return Guarded([&] {
      auto points = std::make_shared<std::vector<ComPtr<IConnectionPoint>>>();
      points->emplace_back(static_cast<IConnectionPoint*>(&events_));
      const HRESULT hr = ConnectionPointEnumerator::Create(std::move(points), 0, out);
      if (FAILED(hr)) throw std::bad_alloc();
    });
  }
  STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (iid != DIID___ClsRandom) return CONNECT_E_NOCONNECTION;
    events_.AddRef();
    *out = &events_;
    return S_OK;
  }

 private:
  // A method that shows a dialog runs a message loop, in which the host may release its last
  // reference: the object lives until the call has returned.
  class KeepAlive {
   public:
    explicit KeepAlive(ClsRandomObject& object) : object_(object) { object_.AddRef(); }
    ~KeepAlive() { object_.Release(); }
    KeepAlive(const KeepAlive&) = delete;
    KeepAlive& operator=(const KeepAlive&) = delete;

   private:
    ClsRandomObject& object_;
  };

  void* OtherInterface(REFIID iid) override {
    if (iid == IID_IProvideClassInfo || iid == IID_IProvideClassInfo2) {
      return static_cast<IProvideClassInfo2*>(this);
    }
    return iid == IID_IConnectionPointContainer ? static_cast<IConnectionPointContainer*>(this)
                                                : nullptr;
  }

  EventPoint events_;
  ClsRandom cls_;
};

}  // namespace

HRESULT CreateClsRandomObject(REFIID iid, void** out) {
  ClsRandomObject* object = nullptr;
  const HRESULT created = Guarded([&] { object = new ClsRandomObject(); });
  return FAILED(created) ? created : ClsRandomObject::HandOut(object, iid, out);
}

}  // namespace nvrandom::com
