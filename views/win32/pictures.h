#pragma once

#include <windows.h>

#include <string_view>

namespace nvrandom::win32 {

// Draws the picture of an image control, scaled to `bounds`: the help icon of the biller dialog
// and the sample cheque. False (nothing drawn) for an image the dialogs do not name.
bool DrawPicture(HDC dc, const RECT& bounds, std::string_view form, std::string_view control);

}  // namespace nvrandom::win32
