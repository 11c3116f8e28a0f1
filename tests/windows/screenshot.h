#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "dialog_host.h"

namespace nvrandom::com::test {

// The client area of a window as drawn on the screen, 0x00RRGGBB pixels, rows top first.
struct Capture {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;
};

int SystemDpi();
// Lets the window paint (pumping messages for a moment), then copies its client area.
Capture CaptureClient(HWND window, DialogHost& host);
// A dialog drawn, not a blank rectangle: many colours, and much of it unlike its background.
void ExpectDrawn(const Capture& capture);
// The colour most of the picture has.
uint32_t Background(const Capture& capture);
// A COLORREF (0x00BBGGRR) as a captured pixel (0x00RRGGBB).
uint32_t ToRgb(COLORREF color);
bool WriteBmp(const Capture& capture, const std::wstring& path);

}  // namespace nvrandom::com::test
