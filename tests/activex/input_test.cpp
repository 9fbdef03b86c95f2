// Real window messages to the active control's window reach the container as events, in order;
// the container's own paths (mnemonics, ambient changes) reach the control.
#include <gtest/gtest.h>

#include <cstring>

// commctrl.h needs windows.h, which the container's header brings.
#include "tests/activex/test_container.h"
// clang-format off
#include <commctrl.h>
// clang-format on

namespace glyphon::activex::testing {
namespace {

using Log = std::vector<std::string>;

LPARAM Point(int x, int y) { return MAKELPARAM(x, y); }

class InputTest : public ::testing::Test {
 protected:
  void Click(int x, int y) {
    SendMessageW(button_.Window(), WM_MOUSEMOVE, 0, Point(x, y));
    SendMessageW(button_.Window(), WM_LBUTTONDOWN, MK_LBUTTON, Point(x, y));
    SendMessageW(button_.Window(), WM_LBUTTONUP, 0, Point(x, y));
  }

  Form form_;
  HostedGlyphon button_{form_.Window()};
};

TEST_F(InputTest, MouseClickRaisesEventsInOrder) {
  Click(5, 6);
  EXPECT_EQ(button_.TakeLog(), (Log{"MouseMove(0,0,5,6)", "MouseOver", "MouseDown(1,0,5,6)",
                                    "Click", "MouseUp(1,0,5,6)"}));
  EXPECT_EQ(GetFocus(), button_.Window()) << "a click gives the button the focus";

  // A press inside and a release outside is no click.
  SendMessageW(button_.Window(), WM_LBUTTONDOWN, MK_LBUTTON, Point(5, 6));
  SendMessageW(button_.Window(), WM_LBUTTONUP, 0, Point(200, 6));
  EXPECT_EQ(button_.TakeLog(), (Log{"MouseDown(1,0,5,6)", "MouseOut", "MouseUp(1,0,200,6)"}));
}

TEST_F(InputTest, SpaceAndEnterClickTheFocusedButton) {
  SetFocus(button_.Window());
  SendMessageW(button_.Window(), WM_KEYDOWN, VK_SPACE, 0);
  SendMessageW(button_.Window(), WM_CHAR, ' ', 0);
  SendMessageW(button_.Window(), WM_KEYUP, VK_SPACE, 0);
  EXPECT_EQ(button_.TakeLog(), (Log{"KeyDown(32,0)", "KeyPress(32)", "KeyUp(32,0)", "Click"}));

  SendMessageW(button_.Window(), WM_KEYDOWN, VK_RETURN, 0);
  SendMessageW(button_.Window(), WM_CHAR, '\r', 0);
  SendMessageW(button_.Window(), WM_KEYUP, VK_RETURN, 0);
  EXPECT_EQ(button_.TakeLog(), (Log{"KeyDown(13,0)", "KeyPress(13)", "Click", "KeyUp(13,0)"}));
}

TEST_F(InputTest, AHandlerThatChangesKeyAsciiChangesWhatTheButtonDoes) {
  SetFocus(button_.Window());
  button_.State().replaceKeyAscii = 13;
  SendMessageW(button_.Window(), WM_CHAR, 'x', 0);
  EXPECT_EQ(button_.TakeLog(), (Log{"KeyPress(120)", "Click"}));
}

TEST_F(InputTest, AccessKeyThroughTheContainerAndThroughTheFocusedWindow) {
  const int changesBefore = button_.State().controlInfoChanges;
  button_.PutText(L"Caption", L"&Go");
  EXPECT_GT(button_.State().controlInfoChanges, changesBefore)
      << "the container hears that the access keys changed";
  button_.TakeLog();

  EXPECT_FALSE(button_.FormMnemonic('x'));
  EXPECT_TRUE(button_.FormMnemonic('g'));
  EXPECT_EQ(button_.TakeLog(), Log{"Click"});
  EXPECT_EQ(GetFocus(), button_.Window());

  SendMessageW(button_.Window(), WM_SYSCHAR, 'G', 0);
  EXPECT_EQ(button_.TakeLog(), Log{"Click"});
}

HWND ThreadTooltipWindow() {
  HWND found = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM result) -> BOOL {
        char name[64] = {};
        GetClassNameA(window, name, sizeof name);
        if (std::strcmp(name, TOOLTIPS_CLASSA) != 0) return TRUE;
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

std::string AskForTooltipText(HWND control) {
  NMTTDISPINFOA request{};
  request.hdr.hwndFrom = ThreadTooltipWindow();
  request.hdr.idFrom = reinterpret_cast<UINT_PTR>(control);
  request.hdr.code = TTN_NEEDTEXTA;
  SendMessageA(control, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&request));
  return request.lpszText != nullptr ? request.lpszText : "<none>";
}

TEST(Tooltip, TheContainersTextUntilTheButtonsOwnIsSet) {
  Form form;
  ContainerState state;
  state.extenderToolTipText = L"From the form";
  MemoryBag bag;
  HostedGlyphon button(form.Window(), state, &bag);
  ASSERT_NE(ThreadTooltipWindow(), nullptr) << "loading in run mode makes the tooltip window";

  EXPECT_EQ(AskForTooltipText(button.Window()), "From the form");
  button.PutText(L"ToolTipText", L"Saves the file");
  EXPECT_EQ(AskForTooltipText(button.Window()), "Saves the file");
}

TEST(AmbientChanges, DisplayAsDefaultFollowsTheContainerWhileEnabled) {
  Form form;
  HostedGlyphon button(form.Window());
  button.SetDisplayAsDefault(true);
  EXPECT_TRUE(button.GetBool(L"Default"));
  button.SetDisplayAsDefault(false);
  EXPECT_FALSE(button.GetBool(L"Default"));

  button.PutBool(L"Enabled", false);
  button.State().extenderDefault = true;
  button.SetDisplayAsDefault(true);
  EXPECT_FALSE(button.GetBool(L"Default"));
  EXPECT_FALSE(button.State().extenderDefault) << "a disabled button gives up the form's default";
}

// The whole surface lands inside the bounds and nothing outside them. The target starts in a
// colour no look uses.
TEST(View, DrawPaintsTheButtonIntoAnyDeviceContext) {
  constexpr COLORREF kUnused = RGB(1, 2, 3);
  Form form;
  HostedGlyphon button(form.Window());
  ComPtr<IViewObject2> view;
  ASSERT_HRESULT_SUCCEEDED(button.Object()->QueryInterface(IID_PPV_ARGS(&view)));
  HDC screen = GetDC(nullptr);
  HDC target = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateCompatibleBitmap(screen, 120, 60);
  HGDIOBJ previous = SelectObject(target, bitmap);
  HBRUSH fill = CreateSolidBrush(kUnused);
  RECT all{0, 0, 120, 60};
  FillRect(target, &all, fill);
  DeleteObject(fill);
  const RECTL bounds{20, 10, 101, 35};
  ASSERT_HRESULT_SUCCEEDED(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, target,
                                      &bounds, nullptr, nullptr, 0));
  int paintedInside = 0;
  int untouchedOutside = 0;
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 120; ++x) {
      const bool untouched = GetPixel(target, x, y) == kUnused;
      const bool inside = x >= bounds.left && x < bounds.right && y >= bounds.top &&
                          y < bounds.bottom;
      if (inside && !untouched) ++paintedInside;
      if (!inside && untouched) ++untouchedOutside;
    }
  }
  EXPECT_EQ(paintedInside, 81 * 25);
  EXPECT_EQ(untouchedOutside, 120 * 60 - 81 * 25);
  SelectObject(target, previous);
  DeleteObject(bitmap);
  DeleteDC(target);
  ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace glyphon::activex::testing
