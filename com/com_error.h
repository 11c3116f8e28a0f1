#pragma once

#include <windows.h>

// Inside a catch block: the HRESULT of the exception being handled, with its description left
// for the caller in the thread's IErrorInfo. A run-time error of the component becomes
// MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number), which a script reads as Err.Number.
namespace nvrandom::com {

HRESULT CurrentExceptionToHresult() noexcept;

// Runs `body`, returning S_OK, or the HRESULT of whatever it throws: no exception leaves COM.
template <typename Body>
HRESULT Guarded(Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (...) {
    return CurrentExceptionToHresult();
  }
}

}  // namespace nvrandom::com
