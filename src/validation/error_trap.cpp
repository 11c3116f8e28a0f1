#include "validation/error_trap.h"

#include "component/context.h"
#include "component/show_error.h"
#include "platform/runtime_error.h"

namespace nvrandom::validation {

void ReportTrappedError(Context& ctx, std::string_view proc_name) noexcept {
  try {
    ShowError(ctx, CurrentErrorNumber(), CurrentErrorDescription(), proc_name);
  } catch (...) {
    // Nothing is left to report with.
  }
}

}  // namespace nvrandom::validation
