#pragma once

#include <memory>
#include <string>

#include "component/store.h"
#include "platform/services.h"

namespace nvrandom {

namespace forms {
class Application;
}

// What one thread (apartment) of a host shares: the biller store, the platform services and the
// collection of loaded forms. Every ClsRandom created on that thread works on the same context;
// the composition root (app/thread_context.h) owns the threads' contexts.
class Context {
 public:
  explicit Context(Services services);
  ~Context();
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  ComponentStore store;
  Services services;

  forms::Application& forms() { return *forms_; }

  // The trace file's folder resolved for an installation root (on POSIX the "Norvik" folder is
  // matched case-insensitively against what exists); kept so that a trace line costs one open.
  std::string trace_root;
  std::string trace_file;

 private:
  std::unique_ptr<forms::Application> forms_;
};

}  // namespace nvrandom
