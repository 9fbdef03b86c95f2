// What the looks must do beyond the golden images: the painters' parts on their own, colours the
// goldens do not use, the container's colour read at each corner, and canvases too small to show.
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
constexpr win::COLORREF kPeach = win::RGB(255, 200, 120);
constexpr std::int32_t kStates[] = {DrawStateHot, DrawStateDown, DrawStateUp};

win::COLORREF At(Canvas& canvas, int x, int y) { return win::GetPixel(canvas.hdc(), x, y); }

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
    EXPECT_FALSE(
        SameArea(DifferingArea(*PaintLook(button, kW, kH, DrawStateDown), *backgroundOnly), {}));
    button.suppressRedraw = true;
    EXPECT_TRUE(
        SameArea(DifferingArea(*PaintLook(button, kW, kH, DrawStateDown), *backgroundOnly), {}))
        << "style " << style;
  }
}

// A disabled XP button paints in colours of its own whatever its BackColor: the goldens show
// them with the default one.
TEST(StylePixels, DisabledXPButtonIgnoresBackColor) {
  LeakCheck leaks;
  for (const std::int32_t style :
       {zonStyleWinXPBlue, zonStyleWinXPOliveGreen, zonStyleWinXPSilver}) {
    for (const std::int32_t state : kStates) {
      TestButton plain = Focused(Button(style));
      plain.enabled = false;
      TestButton peach = plain;
      peach.SetBackColor(kPeach);
      EXPECT_TRUE(SameArea(
          DifferingArea(*PaintLook(plain, kW, kH, state), *PaintLook(peach, kW, kH, state)), {}))
          << style << " in state " << state;
    }
  }
}

// What the goldens cannot tell: a focused button that hides its focus cue, and the XP outline in
// a state no repaint asks for, which leaves the margins at 0.
TEST(StylePixels, FocusRectangleOnlyWhereShown) {
  LeakCheck leaks;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    TestButton button = Focused(Button(style));
    button.showFocus = false;
    EXPECT_TRUE(SameArea(FocusArea(button, DrawStateUp), {})) << style;
  }
  for (const std::int32_t style :
       {zonStyleWinXPBlue, zonStyleWinXPOliveGreen, zonStyleWinXPSilver}) {
    EXPECT_TRUE(SameArea(FocusArea(Focused(Button(style)), 7), {1, 1, kW - 1, kH - 1})) << style;
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
