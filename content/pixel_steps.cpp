// The pixel loops of the faded and greyed pictures, on the DIB sections' own bytes.
#include <cmath>

#include "content/pixel_arithmetic.h"
#include "content/pixel_effects.h"
#include "content/pixel_view.h"
#include "surface/rounding.h"

namespace glyphon {

namespace {

// Blue, green, red in memory against a COLORREF (0x00BBGGRR).
bool IsColor(const std::uint8_t* pixel, win::COLORREF rgb) {
  return pixel[0] == win::GetBValue(rgb) && pixel[1] == win::GetGValue(rgb) &&
         pixel[2] == win::GetRValue(rgb) && (rgb >> 24) == 0;
}

std::uint8_t ClampToByte(int value) {
  return static_cast<std::uint8_t>(value < 0 ? 0 : (value > 255 ? 255 : value));
}

}  // namespace

void TintGrey(std::uint8_t* pixel, std::uint8_t grey, win::COLORREF tint) {
  pixel[0] = pixel[1] = pixel[2] = grey;
  int kept = -1;
  if (tint == win::RGB(0, 0, 255)) kept = 0;
  if (tint == win::RGB(0, 255, 0)) kept = 1;
  if (tint == win::RGB(255, 0, 0)) kept = 2;
  if (kept < 0) return;
  for (int channel = 0; channel < 3; ++channel) {
    if (channel != kept) pixel[channel] = 0;
  }
}

void TurnGrey(cDIBSection& image, win::COLORREF tint, win::COLORREF maskRgb) {
  const PixelView view(image);
  for (int row = 0; row < view.Rows(); ++row) {
    for (int column = 0; column < view.Columns(); ++column) {
      std::uint8_t* pixel = view.Pixel(row, column);
      if (IsColor(pixel, maskRgb)) continue;
      TintGrey(pixel, GreyLevel(pixel[2], pixel[1], pixel[0]), tint);
    }
  }
}

void MixInto(cDIBSection& background, const cDIBSection& effect, int strength,
             win::COLORREF maskRgb) {
  const PixelView under(background);
  const PixelView over(effect);
  const int rows = under.Rows() < over.Rows() ? under.Rows() : over.Rows();
  const int columns = under.Columns() < over.Columns() ? under.Columns() : over.Columns();
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      std::uint8_t* out = under.Pixel(row, column);
      const std::uint8_t* in = over.Pixel(row, column);
      const bool keyed = IsColor(in, maskRgb);
      for (int channel = 0; channel < 3; ++channel) {
        out[channel] = keyed ? in[channel] : MixLevel(out[channel], in[channel], strength);
      }
    }
  }
}

void ResizeBilinear(const cDIBSection& source, cDIBSection& target) {
  const PixelView from(source);
  const PixelView to(target);
  if (from.Rows() == 0 || from.Columns() == 0) return;
  const double xScale = static_cast<double>(from.Columns() - 1) / to.Columns();
  const double yScale = static_cast<double>(from.Rows() - 1) / to.Rows();
  for (int y = 0; y < to.Rows(); ++y) {
    const double sy = y * yScale;
    const int iy = static_cast<int>(std::floor(sy));
    const double fy = sy - iy;
    // A one-row source has no row below; the weight of that row is then 0.
    const int below = iy + 1 < from.Rows() ? iy + 1 : iy;
    for (int x = 0; x < to.Columns(); ++x) {
      const double sx = x * xScale;
      const int ix = static_cast<int>(std::floor(sx));
      const double fx = sx - ix;
      const int right = ix + 1 < from.Columns() ? ix + 1 : ix;
      const std::uint8_t* topLeft = from.Pixel(iy, ix);
      const std::uint8_t* topRight = from.Pixel(iy, right);
      const std::uint8_t* bottomLeft = from.Pixel(below, ix);
      const std::uint8_t* bottomRight = from.Pixel(below, right);
      std::uint8_t* out = to.Pixel(y, x);
      for (int c = 0; c < 3; ++c) {
        const int left = RoundHalfEven((1 - fy) * topLeft[c] + fy * bottomLeft[c]);
        const int rightLevel = RoundHalfEven((1 - fy) * topRight[c] + fy * bottomRight[c]);
        out[c] = ClampToByte(RoundHalfEven((1 - fx) * left + fx * rightLevel));
      }
    }
  }
}

}  // namespace glyphon
