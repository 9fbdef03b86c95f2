#include "tests/platform/raster_surface.h"

namespace glyphon::testing {

using namespace win;

RasterSurface::RasterSurface(int width, int height, UINT bitCount)
    : width_(width),
      height_(height),
      dc_(CreateCompatibleDC(nullptr)),
      bitmap_(CreateBitmap(width, height, 1, bitCount, nullptr)),
      oldBitmap_(SelectObject(dc_, bitmap_)),
      oldPen_(GetCurrentObject(dc_, OBJ_PEN)),
      oldBrush_(GetCurrentObject(dc_, OBJ_BRUSH)) {
  Clear(RGB(255, 255, 255));
}

RasterSurface::~RasterSurface() {
  SelectObject(dc_, oldPen_);
  SelectObject(dc_, oldBrush_);
  SelectObject(dc_, oldBitmap_);
  if (pen_ != nullptr) DeleteObject(pen_);
  if (brush_ != nullptr) DeleteObject(brush_);
  DeleteObject(bitmap_);
  DeleteDC(dc_);
}

void RasterSurface::Clear(COLORREF color) {
  HBRUSH brush = CreateSolidBrush(color);
  const RECT all{0, 0, width_, height_};
  FillRect(dc_, &all, brush);
  DeleteObject(brush);
}

void RasterSurface::UsePen(int style, int width, COLORREF color) {
  HPEN pen = CreatePen(style, width, color);
  SelectObject(dc_, pen);
  if (pen_ != nullptr) DeleteObject(pen_);
  pen_ = pen;
}

void RasterSurface::UseBrush(HBRUSH brush) {
  SelectObject(dc_, brush);
  if (brush_ != nullptr) DeleteObject(brush_);
  brush_ = brush;
}

std::vector<std::string> RasterSurface::Picture(const std::map<COLORREF, char>& legend) const {
  std::vector<std::string> rows;
  for (int y = 0; y < height_; ++y) {
    std::string row;
    for (int x = 0; x < width_; ++x) {
      const COLORREF color = GetPixel(dc_, x, y);
      const auto known = legend.find(color);
      if (known != legend.end()) row += known->second;
      else if (color == RGB(255, 255, 255)) row += '.';
      else if (color == RGB(0, 0, 0)) row += '#';
      else row += '?';
    }
    rows.push_back(row);
  }
  return rows;
}

}  // namespace glyphon::testing
