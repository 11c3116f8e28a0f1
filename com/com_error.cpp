#include "com/com_error.h"

#include "com/com_ids.h"
#include "com/inproc_server.h"
#include "platform/runtime_error.h"

namespace nvrandom::com {

HRESULT CurrentExceptionToHresult() noexcept {
  try {
    const int32_t number = CurrentErrorNumber();
    const std::string description = CurrentErrorDescription();
    const HRESULT hr = number == vb_error::kOutOfMemory
                           ? E_OUTOFMEMORY
                           : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number & 0xFFFF);
    SetServerErrorInfo(description, kProgId, IID__ClsRandom);
    return hr;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace nvrandom::com
