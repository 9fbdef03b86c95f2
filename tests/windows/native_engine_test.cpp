// The native engine hands our records and procedures to Windows and back unchanged.
#include "platform/native/native_engine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <thread>
#include <vector>

#include "platform/soft/soft_engine.h"

namespace glyphon::win {
namespace {

class NativeEngineTest : public ::testing::Test {
 protected:
  EngineScope scope_{native::TheNativeEngine()};
};

std::vector<UINT> received;
void* createParam = nullptr;

LRESULT GLYPHON_CALLBACK Recording(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  received.push_back(message);
  if (message == WM_CREATE) {
    createParam = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams;
  }
  if (message == WM_USER) return static_cast<LRESULT>(wParam + 1);
  return DefWindowProcA(hwnd, message, wParam, lParam);
}

WNDPROC previous = nullptr;
LRESULT GLYPHON_CALLBACK Subclass(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_USER) wParam *= 10;
  return CallWindowProcA(previous, hwnd, message, wParam, lParam);
}

TEST_F(NativeEngineTest, WindowsRunOurProceduresAndCanBeSubclassed) {
  WNDCLASSA windowClass{};
  windowClass.lpfnWndProc = Recording;
  windowClass.hInstance = GetModuleHandleA(nullptr);
  windowClass.lpszClassName = "GlyphonNativeTest";
  ASSERT_NE(RegisterClassA(&windowClass), 0);
  int marker = 0;
  received.clear();
  HWND hwnd = CreateWindowExA(0, "GlyphonNativeTest", "title", WS_OVERLAPPED, 10, 20, 70, 40,
                              nullptr, nullptr, windowClass.hInstance, &marker);
  ASSERT_NE(hwnd, nullptr);
  EXPECT_EQ(createParam, &marker);
  EXPECT_NE(std::find(received.begin(), received.end(), WM_CREATE), received.end());
  EXPECT_EQ(SendMessageA(hwnd, WM_USER, 4, 0), 5);

  previous = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Subclass)));
  EXPECT_EQ(SendMessageA(hwnd, WM_USER, 4, 0), 41);
  SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
  EXPECT_EQ(SendMessageA(hwnd, WM_USER, 4, 0), 5);

  SetWindowLongPtrA(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&marker));
  EXPECT_EQ(GetWindowLongPtrA(hwnd, GWLP_USERDATA), reinterpret_cast<LONG_PTR>(&marker));
  char title[16] = {};
  EXPECT_EQ(GetWindowTextA(hwnd, title, sizeof title), 5);
  EXPECT_STREQ(title, "title");
  EXPECT_TRUE(DestroyWindow(hwnd));
  EXPECT_FALSE(IsWindow(hwnd));
  EXPECT_TRUE(UnregisterClassA("GlyphonNativeTest", windowClass.hInstance));
}

TEST_F(NativeEngineTest, RecordsComeBackInOurLayout) {
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), 5, -3, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HBITMAP dib = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  ASSERT_NE(dib, nullptr);
  DIBSECTION section{};
  ASSERT_EQ(GetObjectA(dib, sizeof section, &section), static_cast<int>(sizeof section));
  EXPECT_EQ(section.dsBm.bmWidth, 5);
  EXPECT_EQ(section.dsBm.bmHeight, 3);
  EXPECT_EQ(section.dsBm.bmWidthBytes, 16);
  EXPECT_EQ(section.dsBm.bmBits, bits);
  EXPECT_EQ(section.dsBmih.biBitCount, 24);
  DeleteObject(dib);

  LOGFONTA asked{};
  asked.lfHeight = -13;
  asked.lfWeight = FW_BOLD;
  asked.lfItalic = 1;
  std::strcpy(asked.lfFaceName, "Tahoma");
  HFONT font = CreateFontIndirectA(&asked);
  LOGFONTA back{};
  ASSERT_EQ(GetObjectA(font, sizeof back, &back), static_cast<int>(sizeof back));
  EXPECT_EQ(back.lfHeight, -13);
  EXPECT_EQ(back.lfItalic, 1);
  EXPECT_STREQ(back.lfFaceName, "Tahoma");
  DeleteObject(font);

  COLORREF face = 0;
  EXPECT_EQ(OleTranslateColor(0x8000000F, nullptr, &face), S_OK);
  EXPECT_EQ(face, GetSysColor(COLOR_BTNFACE));
}

TEST_F(NativeEngineTest, TooltipsAcceptOurToolRecord) {
  InitCommonControls();
  HWND tip = CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, 0, CW_USEDEFAULT,
                             CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr,
                             GetModuleHandleA(nullptr), nullptr);
  ASSERT_NE(tip, nullptr);
  HWND owner = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPED, 0, 0, 50, 20, nullptr, nullptr,
                               nullptr, nullptr);
  TOOLINFOA tool{};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND;
  tool.hwnd = owner;
  tool.uId = reinterpret_cast<UINT_PTR>(owner);
  tool.lpszText = GLYPHON_LPSTR_TEXTCALLBACKA;
  EXPECT_NE(SendMessageA(tip, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool)), 0);
  DestroyWindow(owner);
  DestroyWindow(tip);
}

TEST_F(NativeEngineTest, EachThreadPaintsThroughItsOwnEngine) {
  HDC native = CreateCompatibleDC(nullptr);
  ASSERT_NE(native, nullptr);
  bool otherThreadIsSoft = false;
  std::thread([&] { otherThreadIsSoft = &CurrentEngine() == &soft::ThreadSoftEngine(); }).join();
  EXPECT_TRUE(otherThreadIsSoft);
  {
    EngineScope soft(soft::ThreadSoftEngine());
    EXPECT_EQ(GetObjectType(native), 0u);  // not one of the soft engine's handles
  }
  EXPECT_EQ(GetObjectType(native), OBJ_MEMDC);
  DeleteDC(native);
}

TEST_F(NativeEngineTest, HostServicesReachTheSystem) {
  EXPECT_NE(GetModuleHandleA(nullptr), nullptr);
  const DWORD before = GetTickCount();
  Sleep(20);
  EXPECT_GE(GetTickCount() - before, 10u);
}

}  // namespace
}  // namespace glyphon::win
