#include "app/services_factory.h"

#include <memory>
#include <mutex>
#include <utility>

#ifdef _WIN32
#include "platform/win32/installed_bank_checks.h"
#include "platform/win32/installed_country_decipher.h"
#include "platform/win32/registered_account_verifier.h"
#include "platform/win32/win32_services.h"
#else
#include "platform/posix/posix_services.h"
#endif
#include "platform/country_file_source.h"
#include "verifier/builtin_account_verifier.h"
#include "verifier/builtin_bank_check_library.h"

namespace nvrandom::app {

namespace {

struct FactorySlot {
  std::mutex mutex;
  ServicesFactory factory;
};

FactorySlot& Slot() {
  static FactorySlot slot;
  return slot;
}

}  // namespace

void AddComponentServices(Services& services) {
  if (!services.verifiers) {
    services.verifiers = std::make_shared<verifier::BuiltinAccountVerifierFactory>();
  }
  if (!services.bank_checks) {
    services.bank_checks = std::make_shared<verifier::BuiltinBankCheckLibrary>();
  }
  if (!services.country_file) {
    services.country_file = std::make_unique<BuiltinCountryFileDecipher>();
  }
}

void AddInstalledComponents(Services& services) {
#ifdef _WIN32
  // Each answers through the built-in one while the installation has none of its own.
  if (!services.verifiers) {
    services.verifiers = std::make_shared<RegisteredAccountVerifierFactory>(
        std::make_shared<verifier::BuiltinAccountVerifierFactory>());
  }
  if (!services.bank_checks) {
    services.bank_checks = std::make_shared<InstalledBankCheckLibrary>(
        std::make_shared<verifier::BuiltinBankCheckLibrary>());
  }
  if (!services.country_file) {
    services.country_file = std::make_unique<InstalledCountryFileDecipher>(
        std::make_unique<BuiltinCountryFileDecipher>());
  }
#else
  (void)services;
#endif
}

Services MakePlatformServices() {
#ifdef _WIN32
  Services services = MakeWin32Services();
#else
  Services services = MakePosixServices();
#endif
  AddInstalledComponents(services);
  AddComponentServices(services);
  return services;
}

void SetDefaultServicesFactory(ServicesFactory factory) {
  std::lock_guard lock(Slot().mutex);
  Slot().factory = std::move(factory);
}

Services MakeDefaultServices() {
  ServicesFactory factory;
  {
    std::lock_guard lock(Slot().mutex);
    factory = Slot().factory;
  }
  if (!factory) return MakePlatformServices();
  Services services = factory();
  AddInstalledComponents(services);
  AddComponentServices(services);
  return services;
}

}  // namespace nvrandom::app
