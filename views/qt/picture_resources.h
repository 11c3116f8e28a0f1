#pragma once

#include <QPixmap>

#include "forms/control.h"

namespace nvrandom::qt {

// The picture an image control shows, rendered at the control's size: the pictures are part of
// the forms' design, kept as SVG resources named "<form>.<control>". A null pixmap when the
// control has none.
QPixmap PictureOf(const forms::Control& control);

}  // namespace nvrandom::qt
