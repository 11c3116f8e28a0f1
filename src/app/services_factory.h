#pragma once

#include <functional>

#include "platform/services.h"

namespace nvrandom::app {

// The one place where concrete services are chosen. Every way of running the component builds its
// Services here: the desktop default (the class's default constructor, later the COM class
// factory), a view that brings its own message boxes and clipboard, and the headless runs
// (headless_services.h).

// The services the component supplies itself whatever the platform: the built-in account
// verifier, bank-check library and country-file decipher. Fills only the members that are still
// empty (AddInstalledComponents puts the installation's own there first).
void AddComponentServices(Services& services);

// The host installation's own outside components where the platform has them: on Windows the
// registered account verifier (ProgID NVVerifier.AccountVerifier), Acctvfy.dll and kvd8rq3x.dll,
// each looked for at every use and answering through the built-in one while it is not installed.
// Nothing elsewhere. Fills only the members that are still empty.
void AddInstalledComponents(Services& services);

// The platform's services plus the component's: POSIX, or in a Windows build the Win32 ones
// (platform/win32, MakeWin32Services, which the Windows port provides).
Services MakePlatformServices();

// What the default component state of a thread is built with. A view (Qt) or the COM server
// installs its own factory at start-up, before the first class is created; the factory's result
// is completed with AddInstalledComponents and AddComponentServices. An empty factory restores
// MakePlatformServices.
using ServicesFactory = std::function<Services()>;
void SetDefaultServicesFactory(ServicesFactory factory);
Services MakeDefaultServices();

}  // namespace nvrandom::app
