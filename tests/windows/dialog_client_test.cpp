// A host of NVRandom.dll's real dialogs: events through connection points while the person's keys
// and clicks reach the dialog's windows, embedding by SetParent, releasing the object with the
// dialog open, and modal shows with their own message loop (a nested dialog too).
#include <windows.h>
// windows.h first. The headers with GUIDs of their own come before initguid.h, which makes
// NVRandom_h.h define the type library's GUIDs in this file, for the whole program.
#include <commctrl.h>
#include <ocidl.h>
#include <olectl.h>
// Defines the GUIDs of the headers after it.
#include <initguid.h>
// After initguid.h.
#include "NVRandom_h.h"
// After NVRandom_h.h.
#include "dialog_host.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>

namespace nvrandom::com::test {
namespace {

constexpr const wchar_t* kBillerCaption = L"Norvik - Biller / Funds Transfer Information";
constexpr const wchar_t* kBankCaption = L"International Payment Banking Information";
constexpr const wchar_t* kChequeCaption = L"Sample Cheque";

HWND DialogOf(IDispatch& object) {
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(Call(object, L"Get_hWnd")));
}

int Pixels(long twips) {
  const HDC screen = ::GetDC(nullptr);
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
  ::ReleaseDC(nullptr, screen);
  return ::MulDiv(static_cast<int>(twips), dpi, 1440);
}

class DialogClient : public HostTest {
 protected:
  // The sample shown modeless as `object_` in the host's style, its events going to `sink_`: its
  // window, or null (a failure recorded) if it could not be shown.
  HWND Show(std::string_view sample, int style = 0) {
    object_ = host_.Create(sample);
    if (!object_ || Advise(*object_, sink_) == 0 ||
        FAILED(Let(*object_, "FormStyle " + std::to_string(style))) ||
        Call(*object_, L"ShowForm_Remote") != 0) {
      ADD_FAILURE() << sample << " was not shown";
      return nullptr;
    }
    return DialogOf(*object_);
  }
  // A dialog the test left open is closed before the server goes.
  void TearDown() override {
    if (object_) Call(*object_, L"Unload_From_Remote");
    HostTest::TearDown();
  }

  RecordingSink sink_;  // outlives the object, which holds it
  ComPtr<IDispatch> object_;
};

TEST_F(DialogClient, EmbeddedDialogRaisesItsEventsThroughConnectionPoints) {
  // Shown: the first field takes the focus and reports where it stands.
  const HWND dialog = Show("business");
  ASSERT_TRUE(::IsWindowVisible(dialog));
  ASSERT_TRUE(host_.PumpUntil([&] { return !sink_.tops.empty(); }));
  EXPECT_EQ(sink_.events, "2");
  const HWND street = ::GetFocus();
  ASSERT_NE(street, nullptr);

  // Tab goes through the runtime's tab order to the next field, which reports a lower top.
  PostKey(street, VK_TAB);
  ASSERT_TRUE(host_.PumpUntil([&] { return sink_.tops.size() == 2; }));
  EXPECT_GT(sink_.tops[1], sink_.tops[0]);
  const HWND city = ::GetFocus();
  ASSERT_NE(city, street);

  // Shift+Tab goes back in tab order, to the street, which reports its top again.
  BYTE keys[256] = {};
  ::GetKeyboardState(keys);
  keys[VK_SHIFT] = 0x80;
  ::SetKeyboardState(keys);
  PostKey(city, VK_TAB);
  const bool back = host_.PumpUntil([&] { return ::GetFocus() == street; });
  keys[VK_SHIFT] = 0;
  ::SetKeyboardState(keys);
  ASSERT_TRUE(back);
  EXPECT_EQ(sink_.tops.back(), sink_.tops[0]);

  // The cancel button gives one Cancel and closes the window.
  ::SendMessageW(FindControl(dialog, L"Cancel"), BM_CLICK, 0, 0);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindow(dialog); }));
  EXPECT_EQ(sink_.events, "2223") << testing::PrintToString(sink_.tops);

  // OK on a valid biller: CSBOK, and the dialog goes.
  sink_.events.clear();
  EXPECT_EQ(Call(*object_, L"ShowForm_Remote"), 0);
  const HWND valid = DialogOf(*object_);
  ::SendMessageW(FindControl(valid, L"OK"), BM_CLICK, 0, 0);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindow(valid); })) << sink_.events;
  EXPECT_NE(sink_.events.find('1'), std::string::npos) << sink_.events;
}

// What Windows delivers for a double click: press, release, double click, release.
void PostDoubleClick(HWND target) {
  const LPARAM at = MAKELPARAM(4, 4);
  for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
    ::PostMessageW(target, message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, at);
  }
}

// A double click is one click and a DblClick: a text box's edit field selects a word (which the
// next key replaces), and an option button whose Click moves the focus on is clicked only once.
TEST_F(DialogClient, ADoubleClickClicksOnce) {
  const HWND dialog = Show("business");
  const auto handled = [] { return HIWORD(::GetQueueStatus(QS_POSTMESSAGE)) == 0; };

  const HWND city = FindControl(dialog, L"TORONTO");
  ASSERT_NE(city, nullptr);
  PostDoubleClick(city);
  PostKey(city, 'X');
  ASSERT_TRUE(host_.PumpUntil([&] { return WindowText(city) == L"X"; }))
      << testing::PrintToString(WindowText(city));

  const HWND individual = FindControl(dialog, L"Individual");
  ASSERT_NE(individual, nullptr);
  ASSERT_TRUE(host_.PumpUntil(handled));
  const size_t reported = sink_.tops.size();
  PostDoubleClick(individual);
  ASSERT_TRUE(host_.PumpUntil(handled));
  // The option took the focus and its Click moved it on to the phone: two reports, not four.
  EXPECT_EQ(sink_.tops.size(), reported + 2) << testing::PrintToString(sink_.tops);
  EXPECT_NE(::GetFocus(), individual);
}

// Alt with an underlined letter is the model's access key: Alt+I selects "&Individual" from the
// street, and the option's Click moves the focus on.
TEST_F(DialogClient, AltWithAnUnderlinedLetterPressesItsControl) {
  const HWND individual = FindControl(Show("business"), L"Individual");
  ASSERT_NE(individual, nullptr);
  ASSERT_TRUE(host_.PumpUntil([] { return ::GetFocus() != nullptr; }));
  const HWND street = ::GetFocus();
  constexpr LPARAM kAltHeld = LPARAM{1} << 29;
  ::PostMessageW(street, WM_SYSKEYDOWN, 'I', kAltHeld | 1);
  ::PostMessageW(street, WM_KEYUP, 'I', static_cast<LPARAM>(0xC0000001));
  ASSERT_TRUE(host_.PumpUntil(
      [&] { return ::SendMessageW(individual, BM_GETCHECK, 0, 0) == BST_CHECKED; }));
  EXPECT_NE(::GetFocus(), street);
}

std::wstring Heading(HWND list, int column) {
  wchar_t text[64] = {};
  LVCOLUMNW info{};
  info.mask = LVCF_TEXT;
  info.pszText = text;
  info.cchTextMax = 64;
  ::SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(column),
                 reinterpret_cast<LPARAM>(&info));
  return text;
}

TEST_F(DialogClient, DataListsDropDownATableUnderTheirColumnHeadings) {
  const HWND country = FindControl(Show("business"), L"CA");
  ASSERT_NE(country, nullptr);
  ::SendMessageW(country, WM_LBUTTONDOWN, MK_LBUTTON, 0);
  const HWND popup = ::FindWindowW(L"NVRandomDropDown", nullptr);
  ASSERT_TRUE(popup != nullptr && ::IsWindowVisible(popup));
  const HWND table = ::GetWindow(popup, GW_CHILD);
  EXPECT_EQ(Heading(table, 0), L"Country");
  EXPECT_EQ(Heading(table, 1), L"Code");
  EXPECT_EQ(Heading(table, 2), L"Phone");

  // Enter on a row chooses it: the box shows the row's code, the model's choice. End goes to the
  // last row of the installation's country file.
  PostKey(table, VK_END);
  PostKey(table, VK_RETURN);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindowVisible(popup); }));
  EXPECT_EQ(WindowText(country), L"ZW");

  // The wheel over the closed box walks the rows as the arrow keys do, through the model.
  const auto wheel = [&](short delta) {
    ::PostMessageW(country, WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0);
  };
  wheel(WHEEL_DELTA);
  ASSERT_TRUE(host_.PumpUntil([&] { return WindowText(country) == L"ZM"; }));
  wheel(-WHEEL_DELTA);
  ASSERT_TRUE(host_.PumpUntil([&] { return WindowText(country) == L"ZW"; }));
}

// The right button's menu on a text field: its Paste goes through the field's rules, which
// upper-case the city.
TEST_F(DialogClient, ContextMenuPasteGoesThroughTheFieldsRules) {
  const HWND city = FindControl(Show("business"), L"TORONTO");
  ASSERT_NE(city, nullptr);
  // "north" on the clipboard, as another program puts it.
  ASSERT_TRUE(::OpenClipboard(nullptr));
  ::EmptyClipboard();
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof(L"north"));
  std::memcpy(::GlobalLock(memory), L"north", sizeof(L"north"));
  ::GlobalUnlock(memory);
  ::SetClipboardData(CF_UNICODETEXT, memory);
  ::CloseClipboard();
  host_.WhileModal([] {
    const HWND menu = ::FindWindowW(L"#32768", nullptr);
    if (menu == nullptr || !::IsWindowVisible(menu)) return false;
    PostKey(menu, VK_DOWN);
    PostKey(menu, VK_RETURN);
    return true;
  });
  ::PostMessageW(city, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(4, 4));
  ::PostMessageW(city, WM_RBUTTONUP, 0, MAKELPARAM(4, 4));
  EXPECT_TRUE(host_.PumpUntil([&] {
    return WindowText(city).find(L"NORTH") != std::wstring::npos;
  })) << testing::PrintToString(WindowText(city));
}

TEST_F(DialogClient, HostEmbedsTheDialogWithSetParentAtItsDesignedSize) {
  const HWND container = ::CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 900,
                                           700, nullptr, nullptr, nullptr, nullptr);
  const HWND dialog = Show("business");
  ASSERT_NE(::SetParent(dialog, container), nullptr);
  host_.PumpUntil([] { return false; }, 100);
  EXPECT_NE(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CHILD, 0);
  EXPECT_EQ(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CAPTION, 0);
  RECT client{};
  ::GetClientRect(dialog, &client);
  EXPECT_EQ(client.right, Pixels(Call(*object_, L"Get_Width")));
  EXPECT_EQ(client.bottom, Pixels(Call(*object_, L"Get_Height")));
  // Given back to the desktop, it is a window of its own again, of the same client size.
  ::SetParent(dialog, nullptr);
  EXPECT_EQ(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CHILD, 0);
  EXPECT_NE(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CAPTION, 0);
  RECT own{};
  ::GetClientRect(dialog, &own);
  EXPECT_EQ(own.right, client.right);
  EXPECT_EQ(own.bottom, client.bottom);
  // Closing from the host's side leaves no window behind.
  EXPECT_EQ(Call(*object_, L"Unload_From_Remote"), 0);
  EXPECT_FALSE(::IsWindow(dialog));
  ::DestroyWindow(container);
}

TEST_F(DialogClient, ReleasingTheObjectLeavesTheOpenDialogAndKeepsTheServerUntilItCloses) {
  const HWND dialog = Show("business");
  object_.reset();
  // The sink was released with the object; the window (whose procedure is in the server) is
  // still there, so the server may not be unloaded.
  EXPECT_EQ(sink_.references, 1u);
  EXPECT_TRUE(::IsWindow(dialog));
  EXPECT_EQ(host_.CanUnloadNow(), S_FALSE);
  // The person can still use it; closing it raises nothing to nobody and frees the server.
  PostKey(::GetFocus(), VK_TAB);
  ::PostMessageW(dialog, WM_CLOSE, 0, 0);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindow(dialog); }));
  EXPECT_EQ(host_.CanUnloadNow(), S_OK);
  EXPECT_EQ(sink_.events, "2");
}

TEST_F(DialogClient, ReleasingTheObjectDuringAModalShowEndsItCleanlyWhenTheDialogCloses) {
  ComPtr<IDispatch> object = host_.Create("business");
  ASSERT_TRUE(object);
  IDispatch* const calling = object.get();
  host_.WhileModal([&] {
    const HWND dialog = FindForm(kBillerCaption);
    if (dialog == nullptr) return false;
    object.reset();  // the host's last reference, while ShowForm is still running
    ::PostMessageW(dialog, WM_CLOSE, 0, 0);
    return true;
  });
  EXPECT_EQ(Call(*calling, L"ShowForm"), 50000);
  EXPECT_FALSE(object);
  EXPECT_EQ(host_.CanUnloadNow(), S_OK);  // the object went once the call had returned
}

TEST_F(DialogClient, ANestedModalDialogDisablesItsOwnerUntilItCloses) {
  // The foreign bank dialog opens modal over the embedded biller dialog, which is disabled while
  // it is up; cancelling it returns to the biller dialog.
  const HWND biller = Show("international");
  bool owner_disabled = false;
  host_.WhileModal([&] {
    const HWND bank = FindForm(kBankCaption);
    if (bank == nullptr) return false;
    owner_disabled = !::IsWindowEnabled(biller);
    ::SendMessageW(FindControl(bank, L"Cancel"), BM_CLICK, 0, 0);
    return true;
  });
  ::SendMessageW(FindControl(biller, L"Enter Banking Information"), BM_CLICK, 0, 0);
  EXPECT_TRUE(owner_disabled);
  EXPECT_EQ(FindForm(kBankCaption), nullptr);
  EXPECT_TRUE(::IsWindowEnabled(biller));
}

// The client area of a window as drawn on the screen, 0x00RRGGBB pixels, rows top first.
struct Capture {
  int width = 0;
  int height = 0;
  std::vector<uint32_t> pixels;
};

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

// Lets the window paint (pumping messages for a moment), then copies its client area from the
// screen: the window with its controls, as a person sees it.
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

// Under a display (--screenshots DIR): each layout of the biller dialog, the foreign bank
// dialog and the sample cheque, drawn, of their designed size, written as BMP files.
class Screenshots : public DialogClient {
 protected:
  // Writes the shot as a BMP file, checking that a dialog was drawn, not a blank rectangle: many
  // colours, and much of it unlike its background. The background: the colour most of it has.
  uint32_t Save(const Capture& shot, const std::wstring& name) {
    const auto image_bytes = static_cast<DWORD>(shot.pixels.size() * 4);
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;  // "BM"
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    file.bfSize = file.bfOffBits + image_bytes;
    BITMAPINFOHEADER header = DibHeader(shot);
    header.biSizeImage = image_bytes;
    std::ofstream out(std::filesystem::path(g_screenshots + L"\\" + name + L".bmp"),
                      std::ios::binary);
    out.write(reinterpret_cast<const char*>(&file), sizeof(file));
    out.write(reinterpret_cast<const char*>(&header), sizeof(header));
    out.write(reinterpret_cast<const char*>(shot.pixels.data()), image_bytes);
    EXPECT_TRUE(out) << "could not write " << testing::PrintToString(name);
    std::map<uint32_t, size_t> counts;
    for (const uint32_t p : shot.pixels) ++counts[p];
    const auto most = std::ranges::max_element(counts, {}, [](const auto& c) { return c.second; });
    if (most == counts.end()) {
      ADD_FAILURE() << "nothing captured";
      return 0;
    }
    const size_t drawn = shot.pixels.size() - most->second;
    EXPECT_GE(counts.size(), 5u) << "colours";
    EXPECT_GT(drawn * 50, shot.pixels.size()) << "pixels unlike the background: " << drawn;
    return most->first;
  }
  // Clicks `button` of `dialog`, which opens the modal dialog `caption`; captures and closes it.
  void SaveModal(HWND dialog, const wchar_t* button, const wchar_t* caption,
                 const std::wstring& name) {
    Capture shot;
    host_.WhileModal([&] {
      const HWND window = FindForm(caption);
      if (window == nullptr) return false;
      shot = CaptureClient(window, host_);
      ::PostMessageW(window, WM_CLOSE, 0, 0);
      return true;
    });
    ::SendMessageW(FindControl(dialog, button), BM_CLICK, 0, 0);
    Save(shot, name);
  }
};

// Each layout in the default style; the last, in the host's style 2 (white, with flat styled
// buttons), is what the person sees when the host chose it.
TEST_F(Screenshots, EachDialogAndLayoutIsDrawnAtItsDesignedSizeInTheHostsStyle) {
  ASSERT_FALSE(g_screenshots.empty()) << "run with --screenshots DIR";
  struct Shot {
    std::string_view sample;
    int style;
    std::wstring suffix;
  };
  for (const Shot& row : {Shot{"business", 0, L""}, Shot{"individual", 0, L""}, Shot{"us", 0, L""},
                          Shot{"international", 0, L""}, Shot{"international", 2, L"-white"}}) {
    SCOPED_TRACE(row.sample);
    const HWND dialog = Show(row.sample, row.style);
    const Capture shot = CaptureClient(dialog, host_);
    EXPECT_EQ(shot.width, Pixels(Call(*object_, L"Get_Width")));
    EXPECT_EQ(shot.height, Pixels(Call(*object_, L"Get_Height")));
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);  // 0x00BBGGRR, captured as 0x00RRGGBB
    EXPECT_EQ(
        Save(shot, L"biller-" + std::wstring(row.sample.begin(), row.sample.end()) + row.suffix),
        row.style == 0 ? RGB(GetBValue(face), GetGValue(face), GetRValue(face)) : 0xFFFFFFu);
    if (row.sample == "individual") {
      SaveModal(dialog, L"View Sample Cheque", kChequeCaption, L"sample-cheque");
    }
    if (row.sample == "international") {
      SaveModal(dialog, L"Enter Banking Information", kBankCaption, L"foreign-bank" + row.suffix);
    }
    Call(*object_, L"Unload_From_Remote");
  }
}

}  // namespace
}  // namespace nvrandom::com::test

// Arguments: --install DIR (the installation folder, a Windows path), [--screenshots DIR]. Or
// --close CAPTION: a person at a dialog of another process, who closes the shown, enabled form of
// that caption with its close box once it comes (exit 0), or gives up after 20 s (exit 1).
int main(int argc, char** argv) {
  if (argc == 3 && std::string_view(argv[1]) == "--close") {
    for (int tries = 0; tries < 200; ++tries, ::Sleep(100)) {
      const HWND form = ::FindWindowA("NVRandomForm", argv[2]);
      if (form != nullptr && ::IsWindowVisible(form) && ::IsWindowEnabled(form)) {
        return ::PostMessageW(form, WM_CLOSE, 0, 0) ? 0 : 1;
      }
    }
    return 1;
  }
  ::testing::InitGoogleTest(&argc, argv);
  using nvrandom::com::test::g_install;
  using nvrandom::com::test::g_screenshots;
  for (int i = 1; i + 1 < argc; ++i) {
    const std::string option = argv[i];
    std::wstring value;
    for (const char* c = argv[i + 1]; *c != '\0'; ++c) value += *c == '/' ? L'\\' : wchar_t(*c);
    if (option == "--install") g_install = value + L"\\";
    if (option == "--screenshots") g_screenshots = value;
  }
  return RUN_ALL_TESTS();
}
