// A few filled shapes on a 32-bit image (blue, green, red, alpha), enough to draw the samples:
// rectangles, discs and convex polygons, each with an optional coverage-weighted edge.
#pragma once

#include <cstdint>
#include <initializer_list>

#include "platform/codec/png_codec.h"
#include "platform/win32_types.h"

namespace glyphon::samples {

struct Point {
  double x;
  double y;
};

class ShapePainter {
 public:
  // smooth: edges take the covered share of 4 x 4 sub-samples (into alpha when the image keeps
  // alpha, else blended into the colour beneath); otherwise a pixel is in when its centre is.
  ShapePainter(Image& image, bool smooth, bool keepsAlpha)
      : image_(image), smooth_(smooth), keepsAlpha_(keepsAlpha) {}

  void Fill(win::COLORREF color, std::uint8_t alpha = 255);
  // Pixels left <= x < right, top <= y < bottom.
  void Rect(int left, int top, int right, int bottom, win::COLORREF color);
  void Disc(Point centre, double radius, win::COLORREF color, std::uint8_t alpha = 255);
  // A straight stroke of this width with square ends.
  void Stroke(Point from, Point to, double width, win::COLORREF color);
  // Corners of a convex polygon in order (either direction).
  void Polygon(std::initializer_list<Point> corners, win::COLORREF color,
               std::uint8_t alpha = 255);

 private:
  template <class Inside>
  void Shape(Inside inside, win::COLORREF color, std::uint8_t alpha);
  void Blend(int x, int y, win::COLORREF color, std::uint8_t alpha, double coverage);

  Image& image_;
  bool smooth_;
  bool keepsAlpha_;
};

}  // namespace glyphon::samples
