#include "validation/error_trap.h"

#include <new>
#include <stdexcept>

#include "component/context.h"
#include "component/show_error.h"
#include "platform/runtime_error.h"

namespace nvrandom::validation {

namespace {
void Report(Context& ctx, int32_t number, std::string_view proc_name) {
  ShowError(ctx, number, DefaultErrorDescription(number), proc_name);
}
}  // namespace

void ReportTrappedError(Context& ctx, std::string_view proc_name) noexcept {
  try {
    throw;
  } catch (const RuntimeError& error) {
    ShowError(ctx, error, proc_name);
  } catch (const std::bad_alloc&) {
    Report(ctx, vb_error::kOutOfMemory, proc_name);
  } catch (const std::length_error&) {
    Report(ctx, vb_error::kOutOfMemory, proc_name);
  } catch (const std::out_of_range&) {
    Report(ctx, vb_error::kSubscriptOutOfRange, proc_name);
  } catch (...) {
    Report(ctx, vb_error::kInvalidProcedureCall, proc_name);
  }
}

}  // namespace nvrandom::validation
