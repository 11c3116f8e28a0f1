// What a host pays to reach the component through COM, under Wine: a property read by name
// through IDispatch (GetIDsOfNames and Invoke, as a script does) against the same read through
// the vtable, in one run; and CoCreateInstance up to the first property set, warm. Needs
// NVRandom.dll registered (make bench-windows does it). Each target is reported as met or missed.
#include <windows.h>
// windows.h first: the OLE headers use its types.
#include <ole2.h>
// Defines the type library's GUIDs for this program.
#include <initguid.h>

#include <cstdio>
#include <vector>

#include "NVRandom_h.h"
#include "platform/win32/com_handles.h"
#include "timing.h"

namespace {

using nvrandom::bench::Measure;
using nvrandom::bench::Timing;
using nvrandom::com::Bstr;
using nvrandom::com::ComPtr;
using nvrandom::com::OwnedVariant;

constexpr double kMaxDispatchRatio = 25.0;
constexpr double kMaxCreateNs = 50'000.0;

HRESULT CreateBiller(ComPtr<_ClsRandom>& out) {
  return ::CoCreateInstance(CLSID_ClsRandom, nullptr, CLSCTX_INPROC_SERVER, IID__ClsRandom,
                            out.put_void());
}

}  // namespace

int main() {
  nvrandom::com::ApartmentScope apartment;
  ComPtr<_ClsRandom> biller;
  if (!apartment.usable() || FAILED(CreateBiller(biller))) {
    std::fprintf(stderr, "NVRandom.ClsRandom is not registered: run make bench-windows\n");
    return 2;
  }
  const Bstr name(L"ACME HYDRO");
  biller->put_PayeeName(name.get());

  std::vector<Timing> timings;
  timings.push_back(Measure("PayeeName get, vtable", 20000, 31, [&] {
    BSTR value = nullptr;
    biller->get_PayeeName(&value);
    ::SysFreeString(value);
  }));
  timings.push_back(Measure("PayeeName get, IDispatch by name", 20000, 31, [&] {
    DISPID id = DISPID_UNKNOWN;
    auto* member = const_cast<LPOLESTR>(L"PayeeName");
    biller->GetIDsOfNames(IID_NULL, &member, 1, LOCALE_USER_DEFAULT, &id);
    DISPPARAMS none{nullptr, nullptr, 0, 0};
    OwnedVariant value;
    biller->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, value.put(),
                   nullptr, nullptr);
  }));
  timings.push_back(Measure("CoCreateInstance + first property set (warm)", 2000, 31, [&] {
    ComPtr<_ClsRandom> fresh;
    if (SUCCEEDED(CreateBiller(fresh))) fresh->put_PayeeName(name.get());
  }));
  // Where the time of a creation goes: COM's registry lookups, then the object itself.
  ComPtr<IClassFactory> factory;
  if (SUCCEEDED(::CoGetClassObject(CLSID_ClsRandom, CLSCTX_INPROC_SERVER, nullptr,
                                   IID_IClassFactory, factory.put_void()))) {
    timings.push_back(Measure("  of which CoGetClassObject", 2000, 31, [&] {
      ComPtr<IClassFactory> again;
      ::CoGetClassObject(CLSID_ClsRandom, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                         again.put_void());
    }));
    timings.push_back(Measure("  of which CreateInstance + first property set", 2000, 31, [&] {
      ComPtr<_ClsRandom> fresh;
      if (SUCCEEDED(factory->CreateInstance(nullptr, IID__ClsRandom, fresh.put_void()))) {
        fresh->put_PayeeName(name.get());
      }
    }));
  }
  // The same call for a class of the system's own, which has no work of its own to speak of: what
  // COM itself costs here.
  CLSID dictionary{};
  if (SUCCEEDED(::CLSIDFromProgID(L"Scripting.Dictionary", &dictionary))) {
    timings.push_back(Measure("reference: CoCreateInstance Scripting.Dictionary", 2000, 31, [&] {
      ComPtr<IUnknown> object;
      ::CoCreateInstance(dictionary, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                         object.put_void());
    }));
  }
  nvrandom::bench::PrintTable(timings);

  const double ratio = timings[1].median_ns / timings[0].median_ns;
  const bool ratio_ok = ratio <= kMaxDispatchRatio;
  const bool create_ok = timings[2].median_ns <= kMaxCreateNs;
  std::printf("\nIDispatch by name / vtable: %.1fx (target at most %.0fx) %s\n", ratio,
              kMaxDispatchRatio, ratio_ok ? "met" : "MISSED");
  std::printf("CoCreateInstance to first property set: %.1f us (target at most %.0f us) %s\n",
              timings[2].median_ns / 1000.0, kMaxCreateNs / 1000.0, create_ok ? "met" : "MISSED");
  return 0;
}
