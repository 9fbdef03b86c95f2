// Window lifetime, the window longs, subclassing, geometry, painting and screen composition.
#include "tests/platform/user_test_support.h"

#include "platform/soft/soft_engine.h"

namespace glyphon::win::testing_user {
namespace {

using WindowTest = UserTest;

LRESULT GLYPHON_CALLBACK RefusingProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  return message == WM_CREATE ? -1 : RecordingProc(hwnd, message, wParam, lParam);
}

TEST_F(WindowTest, CreationSendsItsMessagesInOrderAndCanBeRefused) {
  int param = 7;
  HWND hwnd = CreateWindowExA(0, "recorder", "title", WS_POPUP | WS_VISIBLE, 10, 20, 30, 40,
                              nullptr, nullptr, nullptr, &param);  // class names ignore case
  ASSERT_NE(hwnd, nullptr);
  EXPECT_EQ(Kinds(Of(hwnd, {WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE, WM_SHOWWINDOW})),
            (std::vector<UINT>{WM_NCCREATE, WM_CREATE, WM_SIZE, WM_MOVE, WM_SHOWWINDOW}));
  EXPECT_EQ(LastCreateParam(), &param);
  EXPECT_EQ(Of(hwnd, {WM_SIZE})[0].lParam, MAKELPARAM(30, 40));
  char text[8];
  EXPECT_EQ(GetWindowTextA(hwnd, text, 4), 3);  // truncated to the buffer
  EXPECT_STREQ(text, "tit");
  EXPECT_TRUE(DestroyWindow(hwnd));

  // WS_CHILD needs a parent; unknown classes fail; a procedure can refuse creation.
  EXPECT_EQ(Child(nullptr, {0, 0, 5, 5}), nullptr);
  EXPECT_EQ(CreateWindowExA(0, "NoSuchClass", "", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr,
                            nullptr),
            nullptr);
  WNDCLASSA refusing{};
  refusing.lpfnWndProc = RefusingProc;
  refusing.lpszClassName = "Refusing";
  ASSERT_NE(RegisterClassA(&refusing), 0);
  Log().clear();
  EXPECT_EQ(CreateWindowExA(0, "Refusing", "", 0, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr),
            nullptr);
  ASSERT_FALSE(Log().empty());
  EXPECT_EQ(Log().back().message, WM_NCDESTROY);
  EXPECT_TRUE(UnregisterClassA("Refusing", nullptr));
}

TEST_F(WindowTest, ClassesAreUniqueAndOutliveTheirWindowsOnly) {
  WNDCLASSA again{};
  again.lpfnWndProc = RecordingProc;
  again.lpszClassName = "RECORDER";
  EXPECT_EQ(RegisterClassA(&again), 0);
  HWND hwnd = TopLevel({0, 0, 5, 5});
  EXPECT_FALSE(UnregisterClassA(kRecorder, GetModuleHandleA(nullptr)));
  DestroyWindow(hwnd);
  EXPECT_FALSE(UnregisterClassA(kRecorder, nullptr));  // not the registering module
}

// The chain the control builds: a replacement procedure that forwards to the one it replaced.
LRESULT GLYPHON_CALLBACK Outer(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT GLYPHON_CALLBACK Inner(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
WNDPROC innerPrevious = nullptr;
WNDPROC outerPrevious = nullptr;
std::vector<int> visits;

LRESULT GLYPHON_CALLBACK Inner(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_USER) visits.push_back(1);
  return CallWindowProcA(innerPrevious, hwnd, message, wParam, lParam) + 10;
}
LRESULT GLYPHON_CALLBACK Outer(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_USER) visits.push_back(2);
  return CallWindowProcA(outerPrevious, hwnd, message, wParam, lParam) + 100;
}

TEST_F(WindowTest, SubclassingChainsProceduresAndRestores) {
  HWND hwnd = TopLevel({0, 0, 10, 10});
  const auto original = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(hwnd, GWLP_WNDPROC));
  EXPECT_EQ(original, &RecordingProc);
  innerPrevious = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Inner)));
  outerPrevious = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Outer)));
  EXPECT_EQ(innerPrevious, original);
  EXPECT_EQ(outerPrevious, &Inner);
  Log().clear();
  visits.clear();
  EXPECT_EQ(SendMessageA(hwnd, WM_USER, 1, 2), 110);
  EXPECT_EQ(visits, (std::vector<int>{2, 1}));
  ASSERT_EQ(Log().size(), 1u);  // and the original procedure saw it last
  EXPECT_EQ(Log()[0].wParam, 1u);

  // A null procedure is refused; unhooking in reverse order restores the original.
  EXPECT_EQ(SetWindowLongPtrA(hwnd, GWLP_WNDPROC, 0), reinterpret_cast<LONG_PTR>(&Outer));
  SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(outerPrevious));
  SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(innerPrevious));
  EXPECT_EQ(GetWindowLongPtrA(hwnd, GWLP_WNDPROC), reinterpret_cast<LONG_PTR>(original));

  HWND child = CreateWindowExA(0, kRecorder, "", WS_CHILD, 0, 0, 1, 1, hwnd,
                               reinterpret_cast<HMENU>(std::intptr_t{42}), nullptr, nullptr);
  EXPECT_EQ(GetWindowLongPtrA(child, GWLP_ID), 42);  // a child's menu handle is its id
  DestroyWindow(hwnd);
}

TEST_F(WindowTest, DestroyingReleasesTheWholeTreeInWindowsOrder) {
  HWND top = TopLevel({0, 0, 100, 100});
  HWND child = Child(top, {0, 0, 50, 50});
  HWND grandchild = Child(child, {0, 0, 10, 10});
  HWND owned = CreateWindowExA(0, kRecorder, "", WS_POPUP, 0, 0, 5, 5, grandchild, nullptr,
                               nullptr, nullptr);
  EXPECT_EQ(GetParent(owned), top);  // owners are top-level windows
  EXPECT_EQ(GetParent(grandchild), child);
  HDC dc = GetDC(child);  // never released by the test
  ASSERT_NE(dc, nullptr);
  SetTimer(grandchild, 1, 10, nullptr);
  PostMessageA(child, WM_USER, 0, 0);
  SetFocus(grandchild);
  SetCapture(child);
  Log().clear();

  EXPECT_TRUE(DestroyWindow(top));
  EXPECT_EQ(TrailOf({WM_DESTROY, WM_NCDESTROY}),
            (Trail{{owned, WM_DESTROY}, {owned, WM_NCDESTROY}, {top, WM_DESTROY},
                   {child, WM_DESTROY}, {grandchild, WM_DESTROY}, {grandchild, WM_NCDESTROY},
                   {child, WM_NCDESTROY}, {top, WM_NCDESTROY}}));
  // Hiding the tree took the focus away with a message; the rest went silently.
  EXPECT_EQ(Kinds(Of(grandchild, {WM_KILLFOCUS})), (std::vector<UINT>{WM_KILLFOCUS}));
  for (HWND h : {top, child, grandchild, owned}) EXPECT_FALSE(IsWindow(h));
  EXPECT_EQ(GetFocus(), nullptr);
  EXPECT_EQ(GetCapture(), nullptr);
  Log().clear();
  User().AdvanceClock(100);
  EXPECT_EQ(User().DispatchPendingMessages(), 0);
  EXPECT_TRUE(Log().empty());
  EXPECT_EQ(ReleaseDC(child, dc), 0);  // freed with its window
}

TEST_F(WindowTest, StaleAndForeignHandlesAreIgnored) {
  HWND hwnd = TopLevel({0, 0, 10, 10});
  DestroyWindow(hwnd);
  HWND fresh = TopLevel({0, 0, 10, 10});  // may reuse the slot, never the handle
  EXPECT_NE(fresh, hwnd);
  Log().clear();
  EXPECT_FALSE(DestroyWindow(hwnd));
  EXPECT_EQ(SendMessageA(hwnd, WM_USER, 0, 0), 0);
  EXPECT_FALSE(PostMessageA(hwnd, WM_USER, 0, 0));
  EXPECT_EQ(SetWindowLongPtrA(hwnd, GWLP_USERDATA, 5), 0);
  EXPECT_EQ(GetDC(hwnd), nullptr);
  EXPECT_EQ(SetFocus(hwnd), nullptr);
  EXPECT_EQ(SetCapture(hwnd), nullptr);
  EXPECT_EQ(SetTimer(hwnd, 1, 10, nullptr), 0u);
  EXPECT_FALSE(MoveWindow(hwnd, 0, 0, 1, 1, TRUE));
  EXPECT_FALSE(ShowWindow(hwnd, SW_SHOW));
  EXPECT_FALSE(InvalidateRect(hwnd, nullptr, TRUE));
  EXPECT_EQ(Child(hwnd, {0, 0, 1, 1}), nullptr);
  POINT point{};
  EXPECT_FALSE(ClientToScreen(hwnd, &point));
  HDC dc = GetDC(fresh);  // a DC handle is no window
  EXPECT_FALSE(IsWindow(reinterpret_cast<HWND>(dc)));
  ReleaseDC(fresh, dc);
  EXPECT_TRUE(Log().empty());
  DestroyWindow(fresh);
}

TEST_F(WindowTest, CoordinatesNestAndHitTestingFindsTheTopmostDeepestWindow) {
  HWND top = TopLevel({100, 50, 300, 250});
  HWND first = Child(top, {10, 10, 110, 110});
  HWND second = Child(top, {60, 60, 160, 160});  // created later: below the first
  HWND inner = Child(first, {5, 5, 25, 25});
  POINT point{0, 0};
  ClientToScreen(inner, &point);
  EXPECT_EQ(point.x, 115);
  EXPECT_EQ(point.y, 65);
  ScreenToClient(second, &point);
  EXPECT_EQ(point.x, -45);
  RECT rect;
  GetWindowRect(second, &rect);
  EXPECT_EQ(rect.left, 160);
  EXPECT_EQ(rect.bottom, 210);

  EXPECT_EQ(WindowFromPoint({116, 66}), inner);
  EXPECT_EQ(WindowFromPoint({100 + 70, 50 + 70}), first);  // overlap: the earlier child is on top
  EXPECT_EQ(WindowFromPoint({100 + 150, 50 + 150}), second);
  EXPECT_EQ(WindowFromPoint({300, 100}), nullptr);  // right edge excluded
  EnableWindow(first, FALSE);  // disabled children let the point through to what is below
  EXPECT_EQ(WindowFromPoint({116, 66}), top);
  EXPECT_EQ(WindowFromPoint({100 + 70, 50 + 70}), second);
  ShowWindow(second, SW_HIDE);
  EXPECT_EQ(WindowFromPoint({100 + 150, 50 + 150}), top);
  DestroyWindow(top);
}

TEST_F(WindowTest, MovingAndResizingNotifyAndKeepTheBackingStoreInStep) {
  HWND hwnd = TopLevel({0, 0, 20, 10});
  UpdateWindow(hwnd);
  HDC dc = GetDC(hwnd);
  User().WindowPixels(hwnd)->SetPixel(3, 4, 0x123456);
  Log().clear();
  EXPECT_TRUE(MoveWindow(hwnd, 5, 6, 40, 8, TRUE));
  EXPECT_EQ(Kinds(Of(hwnd, {WM_MOVE, WM_SIZE})), (std::vector<UINT>{WM_MOVE, WM_SIZE}));
  const auto pixels = User().WindowPixels(hwnd);
  EXPECT_EQ(pixels->Width(), 40);
  EXPECT_EQ(pixels->Height(), 8);
  EXPECT_EQ(pixels->GetPixel(3, 4), 0x123456u);  // what still fits is kept
  EXPECT_EQ(soft::ThreadSoftEngine().Dc(dc)->surface, pixels);
  // Only the uncovered strip needs painting.
  PAINTSTRUCT paint;
  BeginPaint(hwnd, &paint);
  EXPECT_EQ(paint.rcPaint.left, 20);
  EXPECT_EQ(paint.rcPaint.right, 40);
  EndPaint(hwnd, &paint);
  Log().clear();
  MoveWindow(hwnd, 5, 6, 40, 8, TRUE);  // nothing changes, nothing is said
  EXPECT_TRUE(Log().empty());
  ReleaseDC(hwnd, dc);
  DestroyWindow(hwnd);
}

TEST_F(WindowTest, InvalidAreasBecomeOnePaintWithEraseFirst) {
  HWND top = TopLevel({0, 0, 100, 100});
  HWND child = Child(top, {50, 50, 90, 90});
  UpdateWindow(top);  // paints what showing the windows invalidated
  Log().clear();
  RECT a{10, 10, 20, 20}, b{60, 5, 70, 60};
  InvalidateRect(top, &a, FALSE);
  InvalidateRect(top, &b, TRUE);
  // Without WS_CLIPCHILDREN the child under the area is invalidated too.
  EXPECT_TRUE(UpdateWindow(top));
  EXPECT_EQ(Kinds(Of(top, {WM_PAINT, WM_ERASEBKGND})),
            (std::vector<UINT>{WM_PAINT, WM_ERASEBKGND}));
  EXPECT_EQ(Kinds(Of(child, {WM_PAINT})), (std::vector<UINT>{WM_PAINT}));
  PAINTSTRUCT paint;
  BeginPaint(top, &paint);  // already validated by the default procedure
  EXPECT_EQ(paint.rcPaint.right - paint.rcPaint.left, 0);
  EndPaint(top, &paint);

  SetWindowLongPtrA(top, GWL_STYLE, WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN);
  RECT over{55, 55, 60, 60};
  InvalidateRect(top, &over, FALSE);
  MSG msg;
  ASSERT_TRUE(PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE));
  EXPECT_EQ(msg.message, WM_PAINT);
  EXPECT_EQ(msg.hwnd, top);
  DispatchMessageA(&msg);
  EXPECT_FALSE(PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE));  // the child stayed valid

  ShowWindow(top, SW_HIDE);
  EXPECT_TRUE(InvalidateRect(top, nullptr, TRUE));  // hidden windows collect nothing
  EXPECT_FALSE(PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE));
  DestroyWindow(top);
}

TEST_F(WindowTest, ComposingDrawsVisibleWindowsInZOrderClippedToParents) {
  soft::ThreadSoftEngine().SetScreenSize(64, 48);
  auto paint = [](HWND hwnd, soft::PixelValue value) {
    auto pixels = User().WindowPixels(hwnd);
    for (int y = 0; y < pixels->Height(); ++y)
      for (int x = 0; x < pixels->Width(); ++x) pixels->SetPixel(x, y, value);
  };
  HWND back = TopLevel({0, 0, 30, 30});
  HWND front = TopLevel({20, 20, 40, 40});  // newer top-level windows come to the front
  HWND child = Child(back, {25, 2, 45, 12});
  HWND hidden = TopLevel({50, 0, 60, 10}, WS_POPUP);
  paint(back, 0x0000FF);
  paint(front, 0x00FF00);
  paint(child, 0xFF0000);
  paint(hidden, 0xFFFFFF);
  User().ComposeScreen();
  const soft::Pixmap& screen = *soft::ThreadSoftEngine().Screen();
  const auto desktop = soft::RgbToPixel32(GetSysColor(COLOR_BACKGROUND));
  EXPECT_EQ(screen.GetPixel(5, 5), 0x0000FFu);
  EXPECT_EQ(screen.GetPixel(25, 25), 0x00FF00u);
  EXPECT_EQ(screen.GetPixel(29, 5), 0xFF0000u);
  EXPECT_EQ(screen.GetPixel(30, 5), desktop);  // the child is clipped to its parent
  EXPECT_EQ(screen.GetPixel(55, 5), desktop);
  for (HWND h : {back, front, hidden}) DestroyWindow(h);
  soft::ThreadSoftEngine().SetScreenSize(1024, 768);
}

}  // namespace
}  // namespace glyphon::win::testing_user
