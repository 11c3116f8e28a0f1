#pragma once

#include <QWidget>
#include <cstdint>
#include <string_view>

#include "forms/control.h"

namespace nvrandom::qt {

// A control's colours and font on its widget. The widget takes a palette or a font of its own
// only where what it inherits from its container would not show the model's: most controls have
// their container's colours and font. An own palette costs a resolve of the widget and of all
// inside it, and a palette made anew for each window misses the style's cache of drawn controls.
// Each returns whether the widget's palette or font changed.
//
// The colours are checked in the states the widget is drawn in now: a disabled widget (itself
// or its container) in its disabled colours too, which are then the model's as well. A widget
// must be shown again when its container's colours or font change, and when it or its container
// is enabled or disabled.
bool ShowColours(QWidget& widget, const forms::Control& control);
// Whether the widget fills its background (an opaque label, any control but a text field).
void ShowOpaque(QWidget& widget, bool opaque);
// A form's BackColor on its window.
bool ShowWindowColour(QWidget& window, uint32_t colour);
bool ShowFont(QWidget& widget, std::string_view family, double point_size);

}  // namespace nvrandom::qt
