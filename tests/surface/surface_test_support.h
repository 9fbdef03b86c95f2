// Small canvases and pixel pictures for the surface tests.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/win32.h"
#include "surface/canvas.h"

namespace glyphon::testing {

// A canvas set up as a repaint sets it up, cleared to white.
inline std::unique_ptr<Canvas> MakeCanvas(int width, int height) {
  auto canvas = std::make_unique<Canvas>();
  canvas->CreatehDC();
  canvas->InitProperties();
  const win::HDC screen = win::GetDC(nullptr);
  canvas->CreateBitmap(screen, width, height);
  win::ReleaseDC(nullptr, screen);
  canvas->BackColor(win::RGB(255, 255, 255));
  canvas->Cls();
  return canvas;
}

// The pixels of (0, 0, width, height) as one string per row, each pixel drawn as the character
// its colour maps to, '?' for colours not in the map.
inline std::vector<std::string> PixelRows(win::HDC hdc, int width, int height,
                                          const std::map<win::COLORREF, char>& legend) {
  std::vector<std::string> rows;
  for (int y = 0; y < height; ++y) {
    std::string row;
    for (int x = 0; x < width; ++x) {
      const auto found = legend.find(win::GetPixel(hdc, x, y));
      row += found != legend.end() ? found->second : '?';
    }
    rows.push_back(row);
  }
  return rows;
}

inline constexpr win::COLORREF kWhite = win::RGB(255, 255, 255);
inline constexpr win::COLORREF kBlack = win::RGB(0, 0, 0);
inline constexpr win::COLORREF kRed = win::RGB(255, 0, 0);
inline constexpr win::COLORREF kGreen = win::RGB(0, 255, 0);
inline constexpr win::COLORREF kBlue = win::RGB(0, 0, 255);

}  // namespace glyphon::testing
