// Pixel storage behind every bitmap, window and the screen of the soft engine: 1, 4, 8, 24 or 32
// bits per pixel, rows bottom-up or top-down, with a colour table below 16 bits per pixel.
// Raster operations work on device pixel values, as GDI does: 0x00RRGGBB at 24 and 32 bits, a
// colour-table index below that.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/win32_types.h"

namespace glyphon::win::soft {

using PixelValue = std::uint32_t;

class Pixmap {
 public:
  // Largest side and byte size the engine allocates; beyond them creation fails as in GDI.
  static constexpr int kMaxSide = 16384;
  static constexpr std::size_t kMaxBytes = std::size_t{256} << 20;

  enum class RowAlignment { Word, DoubleWord };

  // Returns null when the size is not positive or too large to allocate.
  static std::shared_ptr<Pixmap> Create(int width, int height, int bitsPerPixel, bool topDown,
                                        RowAlignment alignment);

  static int StrideFor(int width, int bitsPerPixel, RowAlignment alignment);

  int Width() const { return width_; }
  int Height() const { return height_; }
  int BitsPerPixel() const { return bitsPerPixel_; }
  int Stride() const { return stride_; }
  bool TopDown() const { return topDown_; }
  std::size_t ByteSize() const { return static_cast<std::size_t>(stride_) * height_; }

  // First byte in memory (the bottom row of a bottom-up pixmap).
  std::uint8_t* Bits() { return bits_.get(); }
  const std::uint8_t* Bits() const { return bits_.get(); }

  // Row y of the image, y = 0 being the top row whatever the memory order.
  std::uint8_t* Row(int y) { return bits_.get() + RowOffset(y); }
  const std::uint8_t* Row(int y) const { return bits_.get() + RowOffset(y); }

  bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

  PixelValue GetPixel(int x, int y) const;
  void SetPixel(int x, int y, PixelValue value);

  // All bits a pixel value may have at this depth.
  PixelValue PixelMask() const;

  // Nearest device pixel value for a colour, and the colour a pixel value shows.
  PixelValue ColorToPixel(COLORREF color) const;
  COLORREF PixelToColor(PixelValue value) const;

  const std::vector<RGBQUAD>& ColorTable() const { return colorTable_; }
  std::vector<RGBQUAD>& ColorTable() { return colorTable_; }

 private:
  Pixmap(int width, int height, int bitsPerPixel, int stride, bool topDown);
  std::size_t RowOffset(int y) const {
    return static_cast<std::size_t>(topDown_ ? y : height_ - 1 - y) * stride_;
  }

  int width_;
  int height_;
  int bitsPerPixel_;
  int stride_;
  bool topDown_;
  std::unique_ptr<std::uint8_t[]> bits_;
  std::vector<RGBQUAD> colorTable_;
};

inline PixelValue RgbToPixel32(COLORREF color) {
  return ((color & 0xFF) << 16) | (color & 0xFF00) | ((color >> 16) & 0xFF);
}
inline COLORREF Pixel32ToRgb(PixelValue value) {
  return ((value & 0xFF) << 16) | (value & 0xFF00) | ((value >> 16) & 0xFF);
}

}  // namespace glyphon::win::soft
