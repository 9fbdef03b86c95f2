// Small bitmaps selected into their own memory DCs, for exact pixel assertions: pixels set and
// read as raw values, or read back as rows of characters.
#pragma once

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "platform/win32.h"

namespace glyphon::testing {

class MemorySurface {
 public:
  // A device-dependent bitmap, 32 bits per pixel or monochrome, all zero.
  MemorySurface(int width, int height, int bitsPerPixel)
      : width_(width), height_(height), bitsPerPixel_(bitsPerPixel) {
    Attach(win::CreateBitmap(width, height, 1, static_cast<win::UINT>(bitsPerPixel), nullptr));
  }

  // A top-down DIB section; `table` fills its colour table below 16 bits per pixel.
  MemorySurface(int width, int height, int bitsPerPixel, const std::vector<win::RGBQUAD>& table)
      : width_(width), height_(height), bitsPerPixel_(bitsPerPixel) {
    struct {
      win::BITMAPINFOHEADER header;
      win::RGBQUAD colors[256];
    } info{};
    info.header = {sizeof(win::BITMAPINFOHEADER), width, -height, 1,
                   static_cast<win::WORD>(bitsPerPixel), win::BI_RGB, 0, 0, 0, 0, 0};
    if (!table.empty()) std::memcpy(info.colors, table.data(), table.size() * sizeof table[0]);
    Attach(win::CreateDIBSection(nullptr, reinterpret_cast<win::BITMAPINFO*>(&info),
                                 win::DIB_RGB_COLORS, &bits_, nullptr, 0));
  }

  ~MemorySurface() {
    win::SelectObject(dc_, old_);
    win::DeleteObject(bitmap_);
    win::DeleteDC(dc_);
  }
  MemorySurface(const MemorySurface&) = delete;
  MemorySurface& operator=(const MemorySurface&) = delete;

  win::HDC dc() const { return dc_; }
  win::HBITMAP bitmap() const { return bitmap_; }

  // Raw values row by row: colour-table indices, 0x00RRGGBB, or 0xAARRGGBB at 32 bits.
  void Set(const std::vector<std::uint32_t>& values) {
    std::vector<std::uint8_t> bytes(Stride() * height_);
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) Put(bytes.data() + y * Stride(), x, values[y * width_ + x]);
    }
    if (bits_ != nullptr) std::memcpy(bits_, bytes.data(), bytes.size());
    else win::SetBitmapBits(bitmap_, static_cast<win::DWORD>(bytes.size()), bytes.data());
  }

  std::vector<std::uint32_t> Get() const {
    std::vector<std::uint8_t> bytes(Stride() * height_);
    if (bits_ != nullptr) std::memcpy(bytes.data(), bits_, bytes.size());
    else win::GetBitmapBits(bitmap_, static_cast<win::LONG>(bytes.size()), bytes.data());
    std::vector<std::uint32_t> values;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) values.push_back(Take(bytes.data() + y * Stride(), x));
    }
    return values;
  }

  void Clear(win::COLORREF color) {
    const win::HBRUSH brush = win::CreateSolidBrush(color);
    const win::RECT all{0, 0, width_, height_};
    win::FillRect(dc_, &all, brush);
    win::DeleteObject(brush);
  }

  // One string per row: '.' white, '#' black, the legend's character for other colours, '?' for
  // anything else.
  std::vector<std::string> Picture(const std::map<win::COLORREF, char>& legend = {}) const {
    std::vector<std::string> rows(static_cast<std::size_t>(height_));
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        const win::COLORREF color = win::GetPixel(dc_, x, y);
        const auto known = legend.find(color);
        char c = color == win::RGB(255, 255, 255) ? '.' : color == 0 ? '#' : '?';
        rows[y] += known != legend.end() ? known->second : c;
      }
    }
    return rows;
  }

 private:
  void Attach(win::HBITMAP bitmap) {
    bitmap_ = bitmap;
    dc_ = win::CreateCompatibleDC(nullptr);
    old_ = win::SelectObject(dc_, bitmap_);
  }

  // DIB rows are padded to 32 bits, device bitmap rows to 16.
  std::size_t Stride() const {
    const int unit = bits_ != nullptr ? 32 : 16;
    return static_cast<std::size_t>((width_ * bitsPerPixel_ + unit - 1) / unit * (unit / 8));
  }

  void Put(std::uint8_t* row, int x, std::uint32_t v) const {
    if (bitsPerPixel_ >= 8) std::memcpy(row + x * bitsPerPixel_ / 8, &v, bitsPerPixel_ / 8);
    else if (v & 1) row[x / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
  }

  std::uint32_t Take(const std::uint8_t* row, int x) const {
    std::uint32_t v = 0;
    if (bitsPerPixel_ < 8) return (row[x / 8] >> (7 - x % 8)) & 1u;
    std::memcpy(&v, row + x * bitsPerPixel_ / 8, bitsPerPixel_ / 8);
    return v;
  }

  int width_, height_, bitsPerPixel_;
  void* bits_ = nullptr;
  win::HBITMAP bitmap_ = nullptr;
  win::HDC dc_ = nullptr;
  win::HGDIOBJ old_ = nullptr;
};

// A device bitmap that starts white and owns the pen and brush a test selects into it.
class RasterSurface : public MemorySurface {
 public:
  RasterSurface(int width, int height, int bitsPerPixel = 32)
      : MemorySurface(width, height, bitsPerPixel),
        oldPen_(win::GetCurrentObject(dc(), win::OBJ_PEN)),
        oldBrush_(win::GetCurrentObject(dc(), win::OBJ_BRUSH)) {
    Clear(win::RGB(255, 255, 255));
  }
  ~RasterSurface() {
    win::SelectObject(dc(), oldPen_);
    win::SelectObject(dc(), oldBrush_);
    if (pen_ != nullptr) win::DeleteObject(pen_);
    if (brush_ != nullptr) win::DeleteObject(brush_);
  }

  // Selects a new pen or brush, deleting the one this surface selected before.
  void UsePen(int style, int width, win::COLORREF color) {
    Replace(pen_, win::CreatePen(style, width, color));
  }
  void UseBrush(win::HBRUSH brush) { Replace(brush_, brush); }

 private:
  template <class Handle>
  void Replace(Handle& owned, Handle next) {
    win::SelectObject(dc(), next);
    if (owned != nullptr) win::DeleteObject(owned);
    owned = next;
  }

  win::HGDIOBJ oldPen_, oldBrush_;
  win::HPEN pen_ = nullptr;
  win::HBRUSH brush_ = nullptr;
};

}  // namespace glyphon::testing
