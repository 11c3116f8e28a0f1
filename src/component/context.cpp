#include "component/context.h"

#include "forms/application.h"

namespace nvrandom {

Context::Context(Services services_in)
    : services(std::move(services_in)),
      forms_(std::make_unique<forms::Application>(*services.clipboard)) {}

Context::~Context() = default;

}  // namespace nvrandom
