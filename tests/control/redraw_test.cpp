// The repaint pipeline: when it paints, at which size, and that it leaves nothing behind.
#include <gtest/gtest.h>

#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using Log = std::vector<std::string>;

using RedrawTest = HostedButtonTest;

// A colour no look paints with.
constexpr win::COLORREF kMarker = win::RGB(1, 2, 3);

// Marks the control's surface, repaints, and returns how many columns and rows the repaint
// covered, counted along the top row and the left column.
win::SIZE PaintedExtent(HostedButton& hosted) {
  const win::HDC hdc = hosted.host.hDC();
  const win::HBRUSH marker = win::CreateSolidBrush(kMarker);
  const win::RECT all{0, 0, 16, 16};
  win::FillRect(hdc, &all, marker);
  win::DeleteObject(marker);
  hosted.button.Refresh();
  const auto painted = [&](int x, int y) {
    const win::COLORREF pixel = win::GetPixel(hdc, x, y);
    return pixel != kMarker && pixel != win::CLR_INVALID;
  };
  win::SIZE extent{0, 0};
  while (extent.cx < 16 && painted(extent.cx, 0)) ++extent.cx;
  while (extent.cy < 16 && painted(0, extent.cy)) ++extent.cy;
  return extent;
}

TEST(RedrawSizeTest, FractionalSizesRoundHalfToEven) {
  LeakCheck leaks;
  MemoryHostOptions options;
  options.width = 2.5;
  options.height = 3.5;
  HostedButton hosted(options);
  const win::SIZE extent = PaintedExtent(hosted);
  EXPECT_EQ(extent.cx, 2);
  EXPECT_EQ(extent.cy, 4);
  EXPECT_EQ(win::GetPixel(hosted.host.hDC(), 2, 0), kMarker) << "the blit stops at the size";

  hosted.host.SetClientSize(5.5, 0.5);
  const win::SIZE resized = PaintedExtent(hosted);
  EXPECT_EQ(resized.cx, 0) << "a zero-height repaint blits nothing";
  hosted.host.SetClientSize(5.5, 1.5);
  EXPECT_EQ(PaintedExtent(hosted).cx, 6);
}

TEST_F(RedrawTest, ResizeRepaintsAtTheNewSize) {
  host_.SetClientSize(7, 3);
  EXPECT_EQ(host_.Log(), Log{"paint Up"});
  const win::SIZE extent = PaintedExtent(hosted_);
  EXPECT_EQ(extent.cx, 7);
  EXPECT_EQ(extent.cy, 3);
}

TEST(NewInstanceTest, NothingPaintsWhileLoadingButRefresh) {
  LeakCheck leaks;
  HostedButton hosted({}, false);
  Glyphon& b = hosted.button;
  ASSERT_TRUE(b.SuppressRedraw());
  b.SetCaption("early");
  b.Paint();
  b.Resize();
  EXPECT_EQ(hosted.host.Log(), Log{"changed Caption"});

  b.Refresh();
  EXPECT_EQ(hosted.host.Log(), (Log{"changed Caption", "paint Up"}));
  EXPECT_TRUE(b.SuppressRedraw()) << "Refresh puts the flag back";

  b.InitProperties();
  hosted.host.ClearLog();
  b.Refresh();
  EXPECT_FALSE(b.SuppressRedraw());
  EXPECT_EQ(hosted.host.Log(), Log{"paint Up"});
}

TEST_F(RedrawTest, PaintMessageRepaintsThroughTheHost) {
  win::InvalidateRect(host_.hWnd(), nullptr, win::FALSE);
  win::UpdateWindow(host_.hWnd());
  EXPECT_EQ(host_.Log(), Log{"paint Up"});
}

TEST_F(RedrawTest, TerminateDropsThreePicturesAndStopsListening) {
  const StdPicture picture = StdPicture::FromBitmap(nullptr, false);
  button_.SetPicture(picture);
  button_.SetPictureDown(picture);
  button_.SetPictureOver(picture);
  button_.SetPictureDisabled(picture);
  button_.Terminate();
  EXPECT_TRUE(button_.Picture().IsNothing());
  EXPECT_TRUE(button_.PictureDown().IsNothing());
  EXPECT_TRUE(button_.PictureOver().IsNothing());
  EXPECT_EQ(button_.PictureDisabled(), picture) << "left to the object's own end";

  host_.ClearLog();
  win::SetFocus(host_.hWnd());
  EXPECT_FALSE(button_.HasFocus()) << "no longer subclassed";
}

}  // namespace
}  // namespace glyphon::testing
