// Module Random: address rules.
#include "component/context.h"
#include "component/trace.h"
#include "validation/address_rules.h"
#include "validation/error_trap.h"
#include "validation/random.h"

namespace nvrandom {

int16_t Random::lookupProvince(std::string_view code) {
  TraceEntry(ctx_, "Random - lookupProvince");
  try {
    return validation::LookupProvince(ctx_.store.Provpostalstr, code) ? kTrue : kFalse;
  } catch (...) {
    return kFalse;  // reports nothing: a failure just means "not known"
  }
}

int16_t Random::LookupPostcode(std::string_view code) {
  TraceEntry(ctx_, "Random - LookupPostcode");
  try {
    return validation::LookupPostcode(ctx_.store.Provpostalstr, code) ? kTrue : kFalse;
  } catch (...) {
    return kFalse;
  }
}

int16_t Random::Has_PO_Box_Address(std::string_view street) {
  TraceEntry(ctx_, "Random - Has_PO_Box_Address");
  try {
    return validation::HasPoBoxAddress(street, ctx_.store.poBoxWords) ? 1 : 0;
  } catch (...) {
    validation::ReportTrappedError(ctx_, "Random.Has_PO_Box_Address");
    return 0;
  }
}

}  // namespace nvrandom
