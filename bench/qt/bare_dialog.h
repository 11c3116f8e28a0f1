#pragma once

#include <QDialog>
#include <memory>
#include <span>

#include "forms/control.h"
#include "forms/form.h"

namespace nvrandom::bench {

// A plain QDialog with one widget of the same kind for each control of a designed form, at the
// designed place, with the designed caption and visibility, in the designed font, and no model
// behind it: what the Qt view's dialogs are measured against.
std::unique_ptr<QDialog> MakeBareDialog(const forms::FormDesign& form,
                                        std::span<const forms::ControlDesign> controls);

}  // namespace nvrandom::bench
