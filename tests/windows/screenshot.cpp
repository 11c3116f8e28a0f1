#include "screenshot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>

namespace nvrandom::com::test {

int SystemDpi() {
  const HDC screen = ::GetDC(nullptr);
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  return dpi;
}

namespace {

// A capture's pixels as a 32-bit top-down DIB, for the screen copy and the file alike.
BITMAPINFOHEADER DibHeader(const Capture& capture) {
  BITMAPINFOHEADER header{};
  header.biSize = sizeof(header);
  header.biWidth = capture.width;
  header.biHeight = -capture.height;  // rows top first
  header.biPlanes = 1;
  header.biBitCount = 32;
  header.biCompression = BI_RGB;
  return header;
}

std::map<uint32_t, size_t> ColourCounts(const Capture& capture) {
  std::map<uint32_t, size_t> counts;
  for (const uint32_t p : capture.pixels) ++counts[p];
  return counts;
}

// The colour most of the picture has, and how many pixels have it.
std::pair<uint32_t, size_t> MostCommon(const std::map<uint32_t, size_t>& counts) {
  const auto most = std::ranges::max_element(counts, {}, [](const auto& c) { return c.second; });
  if (most == counts.end()) return {0, 0};
  return *most;
}

}  // namespace

Capture CaptureClient(HWND window, DialogHost& host) {
  ::RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW | RDW_FRAME);
  host.PumpUntil([] { return false; }, 300);
  Capture capture;
  RECT client{};
  ::GetClientRect(window, &client);
  capture.width = client.right;
  capture.height = client.bottom;
  if (capture.width <= 0 || capture.height <= 0) return capture;
  POINT origin{0, 0};
  ::ClientToScreen(window, &origin);
  // What the screen shows: the window with its controls, as a person sees it.
  const HDC screen = ::GetDC(nullptr);
  const HDC memory = ::CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader = DibHeader(capture);
  void* bits = nullptr;
  const HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ old = ::SelectObject(memory, bitmap);
  ::BitBlt(memory, 0, 0, capture.width, capture.height, screen, origin.x, origin.y, SRCCOPY);
  ::GdiFlush();
  const auto* pixels = static_cast<const uint32_t*>(bits);
  capture.pixels.assign(pixels, pixels + static_cast<size_t>(capture.width) * capture.height);
  for (uint32_t& p : capture.pixels) p &= 0x00FFFFFF;
  ::SelectObject(memory, old);
  ::DeleteObject(bitmap);
  ::DeleteDC(memory);
  ::ReleaseDC(nullptr, screen);
  return capture;
}

uint32_t Background(const Capture& capture) {
  return MostCommon(ColourCounts(capture)).first;
}

uint32_t ToRgb(COLORREF color) {
  return (GetRValue(color) << 16) | (GetGValue(color) << 8) | GetBValue(color);
}

void ExpectDrawn(const Capture& capture) {
  ASSERT_FALSE(capture.pixels.empty());
  const auto counts = ColourCounts(capture);
  const size_t drawn = capture.pixels.size() - MostCommon(counts).second;
  EXPECT_GE(counts.size(), 5u) << "colours";
  EXPECT_GT(drawn * 50, capture.pixels.size()) << "pixels unlike the background: " << drawn;
}

bool WriteBmp(const Capture& capture, const std::wstring& path) {
  const auto image_bytes = static_cast<DWORD>(capture.pixels.size() * 4);
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;  // "BM"
  file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
  file.bfSize = file.bfOffBits + image_bytes;
  BITMAPINFOHEADER header = DibHeader(capture);
  header.biSizeImage = image_bytes;
  std::ofstream out(std::filesystem::path(path), std::ios::binary);
  out.write(reinterpret_cast<const char*>(&file), sizeof(file));
  out.write(reinterpret_cast<const char*>(&header), sizeof(header));
  out.write(reinterpret_cast<const char*>(capture.pixels.data()), image_bytes);
  return static_cast<bool>(out);
}

}  // namespace nvrandom::com::test
