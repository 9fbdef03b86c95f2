// Pixel-exact results of the drawing members on small canvases.
#include <gtest/gtest.h>

#include "surface/canvas.h"
#include "tests/support/leak_check.h"
#include "tests/surface/surface_test_support.h"

namespace glyphon::testing {
namespace {

using Rows = std::vector<std::string>;
using win::RGB;

const std::map<win::COLORREF, char> kLegend{{kWhite, '.'}, {kBlack, 'k'}, {kRed, 'r'},
                                            {kGreen, 'g'}, {kBlue, 'b'}};

TEST(CanvasShapes, DrawLineWithMinusOneKeepsThePenAndOtherwiseRestoresForeColor) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(5, 3);
  canvas->ForeColor(kRed);
  canvas->DrawLine(0, 0, 4, 0);  // the end point stays unpainted
  canvas->DrawLine(0, 2, 4, 2, kBlue);
  EXPECT_EQ(canvas->ForeColor(), kRed);
  EXPECT_EQ(win::GetTextColor(canvas->hdc()), kRed);
  canvas->DrawLine(0, 1, 4, 1, kNoColor);
  EXPECT_EQ(PixelRows(canvas->hdc(), 5, 3, kLegend), (Rows{"rrrr.", "rrrr.", "bbbb."}));
}

TEST(CanvasShapes, DrawRectAlwaysUsesItsColourAndTheCurrentBrush) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(7, 5);
  canvas->ForeColor(kRed);
  canvas->DrawRect(0, 0, 7, 5, kBlue);  // hollow brush: interior untouched
  EXPECT_EQ(canvas->ForeColor(), kRed);
  canvas->FillStyle(0);
  canvas->FillColor(kGreen);
  canvas->DrawRect(1, 1, 5, 4, kBlack);
  EXPECT_EQ(PixelRows(canvas->hdc(), 7, 5, kLegend),
            (Rows{"bbbbbbb", "bkkkk.b", "bkggk.b", "bkkkk.b", "bbbbbbb"}));
}

TEST(CanvasShapes, FillRectangleDrawPixelAndDrawRect3D) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(6, 6);
  const win::HGDIOBJ pen = win::GetCurrentObject(canvas->hdc(), win::OBJ_PEN);
  canvas->DrawRect3D(0, 0, 5, 4, kRed, kBlue);
  canvas->FillRectangle(1, 1, 3, 2, 0x80000000u | win::COLOR_WINDOWTEXT);
  EXPECT_EQ(win::GetCurrentObject(canvas->hdc(), win::OBJ_PEN), pen);
  // Halves round to even: 2.5 -> 2, 4.5 -> 4, 0.5 -> 0.
  canvas->DrawPixel(2.5f, 4.5f, kGreen);
  canvas->DrawPixel(0.5f, 5.4f, kGreen);
  EXPECT_EQ(PixelRows(canvas->hdc(), 6, 6, kLegend),
            (Rows{"rrrrr.", "rkk.b.", "r...b.", "rbbbb.", "..g...", "g....."}));
}

TEST(CanvasShapes, RoundRectsTakeZeroAsTheCurrentPenAndFillUpToARedOutline) {
  LeakCheck leaks;
  auto round = MakeCanvas(20, 20);
  round->ForeColor(kRed);
  round->DrawRoundRect(0, 0, 20, 10, 0, kGreen);
  round->DrawRoundRect(0, 10, 20, 20, kBlue, kGreen);
  EXPECT_EQ(win::GetPixel(round->hdc(), 10, 0), kRed);
  EXPECT_EQ(win::GetPixel(round->hdc(), 10, 10), kBlue);
  EXPECT_EQ(round->ForeColor(), kRed);

  auto canvas = MakeCanvas(12, 12);
  canvas->FillRoundRect(0, 0, 11, 11, kRed, kGreen);  // the hollow brush fills nothing
  canvas->FillStyle(0);
  canvas->FillColor(kGreen);
  canvas->FillRoundRect(0, 0, 11, 11, kRed, kBlue);
  EXPECT_EQ(PixelRows(canvas->hdc(), 12, 12, kLegend),
            (Rows{".....rr.....", "...rrggrr...", "..rggggggr..", ".rggggggggr.",
                  ".rggggggggr.", "rggggggggggr", "rggggggggggr", ".rggggggggr.",
                  ".rggggggggr.", "..rggggggr..", "...rrggrr...", ".....rr....."}));
  // Any other outline colour lets the fill run over the whole canvas.
  auto other = MakeCanvas(12, 12);
  other->FillStyle(0);
  other->FillColor(kGreen);
  other->FillRoundRect(0, 0, 11, 11, kBlue, kBlue);
  EXPECT_EQ(PixelRows(other->hdc(), 12, 12, kLegend), Rows(12, std::string(12, 'g')));
}

TEST(CanvasShapes, GradientsPaintBothEndRowsAndRoundHalfToEven) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(2, 8);
  // Three rows over a distance of 2: the middle row sits at 12.5 and 13.5 of red and green.
  canvas->FillGradientTopToBottom(0, 1, 1, 3, 0, 0, 100, 25, 27, 0);
  // Top = Bottom paints one row in the start colour; Top > Bottom paints nothing.
  canvas->FillGradientTopToBottom(0, 5, 1, 5, 10, 20, 30, 200, 200, 200);
  canvas->FillGradientTopToBottom(0, 7, 1, 6, 1, 2, 3, 4, 5, 6);
  std::vector<win::COLORREF> column;
  for (int y = 0; y < 8; ++y) column.push_back(win::GetPixel(canvas->hdc(), 0, y));
  EXPECT_EQ(column, (std::vector<win::COLORREF>{kWhite, RGB(0, 0, 100), RGB(12, 14, 50),
                                                RGB(25, 27, 0), kWhite, RGB(10, 20, 30),
                                                kWhite, kWhite}));
  EXPECT_EQ(win::GetPixel(canvas->hdc(), 1, 2), kWhite);  // right edge excluded

  // Left to right paints columns.
  auto columns = MakeCanvas(4, 2);
  columns->FillGradientLeftToRight(0, 0, 2, 1, 0, 0, 0, 26, 50, 254);
  EXPECT_EQ(PixelRows(columns->hdc(), 4, 2,
                      {{kWhite, '.'}, {kBlack, '0'}, {RGB(13, 25, 127), '1'},
                       {RGB(26, 50, 254), '2'}}),
            (Rows{"012.", "...."}));
}


TEST(CanvasShapes, FillRectGradientIsFixedAndAnchoredAtTheOrigin) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(660, 540);
  // 640 x 520 at 256 bands: width step round(2.5) = 2, height step round(2.03) = 2.
  canvas->FillRectGradient(10, 20, 650, 540, kRed, kGreen);
  const win::HDC dc = canvas->hdc();
  EXPECT_EQ(win::GetPixel(dc, 639, 519), RGB(0, 0, 0));
  EXPECT_EQ(win::GetPixel(dc, 0, 517), RGB(0, 0, 1));
  EXPECT_EQ(win::GetPixel(dc, 637, 0), RGB(0, 0, 1));
  EXPECT_EQ(win::GetPixel(dc, 130, 0), RGB(0, 0, 254));
  EXPECT_EQ(win::GetPixel(dc, 0, 0), RGB(0, 0, 255));
  EXPECT_EQ(win::GetPixel(dc, 645, 530), kWhite);
}

}  // namespace
}  // namespace glyphon::testing
