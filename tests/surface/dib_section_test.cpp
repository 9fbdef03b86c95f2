// cDIBSection: layout of the pixel memory, defaults, lifecycle quirks and the copies out.
#include "surface/dib_section.h"

#include <gtest/gtest.h>

#include <utility>

#include "platform/automation_error.h"
#include "platform/soft/soft_engine.h"
#include "tests/support/error_of.h"
#include "tests/support/leak_check.h"
#include "tests/surface/surface_test_support.h"

namespace glyphon::testing {
namespace {

using Rows = std::vector<std::string>;
using win::RGB;

int LivePalettes() {
  return win::soft::ThreadSoftEngine()
      .LiveObjectCounts()[static_cast<std::size_t>(win::soft::ObjectKind::Palette)];
}

void SetDibPixel(cDIBSection& dib, int x, int y, win::COLORREF color) {
  // Bottom-up rows of blue, green, red.
  std::uint8_t* pixel =
      dib.DIBSectionBitsPtr() + (dib.Height() - 1 - y) * dib.BytesPerScanLine() + 3 * x;
  pixel[0] = win::GetBValue(color);
  pixel[1] = win::GetGValue(color);
  pixel[2] = win::GetRValue(color);
}

TEST(DibSection, ScanLinesArePaddedToFourBytesAndStartAtTheBottomRow) {
  LeakCheck leaks;
  for (const auto& [width, stride] : {std::pair{1, 4}, {2, 8}, {3, 12}, {4, 12}, {5, 16}}) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(width, 2));
    EXPECT_EQ(dib.BytesPerScanLine(), stride) << width;
  }
  cDIBSection dib;
  ASSERT_TRUE(dib.Create(3, 2));
  SetDibPixel(dib, 2, 0, RGB(1, 2, 3));
  SetDibPixel(dib, 0, 1, RGB(4, 5, 6));
  EXPECT_EQ(win::GetPixel(dib.hdc(), 2, 0), RGB(1, 2, 3));
  EXPECT_EQ(dib.DIBSectionBitsPtr()[0], 6);  // blue of (0, 1), the first byte
}

TEST(DibSection, DefaultsEndWithABlackPenOnABlackBackground) {
  LeakCheck leaks;
  cDIBSection dib;
  ASSERT_TRUE(dib.Create(2, 2));
  EXPECT_EQ(win::GetBkColor(dib.hdc()), 0u);
  EXPECT_EQ(win::GetTextColor(dib.hdc()), 0u);
  EXPECT_EQ(dib.FillStyle(), 1);
  EXPECT_EQ(win::GetBkMode(dib.hdc()), win::TRANSPARENT);
  dib.Cls();
  dib.DrawLine(0, 1, 2, 1, kNoColor);
  dib.ForeColor(kRed);
  dib.DrawLine(0, 0, 2, 0, kNoColor);
  EXPECT_EQ(PixelRows(dib.hdc(), 2, 2, {{kBlack, 'k'}, {kRed, 'r'}}), (Rows{"rr", "kk"}));
}

TEST(DibSection, CreateAndCleanupLifecycle) {
  LeakCheck leaks;
  const int palettes = LivePalettes();
  cDIBSection dib;
  EXPECT_EQ(LivePalettes(), palettes + 1);
  // The first Create deletes the palette made at construction, for good.
  ASSERT_TRUE(dib.Create(2, 2));
  EXPECT_EQ(LivePalettes(), palettes);
  EXPECT_NE(dib.DIBSectionBitsPtr(), nullptr);
  dib.Cleanup();
  EXPECT_EQ(dib.DIBSectionBitsPtr(), nullptr);
  EXPECT_EQ(dib.hdc(), nullptr);
  // A size the platform refuses ends in the error of the defaults, not in false.
  const AutomationError error = ErrorOf([&] { dib.Create(0, 0); });
  EXPECT_EQ(error.Number(), -2147220504);
  EXPECT_EQ(error.Source(), "Initialize");
  EXPECT_EQ(dib.hdc(), nullptr);
}

// A 3 x 2 DIB: top row red, magenta, red; bottom row magenta, green, magenta.
void PaintSample(cDIBSection& dib) {
  ASSERT_TRUE(dib.Create(3, 2));
  constexpr win::COLORREF kMagenta = RGB(255, 0, 255);
  const win::COLORREF pixels[2][3] = {{kRed, kMagenta, kRed}, {kMagenta, kGreen, kMagenta}};
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 3; ++x) SetDibPixel(dib, x, y, pixels[y][x]);
  }
}

const std::map<win::COLORREF, char> kLegend{
    {kWhite, '.'}, {kRed, 'r'}, {kGreen, 'g'}, {RGB(255, 0, 255), 'm'}};

TEST(DibSection, PaintPictureMaskedLeavesMaskPixelsAloneAndPlainTakesTheFullSize) {
  LeakCheck leaks;
  cDIBSection dib;
  PaintSample(dib);
  auto masked = MakeCanvas(5, 4), plain = MakeCanvas(5, 3);
  // Size and raster operation are ignored in the masked copy.
  dib.PaintPicture(masked->hdc(), RGB(255, 0, 255), 1, 1, 1, 1, 0, 0, win::BLACKNESS);
  EXPECT_EQ(PixelRows(masked->hdc(), 5, 4, kLegend), (Rows{".....", ".r.r.", "..g..", "....."}));
  // A negative size copies the full size.
  dib.PaintPicture(plain->hdc(), kNoColor, 2, 1, -1, 1);
  EXPECT_EQ(PixelRows(plain->hdc(), 5, 3, kLegend), (Rows{".....", "..rmr", "....."}));
}

TEST(DibSection, LoadsABitmapPicture) {
  LeakCheck leaks;
  auto canvas = MakeCanvas(2, 2);
  canvas->FillRectangle(1, 0, 2, 2, kGreen);
  const StdPicture picture = canvas->Picture();
  cDIBSection dib;
  dib.CreateFromPicture(picture);
  ASSERT_NE(dib.DIBSectionBitsPtr(), nullptr);
  EXPECT_EQ(dib.Width(), 2);
  EXPECT_EQ(PixelRows(dib.hdc(), 2, 2, kLegend), (Rows{".g", ".g"}));
}

}  // namespace
}  // namespace glyphon::testing
