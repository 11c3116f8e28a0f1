#pragma once

#include <span>

#include "forms/control.h"
#include "forms/form.h"

namespace nvrandom {

// The biller dialog as designed: its window and its control table (kind, container, caption,
// position, size, maximum length, tab order). Set-up and the event procedures change it at run
// time; a view draws it.
const forms::FormDesign& RandomInfoForm();
std::span<const forms::ControlDesign> RandomInfoControls();

}  // namespace nvrandom
