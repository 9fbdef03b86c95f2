// Canvas lifecycle, defaults, errors, pen and brush state, bitmap exchange and pictures.
#include "surface/canvas.h"

#include <functional>

#include <gtest/gtest.h>

#include "platform/automation_error.h"
#include "tests/support/error_of.h"
#include "tests/support/leak_check.h"
#include "tests/surface/surface_test_support.h"

namespace glyphon::testing {
namespace {

using win::RGB;

// The description of the pen (LOGPEN, OBJ_PEN) or brush (LOGBRUSH, OBJ_BRUSH) selected.
template <class Description, win::UINT kKind>
Description Selected(win::HDC hdc) {
  Description description{};
  win::GetObjectA(win::GetCurrentObject(hdc, kKind), sizeof description, &description);
  return description;
}
constexpr auto SelectedPen = Selected<win::LOGPEN, win::OBJ_PEN>;
constexpr auto SelectedBrush = Selected<win::LOGBRUSH, win::OBJ_BRUSH>;

void ExpectNoDcError(const std::function<void()>& call, const char* source) {
  const AutomationError error = ErrorOf(call);
  EXPECT_EQ(error.Number(), -2147220504);
  EXPECT_EQ(error.Source(), source);
  EXPECT_STREQ(error.what(), "Must set hDC property before performing this operation");
}

TEST(Canvas, OnlyCreateBitmapAndInitPropertiesNeedAContext) {
  LeakCheck leaks;
  Canvas canvas;
  ExpectNoDcError([&] { canvas.CreateBitmap(nullptr, 4, 4); }, "CreateBitmap");
  ExpectNoDcError([&] { canvas.InitProperties(); }, "Initialize");
  canvas.DrawLine(0, 0, 3, 3, RGB(1, 2, 3));
  canvas.Cls();
}

TEST(Canvas, InitPropertiesSetsTheDefaultsThroughTheSetters) {
  LeakCheck leaks;
  Canvas canvas;
  const win::HDC dc = canvas.CreatehDC();
  ASSERT_NE(dc, nullptr);
  EXPECT_EQ(win::GetCurrentObject(dc, win::OBJ_PAL), canvas.hPal());
  canvas.InitProperties();
  EXPECT_EQ(win::GetROP2(dc), win::R2_COPYPEN);
  EXPECT_EQ(win::GetBkMode(dc), win::TRANSPARENT);
  EXPECT_EQ(canvas.FillColor(), RGB(212, 208, 200));
  EXPECT_EQ(SelectedBrush(dc).lbStyle, win::BS_HOLLOW);
  EXPECT_EQ(SelectedPen(dc).lopnWidth.x, 1);
  EXPECT_EQ(canvas.ScaleMode(), 3);
  // BackColor is not set: the getter reads 0 and the context keeps its own white.
  EXPECT_EQ(canvas.BackColor(), 0u);
  EXPECT_EQ(win::GetBkColor(dc), RGB(255, 255, 255));
}

TEST(Canvas, PenFollowsForeColorDrawStyleAndDrawWidth) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(2, 2);
  const win::HDC dc = canvas->hdc();
  canvas->ForeColor(0x80000000u | win::COLOR_BTNSHADOW);
  EXPECT_EQ(canvas->ForeColor(), RGB(128, 128, 128));
  EXPECT_EQ(win::GetTextColor(dc), RGB(128, 128, 128));
  canvas->DrawStyle(win::PS_DOT);
  canvas->DrawWidth(3);
  const win::LOGPEN pen = SelectedPen(dc);
  EXPECT_EQ(pen.lopnStyle, static_cast<win::UINT>(win::PS_DOT));
  EXPECT_EQ(pen.lopnWidth.x, 3);
  EXPECT_EQ(pen.lopnColor, RGB(128, 128, 128));
}

TEST(Canvas, FillStyleAndFillColorBuildDifferentBrushes) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(8, 8);
  const win::HDC dc = canvas->hdc();
  canvas->FillStyle(3);
  EXPECT_EQ(SelectedBrush(dc).lbStyle, win::BS_SOLID);
  canvas->FillColor(RGB(0, 0, 255));
  const win::LOGBRUSH brush = SelectedBrush(dc);
  EXPECT_EQ(brush.lbStyle, win::BS_HATCHED);
  EXPECT_EQ(brush.lbHatch, 3u);
  // After FillStyle 1 (hollow), FillColor gives vertical hatching.
  canvas->FillStyle(1);
  canvas->FillColor(RGB(255, 0, 0));
  EXPECT_EQ(SelectedBrush(dc).lbHatch, static_cast<std::uintptr_t>(win::HS_VERTICAL));
}

TEST(Canvas, ClsUsesBackColorAndClsRectTheCurrentBrush) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(4, 1);
  const std::map<win::COLORREF, char> legend{{kBlue, 'b'}, {kGreen, 'g'}};
  canvas->FillStyle(0);
  canvas->FillColor(kGreen);
  canvas->BackColor(kBlue);
  canvas->Cls();
  canvas->ClsRect(1, 0, 3, 1);
  EXPECT_EQ(PixelRows(canvas->hdc(), 4, 1, legend)[0], "bggb");
  canvas->FillStyle(1);  // hollow: clears nothing
  canvas->ClsRect(0, 0, 4, 1);
  EXPECT_EQ(PixelRows(canvas->hdc(), 4, 1, legend)[0], "bggb");
}

TEST(Canvas, ReleaseLeavesAnAdoptedContextAliveWithItsOwnObjects) {
  LeakCheck leaks;
  const win::HDC outside = win::CreateCompatibleDC(nullptr);
  const win::HGDIOBJ stockPen = win::GetCurrentObject(outside, win::OBJ_PEN);
  {
    Canvas canvas;
    canvas.hdc(outside);
    canvas.InitProperties();
    EXPECT_NE(win::GetCurrentObject(outside, win::OBJ_PEN), stockPen);
  }
  EXPECT_EQ(win::GetObjectType(outside), win::OBJ_MEMDC);
  EXPECT_EQ(win::GetCurrentObject(outside, win::OBJ_PEN), stockPen);
  win::DeleteDC(outside);
}

TEST(Canvas, BitmapArrayIsAnImageOfTheBitmapBits) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(3, 2);
  canvas->BackColor(kBlue);
  canvas->Cls();
  ByteArray2D bytes;
  canvas->CreateBitmapArray(bytes);
  win::BITMAP description{};
  win::GetObjectA(canvas->BITMAP(), sizeof description, &description);
  ASSERT_EQ(bytes.Rows(), 2);
  ASSERT_EQ(bytes.Columns(), description.bmWidthBytes);
  // Screen-format pixels are blue, green, red, unused, top row first.
  EXPECT_EQ(bytes(1, 1), 255);
  bytes(2, 4 + 1) = 0;
  bytes(2, 4 + 3) = 255;
  canvas->DrawFromArray(bytes);
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 1, 1), kRed);
  // A short array writes what it has and no more.
  canvas->DrawFromArray(ByteArray2D(1, 4));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 0, 0), kBlack);
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 1, 0), kBlue);
}

TEST(Canvas, PicturesTakeTheBitmapWhichIsDeletedOnce) {
  LeakCheck leaks;
  StdPicture picture;
  {
    auto canvas = MakeCanvas(4, 4);
    const StdPicture third = canvas->Picture3();
    EXPECT_EQ(win::GetCurrentObject(canvas->hdc(), win::OBJ_BITMAP), canvas->BITMAP());
    picture = canvas->Picture();
    EXPECT_EQ(win::GetCurrentObject(canvas->hdc(), win::OBJ_BITMAP), canvas->OriginalBitmap());
    EXPECT_EQ(picture.Bitmap(), canvas->BITMAP());
    EXPECT_TRUE(picture.OwnsHandle());
    EXPECT_EQ(picture, third);  // one owner, however often it is asked for
    EXPECT_TRUE(canvas->Picture2().IsNothing());
    EXPECT_TRUE(canvas->PictureFromIcon(nullptr).IsNothing());
  }
  EXPECT_EQ(win::GetObjectType(picture.Bitmap()), win::OBJ_BITMAP);
  picture = StdPicture();
}

}  // namespace
}  // namespace glyphon::testing
