// Small memory DCs for block-transfer tests: a bitmap selected into its own DC, with its pixels
// set and read as raw values.
#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/win32.h"

namespace glyphon::win {

class MemorySurface {
 public:
  // A device-dependent bitmap: 32 bits per pixel, or monochrome with bitsPerPixel 1.
  MemorySurface(int width, int height, int bitsPerPixel)
      : width_(width), height_(height), bitsPerPixel_(bitsPerPixel) {
    Attach(CreateBitmap(width, height, 1, static_cast<UINT>(bitsPerPixel), nullptr));
  }

  // A DIB section; `table` fills its colour table below 16 bits per pixel.
  MemorySurface(int width, int height, int bitsPerPixel, const std::vector<RGBQUAD>& table)
      : width_(width), height_(height), bitsPerPixel_(bitsPerPixel) {
    struct {
      BITMAPINFOHEADER header;
      RGBQUAD colors[256];
    } info{};
    info.header = {sizeof(BITMAPINFOHEADER),
                   width,
                   -height,
                   1,
                   static_cast<WORD>(bitsPerPixel),
                   BI_RGB,
                   0,
                   0,
                   0,
                   0,
                   0};
    if (!table.empty()) std::memcpy(info.colors, table.data(), table.size() * sizeof(RGBQUAD));
    Attach(CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits_,
                            nullptr, 0));
  }

  ~MemorySurface() {
    SelectObject(dc_, old_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  MemorySurface(const MemorySurface&) = delete;
  MemorySurface& operator=(const MemorySurface&) = delete;

  HDC dc() const { return dc_; }
  HBITMAP bitmap() const { return bitmap_; }

  // Raw values row by row: colour-table indices, 0x00RRGGBB, or 0xAARRGGBB at 32 bits.
  void Set(const std::vector<std::uint32_t>& values) {
    std::vector<std::uint8_t> bytes(Stride() * height_);
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) Put(bytes.data() + y * Stride(), x, values[y * width_ + x]);
    }
    if (bits_ != nullptr) {
      std::memcpy(bits_, bytes.data(), bytes.size());
    } else {
      SetBitmapBits(bitmap_, static_cast<DWORD>(bytes.size()), bytes.data());
    }
  }

  std::vector<std::uint32_t> Get() const {
    std::vector<std::uint8_t> bytes(Stride() * height_);
    if (bits_ != nullptr) {
      std::memcpy(bytes.data(), bits_, bytes.size());
    } else {
      GetBitmapBits(bitmap_, static_cast<LONG>(bytes.size()), bytes.data());
    }
    std::vector<std::uint32_t> values;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) values.push_back(Take(bytes.data() + y * Stride(), x));
    }
    return values;
  }

 private:
  void Attach(HBITMAP bitmap) {
    bitmap_ = bitmap;
    dc_ = CreateCompatibleDC(nullptr);
    old_ = SelectObject(dc_, bitmap_);
  }

  // DIB rows are padded to 32 bits, device bitmap rows to 16.
  std::size_t Stride() const {
    const int unit = bits_ != nullptr ? 32 : 16;
    return static_cast<std::size_t>((width_ * bitsPerPixel_ + unit - 1) / unit * (unit / 8));
  }

  void Put(std::uint8_t* row, int x, std::uint32_t v) const {
    switch (bitsPerPixel_) {
      case 32: std::memcpy(row + x * 4, &v, 4); break;
      case 24: std::memcpy(row + x * 3, &v, 3); break;
      case 8: row[x] = static_cast<std::uint8_t>(v); break;
      default:
        if (v & 1) row[x / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
    }
  }

  std::uint32_t Take(const std::uint8_t* row, int x) const {
    std::uint32_t v = 0;
    switch (bitsPerPixel_) {
      case 32: std::memcpy(&v, row + x * 4, 4); return v;
      case 24: std::memcpy(&v, row + x * 3, 3); return v;
      case 8: return row[x];
      default: return (row[x / 8] >> (7 - x % 8)) & 1u;
    }
  }

  int width_;
  int height_;
  int bitsPerPixel_;
  void* bits_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HDC dc_ = nullptr;
  HGDIOBJ old_ = nullptr;
};

}  // namespace glyphon::win
