#pragma once

#include "platform/services.h"

namespace nvrandom {

// The POSIX implementations of the platform's services (message boxes answer with their default
// button: a real user interface replaces that service with its own). The component's own
// services (verifier, bank checks) are left empty for the composition root to add.
Services MakePosixServices();

}  // namespace nvrandom
