#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "component/variant.h"

namespace nvrandom {
class Context;
}

namespace nvrandom::scenario {

// What a `check` statement reports: the function's result (truth values as -1/0, numbers as
// numbers, texts as texts) and, for the functions that hand a message back, that message ("" when
// none came back).
struct CheckResult {
  Variant value;
  std::optional<std::string> message;
};

// Calls one of module Random's checks or the biller dialog's e-mail and web checks with the
// store as it stands. `args` are the function's arguments in its order, without output arguments,
// without the account check's ignored argument and without the flag every caller passes as
// false; integers and truth values are written in decimal ("true"/"false" are read too).
// Throws std::invalid_argument for an unknown function, a wrong number of arguments or an
// argument that does not read as its type.
CheckResult RunCheck(Context& ctx, std::string_view function, const std::vector<std::string>& args);

}  // namespace nvrandom::scenario
