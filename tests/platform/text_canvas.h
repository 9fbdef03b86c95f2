// A memory DC over a bitmap of a chosen depth, filled with one colour, whose pixels the text
// tests read and write directly.
#pragma once

#include <cstring>

#include "platform/soft/soft_engine.h"
#include "platform/win32.h"

namespace glyphon::testing {

class TextCanvas {
 public:
  enum class Kind { DeviceBitmap, DibSection };  // a DIB section here is bottom-up

  TextCanvas(int width, int height, int bitsPerPixel = 32,
             win::COLORREF fill = win::RGB(255, 255, 255), Kind kind = Kind::DeviceBitmap)
      : dc_(win::CreateCompatibleDC(nullptr)),
        bitmap_(kind == Kind::DibSection
                    ? DibSection(width, height, bitsPerPixel)
                    : win::CreateBitmap(width, height, 1, static_cast<win::UINT>(bitsPerPixel),
                                        nullptr)),
        fill_(fill) {
    original_ = win::SelectObject(dc_, bitmap_);
    pixels_ = win::soft::ThreadSoftEngine().Bitmap(bitmap_)->pixmap.get();
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) Set(x, y, fill);
    }
  }
  ~TextCanvas() {
    win::SelectObject(dc_, original_);
    win::DeleteDC(dc_);
    win::DeleteObject(bitmap_);
  }
  TextCanvas(const TextCanvas&) = delete;
  TextCanvas& operator=(const TextCanvas&) = delete;

  win::HDC Dc() const { return dc_; }
  int Width() const { return pixels_->Width(); }
  int Height() const { return pixels_->Height(); }
  win::COLORREF At(int x, int y) const { return pixels_->PixelToColor(pixels_->GetPixel(x, y)); }
  void Set(int x, int y, win::COLORREF color) {
    pixels_->SetPixel(x, y, pixels_->ColorToPixel(color));
  }
  bool Ink(int x, int y) const { return At(x, y) != fill_; }

  // Pixels in [left, right) x [top, bottom) that differ from the fill colour.
  int InkIn(int left, int top, int right, int bottom) const {
    int count = 0;
    for (int y = top; y < bottom; ++y) {
      for (int x = left; x < right; ++x) count += Ink(x, y) ? 1 : 0;
    }
    return count;
  }
  int InkTotal() const { return InkIn(0, 0, Width(), Height()); }

  // Whether two canvases of the same size hold the same picture.
  bool SameAs(const TextCanvas& other) const {
    for (int y = 0; y < Height(); ++y) {
      for (int x = 0; x < Width(); ++x) {
        if (At(x, y) != other.At(x, y)) return false;
      }
    }
    return true;
  }

 private:
  static win::HBITMAP DibSection(int width, int height, int bitsPerPixel) {
    win::BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(win::BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = static_cast<win::WORD>(bitsPerPixel);
    void* bits = nullptr;
    return win::CreateDIBSection(nullptr, &info, win::DIB_RGB_COLORS, &bits, nullptr, 0);
  }

  win::HDC dc_;
  win::HBITMAP bitmap_;
  win::HGDIOBJ original_ = nullptr;
  win::COLORREF fill_;
  win::soft::Pixmap* pixels_ = nullptr;
};

// Selects a font into a DC for a scope and deletes it afterwards.
class ScopedFont {
 public:
  ScopedFont(win::HDC dc, win::HFONT font)
      : dc_(dc), font_(font), previous_(win::SelectObject(dc, font)) {}
  ScopedFont(win::HDC dc, int height, int weight = 400, int quality = 0,
             const char* face = "MS Sans Serif")
      : ScopedFont(dc, win::CreateFontA(height, 0, 0, 0, weight, 0, 0, 0, 0, 0, 0,
                                        static_cast<win::DWORD>(quality), 0, face)) {}
  ~ScopedFont() {
    win::SelectObject(dc_, previous_);
    win::DeleteObject(font_);
  }
  ScopedFont(const ScopedFont&) = delete;
  ScopedFont& operator=(const ScopedFont&) = delete;

 private:
  win::HDC dc_;
  win::HFONT font_;
  win::HGDIOBJ previous_;
};

inline win::TEXTMETRICA MetricsOf(win::HDC dc) {
  win::TEXTMETRICA tm{};
  win::GetTextMetricsA(dc, &tm);
  return tm;
}

inline long WidthOf(win::HDC dc, const char* text) {
  win::SIZE size{};
  win::GetTextExtentPoint32A(dc, text, static_cast<int>(std::strlen(text)), &size);
  return size.cx;
}

}  // namespace glyphon::testing
