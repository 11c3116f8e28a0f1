#pragma once

#include "platform/services.h"

namespace nvrandom {

// The Windows implementations of the platform's services, through the wide-character API so that
// non-ASCII texts and paths pass unchanged. The component's own services (verifier, bank checks,
// country-file decipher) are left empty for the composition root to add.
Services MakeWin32Services();

}  // namespace nvrandom
