// Canvas and cDIBSection drawing through the native and the soft engine, pixel for pixel.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/codec/bitmap_png.h"
#include "surface/canvas.h"
#include "surface/dib_section.h"
#include "tests/surface/surface_test_support.h"
#include "tests/windows/engine_parity.h"
#include "tests/windows/gdi_scenarios.h"

namespace glyphon::testing {
namespace {

using win::RGB;

constexpr int kSize = 48;

// The drawing members both classes share, with every pen style, mix and fill style.
template <class Surface>
void PaintMembers(Surface& surface, int drawStyle, int fillStyle, int drawMode) {
  surface.DrawStyle(drawStyle);
  surface.FillStyle(fillStyle);
  surface.FillColor(RGB(0, 160, 0));
  surface.ForeColor(RGB(0, 0, 200));
  surface.FillGradientTopToBottom(0, 0, 47, 15, 255, 0, 0, 0, 0, 255);
  surface.FillGradientLeftToRight(0, 16, 47, 22, 10, 200, 30, 250, 250, 0);
  surface.DrawMode(drawMode);
  surface.DrawLine(1, 2, 46, 40);
  surface.DrawLine(40, 1, 3, 30, RGB(200, 0, 0));
  surface.DrawRect(4, 24, 20, 40, RGB(0, 0, 0));
  surface.DrawRect3D(22, 24, 46, 34, RGB(255, 255, 255), RGB(128, 128, 128));
  surface.DrawRoundRect(2, 30, 30, 47, RGB(90, 0, 90));
  surface.FillRoundRect(32, 35, 46, 46, RGB(0, 0, 0));
  surface.FillRectangle(24, 36, 30, 40, 0x80000000u | win::COLOR_HIGHLIGHT);
  surface.DrawPixel(44.5f, 2.5f, RGB(0, 0, 0));
  surface.DrawFocusRect(6, 4, 42, 14);
  surface.DrawWidth(3);
  surface.DrawLine(10, 44, 40, 44, RGB(255, 128, 0));
}

// The members on a Canvas, or on a cDIBSection cleared to white.
ParityCase MemberCase(bool onDib, int drawStyle, int fillStyle, int drawMode) {
  return {std::string(onDib ? "Dib" : "Canvas") + "_Draw" + std::to_string(drawStyle) + "_Fill" +
              std::to_string(fillStyle) + "_Mode" + std::to_string(drawMode),
          [=] {
            if (!onDib) {
              auto canvas = MakeCanvas(kSize, kSize);
              PaintMembers(*canvas, drawStyle, fillStyle, drawMode);
              return Captured(canvas->hdc());
            }
            cDIBSection dib;
            dib.Create(kSize, kSize);
            dib.BackColor(RGB(255, 255, 255));
            dib.Cls();
            PaintMembers(dib, drawStyle, fillStyle, drawMode);
            const std::optional<Image> image = CaptureBitmap(dib.hDib());
            return image ? *image : Image{};
          }};
}

// Every pen style and every fill style on both; every other mix on the canvas.
std::vector<ParityCase> MemberCases() {
  std::vector<ParityCase> cases;
  for (const bool onDib : {false, true}) {
    for (int drawStyle = 0; drawStyle <= 6; ++drawStyle) {
      cases.push_back(MemberCase(onDib, drawStyle, 1, win::R2_COPYPEN));
    }
    for (int fillStyle = 0; fillStyle <= 7; ++fillStyle) {
      if (fillStyle == 1) continue;  // the hollow brush of the cases above
      cases.push_back(MemberCase(onDib, 0, fillStyle, win::R2_COPYPEN));
    }
  }
  for (int drawMode = win::R2_BLACK; drawMode <= win::R2_WHITE; ++drawMode) {
    if (drawMode == win::R2_COPYPEN) continue;  // as above
    cases.push_back(MemberCase(false, 0, 0, drawMode));
  }
  return cases;
}

// The DIB's transfers: loading from a DC, a plain and a transparent copy out.
std::vector<ParityCase> TransferCases() {
  std::vector<ParityCase> cases;
  cases.push_back({"Dib_LoadAndPaintPicture", [] {
                     return RenderOnTarget(Target::kScreenBitmap, kSize, kSize, [](win::HDC dc) {
                       PaintBands(dc, kSize, kSize);
                       SourceDc picture(20, 16);
                       PaintChecks(picture.dc(), 20, 16);
                       FillSolid(picture.dc(), 4, 4, 12, 10, RGB(255, 0, 255));
                       cDIBSection dib;
                       dib.Create(20, 16);
                       dib.LoadPictureBlt(picture.dc());
                       dib.PaintPicture(dc, win::RGB(255, 0, 255), 2, 2);
                       dib.PaintPicture(dc, kNoColor, 24, 4, -1, -1, 0, 0, win::SRCINVERT);
                       dib.PaintPicture(dc, kNoColor, 4, 26, 30, 20, 2, 3);
                     });
                   }});
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Members, EngineParity, ::testing::ValuesIn(MemberCases()), ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Transfers, EngineParity, ::testing::ValuesIn(TransferCases()),
                         ParityCaseName);

}  // namespace
}  // namespace glyphon::testing
