#pragma once

#include <span>

#include "forms/control.h"
#include "forms/form.h"

namespace nvrandom {

// The foreign bank dialog as designed: its window and its control table (kind, container,
// caption, position, size, maximum length, tab order). The maximum lengths drive the move-on
// rule of the fields: a SWIFT code has 11 characters, an ABA routing number 9, an IBAN up to 34.
const forms::FormDesign& FXBankInfoForm();
std::span<const forms::ControlDesign> FXBankInfoControls();

}  // namespace nvrandom
