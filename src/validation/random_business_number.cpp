// Module Random: the business number check.
#include "component/context.h"
#include "component/trace.h"
#include "platform/account_verifier.h"
#include "validation/account_prechecks.h"
#include "validation/error_trap.h"
#include "validation/random.h"

namespace nvrandom {

int16_t Random::VerifyBusinessNumber(std::string_view number) {
  TraceEntry(ctx_, "Random - VerifyBusinessNumber");
  try {
    const std::optional<std::string> account = validation::BusinessNumberAccount(number);
    if (!account) return kFalse;
    // The verifier's rule for the registry decides; its message is not wanted here.
    std::string ignored_message;
    const int16_t verified = VerifyAccount(kBusinessNumberBankId, *account, ignored_message, false);
    return verified != 0 ? kTrue : kFalse;
  } catch (...) {
    validation::ReportTrappedError(ctx_, "Random.VerifyBusinessNumber");
    return kFalse;
  }
}

}  // namespace nvrandom
