// The Win32 composition root of NVRandom.dll: the one place of the server that names the Windows
// service classes and the view.
#include "win32_integration.h"

#include <map>
#include <memory>
#include <mutex>

#include "app/services_factory.h"
#include "app/thread_context.h"
#include "component/context.h"
#include "platform/win32/win32_services.h"

namespace nvrandom::win32 {

namespace {

struct Views {
  std::mutex mutex;
  std::map<const Context*, std::unique_ptr<Win32View>> by_context;
};

// Never destroyed by the runtime: at process exit the views' windows are the system's to tear
// down; an unloading server releases them itself (ReleaseWin32Views).
Views& AllViews() {
  static auto* views = new Views;
  return *views;
}

}  // namespace

void InstallWin32Composition(const Win32View::WindowHold& hold) {
  static std::once_flag installed;
  std::call_once(installed, [] { app::SetDefaultServicesFactory(MakeWin32Services); });
  Context& ctx = app::ThreadContext();
  Views& views = AllViews();
  std::lock_guard lock(views.mutex);
  auto& view = views.by_context[&ctx];
  if (!view) view = std::make_unique<Win32View>(ctx.forms(), hold);
}

void ReleaseWin32Views() {
  Views& views = AllViews();
  std::map<const Context*, std::unique_ptr<Win32View>> released;
  {
    std::lock_guard lock(views.mutex);
    released.swap(views.by_context);
  }
}

}  // namespace nvrandom::win32
