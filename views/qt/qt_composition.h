#pragma once

#include "platform/services.h"

namespace nvrandom::qt {

// The Qt services over the platform's: message boxes, clipboard, browser and help (the
// component's own services are added by app::MakeDefaultServices).
Services MakeQtServices();

}  // namespace nvrandom::qt
