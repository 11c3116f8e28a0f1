// A C++ client of NVRandom.dll, loaded as COM loads it: the class factory and unloading, IDispatch
// by name and by id with bad input, errors as EXCEPINFO, connection points.
#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <ocidl.h>
#include <olectl.h>
// Defines the type library's GUIDs for this program.
#include <initguid.h>

#include <gtest/gtest.h>

#include <string>

#include "NVRandom_h.h"
#include "platform/win32/com_handles.h"

namespace nvrandom::com {
namespace {

const CLSID& kClsid = CLSID_ClsRandom;
const IID& kEvents = DIID___ClsRandom;

using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
using CanUnloadNow = HRESULT(WINAPI*)();

class ComClient : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(apartment_.usable());
    module_ = ::LoadLibraryW(L"NVRandom.dll");
    ASSERT_NE(module_, nullptr);
    get_class_object_ = reinterpret_cast<GetClassObject>(
        reinterpret_cast<void*>(::GetProcAddress(module_, "DllGetClassObject")));
    can_unload_now_ = reinterpret_cast<CanUnloadNow>(
        reinterpret_cast<void*>(::GetProcAddress(module_, "DllCanUnloadNow")));
    ASSERT_NE(get_class_object_, nullptr);
    ASSERT_NE(can_unload_now_, nullptr);
  }
  void TearDown() override {
    if (module_ != nullptr) ::FreeLibrary(module_);
  }

  ComPtr<IDispatch> Create() {
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(get_class_object_(kClsid, IID_IClassFactory, factory.put_void()), S_OK);
    ComPtr<IDispatch> object;
    if (factory) {
      EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.put_void()), S_OK);
    }
    return object;
  }

  static DISPID Id(IDispatch& object, const wchar_t* name) {
    DISPID id = DISPID_UNKNOWN;
    auto* text = const_cast<LPOLESTR>(name);
    EXPECT_EQ(object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id), S_OK) << name;
    return id;
  }

  static HRESULT Put(IDispatch& object, DISPID id, VARIANT value, EXCEPINFO* error = nullptr) {
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS params{&value, &named, 1, 1};
    return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &params, nullptr,
                         error, nullptr);
  }

  static HRESULT Get(IDispatch& object, DISPID id, OwnedVariant& result) {
    DISPPARAMS none{nullptr, nullptr, 0, 0};
    return object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                         result.put(), nullptr, nullptr);
  }

  ApartmentScope apartment_;
  HMODULE module_ = nullptr;
  GetClassObject get_class_object_ = nullptr;
  CanUnloadNow can_unload_now_ = nullptr;
};

TEST_F(ComClient, UnloadsOnlyWithNoObjectOrLockAlive) {
  EXPECT_EQ(can_unload_now_(), S_OK);
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(get_class_object_(kClsid, IID_IClassFactory, factory.put_void()), S_OK);
  EXPECT_EQ(can_unload_now_(), S_FALSE);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  ComPtr<IDispatch> object;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.put_void()), S_OK);
  factory.reset();
  EXPECT_EQ(can_unload_now_(), S_FALSE);  // the object and the lock
  object.reset();
  EXPECT_EQ(can_unload_now_(), S_FALSE);  // the lock
  ASSERT_EQ(get_class_object_(kClsid, IID_IClassFactory, factory.put_void()), S_OK);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  factory.reset();
  EXPECT_EQ(can_unload_now_(), S_OK);

  ComPtr<IUnknown> none;
  EXPECT_EQ(get_class_object_(IID_IDispatch, IID_IClassFactory, none.put_void()),
            CLASS_E_CLASSNOTAVAILABLE);
  ASSERT_EQ(get_class_object_(kClsid, IID_IClassFactory, factory.put_void()), S_OK);
  EXPECT_EQ(factory->CreateInstance(factory.get(), IID_IUnknown, none.put_void()),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, none.put_void()), E_NOINTERFACE);
  factory.reset();
  EXPECT_EQ(can_unload_now_(), S_OK);
}

TEST_F(ComClient, PropertiesByNameKeepTheTableOrderAndConvertTheirValues) {
  ComPtr<IDispatch> object = Create();
  ASSERT_TRUE(object);
  EXPECT_EQ(Id(*object, L"FormStyle"), 1);
  EXPECT_EQ(Id(*object, L"ShowForm"), 3);
  EXPECT_EQ(Id(*object, L"payeename"), 7);  // names ignore case
  EXPECT_EQ(Id(*object, L"UseAcctvfy"), 68);

  const DISPID name = Id(*object, L"PayeeName");
  const std::wstring long_text(1 << 20, L'x');
  Bstr megabyte(long_text);
  struct Row {
    const char* what;
    VARIANT value;
    HRESULT expected;
    std::wstring read_back;
  };
  VARIANT text{};
  text.vt = VT_BSTR;
  text.bstrVal = megabyte.get();
  VARIANT null_bstr{};
  null_bstr.vt = VT_BSTR;
  VARIANT empty{};
  VARIANT null{};
  null.vt = VT_NULL;
  VARIANT number{};
  number.vt = VT_I4;
  number.lVal = 42;
  const Row rows[] = {
      {"1 MiB text", text, S_OK, long_text},
      {"null BSTR", null_bstr, S_OK, L""},
      {"VT_EMPTY", empty, S_OK, L""},
      {"number", number, S_OK, L"42"},
      {"VT_NULL", null, DISP_E_TYPEMISMATCH, L"42"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_EQ(Put(*object, name, row.value), row.expected);
    OwnedVariant result;
    ASSERT_EQ(Get(*object, name, result), S_OK);
    ASSERT_EQ(result.get()->vt, VT_BSTR);
    EXPECT_EQ(std::wstring(result.get()->bstrVal, ::SysStringLen(result.get()->bstrVal)),
              row.read_back);
  }
}

TEST_F(ComClient, BadCallsGetTheirOwnResult) {
  ComPtr<IDispatch> object = Create();
  ASSERT_TRUE(object);
  OwnedVariant result;
  DISPPARAMS none{nullptr, nullptr, 0, 0};
  EXPECT_EQ(object->Invoke(999, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                           result.put(), nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(object->Invoke(7, IID_IDispatch, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none,
                           result.put(), nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
  // A Let-only property cannot be read.
  EXPECT_EQ(Get(*object, Id(*object, L"DLLPath"), result), DISP_E_MEMBERNOTFOUND);
  // Two arguments for a property put; an argument for a method without any.
  VARIANT two[2] = {};
  two[0].vt = two[1].vt = VT_I2;
  DISPID named = DISPID_PROPERTYPUT;
  DISPPARAMS too_many{two, &named, 2, 1};
  EXPECT_EQ(object->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &too_many,
                           nullptr, nullptr, nullptr),
            DISP_E_BADPARAMCOUNT);
  DISPPARAMS one_positional{two, nullptr, 1, 0};
  EXPECT_EQ(object->Invoke(35, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &one_positional,
                           nullptr, nullptr, nullptr),
            DISP_E_BADPARAMCOUNT);
  // Named arguments: only a property put's value may be named, and only as such.
  DISPID wrong_name = 5;
  DISPPARAMS named_value{two, &wrong_name, 1, 1};
  EXPECT_EQ(object->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &named_value,
                           nullptr, nullptr, nullptr),
            DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(object->Invoke(3, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &named_value, nullptr,
                           nullptr, nullptr),
            DISP_E_NONAMEDARGS);
  auto* unknown_name = const_cast<LPOLESTR>(L"NoSuchMember");
  DISPID id = 0;
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &unknown_name, 1, LOCALE_USER_DEFAULT, &id),
            DISP_E_UNKNOWNNAME);
}

TEST_F(ComClient, RunTimeErrorsReachTheHostWithTheirNumberAndDescription) {
  ComPtr<IDispatch> object = Create();
  ASSERT_TRUE(object);
  // A 2 x 30 table: row 21 is past the province table.
  SAFEARRAYBOUND bounds[2] = {{2, 0}, {30, 0}};
  SafeArray table(::SafeArrayCreate(VT_BSTR, 2, bounds));
  VARIANT value{};
  value.vt = VT_ARRAY | VT_BSTR;
  value.parray = table.get();
  EXCEPINFO error{};
  EXPECT_EQ(Put(*object, Id(*object, L"Prov_areacode"), value, &error), DISP_E_EXCEPTION);
  EXPECT_EQ(error.scode, MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 9));
  EXPECT_STREQ(error.bstrDescription, L"Subscript out of range");
  ::SysFreeString(error.bstrSource);
  ::SysFreeString(error.bstrDescription);
  ::SysFreeString(error.bstrHelpFile);

  ComPtr<ISupportErrorInfo> support;
  ASSERT_EQ(object.As(support), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID__ClsRandom), S_OK);
}

TEST_F(ComClient, ArraysOfTextsOrVariantsWithAnyBounds) {
  ComPtr<IDispatch> object = Create();
  ASSERT_TRUE(object);
  const DISPID list = Id(*object, L"IPCurrencyList");
  SAFEARRAYBOUND bound{2, 5};  // 5 To 6
  for (const VARTYPE element : {VT_BSTR, VT_VARIANT}) {
    SafeArray array(::SafeArrayCreate(element, 1, &bound));
    VARIANT by_value{};
    by_value.vt = static_cast<VARTYPE>(VT_ARRAY | element);
    by_value.parray = array.get();
    EXPECT_EQ(Put(*object, list, by_value), S_OK);
    SAFEARRAY* pointer = array.get();
    VARIANT by_reference{};
    by_reference.vt = static_cast<VARTYPE>(VT_BYREF | VT_ARRAY | element);
    by_reference.pparray = &pointer;
    EXPECT_EQ(Put(*object, list, by_reference), S_OK);
  }
  SafeArray numbers(::SafeArrayCreate(VT_I4, 1, &bound));
  VARIANT wrong{};
  wrong.vt = VT_ARRAY | VT_I4;
  wrong.parray = numbers.get();
  EXCEPINFO error{};
  EXPECT_EQ(Put(*object, list, wrong, &error), DISP_E_EXCEPTION);
  EXPECT_EQ(error.scode, MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 13));
  ::SysFreeString(error.bstrSource);
  ::SysFreeString(error.bstrDescription);
  ::SysFreeString(error.bstrHelpFile);
}

// A sink that answers IDispatch only, as a script host's does.
class DispatchOnlySink final : public IDispatch {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** out) override {
    if (iid == IID_IUnknown || iid == IID_IDispatch) {
      *out = this;
      AddRef();
      return S_OK;
    }
    *out = nullptr;
    return E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                      UINT*) override {
    calls += std::to_string(id);
    return S_OK;
  }
  ULONG references = 1;
  std::string calls;
};

TEST_F(ComClient, ConnectionPointsTakeDispatchOnlySinksAndRefuseStaleCookies) {
  ComPtr<IDispatch> object = Create();
  ASSERT_TRUE(object);
  ComPtr<IConnectionPointContainer> container;
  ASSERT_EQ(object.As(container), S_OK);
  ComPtr<IConnectionPoint> point;
  EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, point.put()), CONNECT_E_NOCONNECTION);
  ASSERT_EQ(container->FindConnectionPoint(kEvents, point.put()), S_OK);
  IID iid{};
  EXPECT_EQ(point->GetConnectionInterface(&iid), S_OK);
  EXPECT_EQ(iid, kEvents);

  ComPtr<IProvideClassInfo2> info;
  ASSERT_EQ(object.As(info), S_OK);
  GUID source{};
  EXPECT_EQ(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source), S_OK);
  EXPECT_EQ(source, kEvents);

  DispatchOnlySink sink;
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
  EXPECT_NE(cookie, 0u);
  EXPECT_GT(sink.references, 1u);
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(sink.references, 1u);
  EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point->Unadvise(0), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point->Unadvise(12345), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point->Advise(nullptr, &cookie), E_POINTER);
}

// Enumerators walk a snapshot: Next/Skip answer S_FALSE past the end, a clone keeps its place,
// and every item handed out holds a reference for the caller.
TEST_F(ComClient, ConnectionsAndPointsAreEnumeratedFromASnapshot) {
  ComPtr<IDispatch> object = Create();
  ASSERT_TRUE(object);
  ComPtr<IConnectionPointContainer> container;
  ASSERT_EQ(object.As(container), S_OK);
  EXPECT_EQ(container->EnumConnectionPoints(nullptr), E_POINTER);
  ComPtr<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.put()), S_OK);
  IConnectionPoint* fetched_points[2] = {};
  ULONG fetched = 9;
  EXPECT_EQ(points->Next(2, fetched_points, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 1u);
  ComPtr<IConnectionPoint> point;
  ASSERT_EQ(container->FindConnectionPoint(kEvents, point.put()), S_OK);
  EXPECT_EQ(fetched_points[0], point.get());
  fetched_points[0]->Release();
  EXPECT_EQ(points->Next(1, fetched_points, nullptr), S_FALSE);
  EXPECT_EQ(points->Reset(), S_OK);
  EXPECT_EQ(points->Skip(2), S_FALSE);

  DispatchOnlySink first, second, third;
  DWORD cookies[3] = {};
  ASSERT_EQ(point->Advise(&first, &cookies[0]), S_OK);
  ASSERT_EQ(point->Advise(&second, &cookies[1]), S_OK);
  ASSERT_EQ(point->Advise(&third, &cookies[2]), S_OK);
  ASSERT_EQ(point->Unadvise(cookies[1]), S_OK);
  ComPtr<IEnumConnections> connections;
  EXPECT_EQ(point->EnumConnections(nullptr), E_POINTER);
  ASSERT_EQ(point->EnumConnections(connections.put()), S_OK);
  // Unadvised after the snapshot: still enumerated, and kept alive by it.
  ASSERT_EQ(point->Unadvise(cookies[2]), S_OK);
  EXPECT_GT(third.references, 1u);

  CONNECTDATA data[3] = {};
  EXPECT_EQ(connections->Next(3, data, nullptr), E_INVALIDARG);
  EXPECT_EQ(connections->Next(1, nullptr, &fetched), E_POINTER);
  ASSERT_EQ(connections->Next(1, data, nullptr), S_OK);
  EXPECT_EQ(data[0].dwCookie, cookies[0]);
  data[0].pUnk->Release();
  ComPtr<IEnumConnections> clone;
  ASSERT_EQ(connections->Clone(clone.put()), S_OK);
  ASSERT_EQ(connections->Next(3, data, &fetched), S_FALSE);
  ASSERT_EQ(fetched, 1u);
  EXPECT_EQ(data[0].dwCookie, cookies[2]);
  EXPECT_EQ(data[0].pUnk, static_cast<IUnknown*>(&third));
  data[0].pUnk->Release();
  ASSERT_EQ(clone->Next(1, data, &fetched), S_OK);
  EXPECT_EQ(data[0].dwCookie, cookies[2]);
  data[0].pUnk->Release();
  EXPECT_EQ(clone->Skip(1), S_FALSE);
  EXPECT_EQ(clone->Reset(), S_OK);
  EXPECT_EQ(clone->Skip(2), S_OK);
  EXPECT_EQ(clone->Next(1, data, nullptr), S_FALSE);

  connections.reset();
  clone.reset();
  EXPECT_EQ(third.references, 1u);
  EXPECT_EQ(second.references, 1u);
  EXPECT_EQ(point->Unadvise(cookies[0]), S_OK);
}

}  // namespace
}  // namespace nvrandom::com
