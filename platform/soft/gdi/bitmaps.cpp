// Device-dependent bitmaps: compatible (screen format, 32 bits) and monochrome ones.
#include <algorithm>
#include <cstring>
#include <vector>

#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {
// Device-dependent bitmaps are stored top-down with rows padded to 16 bits, as GDI reports them.
std::shared_ptr<Pixmap> NewDeviceBitmap(int width, int height, int bitsPerPixel) {
  return Pixmap::Create(width, height, bitsPerPixel, true, Pixmap::RowAlignment::Word);
}
}  // namespace

HBITMAP SoftEngine::CreateMatchingDibSection(HDC hdc, const Pixmap& format, int cx, int cy) {
  const std::vector<RGBQUAD>& colors = format.ColorTable();
  std::vector<std::uint8_t> buffer(sizeof(BITMAPINFOHEADER) + colors.size() * sizeof(RGBQUAD));
  BITMAPINFOHEADER header{};
  header.biSize = sizeof header;
  header.biWidth = cx;
  header.biHeight = format.TopDown() ? -cy : cy;
  header.biPlanes = 1;
  header.biBitCount = static_cast<WORD>(format.BitsPerPixel());
  header.biCompression = BI_RGB;
  header.biClrUsed = static_cast<DWORD>(colors.size());
  std::memcpy(buffer.data(), &header, sizeof header);
  if (!colors.empty()) {
    std::memcpy(buffer.data() + sizeof header, colors.data(), colors.size() * sizeof(RGBQUAD));
  }
  return CreateDIBSection(hdc, reinterpret_cast<const BITMAPINFO*>(buffer.data()), DIB_RGB_COLORS,
                          nullptr, nullptr, 0);
}

HBITMAP SoftEngine::CreateCompatibleBitmap(HDC hdc, int cx, int cy) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || cx < 0 || cy < 0) return nullptr;
  // GDI answers a zero size with its 1x1 monochrome stock bitmap.
  if (cx == 0 || cy == 0) return defaultBitmap_;
  // A DC holding a DIB section makes DIB sections of the same format, as GDI does.
  if (BitmapObject* selected = Bitmap(dc->attributes.bitmap); selected && selected->dibSection) {
    return CreateMatchingDibSection(hdc, *selected->pixmap, cx, cy);
  }
  const bool monochrome = dc->dcKind == DcKind::Memory && dc->surface->BitsPerPixel() == 1;
  auto bitmap = std::make_unique<BitmapObject>();
  bitmap->pixmap = NewDeviceBitmap(cx, cy, monochrome ? 1 : 32);
  if (!bitmap->pixmap) return nullptr;
  return AddObject<HBITMAP>(std::move(bitmap));
}

HBITMAP SoftEngine::CreateBitmap(int width, int height, UINT planes, UINT bitCount,
                                 const void* bits) {
  if (width < 0 || height < 0 || planes != 1) return nullptr;
  if (bitCount != 1 && bitCount != 24 && bitCount != 32) return nullptr;
  if (width == 0 || height == 0) return defaultBitmap_;
  auto bitmap = std::make_unique<BitmapObject>();
  bitmap->pixmap = NewDeviceBitmap(width, height, static_cast<int>(bitCount));
  if (!bitmap->pixmap) return nullptr;
  if (bits != nullptr) {
    std::memcpy(bitmap->pixmap->Bits(), bits, bitmap->pixmap->ByteSize());
  }
  return AddObject<HBITMAP>(std::move(bitmap));
}

LONG SoftEngine::GetBitmapBits(HBITMAP handle, LONG size, void* bits) {
  BitmapObject* bitmap = Bitmap(handle);
  if (bitmap == nullptr || size < 0) return 0;
  const Pixmap& pixels = *bitmap->pixmap;
  const int stride = Pixmap::StrideFor(pixels.Width(), pixels.BitsPerPixel(),
                                       Pixmap::RowAlignment::Word);
  const LONG total = static_cast<LONG>(stride) * pixels.Height();
  if (bits == nullptr) return total;
  const LONG count = std::min(size, total);
  auto* out = static_cast<std::uint8_t*>(bits);
  for (LONG offset = 0; offset < count; offset += stride) {
    const int y = static_cast<int>(offset / stride);
    std::memcpy(out + offset, pixels.Row(y), static_cast<std::size_t>(std::min<LONG>(stride, count - offset)));
  }
  return count;
}

LONG SoftEngine::SetBitmapBits(HBITMAP handle, DWORD size, const void* bits) {
  BitmapObject* bitmap = Bitmap(handle);
  if (bitmap == nullptr || bits == nullptr || bitmap->stock) return 0;
  Pixmap& pixels = *bitmap->pixmap;
  const int stride = Pixmap::StrideFor(pixels.Width(), pixels.BitsPerPixel(),
                                       Pixmap::RowAlignment::Word);
  const LONG total = static_cast<LONG>(stride) * pixels.Height();
  const LONG count = std::min(static_cast<LONG>(std::min<DWORD>(size, 0x7FFFFFFF)), total);
  const auto* in = static_cast<const std::uint8_t*>(bits);
  for (LONG offset = 0; offset < count; offset += stride) {
    const int y = static_cast<int>(offset / stride);
    std::memcpy(pixels.Row(y), in + offset, static_cast<std::size_t>(std::min<LONG>(stride, count - offset)));
  }
  return count;
}

}  // namespace glyphon::win::soft
