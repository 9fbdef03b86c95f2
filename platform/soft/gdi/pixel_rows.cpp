#include "platform/soft/gdi/pixel_rows.h"

#include <cstring>

namespace glyphon::win::soft {

PixelValue RawPixelMask(int bitsPerPixel) {
  switch (bitsPerPixel) {
    case 32: return 0xFFFFFFFFu;
    case 24: return 0x00FFFFFFu;
    default: return (1u << bitsPerPixel) - 1u;
  }
}

void ReadPixels(const Pixmap& pixmap, int x, int y, int count, PixelValue* out) {
  const std::uint8_t* row = pixmap.Row(y);
  switch (pixmap.BitsPerPixel()) {
    case 32:
      std::memcpy(out, row + static_cast<std::size_t>(x) * 4, static_cast<std::size_t>(count) * 4);
      return;
    case 24:
      for (const std::uint8_t* p = row + static_cast<std::size_t>(x) * 3; count > 0;
           --count, p += 3) {
        *out++ = p[0] | (p[1] << 8) | (p[2] << 16);
      }
      return;
    case 8:
      for (int i = 0; i < count; ++i) out[i] = row[x + i];
      return;
    case 4:
      for (int i = 0; i < count; ++i, ++x) out[i] = (row[x / 2] >> (x % 2 == 0 ? 4 : 0)) & 0x0Fu;
      return;
    default:
      for (int i = 0; i < count; ++i, ++x) out[i] = (row[x / 8] >> (7 - x % 8)) & 1u;
      return;
  }
}

void WritePixels(Pixmap& pixmap, int x, int y, int count, const PixelValue* in) {
  std::uint8_t* row = pixmap.Row(y);
  switch (pixmap.BitsPerPixel()) {
    case 32:
      std::memcpy(row + static_cast<std::size_t>(x) * 4, in, static_cast<std::size_t>(count) * 4);
      return;
    case 24:
      for (std::uint8_t* p = row + static_cast<std::size_t>(x) * 3; count > 0; --count, p += 3) {
        const PixelValue v = *in++;
        p[0] = static_cast<std::uint8_t>(v);
        p[1] = static_cast<std::uint8_t>(v >> 8);
        p[2] = static_cast<std::uint8_t>(v >> 16);
      }
      return;
    case 8:
      for (int i = 0; i < count; ++i) row[x + i] = static_cast<std::uint8_t>(in[i]);
      return;
    case 4:
      for (int i = 0; i < count; ++i, ++x) {
        std::uint8_t& b = row[x / 2];
        const unsigned shift = x % 2 == 0 ? 4 : 0;
        b = static_cast<std::uint8_t>((b & ~(0x0Fu << shift)) | ((in[i] & 0x0Fu) << shift));
      }
      return;
    default:
      for (int i = 0; i < count; ++i, ++x) {
        std::uint8_t& b = row[x / 8];
        const auto bit = static_cast<std::uint8_t>(0x80u >> (x % 8));
        b = (in[i] & 1u) ? static_cast<std::uint8_t>(b | bit) : static_cast<std::uint8_t>(b & ~bit);
      }
      return;
  }
}

}  // namespace glyphon::win::soft
