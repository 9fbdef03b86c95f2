// System colour broadcasts, cancel mode and the host hooks.
#include <string>

#include "tests/platform/user_test_support.h"

namespace glyphon::win::testing_user {
namespace {

class ServicesTest : public UserTest {
 protected:
  void TearDown() override {
    User().Hooks() = soft::UserHooks{};
    UserTest::TearDown();
  }
};

TEST_F(ServicesTest, ChangingTheSystemColoursTellsEveryWindowParentsFirst) {
  HWND top = TopLevel({0, 0, 50, 50});
  HWND child = Child(top, {0, 0, 10, 10}, 0);  // hidden windows hear it too
  HWND other = TopLevel({60, 0, 90, 50});
  Log().clear();
  soft::SystemColors colors = soft::ClassicSystemColors();
  colors[COLOR_BTNFACE] = RGB(1, 2, 3);
  soft::ThreadSoftEngine().SetSystemColors(colors);
  EXPECT_EQ(TrailOf({WM_SYSCOLORCHANGE}),  // z-order, then down the tree
            (Trail{{other, WM_SYSCOLORCHANGE}, {top, WM_SYSCOLORCHANGE},
                   {child, WM_SYSCOLORCHANGE}}));
  EXPECT_EQ(GetSysColor(COLOR_BTNFACE), RGB(1, 2, 3));
  soft::ThreadSoftEngine().SetSystemColors(soft::ClassicSystemColors());
  DestroyWindow(top);
  DestroyWindow(other);
}

TEST_F(ServicesTest, CancelModeReachesTheWindowAndEndsItsCapture) {
  HWND hwnd = TopLevel({0, 0, 10, 10});
  SetCapture(hwnd);
  Log().clear();
  User().CancelMode(hwnd);
  EXPECT_EQ(Kinds(Of(hwnd, {WM_CANCELMODE, WM_CAPTURECHANGED})),
            (std::vector<UINT>{WM_CANCELMODE, WM_CAPTURECHANGED}));
  EXPECT_EQ(GetCapture(), nullptr);
  DestroyWindow(hwnd);
}

TEST_F(ServicesTest, AMessageBoxIsModalAndHeadlessHostsGetTheDismissedAnswer) {
  EXPECT_EQ(MessageBoxA(nullptr, "text", "caption", MB_YESNOCANCEL), IDCANCEL);
  EXPECT_EQ(MessageBoxA(nullptr, "text", "caption", MB_YESNO | MB_ICONQUESTION), IDNO);

  HWND top = TopLevel({0, 0, 50, 50});
  HWND child = Child(top, {0, 0, 10, 10});
  SetCapture(child);
  Log().clear();
  bool ownerEnabledDuringBox = true;
  std::string shown;
  User().Hooks().messageBox = [&](HWND, LPCSTR text, LPCSTR caption, UINT) {
    ownerEnabledDuringBox = IsWindowEnabled(top) != FALSE;
    shown = std::string(caption) + ": " + text;
    return IDYES;
  };
  EXPECT_EQ(MessageBoxA(child, "Sure?", "Question", MB_YESNO), IDYES);
  EXPECT_EQ(shown, "Question: Sure?");
  // The owner's top-level window is disabled meanwhile, which also ends a capture inside it.
  EXPECT_FALSE(ownerEnabledDuringBox);
  EXPECT_TRUE(IsWindowEnabled(top));
  EXPECT_EQ(Kinds(Of(top, {WM_CANCELMODE, WM_ENABLE})),
            (std::vector<UINT>{WM_CANCELMODE, WM_ENABLE, WM_ENABLE}));
  EXPECT_EQ(Kinds(Of(child, {WM_CAPTURECHANGED})), (std::vector<UINT>{WM_CAPTURECHANGED}));
  EXPECT_EQ(GetCapture(), nullptr);
  DestroyWindow(top);
}

TEST_F(ServicesTest, WebPagesAreRecordedAndAReplacedSleepLeavesTheClockAlone) {
  const std::size_t before = User().ShellRequests().size();
  const auto result = reinterpret_cast<std::intptr_t>(
      ShellExecuteA(nullptr, "open", "http://example.invalid/", nullptr, nullptr, SW_SHOWNORMAL));
  EXPECT_GT(result, 32);
  ASSERT_EQ(User().ShellRequests().size(), before + 1);
  EXPECT_EQ(User().ShellRequests().back().file, "http://example.invalid/");

  DWORD slept = 0;
  User().Hooks().sleep = [&](DWORD milliseconds) { slept += milliseconds; };
  const DWORD start = GetTickCount();
  Sleep(60);
  EXPECT_EQ(slept, 60u);
  EXPECT_EQ(GetTickCount(), start);  // the host keeps time now
}

}  // namespace
}  // namespace glyphon::win::testing_user
