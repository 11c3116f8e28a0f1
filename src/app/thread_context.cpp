#include "app/thread_context.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

#include "app/services_factory.h"
#include "component/context.h"

namespace nvrandom::app {

namespace {

struct Registry {
  std::mutex mutex;
  std::vector<std::unique_ptr<Context>> contexts;
};

Registry& Contexts() {
  static Registry registry;
  return registry;
}

// Trivially destructible: nothing runs for it when the thread ends.
thread_local Context* this_thread_context = nullptr;

}  // namespace

Context& ThreadContext() {
  if (this_thread_context == nullptr) {
    auto context = std::make_unique<Context>(MakeDefaultServices());
    Registry& registry = Contexts();
    std::lock_guard lock(registry.mutex);
    registry.contexts.push_back(std::move(context));
    this_thread_context = registry.contexts.back().get();
  }
  return *this_thread_context;
}

void ReleaseThreadContext() {
  Context* const context = this_thread_context;
  if (context == nullptr) return;
  this_thread_context = nullptr;
  std::unique_ptr<Context> owned;
  Registry& registry = Contexts();
  {
    std::lock_guard lock(registry.mutex);
    const auto it = std::find_if(registry.contexts.begin(), registry.contexts.end(),
                                 [context](const auto& c) { return c.get() == context; });
    if (it == registry.contexts.end()) return;
    owned = std::move(*it);
    registry.contexts.erase(it);
  }
  // Destroyed outside the lock: unloading its forms may run their handlers.
}

}  // namespace nvrandom::app
