// Reading the BITMAPINFO that callers hand to the DIB functions, checked as GDI checks it.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "platform/soft/pixmap.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

struct DibFormat {
  int width = 0;
  int height = 0;  // rows, always positive
  bool topDown = false;
  int bitsPerPixel = 0;
  std::vector<RGBQUAD> colorTable;  // 1 << bitsPerPixel entries below 16 bits per pixel

  int Stride() const;
  // A pixmap laid out like this DIB with the given number of rows, colour table included.
  std::shared_ptr<Pixmap> NewPixmap(int rows) const;
};

// Whether the header describes a layout the engine stores: 1, 4, 8 or 24 bits with BI_RGB, or
// 32 bits with BI_RGB or with the standard BI_BITFIELDS masks (which is the same thing).
bool IsSupportedDibLayout(const BITMAPINFO& info);

// The DIB a BITMAPINFO describes, or nothing when GDI would refuse it. With DIB_PAL_COLORS the
// colour table holds indices into palette.
std::optional<DibFormat> ReadDibFormat(const BITMAPINFO* info, UINT usage,
                                       std::span<const PALETTEENTRY> palette);

// Where a BITMAPINFO's colour table starts: right after its header, whatever the header's size.
inline BYTE* ColorTableOf(BITMAPINFO& info) {
  return reinterpret_cast<BYTE*>(&info) + info.bmiHeader.biSize;
}
inline const BYTE* ColorTableOf(const BITMAPINFO& info) {
  return reinterpret_cast<const BYTE*>(&info) + info.bmiHeader.biSize;
}

}  // namespace glyphon::win::soft
