#include "com/com_error.h"

#include <ole2.h>

#include "com/com_ids.h"
#include "platform/runtime_error.h"
#include "platform/win32/com_handles.h"
#include "platform/win32/wide_text.h"

namespace nvrandom::com {

HRESULT CurrentExceptionToHresult() noexcept {
  try {
    const int32_t number = CurrentErrorNumber();
    const std::string description = CurrentErrorDescription();
    const HRESULT hr = number == vb_error::kOutOfMemory
                           ? E_OUTOFMEMORY
                           : MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number & 0xFFFF);
    ComPtr<ICreateErrorInfo> create;
    if (SUCCEEDED(::CreateErrorInfo(create.put()))) {
      const std::wstring text = wide::FromUtf8(description);
      create->SetDescription(const_cast<LPOLESTR>(text.c_str()));
      create->SetSource(const_cast<LPOLESTR>(kProgId));
      create->SetGUID(IID__ClsRandom);
      ComPtr<IErrorInfo> info;
      if (SUCCEEDED(create.As(info))) ::SetErrorInfo(0, info.get());
    }
    return hr;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace nvrandom::com
