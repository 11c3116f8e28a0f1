#include "component/context.h"

#include "forms/application.h"

namespace nvrandom {

Context::Context(Services services_in)
    : services(std::move(services_in)),
      forms_(std::make_unique<forms::Application>(*services.clipboard)) {}

Context::~Context() = default;

Context& Context::ForThisThread() {
  thread_local Context context(MakePosixServices());
  return context;
}

}  // namespace nvrandom
