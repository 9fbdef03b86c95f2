#include "samples/shape_painter.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace glyphon::samples {

namespace {

constexpr int kSubSamples = 4;

std::uint8_t Lerp(std::uint8_t from, std::uint8_t to, double share) {
  return static_cast<std::uint8_t>(std::lround(from + (to - from) * share));
}

// Inside a convex polygon: on the same side of every edge.
bool InConvex(const std::vector<Point>& corners, double x, double y) {
  int sign = 0;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Point& a = corners[i];
    const Point& b = corners[(i + 1) % corners.size()];
    const double cross = (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
    const int side = cross > 0 ? 1 : (cross < 0 ? -1 : 0);
    if (side == 0) continue;
    if (sign == 0) sign = side;
    if (side != sign) return false;
  }
  return true;
}

}  // namespace

void ShapePainter::Blend(int x, int y, win::COLORREF color, std::uint8_t alpha,
                         double coverage) {
  std::uint8_t* pixel = image_.Pixel(x, y);
  const double share = coverage * alpha / 255.0;
  if (keepsAlpha_) {
    // Over what is there, in straight alpha.
    const double below = pixel[3] / 255.0;
    const double out = share + below * (1 - share);
    if (out <= 0) return;
    const std::uint8_t bgr[3] = {win::GetBValue(color), win::GetGValue(color),
                                 win::GetRValue(color)};
    for (int c = 0; c < 3; ++c) {
      pixel[c] = static_cast<std::uint8_t>(
          std::lround((bgr[c] * share + pixel[c] * below * (1 - share)) / out));
    }
    pixel[3] = static_cast<std::uint8_t>(std::lround(out * 255));
    return;
  }
  pixel[0] = Lerp(pixel[0], win::GetBValue(color), share);
  pixel[1] = Lerp(pixel[1], win::GetGValue(color), share);
  pixel[2] = Lerp(pixel[2], win::GetRValue(color), share);
}

template <class Inside>
void ShapePainter::Shape(Inside inside, win::COLORREF color, std::uint8_t alpha) {
  for (int y = 0; y < image_.height; ++y) {
    for (int x = 0; x < image_.width; ++x) {
      if (!smooth_) {
        if (inside(x + 0.5, y + 0.5)) Blend(x, y, color, alpha, 1.0);
        continue;
      }
      int hits = 0;
      for (int sy = 0; sy < kSubSamples; ++sy) {
        for (int sx = 0; sx < kSubSamples; ++sx) {
          hits += inside(x + (sx + 0.5) / kSubSamples, y + (sy + 0.5) / kSubSamples) ? 1 : 0;
        }
      }
      if (hits > 0) Blend(x, y, color, alpha, hits / double(kSubSamples * kSubSamples));
    }
  }
}

void ShapePainter::Fill(win::COLORREF color, std::uint8_t alpha) {
  for (int y = 0; y < image_.height; ++y) {
    for (int x = 0; x < image_.width; ++x) {
      std::uint8_t* pixel = image_.Pixel(x, y);
      pixel[0] = win::GetBValue(color);
      pixel[1] = win::GetGValue(color);
      pixel[2] = win::GetRValue(color);
      pixel[3] = keepsAlpha_ ? alpha : 0;
    }
  }
}

void ShapePainter::Rect(int left, int top, int right, int bottom, win::COLORREF color) {
  for (int y = std::max(top, 0); y < std::min(bottom, image_.height); ++y) {
    for (int x = std::max(left, 0); x < std::min(right, image_.width); ++x) {
      Blend(x, y, color, 255, 1.0);
    }
  }
}

void ShapePainter::Disc(Point centre, double radius, win::COLORREF color, std::uint8_t alpha) {
  Shape([&](double x, double y) { return std::hypot(x - centre.x, y - centre.y) <= radius; },
        color, alpha);
}

void ShapePainter::Stroke(Point from, Point to, double width, win::COLORREF color) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  if (length <= 0) return;
  const double nx = -(to.y - from.y) / length * width / 2;
  const double ny = (to.x - from.x) / length * width / 2;
  Polygon({{from.x + nx, from.y + ny}, {to.x + nx, to.y + ny}, {to.x - nx, to.y - ny},
           {from.x - nx, from.y - ny}},
          color);
}

void ShapePainter::Polygon(std::initializer_list<Point> corners, win::COLORREF color,
                           std::uint8_t alpha) {
  const std::vector<Point> points(corners);
  Shape([&](double x, double y) { return InConvex(points, x, y); }, color, alpha);
}

}  // namespace glyphon::samples
