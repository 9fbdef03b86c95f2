#include "platform/soft/gdi/dib_format.h"

#include <algorithm>
#include <cstring>

namespace glyphon::win::soft {

int DibFormat::Stride() const {
  return Pixmap::StrideFor(width, bitsPerPixel, Pixmap::RowAlignment::DoubleWord);
}

std::shared_ptr<Pixmap> DibFormat::NewPixmap(int rows) const {
  auto pixmap =
      Pixmap::Create(width, rows, bitsPerPixel, topDown, Pixmap::RowAlignment::DoubleWord);
  if (pixmap && bitsPerPixel <= 8) pixmap->ColorTable() = colorTable;
  return pixmap;
}

bool IsSupportedDibLayout(const BITMAPINFO& info) {
  const BITMAPINFOHEADER& h = info.bmiHeader;
  switch (h.biBitCount) {
    case 1:
    case 4:
    case 8:
    case 24: return h.biCompression == BI_RGB;
    case 32: {
      if (h.biCompression == BI_RGB) return true;
      if (h.biCompression != BI_BITFIELDS) return false;
      // The masks sit right after the 40-byte header whatever the header's size.
      DWORD masks[3];
      std::memcpy(masks, info.bmiColors, sizeof masks);
      return masks[0] == 0x00FF0000u && masks[1] == 0x0000FF00u && masks[2] == 0x000000FFu;
    }
    default: return false;
  }
}

std::optional<DibFormat> ReadDibFormat(const BITMAPINFO* info, UINT usage,
                                       std::span<const PALETTEENTRY> palette) {
  if (info == nullptr || usage > DIB_PAL_COLORS) return std::nullopt;
  const BITMAPINFOHEADER& h = info->bmiHeader;
  if (h.biSize < sizeof(BITMAPINFOHEADER) || h.biWidth <= 0 || h.biHeight == 0 ||
      h.biHeight == INT32_MIN || h.biPlanes != 1 || !IsSupportedDibLayout(*info)) {
    return std::nullopt;
  }
  DibFormat format;
  format.width = h.biWidth;
  format.height = h.biHeight < 0 ? -h.biHeight : h.biHeight;
  format.topDown = h.biHeight < 0;
  format.bitsPerPixel = h.biBitCount;
  if (format.bitsPerPixel > 8) return format;

  const std::size_t maxColors = std::size_t{1} << format.bitsPerPixel;
  const std::size_t colors =
      h.biClrUsed == 0 ? maxColors : std::min<std::size_t>(h.biClrUsed, maxColors);
  format.colorTable.assign(maxColors, RGBQUAD{0, 0, 0, 0});
  const BYTE* table = ColorTableOf(*info);
  if (usage == DIB_RGB_COLORS) {
    std::memcpy(format.colorTable.data(), table, colors * sizeof(RGBQUAD));
    return format;
  }
  if (palette.empty()) return std::nullopt;
  for (std::size_t i = 0; i < colors; ++i) {
    WORD index;
    std::memcpy(&index, table + i * sizeof(WORD), sizeof index);
    const PALETTEENTRY& e = palette[index % palette.size()];
    format.colorTable[i] = RGBQUAD{e.peBlue, e.peGreen, e.peRed, 0};
  }
  return format;
}

}  // namespace glyphon::win::soft
