// A small bitmap in a memory DC for exact pixel assertions, read back as rows of characters.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/win32.h"

namespace glyphon::testing {

class RasterSurface {
 public:
  // bitCount 32 or 1; the surface starts white.
  RasterSurface(int width, int height, win::UINT bitCount = 32);
  ~RasterSurface();
  RasterSurface(const RasterSurface&) = delete;
  RasterSurface& operator=(const RasterSurface&) = delete;

  win::HDC dc() const { return dc_; }
  void Clear(win::COLORREF color);

  // Selects a new pen or brush, deleting the one this surface selected before.
  void UsePen(int style, int width, win::COLORREF color);
  void UseBrush(win::HBRUSH brush);

  // One string per row: '.' white, '#' black, the legend's character for other colours, '?' for
  // anything else.
  std::vector<std::string> Picture(const std::map<win::COLORREF, char>& legend = {}) const;

 private:
  int width_, height_;
  win::HDC dc_;
  win::HBITMAP bitmap_;
  win::HGDIOBJ oldBitmap_, oldPen_, oldBrush_;
  win::HPEN pen_ = nullptr;
  win::HBRUSH brush_ = nullptr;
};

}  // namespace glyphon::testing
