// The dialogs' pictures, drawn with GDI at any size: no bitmaps to ship or to scale.
#include "pictures.h"

#include <algorithm>

namespace nvrandom::win32 {

namespace {

// A point of a picture designed on a width x height canvas, in `bounds`.
struct Canvas {
  const RECT& bounds;
  int width;
  int height;
  int X(int x) const { return bounds.left + ::MulDiv(x, bounds.right - bounds.left, width); }
  int Y(int y) const { return bounds.top + ::MulDiv(y, bounds.bottom - bounds.top, height); }
  RECT Rect(int left, int top, int right, int bottom) const {
    return {X(left), Y(top), X(right), Y(bottom)};
  }
};

HFONT PictureFont(int pixels, bool bold) {
  return ::CreateFontW(-std::max(pixels, 6), 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE,
                       FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                       ANTIALIASED_QUALITY, VARIABLE_PITCH | FF_SWISS, L"Arial");
}

void Text(HDC dc, const Canvas& canvas, int x, int y, int size, bool bold, const wchar_t* text,
          COLORREF color) {
  const HFONT font = PictureFont(canvas.Y(size) - canvas.Y(0), bold);
  const HGDIOBJ old = ::SelectObject(dc, font);
  ::SetTextColor(dc, color);
  ::SetBkMode(dc, TRANSPARENT);
  ::TextOutW(dc, canvas.X(x), canvas.Y(y), text, static_cast<int>(wcslen(text)));
  ::SelectObject(dc, old);
  ::DeleteObject(font);
}

void Line(HDC dc, const Canvas& canvas, int x1, int y1, int x2, int y2) {
  ::MoveToEx(dc, canvas.X(x1), canvas.Y(y1), nullptr);
  ::LineTo(dc, canvas.X(x2), canvas.Y(y2));
}

// A blue disc with a white question mark.
void DrawHelpIcon(HDC dc, const RECT& bounds) {
  const int side = std::min(bounds.right - bounds.left, bounds.bottom - bounds.top);
  const RECT disc{bounds.left, bounds.top, bounds.left + side, bounds.top + side};
  const HBRUSH fill = ::CreateSolidBrush(RGB(0x1E, 0x64, 0xC8));
  const HPEN rim = ::CreatePen(PS_SOLID, 1, RGB(0x10, 0x3C, 0x80));
  const HGDIOBJ old_brush = ::SelectObject(dc, fill);
  const HGDIOBJ old_pen = ::SelectObject(dc, rim);
  ::Ellipse(dc, disc.left, disc.top, disc.right, disc.bottom);
  ::SelectObject(dc, old_pen);
  ::SelectObject(dc, old_brush);
  ::DeleteObject(rim);
  ::DeleteObject(fill);
  const HFONT font = PictureFont(side * 3 / 4, true);
  const HGDIOBJ old_font = ::SelectObject(dc, font);
  ::SetTextColor(dc, RGB(0xFF, 0xFF, 0xFF));
  ::SetBkMode(dc, TRANSPARENT);
  RECT text = disc;
  ::DrawTextW(dc, L"?", 1, &text, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  ::SelectObject(dc, old_font);
  ::DeleteObject(font);
}

// A generic personal cheque, with the transit, institution and account numbers marked on the
// encoded line at its foot.
void DrawCheque(HDC dc, const RECT& bounds) {
  const Canvas c{bounds, 580, 260};
  const COLORREF ink = RGB(0x2D, 0x4A, 0x2D);
  const HBRUSH paper = ::CreateSolidBrush(RGB(0xEE, 0xF4, 0xEA));
  const HPEN pen = ::CreatePen(PS_SOLID, 1, ink);
  const HGDIOBJ old_brush = ::SelectObject(dc, paper);
  const HGDIOBJ old_pen = ::SelectObject(dc, pen);
  ::RoundRect(dc, c.X(1), c.Y(1), c.X(579), c.Y(259), c.X(12) - c.X(0), c.Y(12) - c.Y(0));
  ::SelectObject(dc, ::GetStockObject(WHITE_BRUSH));
  ::Rectangle(dc, c.X(452), c.Y(80), c.X(556), c.Y(104));
  Line(dc, c, 412, 66, 556, 66);
  Line(dc, c, 140, 98, 440, 98);
  Line(dc, c, 22, 128, 470, 128);
  Line(dc, c, 330, 196, 556, 196);
  Text(dc, c, 22, 20, 14, true, L"YOUR NAME", ink);
  Text(dc, c, 22, 40, 11, false, L"123 Any Street, Your Town", ink);
  Text(dc, c, 470, 20, 14, true, L"No. 042", ink);
  Text(dc, c, 380, 54, 11, false, L"DATE", ink);
  Text(dc, c, 22, 86, 11, false, L"PAY TO THE ORDER OF", ink);
  Text(dc, c, 458, 84, 13, false, L"$", ink);
  Text(dc, c, 478, 120, 11, false, L"DOLLARS", ink);
  Text(dc, c, 22, 144, 12, true, L"YOUR BANK", ink);
  Text(dc, c, 22, 160, 10, false, L"Branch address", ink);
  Text(dc, c, 330, 200, 10, false, L"SIGNATURE", ink);
  // The encoded line: cheque number, then transit (5 digits), bank id (3) and account, each
  // marked with its name.
  Text(dc, c, 22, 222, 15, true, L"042", ink);
  ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
  const COLORREF red = RGB(0xC0, 0x30, 0x30);
  const HPEN mark = ::CreatePen(PS_SOLID, 2, red);
  ::SelectObject(dc, mark);
  struct Field {
    int left;
    int right;
    const wchar_t* digits;
    const wchar_t* name;
  };
  for (const Field& f : {Field{84, 170, L"12345", L"Transit"}, Field{180, 240, L"003", L"Bank ID"},
                         Field{250, 370, L"1234567", L"Account"}}) {
    ::Rectangle(dc, c.X(f.left), c.Y(216), c.X(f.right), c.Y(244));
    Text(dc, c, f.left + 6, 222, 15, true, f.digits, ink);
    Text(dc, c, f.left + 6, 246, 10, false, f.name, red);
  }
  ::SelectObject(dc, old_pen);
  ::SelectObject(dc, old_brush);
  ::DeleteObject(mark);
  ::DeleteObject(pen);
  ::DeleteObject(paper);
}

}  // namespace

bool DrawPicture(HDC dc, const RECT& bounds, std::string_view form, std::string_view control) {
  if (form == "frmRandomInfo" && control == "imgHelpCSFTInfo") {
    DrawHelpIcon(dc, bounds);
    return true;
  }
  if (form == "frmCheque" && control == "picture") {
    DrawCheque(dc, bounds);
    return true;
  }
  return false;
}

}  // namespace nvrandom::win32
