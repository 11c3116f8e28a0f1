// A host of NVRandom.dll's real dialogs: events through connection points while the person's keys
// and clicks reach the dialog's windows, embedding by SetParent, releasing the object with the
// dialog open, and modal shows with their own message loop (a nested dialog too).
#include "host_test.h"
// After windows.h (dialog_host.h).
#include <commctrl.h>

#include <cstring>

#include "screenshot.h"

namespace nvrandom::com::test {
namespace {

constexpr const wchar_t* kBillerCaption = L"Norvik - Biller / Funds Transfer Information";
constexpr const wchar_t* kBankCaption = L"International Payment Banking Information";
constexpr const wchar_t* kChequeCaption = L"Sample Cheque";

HWND DialogOf(IDispatch& object) {
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(Call(object, L"Get_hWnd")));
}

int Pixels(long twips) {
  return ::MulDiv(static_cast<int>(twips), SystemDpi(), 1440);
}

class DialogClient : public HostTest {
 protected:
  // The business sample shown modeless, its events going to `sink` if given; null (a failure
  // recorded) if it could not be.
  ComPtr<IDispatch> ShowBusiness(RecordingSink* sink = nullptr) {
    ComPtr<IDispatch> object = host_.Create("business");
    if (!object || (sink != nullptr && Advise(*object, *sink) == 0) ||
        Call(*object, L"ShowForm_Remote") != 0) {
      ADD_FAILURE() << "the business sample was not shown";
      return nullptr;
    }
    return object;
  }
};

TEST_F(DialogClient, EmbeddedDialogRaisesItsEventsThroughConnectionPoints) {
  // Shown: the first field takes the focus and reports where it stands.
  RecordingSink sink;
  ComPtr<IDispatch> object = ShowBusiness(&sink);
  ASSERT_TRUE(object);
  const HWND dialog = DialogOf(*object);
  ASSERT_TRUE(::IsWindowVisible(dialog));
  ASSERT_TRUE(host_.PumpUntil([&] { return !sink.tops.empty(); }));
  EXPECT_EQ(sink.events, "2");
  const HWND street = ::GetFocus();
  ASSERT_NE(street, nullptr);
  EXPECT_EQ(WindowText(street), L"100 KING ST W");

  // Tab goes through the runtime's tab order to the next field, which reports a lower top.
  PostKey(street, VK_TAB);
  ASSERT_TRUE(host_.PumpUntil([&] { return sink.tops.size() == 2; }));
  EXPECT_GT(sink.tops[1], sink.tops[0]);
  const HWND city = ::GetFocus();
  EXPECT_EQ(WindowText(city), L"TORONTO");

  // What the field shows is the model's text: the city's rules upper-case a typed letter.
  PostKey(city, VK_END);
  PostKey(city, 'X');
  ASSERT_TRUE(host_.PumpUntil([&] { return WindowText(city) == L"TORONTOX"; }));
  PostKey(city, VK_BACK);
  ASSERT_TRUE(host_.PumpUntil([&] { return WindowText(city) == L"TORONTO"; }));

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
  EXPECT_EQ(sink.tops.back(), sink.tops[0]);

  // The cancel button gives one Cancel and closes the window.
  ::SendMessageW(FindControl(dialog, L"Cancel"), BM_CLICK, 0, 0);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindow(dialog); }));
  EXPECT_EQ(sink.events, "2223") << testing::PrintToString(sink.tops);

  // OK on a valid biller: CSBOK, and the dialog goes.
  sink.events.clear();
  EXPECT_EQ(Call(*object, L"ShowForm_Remote"), 0);
  const HWND valid = DialogOf(*object);
  ::SendMessageW(FindControl(valid, L"OK"), BM_CLICK, 0, 0);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindow(valid); }))
      << sink.events << " focus: " << testing::PrintToString(WindowText(::GetFocus()));
  EXPECT_NE(sink.events.find('1'), std::string::npos) << sink.events;
  EXPECT_EQ(sink.events.find('3'), std::string::npos) << sink.events;
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
  RecordingSink sink;
  ComPtr<IDispatch> object = ShowBusiness(&sink);
  ASSERT_TRUE(object);
  const HWND dialog = DialogOf(*object);
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
  const size_t reported = sink.tops.size();
  PostDoubleClick(individual);
  ASSERT_TRUE(host_.PumpUntil(handled));
  // The option took the focus and its Click moved it on to the phone: two reports, not four.
  EXPECT_EQ(sink.tops.size(), reported + 2) << testing::PrintToString(sink.tops);
  EXPECT_NE(::GetFocus(), individual);
  Call(*object, L"Unload_From_Remote");
}

// Alt with an underlined letter is the model's access key: Alt+I selects "&Individual" from the
// street, and the option's Click moves the focus on.
TEST_F(DialogClient, AltWithAnUnderlinedLetterPressesItsControl) {
  ComPtr<IDispatch> object = ShowBusiness();
  ASSERT_TRUE(object);
  const HWND individual = FindControl(DialogOf(*object), L"Individual");
  ASSERT_NE(individual, nullptr);
  ASSERT_TRUE(host_.PumpUntil([] { return ::GetFocus() != nullptr; }));
  const HWND street = ::GetFocus();
  constexpr LPARAM kAltHeld = LPARAM{1} << 29;
  ::PostMessageW(street, WM_SYSKEYDOWN, 'I', kAltHeld | 1);
  ::PostMessageW(street, WM_KEYUP, 'I', static_cast<LPARAM>(0xC0000001));
  ASSERT_TRUE(host_.PumpUntil(
      [&] { return ::SendMessageW(individual, BM_GETCHECK, 0, 0) == BST_CHECKED; }));
  EXPECT_NE(::GetFocus(), street);
  Call(*object, L"Unload_From_Remote");
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
  ComPtr<IDispatch> object = ShowBusiness();
  ASSERT_TRUE(object);
  const HWND dialog = DialogOf(*object);
  const HWND country = FindControl(dialog, L"CA");
  ASSERT_NE(country, nullptr);
  ::SendMessageW(country, WM_LBUTTONDOWN, MK_LBUTTON, 0);
  const HWND popup = ::FindWindowW(L"NVRandomDropDown", nullptr);
  ASSERT_TRUE(popup != nullptr && ::IsWindowVisible(popup));
  const HWND table = ::GetWindow(popup, GW_CHILD);
  EXPECT_EQ(Heading(table, 0), L"Country");
  EXPECT_EQ(Heading(table, 1), L"Code");
  EXPECT_EQ(Heading(table, 2), L"Phone");
  EXPECT_GT(::SendMessageW(table, LVM_GETITEMCOUNT, 0, 0), 200);

  // Enter on a row chooses it: the box shows the row's code, the model's choice.
  LVFINDINFOW find{};
  find.flags = LVFI_STRING;
  find.psz = L"United States";
  const auto row = static_cast<int>(::SendMessageW(table, LVM_FINDITEMW, static_cast<WPARAM>(-1),
                                                   reinterpret_cast<LPARAM>(&find)));
  ASSERT_GE(row, 0);
  LVITEMW state{};
  state.stateMask = state.state = LVIS_SELECTED | LVIS_FOCUSED;
  ::SendMessageW(table, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&state));
  PostKey(table, VK_RETURN);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindowVisible(popup); }));
  EXPECT_EQ(WindowText(country), L"US");

  // The wheel over the closed box walks the rows as the arrow keys do, through the model.
  const auto wheel = [&](short delta) {
    ::PostMessageW(country, WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0);
  };
  wheel(-WHEEL_DELTA);
  ASSERT_TRUE(host_.PumpUntil([&] { return WindowText(country) != L"US"; }));
  EXPECT_FALSE(WindowText(country).empty());
  wheel(WHEEL_DELTA);
  ASSERT_TRUE(host_.PumpUntil([&] { return WindowText(country) == L"US"; }));
  Call(*object, L"Unload_From_Remote");
}

// Puts `text` on the clipboard, as another program would.
void CopyToClipboard(const std::wstring& text) {
  ASSERT_TRUE(::OpenClipboard(nullptr));
  ::EmptyClipboard();
  const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(::GlobalLock(memory), text.c_str(), bytes);
  ::GlobalUnlock(memory);
  ::SetClipboardData(CF_UNICODETEXT, memory);
  ::CloseClipboard();
}

// The right button's menu on a text field: its Paste goes through the dialog's rules.
TEST_F(DialogClient, ContextMenuPasteGoesThroughTheFieldsRules) {
  ComPtr<IDispatch> object = ShowBusiness();
  ASSERT_TRUE(object);
  const HWND dialog = DialogOf(*object);
  struct Row {
    const wchar_t* field;  // its text, which finds it
    bool pasted;
  };
  for (const Row& row : {Row{L"TORONTO", true}, Row{L"billing@example.com", false}}) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(row.field)));
    const HWND field = FindControl(dialog, row.field);
    ASSERT_NE(field, nullptr);
    CopyToClipboard(L"north");
    host_.WhileModal([] {
      const HWND menu = ::FindWindowW(L"#32768", nullptr);
      if (menu == nullptr || !::IsWindowVisible(menu)) return false;
      PostKey(menu, VK_DOWN);
      PostKey(menu, VK_RETURN);
      return true;
    });
    ::PostMessageW(field, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(4, 4));
    ::PostMessageW(field, WM_RBUTTONUP, 0, MAKELPARAM(4, 4));
    const std::wstring before = WindowText(field);
    host_.PumpUntil([&] { return WindowText(field) != before; }, row.pasted ? 5000 : 500);
    EXPECT_EQ(WindowText(field).find(L"NORTH") != std::wstring::npos, row.pasted)
        << testing::PrintToString(WindowText(field));
  }
  Call(*object, L"Unload_From_Remote");
}

TEST_F(DialogClient, HostEmbedsTheDialogWithSetParentAtItsDesignedSize) {
  ComPtr<IDispatch> object = host_.Create("business");
  ASSERT_TRUE(object);
  const HWND container = ::CreateWindowExW(0, L"STATIC", L"host", WS_OVERLAPPEDWINDOW, 0, 0, 900,
                                           700, nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(container, nullptr);
  EXPECT_EQ(Call(*object, L"ShowForm_Remote"), 0);
  const HWND dialog = DialogOf(*object);
  ::SetParent(dialog, container);
  host_.PumpUntil([] { return false; }, 100);
  EXPECT_NE(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CHILD, 0);
  EXPECT_EQ(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CAPTION, 0);
  RECT client{};
  ::GetClientRect(dialog, &client);
  EXPECT_EQ(client.right, Pixels(Call(*object, L"Get_Width")));
  EXPECT_EQ(client.bottom, Pixels(Call(*object, L"Get_Height")));
  RECT placed{};
  ::GetWindowRect(dialog, &placed);
  ::MapWindowPoints(nullptr, container, reinterpret_cast<POINT*>(&placed), 2);
  EXPECT_EQ(placed.left, 0);
  EXPECT_EQ(placed.top, 0);
  // Given back to the desktop, it is a window of its own again, of the same client size.
  ::SetParent(dialog, nullptr);
  EXPECT_EQ(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CHILD, 0);
  EXPECT_NE(::GetWindowLongPtrW(dialog, GWL_STYLE) & WS_CAPTION, 0);
  RECT own{};
  ::GetClientRect(dialog, &own);
  EXPECT_EQ(own.right, client.right);
  EXPECT_EQ(own.bottom, client.bottom);
  // Closing from the host's side leaves no window behind.
  EXPECT_EQ(Call(*object, L"Unload_From_Remote"), 0);
  EXPECT_FALSE(::IsWindow(dialog));
  ::DestroyWindow(container);
}

TEST_F(DialogClient, ReleasingTheObjectLeavesTheOpenDialogAndKeepsTheServerUntilItCloses) {
  RecordingSink sink;
  ComPtr<IDispatch> object = ShowBusiness(&sink);
  ASSERT_TRUE(object);
  const HWND dialog = DialogOf(*object);
  object.reset();
  // The sink was released with the object; the window (whose procedure is in the server) is
  // still there, so the server may not be unloaded.
  EXPECT_EQ(sink.references, 1u);
  EXPECT_TRUE(::IsWindow(dialog));
  EXPECT_EQ(host_.CanUnloadNow(), S_FALSE);
  // The person can still use it; closing it raises nothing to nobody and frees the server.
  PostKey(::GetFocus(), VK_TAB);
  ::PostMessageW(dialog, WM_CLOSE, 0, 0);
  ASSERT_TRUE(host_.PumpUntil([&] { return !::IsWindow(dialog); }));
  EXPECT_EQ(host_.CanUnloadNow(), S_OK);
  EXPECT_EQ(sink.events, "2");
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

TEST_F(DialogClient, ModalShowsRunTheirOwnLoopAndReturnTheCloseResult) {
  ComPtr<IDispatch> object = host_.Create("international");
  ASSERT_TRUE(object);
  // ShowForm closed by its close box is the test above's. The read-only show of an imported
  // biller: no Cancel button, OK reads "Close".
  bool cancel_shown = true;
  host_.WhileModal([&] {
    const HWND dialog = FindForm(kBillerCaption);
    const HWND close = dialog != nullptr ? FindControl(dialog, L"Close") : nullptr;
    if (close == nullptr) return false;
    cancel_shown = FindControl(dialog, L"Cancel") != nullptr;
    ::SendMessageW(close, BM_CLICK, 0, 0);
    return true;
  });
  Call(*object, L"ShowForm_Import");
  EXPECT_FALSE(cancel_shown);
  EXPECT_EQ(FindForm(kBillerCaption), nullptr);

  // The foreign bank dialog opens modal over the embedded biller dialog, which is disabled while
  // it is up; cancelling it returns to the biller dialog.
  EXPECT_EQ(Call(*object, L"ShowForm_Remote"), 0);
  const HWND biller = DialogOf(*object);
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
  Call(*object, L"Unload_From_Remote");
  EXPECT_FALSE(::IsWindow(biller));
}

// Under a display (--screenshots DIR): each layout of the biller dialog, the foreign bank
// dialog and the sample cheque, drawn, of their designed size, written as BMP files.
class Screenshots : public DialogClient {
 protected:
  void Save(const Capture& shot, const std::wstring& name) {
    ExpectDrawn(shot);
    EXPECT_TRUE(WriteBmp(shot, g_screenshots + L"\\" + name + L".bmp"));
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
    ComPtr<IDispatch> object = host_.Create(row.sample);
    ASSERT_TRUE(object);
    Let(*object, "FormStyle " + std::to_string(row.style));
    EXPECT_EQ(Call(*object, L"ShowForm_Remote"), 0);
    const HWND dialog = DialogOf(*object);
    const Capture shot = CaptureClient(dialog, host_);
    EXPECT_EQ(shot.width, Pixels(Call(*object, L"Get_Width")));
    EXPECT_EQ(shot.height, Pixels(Call(*object, L"Get_Height")));
    Save(shot, L"biller-" + std::wstring(row.sample.begin(), row.sample.end()) + row.suffix);
    EXPECT_EQ(Background(shot), row.style == 0 ? ToRgb(::GetSysColor(COLOR_BTNFACE)) : 0xFFFFFFu);
    if (row.sample == "individual") {
      SaveModal(dialog, L"View Sample Cheque", kChequeCaption, L"sample-cheque");
    }
    if (row.sample == "international") {
      SaveModal(dialog, L"Enter Banking Information", kBankCaption, L"foreign-bank" + row.suffix);
    }
    Call(*object, L"Unload_From_Remote");
  }
}

}  // namespace
}  // namespace nvrandom::com::test

// Arguments: --install DIR (the installation folder, a Windows path), [--screenshots DIR].
int main(int argc, char** argv) {
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
