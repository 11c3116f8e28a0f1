// A C++ client of NVRandom.dll, loaded as COM loads it: the class factory and unloading, IDispatch
// by name and by id with bad input, errors as EXCEPINFO, connection points; and the decipher
// library's loader, where no host can look.
#include "dialog_host.h"

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include "api/class_members.h"
#include "platform/country_file_cipher.h"
#include "platform/win32/installed_country_decipher.h"

namespace nvrandom::com::test {
namespace {

const IID& kEvents = DIID___ClsRandom;

using ComClient = HostTest;

TEST_F(ComClient, UnloadsOnlyWithNoObjectOrLockAlive) {
  EXPECT_EQ(host_.CanUnloadNow(), S_OK);
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(host_.GetClassObject(CLSID_ClsRandom, IID_IClassFactory, factory.put_void()), S_OK);
  EXPECT_EQ(host_.CanUnloadNow(), S_FALSE);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  ComPtr<IDispatch> object;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.put_void()), S_OK);
  factory.reset();
  EXPECT_EQ(host_.CanUnloadNow(), S_FALSE);  // the object and the lock
  object.reset();
  EXPECT_EQ(host_.CanUnloadNow(), S_FALSE);  // the lock
  ASSERT_EQ(host_.GetClassObject(CLSID_ClsRandom, IID_IClassFactory, factory.put_void()), S_OK);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  factory.reset();
  EXPECT_EQ(host_.CanUnloadNow(), S_OK);

  ComPtr<IUnknown> none;
  EXPECT_EQ(host_.GetClassObject(IID_IDispatch, IID_IClassFactory, none.put_void()),
            CLASS_E_CLASSNOTAVAILABLE);
  ASSERT_EQ(host_.GetClassObject(CLSID_ClsRandom, IID_IClassFactory, factory.put_void()), S_OK);
  EXPECT_EQ(factory->CreateInstance(factory.get(), IID_IUnknown, none.put_void()),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, none.put_void()), E_NOINTERFACE);
  factory.reset();
  EXPECT_EQ(host_.CanUnloadNow(), S_OK);
}

// Every member of the table by its name has its DISPID, and every readable text property gives
// back a text outside ASCII as it was put; names ignore case.
TEST_F(ComClient, MembersByNameHaveTheirIdsAndTextsKeepTheirCharacters) {
  ComPtr<IDispatch> object = host_.Create();
  ASSERT_TRUE(object);
  struct Member {
    std::string name;
    DISPID id;
    bool readable_text;
  };
#define NVRANDOM_TEST_PROPERTY(dispid, name, type, access, trace) \
  {#name, dispid, std::string_view(#type #access) == "StringLetGet"},
#define NVRANDOM_TEST_METHOD(dispid, name, result) {#name, dispid, false},
  const Member members[] = {
      NVRANDOM_CLSRANDOM_MEMBERS(NVRANDOM_TEST_PROPERTY, NVRANDOM_TEST_METHOD)};
#undef NVRANDOM_TEST_METHOD
#undef NVRANDOM_TEST_PROPERTY
  for (const Member& member : members) {
    SCOPED_TRACE(member.name);
    ASSERT_EQ(Id(*object, wide::FromUtf8(member.name).c_str()), member.id);
    if (!member.readable_text) continue;
    const std::string text = member.name + " \u00e9\u4e2d";
    EXPECT_EQ(Let(*object, member.name + " \"" + text + "\""), S_OK);
    OwnedVariant result;
    ASSERT_EQ(Get(*object, member.id, result), S_OK);
    EXPECT_STREQ(result.get()->bstrVal, wide::FromUtf8(text).c_str());
  }
  EXPECT_EQ(Id(*object, L"payeename"), 7);
}

// The conversions of a put's VARIANT to a text property.
TEST_F(ComClient, TextPropertiesConvertTheirValues) {
  ComPtr<IDispatch> object = host_.Create();
  ASSERT_TRUE(object);
  const DISPID name = Id(*object, L"PayeeName");
  const std::wstring long_text(1 << 20, L'x');
  Bstr megabyte(long_text);
  const auto variant = [](VARTYPE vt, BSTR text = nullptr) {
    VARIANT value{};
    value.vt = vt;
    value.bstrVal = text;
    return value;
  };
  VARIANT number = variant(VT_I4);
  number.lVal = 42;
  struct Row {
    VARIANT value;
    HRESULT expected;
    std::wstring read_back;
  };
  for (const Row& row :
       {Row{variant(VT_BSTR, megabyte.get()), S_OK, long_text}, Row{variant(VT_BSTR), S_OK, L""},
        Row{number, S_OK, L"42"}, Row{variant(VT_NULL), DISP_E_TYPEMISMATCH, L"42"}}) {
    SCOPED_TRACE(row.value.vt);
    EXPECT_EQ(Put(*object, name, row.value), row.expected);
    OwnedVariant result;
    ASSERT_EQ(Get(*object, name, result), S_OK);
    ASSERT_EQ(result.get()->vt, VT_BSTR);
    EXPECT_EQ(std::wstring(result.get()->bstrVal, ::SysStringLen(result.get()->bstrVal)),
              row.read_back);
  }
}

TEST_F(ComClient, BadCallsGetTheirOwnResult) {
  ComPtr<IDispatch> object = host_.Create();
  ASSERT_TRUE(object);
  VARIANT two[2] = {};
  two[0].vt = two[1].vt = VT_I2;
  DISPID put = DISPID_PROPERTYPUT;
  DISPID wrong_name = 5;
  const DISPID let_only = Id(*object, L"DLLPath");
  Bstr abc(L"abc");
  VARIANT text{};
  text.vt = VT_BSTR;
  text.bstrVal = abc.get();
  struct Row {
    DISPID id;
    const IID& iid;
    WORD flags;
    DISPPARAMS params;
    HRESULT expected;
  };
  // No such member, a read of a Let-only property, two values for a put, an
  // argument for a method without any; only a put's value may be named, and only as such; a text
  // for an Integer, which the type library's conversion refuses.
  const Row rows[] = {
      {999, IID_NULL, DISPATCH_PROPERTYGET, {}, DISP_E_MEMBERNOTFOUND},
      {let_only, IID_NULL, DISPATCH_PROPERTYGET, {}, DISP_E_MEMBERNOTFOUND},
      {1, IID_NULL, DISPATCH_PROPERTYPUT, {two, &put, 2, 1}, DISP_E_BADPARAMCOUNT},
      {35, IID_NULL, DISPATCH_METHOD, {two, nullptr, 1, 0}, DISP_E_BADPARAMCOUNT},
      {1, IID_NULL, DISPATCH_PROPERTYPUT, {two, &wrong_name, 1, 1}, DISP_E_PARAMNOTFOUND},
      {3, IID_NULL, DISPATCH_METHOD, {two, &wrong_name, 1, 1}, DISP_E_NONAMEDARGS},
      {Id(*object, L"FormStyle"),
       IID_NULL,
       DISPATCH_PROPERTYPUT,
       {&text, &put, 1, 1},
       DISP_E_TYPEMISMATCH},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << "member " << row.id << ", flags " << row.flags);
    DISPPARAMS params = row.params;
    OwnedVariant result;
    EXPECT_EQ(object->Invoke(row.id, row.iid, LOCALE_USER_DEFAULT, row.flags, &params, result.put(),
                             nullptr, nullptr),
              row.expected);
  }
  auto* unknown_name = const_cast<LPOLESTR>(L"NoSuchMember");
  DISPID id = 0;
  EXPECT_EQ(object->GetIDsOfNames(IID_NULL, &unknown_name, 1, LOCALE_USER_DEFAULT, &id),
            DISP_E_UNKNOWNNAME);
}

// Arrays of texts with any bounds, by value and by reference (arrays of variants are the script
// host's); what a property cannot take is a run-time error, which reaches the host with its number
// and description.
TEST_F(ComClient, ArraysWithAnyBoundsAndRunTimeErrorsAsExcepInfo) {
  ComPtr<IDispatch> object = host_.Create();
  ASSERT_TRUE(object);
  const DISPID list = Id(*object, L"IPCurrencyList");
  SAFEARRAYBOUND bound{2, 5};  // 5 To 6
  SafeArray array(::SafeArrayCreate(VT_BSTR, 1, &bound));
  VARIANT by_value{};
  by_value.vt = VT_ARRAY | VT_BSTR;
  by_value.parray = array.get();
  EXPECT_EQ(Put(*object, list, by_value), S_OK);
  SAFEARRAY* pointer = array.get();
  VARIANT by_reference{};
  by_reference.vt = VT_BYREF | VT_ARRAY | VT_BSTR;
  by_reference.pparray = &pointer;
  EXPECT_EQ(Put(*object, list, by_reference), S_OK);
  // A 2 x 30 table: row 21 is past the province table. Numbers are no table of texts.
  SAFEARRAYBOUND bounds[2] = {{2, 0}, {30, 0}};
  SafeArray table(::SafeArrayCreate(VT_BSTR, 2, bounds));
  SafeArray numbers(::SafeArrayCreate(VT_I4, 1, &bound));
  VARIANT past{}, wrong{}, number{};
  past.vt = VT_ARRAY | VT_BSTR;
  past.parray = table.get();
  wrong.vt = VT_ARRAY | VT_I4;
  wrong.parray = numbers.get();
  number.vt = VT_I4;
  struct Row {
    const wchar_t* property;
    VARIANT value;
    int error;
    const wchar_t* description;
  };
  for (const Row& row : {Row{L"Prov_areacode", past, 9, L"Subscript out of range"},
                         Row{L"IPCurrencyList", wrong, 13, L"Type mismatch"},
                         Row{L"Prov_areacode", number, 13, L"Type mismatch"}}) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(row.property)));
    EXCEPINFO error{};
    EXPECT_EQ(Put(*object, Id(*object, row.property), row.value, &error), DISP_E_EXCEPTION);
    EXPECT_EQ(error.scode, MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, row.error));
    EXPECT_STREQ(error.bstrDescription, row.description);
    ::SysFreeString(error.bstrSource);
    ::SysFreeString(error.bstrDescription);
    ::SysFreeString(error.bstrHelpFile);
  }
  ComPtr<ISupportErrorInfo> support;
  ASSERT_EQ(object.As(support), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(IID__ClsRandom), S_OK);
}

// The events' one connection point takes dispatch-only sinks (as a script host's) and refuses
// stale cookies. Its enumerator walks a snapshot: Next/Skip answer S_FALSE past the end, a clone
// keeps its place, and every item handed out holds a reference for the caller. The connection
// points' enumerator is the same template.
TEST_F(ComClient, ConnectionPointTakesDispatchOnlySinksAndEnumeratesASnapshot) {
  ComPtr<IDispatch> object = host_.Create();
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

  RecordingSink sink;
  sink.dispatch_only = true;
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
  EXPECT_NE(cookie, 0u);
  EXPECT_GT(sink.references, 1u);
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(sink.references, 1u);
  EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point->Advise(nullptr, &cookie), E_POINTER);

  RecordingSink first, second, third;
  DWORD cookies[3] = {};
  ASSERT_EQ(point->Advise(&first, &cookies[0]), S_OK);
  ASSERT_EQ(point->Advise(&second, &cookies[1]), S_OK);
  ASSERT_EQ(point->Advise(&third, &cookies[2]), S_OK);
  ASSERT_EQ(point->Unadvise(cookies[1]), S_OK);
  ComPtr<IEnumConnections> connections;
  ASSERT_EQ(point->EnumConnections(connections.put()), S_OK);
  // Unadvised after the snapshot: still enumerated, and kept alive by it.
  ASSERT_EQ(point->Unadvise(cookies[2]), S_OK);
  EXPECT_GT(third.references, 1u);

  CONNECTDATA data[3] = {};
  ULONG fetched = 0;
  EXPECT_EQ(connections->Next(3, data, nullptr), E_INVALIDARG);
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

  connections.reset();
  clone.reset();
  EXPECT_EQ(third.references, 1u);
  EXPECT_EQ(second.references, 1u);
  EXPECT_EQ(point->Unadvise(cookies[0]), S_OK);
}

// The installation's decipher library as the Windows build loads it, where no host can look: it
// deciphers into a copy, read and removed at once instead of a stale one; a damaged, binary or
// empty country file is refused like a missing one. No copy is left behind. The
// installation folder's name has an Ω, which the Western code pages cannot hold.
TEST(InstalledDecipher, LibraryDeciphersIntoACopyRemovedAtOnceOrRefusesTheFile) {
  namespace fs = std::filesystem;
  const auto write = [](const fs::path& path, std::string_view data) {
    std::ofstream(path, std::ios::binary)
        .write(data.data(), static_cast<std::streamsize>(data.size()));
  };
  constexpr std::string_view kCountries = "Country,Code,Phone\r\nFrance,FR,33\r\nPérou,PE,51\r\n";
  const fs::path folder = fs::temp_directory_path() /
                          (L"nvrandom Instalación Ω " + std::to_wstring(::GetCurrentProcessId()));
  const fs::path file = folder / "FXCountries";
  const fs::path copy = folder / "FXCountries.dec";
  fs::create_directories(folder);
  fs::copy_file(fs::path(NVRANDOM_STANDINS_DIR) / "kvd8rq3x.dll", folder / "kvd8rq3x.dll",
                fs::copy_options::overwrite_existing);
  struct Case {
    const char* what;
    std::string plain;
    bool damaged;  // a byte of the enciphered file changed: the library writes nothing
    std::optional<std::string> read;
  };
  const Case cases[] = {
      {"a stale copy beside it", std::string(kCountries), false, std::string(kCountries)},
      {"damaged file", std::string(kCountries), true, std::nullopt},
      {"binary content", std::string("Country\r\n\x01\x02\0\x7f", 13), false, std::nullopt},
      {"empty content", std::string(), false, std::nullopt},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    std::optional<std::string> enciphered = country_file::Encipher(c.plain);
    ASSERT_TRUE(enciphered);
    if (c.damaged) (*enciphered)[20] ^= 1;
    write(file, *enciphered);
    write(copy, "Country,Code,Phone\r\nStale,ST,0\r\n");
    InstalledCountryFileDecipher decipher(std::make_unique<BuiltinCountryFileDecipher>());
    EXPECT_EQ(decipher.Decipher(wide::ToUtf8(file.wstring())), c.read);
    EXPECT_FALSE(fs::exists(copy));
  }
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

}  // namespace
}  // namespace nvrandom::com::test
