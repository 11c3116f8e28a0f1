#pragma once

#include <string_view>

namespace nvrandom {

class Context;

namespace validation {

// The reported error trap: hands the exception being handled to ShowError under `proc_name`
// ("Random.VerifyBusinessNumber"). Run-time errors keep their number and description; running
// out of memory is error 7, an index out of range error 9, anything else error 5. Call only
// from inside a catch block. Never throws.
void ReportTrappedError(Context& ctx, std::string_view proc_name) noexcept;

}  // namespace validation
}  // namespace nvrandom
