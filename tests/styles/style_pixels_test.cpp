// Pixels the looks must show whatever the golden images say: the quirks, the corner colours, the
// placement of rings, bodies and focus rectangles.
#include <gtest/gtest.h>

#include "styles/style_painters.h"
#include "tests/support/test_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

constexpr int kW = 81;
constexpr int kH = 25;
constexpr win::COLORREF kMarker = win::RGB(255, 0, 255);
constexpr win::COLORREF kWhite = win::RGB(255, 255, 255);
constexpr win::COLORREF kBlack = win::RGB(0, 0, 0);
constexpr win::COLORREF kPeach = win::RGB(255, 200, 120);
constexpr std::int32_t kStates[] = {DrawStateHot, DrawStateDown, DrawStateUp};

win::COLORREF At(Canvas& canvas, int x, int y) { return win::GetPixel(canvas.hdc(), x, y); }

win::COLORREF Sys(int index) { return win::GetSysColor(index); }

TestButton Button(std::int32_t style) {
  TestButton button;
  button.style = style;
  if (style == zonStyleWin3x) button.borderStyle = zonBorderSingle;
  return button;
}

TestButton Focused(TestButton button) {
  button.hasFocus = true;
  button.showFocus = true;
  return button;
}

// Where the focus rectangle of the button lies: what changes when it gets the focus.
win::RECT FocusArea(TestButton button, std::int32_t state) {
  button.hasFocus = false;
  const auto without = PaintLook(button, kW, kH, state);
  button.hasFocus = true;
  const auto with = PaintLook(button, kW, kH, state);
  return DifferingArea(*without, *with);
}

bool SameArea(const win::RECT& a, const win::RECT& b) {
  return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

TEST(StylePixels, FlatLooksFillTheWholeFaceWithBackColor) {
  LeakCheck leaks;
  for (const std::int32_t style : {zonStyleWin9x, zonStyleWin3x}) {
    for (const std::int32_t state : kStates) {
      TestButton button = Button(style);
      button.SetBackColor(kPeach);
      const auto canvas = MakeFilledCanvas(kW, kH, kMarker);
      PaintBackground(*canvas, button, state);
      int other = 0;
      for (int y = 0; y < kH; ++y) {
        for (int x = 0; x < kW; ++x) other += At(*canvas, x, y) != kPeach;
      }
      EXPECT_EQ(other, 0) << "style " << style << " state " << state;
    }
  }
}

TEST(StylePixels, UnknownStylesPaintNothing) {
  LeakCheck leaks;
  for (const std::int32_t style : {-1, 6, 99}) {
    TestButton button = Focused(Button(style));
    button.isDefault = true;
    const auto painted = PaintLook(button, kW, kH, DrawStateDown);
    const auto untouched = MakeFilledCanvas(kW, kH, kMarker);
    EXPECT_TRUE(SameArea(DifferingArea(*painted, *untouched), {})) << "style " << style;
  }
}

TEST(StylePixels, SuppressedRedrawDrawsNoFrame) {
  LeakCheck leaks;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    TestButton button = Focused(Button(style));
    button.isDefault = true;
    const auto backgroundOnly = MakeFilledCanvas(kW, kH, kMarker);
    PaintBackground(*backgroundOnly, button, DrawStateDown);
    EXPECT_FALSE(SameArea(DifferingArea(*PaintLook(button, kW, kH, DrawStateDown),
                                        *backgroundOnly), {}));
    button.suppressRedraw = true;
    EXPECT_TRUE(SameArea(DifferingArea(*PaintLook(button, kW, kH, DrawStateDown),
                                       *backgroundOnly), {}))
        << "style " << style;
  }
}

TEST(StylePixels, HotDefaultXPButtonKeepsTheDefaultRing) {
  LeakCheck leaks;
  struct Ring {
    std::int32_t style;
    win::COLORREF defaultTop;
    win::COLORREF defaultBottom;
  };
  for (const Ring ring : {Ring{zonStyleWinXPBlue, win::RGB(206, 231, 255), win::RGB(107, 130, 239)},
                          Ring{zonStyleWinXPOliveGreen, win::RGB(198, 211, 140),
                               win::RGB(104, 143, 50)},
                          Ring{zonStyleWinXPSilver, win::RGB(206, 231, 255),
                               win::RGB(107, 130, 239)}}) {
    TestButton button = Button(ring.style);
    button.isDefault = true;
    const auto hotDefault = PaintLook(button, kW, kH, DrawStateHot);
    EXPECT_EQ(At(*hotDefault, 2, 1), ring.defaultTop);
    EXPECT_EQ(At(*hotDefault, 2, kH - 2), ring.defaultBottom);
    button.isDefault = false;
    const auto hot = PaintLook(button, kW, kH, DrawStateHot);
    EXPECT_EQ(At(*hot, 2, 1), win::RGB(255, 219, 140));
    EXPECT_EQ(At(*hot, 2, kH - 2), win::RGB(231, 150, 0));
  }
}

TEST(StylePixels, DisabledXPButtonShowsTheContainerInItsCorners) {
  LeakCheck leaks;
  for (const std::int32_t style :
       {zonStyleWinXPBlue, zonStyleWinXPOliveGreen, zonStyleWinXPSilver}) {
    for (const std::int32_t state : kStates) {
      TestButton button = Focused(Button(style));
      button.SetBackColor(kPeach);
      button.enabled = false;
      const auto canvas = PaintLook(button, kW, kH, state);
      for (const auto& [x, y] : {std::pair{0, 0}, {kW - 1, 0}, {0, kH - 1}, {kW - 1, kH - 1}}) {
        EXPECT_EQ(At(*canvas, x, y), kContainerColor) << style << " at " << x << "," << y;
      }
      const bool olive = style == zonStyleWinXPOliveGreen;
      EXPECT_EQ(At(*canvas, 1, 0), olive ? win::RGB(202, 196, 184) : win::RGB(208, 207, 206));
      EXPECT_EQ(At(*canvas, 5, kH - 1),
                olive ? win::RGB(202, 196, 184) : win::RGB(196, 195, 191));
      EXPECT_EQ(At(*canvas, kW - 2, kH - 2),
                olive ? win::RGB(217, 211, 201) : win::RGB(211, 210, 206));
      EXPECT_EQ(At(*canvas, kW - 3, kH - 2),
                olive ? win::RGB(235, 231, 221) : win::RGB(230, 230, 226));
      EXPECT_EQ(At(*canvas, 40, 12), olive ? win::RGB(246, 242, 233) : win::RGB(241, 241, 237))
          << "no focus rectangle on a disabled XP button";
    }
  }
}

TEST(StylePixels, ContainerColourIsAskedForAgainAtEachCorner) {
  LeakCheck leaks;
  const std::vector<win::OLE_COLOR> changing{win::RGB(1, 0, 0), win::RGB(2, 0, 0),
                                             win::RGB(3, 0, 0), win::RGB(4, 0, 0)};
  for (const bool enabled : {true, false}) {
    TestButton button = Button(zonStyleWinXPBlue);
    button.enabled = enabled;
    button.containerColors = changing;
    const auto canvas = PaintLook(button, kW, kH, DrawStateUp);
    EXPECT_EQ(button.containerReads, 4u);
    EXPECT_EQ(At(*canvas, 0, 0), changing[0]);
    EXPECT_EQ(At(*canvas, kW - 1, 0), changing[1]);
    EXPECT_EQ(At(*canvas, 0, kH - 1), changing[2]);
    EXPECT_EQ(At(*canvas, kW - 1, kH - 1), changing[3]);
  }
  TestButton win3x = Button(zonStyleWin3x);
  win3x.containerColors = changing;
  const auto canvas = PaintLook(win3x, kW, kH, DrawStateUp);
  EXPECT_EQ(win3x.containerReads, 1u) << "one outline in one colour";
  EXPECT_EQ(At(*canvas, kW - 1, kH - 1), changing[0]);
}

TEST(StylePixels, MissingContainerEndsThePainterWhereItStands) {
  LeakCheck leaks;
  TestButton button = Button(zonStyleWinXPBlue);
  button.containerColors.clear();
  const auto canvas = MakeFilledCanvas(kW, kH, kMarker);
  PaintBackground(*canvas, button, DrawStateUp);
  EXPECT_THROW(PaintFrame(*canvas, button, DrawStateUp), AutomationError);
  EXPECT_EQ(At(*canvas, 5, 0), win::RGB(0, 60, 115)) << "the outline before the corners stays";
  EXPECT_NE(At(*canvas, 1, 1), win::RGB(82, 125, 165)) << "nothing after the first corner";
}

TEST(StylePixels, Win9xBevelAndRings) {
  LeakCheck leaks;
  TestButton button = Button(zonStyleWin9x);
  const auto up = PaintLook(button, kW, kH, DrawStateUp);
  EXPECT_EQ(At(*up, 0, 0), Sys(win::COLOR_BTNHIGHLIGHT));
  EXPECT_EQ(At(*up, kW - 1, 0), Sys(win::COLOR_3DDKSHADOW));
  EXPECT_EQ(At(*up, 0, kH - 1), Sys(win::COLOR_3DDKSHADOW));
  EXPECT_EQ(At(*up, kW - 2, 1), Sys(win::COLOR_BTNSHADOW));
  EXPECT_EQ(At(*up, 1, kH - 2), Sys(win::COLOR_BTNSHADOW));
  EXPECT_EQ(At(*up, 1, 1), Sys(win::COLOR_BTNFACE));
  EXPECT_TRUE(SameArea(DifferingArea(*up, *PaintLook(button, kW, kH, DrawStateHot)), {}))
      << "no hover look";
  button.enabled = false;
  EXPECT_TRUE(SameArea(DifferingArea(*up, *PaintLook(button, kW, kH, DrawStateUp)), {}))
      << "a disabled button keeps its bevel";

  button.enabled = true;
  button.isDefault = true;
  const auto down = PaintLook(button, kW, kH, DrawStateDown);
  EXPECT_EQ(At(*down, 0, 0), Sys(win::COLOR_3DDKSHADOW));
  EXPECT_EQ(At(*down, kW - 1, kH - 1), Sys(win::COLOR_3DDKSHADOW));
  EXPECT_EQ(At(*down, 1, 1), Sys(win::COLOR_BTNSHADOW));
  EXPECT_EQ(At(*down, kW - 2, kH - 2), Sys(win::COLOR_BTNSHADOW));
  EXPECT_EQ(At(*down, 2, 2), Sys(win::COLOR_BTNFACE));
}

TEST(StylePixels, Win9xFocusRectangleFollowsThePressedContent) {
  LeakCheck leaks;
  TestButton button = Focused(Button(zonStyleWin9x));
  EXPECT_TRUE(SameArea(FocusArea(button, DrawStateUp), {2, 2, kW - 3, kH - 3}));
  EXPECT_TRUE(SameArea(FocusArea(button, DrawStateHot), {2, 2, kW - 3, kH - 3}));
  EXPECT_TRUE(SameArea(FocusArea(button, DrawStateDown), {3, 3, kW - 2, kH - 2}));
  button.isDefault = true;
  EXPECT_TRUE(SameArea(FocusArea(button, DrawStateUp), {3, 3, kW - 4, kH - 4}));
  EXPECT_TRUE(SameArea(FocusArea(button, DrawStateDown), {4, 4, kW - 3, kH - 3}));
  button.enabled = false;
  EXPECT_TRUE(SameArea(FocusArea(button, DrawStateUp), {}));
  button.enabled = true;
  button.showFocus = false;
  EXPECT_TRUE(SameArea(FocusArea(button, DrawStateUp), {}));
}

TEST(StylePixels, XPFocusRectangleStaysPutAndSkipsDisabledButtons) {
  LeakCheck leaks;
  for (const std::int32_t style :
       {zonStyleWinXPBlue, zonStyleWinXPOliveGreen, zonStyleWinXPSilver}) {
    TestButton button = Focused(Button(style));
    for (const std::int32_t state : kStates) {
      EXPECT_TRUE(SameArea(FocusArea(button, state), {2, 2, kW - 2, kH - 2})) << style;
    }
    EXPECT_TRUE(SameArea(FocusArea(button, 7), {1, 1, kW - 1, kH - 1}))
        << "an unknown state draws no outline and leaves the margins at 0";
    button.showFocus = false;
    EXPECT_TRUE(SameArea(FocusArea(button, DrawStateUp), {}));
    button.showFocus = true;
    button.enabled = false;
    EXPECT_TRUE(SameArea(FocusArea(button, DrawStateUp), {}));
  }
}

TEST(StylePixels, Win3xAndMacDrawNoFocusRectangle) {
  LeakCheck leaks;
  for (const std::int32_t style : {zonStyleWin3x, zonStyleMac8x}) {
    for (const std::int32_t state : kStates) {
      EXPECT_TRUE(SameArea(FocusArea(Focused(Button(style)), state), {})) << style;
    }
  }
}

TEST(StylePixels, Win3xCornersAndBorders) {
  LeakCheck leaks;
  TestButton button = Button(zonStyleWin3x);
  const auto single = PaintLook(button, kW, kH, DrawStateUp);
  EXPECT_EQ(At(*single, 0, 0), kContainerColor);
  EXPECT_EQ(At(*single, kW - 1, kH - 1), kContainerColor);
  EXPECT_EQ(At(*single, 1, 0), Sys(win::COLOR_3DDKSHADOW));
  EXPECT_EQ(At(*single, kW - 1, kH - 2), Sys(win::COLOR_3DDKSHADOW));
  EXPECT_EQ(At(*single, 2, 2), Sys(win::COLOR_BTNHIGHLIGHT));
  EXPECT_EQ(At(*single, kW - 3, kH - 3), Sys(win::COLOR_BTNSHADOW));
  EXPECT_EQ(At(*single, 3, 3), Sys(win::COLOR_BTNFACE));

  const auto pressed = PaintLook(button, kW, kH, DrawStateDown);
  EXPECT_EQ(At(*pressed, 1, 1), Sys(win::COLOR_BTNSHADOW));
  EXPECT_EQ(At(*pressed, kW - 2, 1), Sys(win::COLOR_BTNSHADOW));
  EXPECT_EQ(At(*pressed, kW - 2, kH - 2), Sys(win::COLOR_BTNFACE)) << "two-sided shadow only";

  button.borderStyle = zonBorderNone;
  EXPECT_EQ(At(*PaintLook(button, kW, kH, DrawStateUp), 0, 0), Sys(win::COLOR_BTNHIGHLIGHT))
      << "no outline at run time";
  button.userMode = false;
  const auto design = PaintLook(button, kW, kH, DrawStateUp);
  int dark = 0;
  for (int x = 0; x < kW; ++x) dark += At(*design, x, 0) == Sys(win::COLOR_3DDKSHADOW);
  EXPECT_GT(dark, kW / 3) << "a dotted outline at design time";
  EXPECT_LT(dark, kW);
}

TEST(StylePixels, MacBodyStartsInsideTheDefaultRing) {
  LeakCheck leaks;
  TestButton button = Button(zonStyleMac8x);
  button.isDefault = true;
  const auto ringed = PaintLook(button, kW, kH, DrawStateUp);
  EXPECT_EQ(At(*ringed, 0, 0), kContainerColor);
  EXPECT_EQ(At(*ringed, 3, 0), kBlack);
  EXPECT_EQ(At(*ringed, 2, 1), kBlack);
  EXPECT_EQ(At(*ringed, 3, 3), win::RGB(170, 170, 170));
  EXPECT_EQ(At(*ringed, 4, 3), win::RGB(119, 119, 119));
  EXPECT_EQ(At(*ringed, 5, 3), kBlack) << "the body's top edge";
  EXPECT_EQ(At(*ringed, 4, 4), kBlack);
  EXPECT_EQ(At(*ringed, 3, 5), kBlack) << "the body's left edge";
  EXPECT_EQ(At(*ringed, 5, 5), kWhite);
  EXPECT_EQ(At(*ringed, kW - 5, kH - 5), kBlack) << "the body's rounded corner";
  EXPECT_EQ(At(*ringed, kW - 6, kH - 6), win::RGB(119, 119, 119));

  button.isDefault = false;
  const auto plain = PaintLook(button, kW, kH, DrawStateUp);
  EXPECT_EQ(At(*plain, 0, 0), kContainerColor);
  EXPECT_EQ(At(*plain, 2, 0), kBlack);
  EXPECT_EQ(At(*plain, 1, 1), kBlack);
  EXPECT_EQ(At(*plain, 2, 2), kWhite);

  const auto pressed = PaintLook(button, kW, kH, DrawStateDown);
  EXPECT_EQ(At(*pressed, 2, 1), win::RGB(119, 119, 119));
  EXPECT_EQ(At(*pressed, 2, 2), win::RGB(170, 170, 170));
  EXPECT_EQ(At(*pressed, 3, 3), win::RGB(187, 187, 187));
  EXPECT_EQ(At(*pressed, kW - 3, kH - 3), win::RGB(221, 221, 221));
}

TEST(StylePixels, PressedXPInnerCorners) {
  LeakCheck leaks;
  const auto olive = PaintLook(Button(zonStyleWinXPOliveGreen), kW, kH, DrawStateDown);
  const win::COLORREF pressedOuter = win::RGB(214, 199, 181);
  EXPECT_EQ(At(*olive, 1, 1), pressedOuter);
  EXPECT_EQ(At(*olive, kW - 2, 1), pressedOuter);
  EXPECT_EQ(At(*olive, 1, kH - 2), pressedOuter);
  EXPECT_EQ(At(*olive, kW - 2, kH - 2), win::RGB(74, 109, 33)) << "the bottom-right one stays";
  EXPECT_EQ(At(*olive, 2, 1), win::RGB(214, 199, 181));
  EXPECT_EQ(At(*olive, kW - 3, kH - 2), win::RGB(231, 223, 181));

  const auto blue = PaintLook(Button(zonStyleWinXPBlue), kW, kH, DrawStateDown);
  for (const auto& [x, y] : {std::pair{1, 1}, {kW - 2, 1}, {1, kH - 2}, {kW - 2, kH - 2}}) {
    EXPECT_EQ(At(*blue, x, y), win::RGB(82, 125, 165));
  }
  EXPECT_EQ(At(*blue, 2, 1), win::RGB(198, 207, 222));
  EXPECT_NE(At(*blue, 2, 2), kWhite);
}

TEST(StylePixels, PressedSilverAddsWhiteHighlights) {
  LeakCheck leaks;
  const auto silver = PaintLook(Button(zonStyleWinXPSilver), kW, kH, DrawStateDown);
  for (const auto& [x, y] : {std::pair{1, 5}, {kW - 2, 5}, {4, 1}, {kW - 4, 1}, {2, 2},
                            {kW - 3, 2}}) {
    EXPECT_EQ(At(*silver, x, y), kWhite) << x << "," << y;
  }
  EXPECT_EQ(At(*silver, 1, kH - 3), win::RGB(198, 207, 222)) << "shading below the white line";
  EXPECT_EQ(At(*silver, 0, 5), win::RGB(0, 60, 115)) << "the Blue edge";
}

TEST(StylePixels, FrameCoversTheContent) {
  LeakCheck leaks;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    const TestButton button = Button(style);
    const auto canvas = MakeFilledCanvas(kW, kH, kWhite);
    PaintBackground(*canvas, button, DrawStateUp);
    canvas->FillRectangle(0, 0, kW, kH, kMarker);
    PaintFrame(*canvas, button, DrawStateUp);
    EXPECT_NE(At(*canvas, 2, 0), kMarker) << style;
    EXPECT_NE(At(*canvas, kW - 1, kH / 2), kMarker) << style;
    EXPECT_NE(At(*canvas, kW / 2, kH - 1), kMarker) << style;
    EXPECT_EQ(At(*canvas, kW / 2, kH / 2), kMarker) << style;
  }
}

TEST(StylePixels, TinyCanvasesPaintWithoutErrorsOrLeaks) {
  LeakCheck leaks;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    for (const int size : {0, 1, 2}) {
      for (const std::int32_t state : {DrawStateHot, DrawStateDown, DrawStateUp, 7}) {
        for (const bool enabled : {true, false}) {
          TestButton button = Focused(Button(style));
          button.enabled = enabled;
          button.isDefault = true;
          EXPECT_NO_THROW(PaintLook(button, size, size, state)) << style << " at " << size;
        }
      }
    }
  }
}

}  // namespace
}  // namespace glyphon::testing
