#pragma once

#include <windows.h>

namespace nvrandom::win32 {

// A frame: the container window of the controls inside it (hiding or disabling it hides or
// disables them, as the model's frames do), drawn as an etched group box with its caption. It
// passes its controls' notifications (commands, colours, owner drawing) on to the form window.
// Its GWLP_USERDATA holds its ControlRecord.
LRESULT CALLBACK FrameWindowProc(HWND hwnd, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace nvrandom::win32
