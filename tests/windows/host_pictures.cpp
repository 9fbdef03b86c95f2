#include "tests/windows/host_pictures.h"

#include <array>
#include <cstdint>
#include <cstring>

#include "platform/codec/picture_objects.h"
#include "tests/windows/gdi_scenarios.h"

namespace glyphon::testing {

namespace {

using namespace win;

constexpr int kWidth = kHostBitmapWidth;
constexpr int kHeight = kHostBitmapHeight;

constexpr std::array<HostBitmapInfo, 5> kHostBitmaps{{
    {HostBitmap::Monochrome, "mono"},
    {HostBitmap::Dib1Coloured, "dib1"},
    {HostBitmap::Dib8, "dib8"},
    {HostBitmap::Dib24, "dib24"},
    {HostBitmap::ScreenCompatible, "ddb"},
}};

// The table of the indexed sections: the mask colour, its near miss, black, white and colours.
constexpr std::array<RGBQUAD, 8> kTable{{{255, 255, 0, 0},
                                         {255, 254, 0, 0},
                                         {0, 0, 0, 0},
                                         {255, 255, 255, 0},
                                         {0, 0, 200, 0},
                                         {40, 160, 40, 0},
                                         {128, 0, 0, 0},
                                         {160, 160, 160, 0}}};
constexpr int kMaskIndex = 0;

bool InMaskArea(int x, int y) { return x >= 6 && x < 14 && y >= 5 && y < 12; }

int IndexAt(int x, int y, int colours) {
  return InMaskArea(x, y) ? kMaskIndex : 1 + (x / 3 + y / 3) % (colours - 1);
}

struct IndexedInfo {
  BITMAPINFOHEADER header;
  std::array<RGBQUAD, 8> colors;
};

// A bottom-up DIB section of the given depth; fill writes its rows (top row first).
template <class Fill>
HBITMAP NewDibSection(int bitCount, std::span<const RGBQUAD> table, Fill fill) {
  IndexedInfo info{};
  info.header.biSize = sizeof(BITMAPINFOHEADER);
  info.header.biWidth = kWidth;
  info.header.biHeight = kHeight;
  info.header.biPlanes = 1;
  info.header.biBitCount = static_cast<WORD>(bitCount);
  info.header.biCompression = BI_RGB;
  info.header.biClrUsed = static_cast<DWORD>(table.size());
  std::memcpy(info.colors.data(), table.data(), table.size_bytes());
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info),
                                    DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bits == nullptr) return bitmap;
  const int stride = (kWidth * bitCount + 31) / 32 * 4;
  for (int y = 0; y < kHeight; ++y) {
    fill(static_cast<std::uint8_t*>(bits) + (kHeight - 1 - y) * stride, y);
  }
  return bitmap;
}

// Draws on a device bitmap through a memory context.
template <class Paint>
HBITMAP Painted(HBITMAP bitmap, Paint paint) {
  HDC dc = CreateCompatibleDC(nullptr);
  HGDIOBJ original = SelectObject(dc, bitmap);
  paint(dc);
  SelectObject(dc, original);
  DeleteDC(dc);
  return bitmap;
}

HBITMAP NewBitmap(HostBitmap which) {
  switch (which) {
    case HostBitmap::Monochrome:
      return Painted(CreateBitmap(kWidth, kHeight, 1, 1, nullptr), [](HDC dc) {
        const auto black = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
        const auto white = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        for (int x = 0; x < kWidth; x += 2) {
          const RECT column{x, 0, x + 1, kHeight};
          FillRect(dc, &column, black);
          const RECT gap{x + 1, 0, x + 2, kHeight};
          FillRect(dc, &gap, white);
        }
        const RECT box{6, 5, 14, 12};
        FillRect(dc, &box, white);
      });
    case HostBitmap::Dib1Coloured: {
      const std::array<RGBQUAD, 2> table{kTable[4], kTable[0]};
      return NewDibSection(1, table, [](std::uint8_t* row, int y) {
        for (int x = 0; x < kWidth; ++x) {
          if (InMaskArea(x, y) || (x + y) % 3 == 0) row[x / 8] |= 0x80 >> (x % 8);
        }
      });
    }
    case HostBitmap::Dib8:
      return NewDibSection(8, kTable, [](std::uint8_t* row, int y) {
        for (int x = 0; x < kWidth; ++x) {
          row[x] = static_cast<std::uint8_t>(IndexAt(x, y, static_cast<int>(kTable.size())));
        }
      });
    case HostBitmap::Dib24:
      return NewDibSection(24, {}, [](std::uint8_t* row, int y) {
        for (int x = 0; x < kWidth; ++x) {
          const RGBQUAD& entry = kTable[static_cast<std::size_t>(IndexAt(x, y, 8))];
          row[3 * x] = entry.rgbBlue;
          // A green ramp outside the mask area, so that neighbours differ in one channel.
          const int ramp = InMaskArea(x, y) ? 0 : x * 3;
          row[3 * x + 1] = static_cast<std::uint8_t>((entry.rgbGreen + ramp) & 0xFF);
          row[3 * x + 2] = entry.rgbRed;
        }
      });
    case HostBitmap::ScreenCompatible: {
      HDC screen = GetDC(nullptr);
      HBITMAP bitmap = CreateCompatibleBitmap(screen, kWidth, kHeight);
      ReleaseDC(nullptr, screen);
      return Painted(bitmap, [](HDC dc) {
        PaintChecks(dc, kWidth, kHeight);
        FillSolid(dc, 6, 5, 14, 12, RGB(0, 255, 255));
      });
    }
  }
  return nullptr;
}

}  // namespace

std::span<const HostBitmapInfo> AllHostBitmaps() { return kHostBitmaps; }

StdPicture MakeHostBitmapPicture(HostBitmap which) {
  return StdPicture::FromBitmap(NewBitmap(which), true);
}

StdPicture MakeAlphaRampIconPicture() {
  constexpr int kSize = kAlphaRampIconSize;
  IconImage icon;
  icon.color = Image::Blank(kSize, kSize);
  icon.mask.resize(kSize * kSize);
  for (int y = 0; y < kSize; ++y) {
    for (int x = 0; x < kSize; ++x) {
      const int n = y * kSize + x;
      std::uint8_t* pixel = icon.color.Pixel(x, y);
      pixel[0] = static_cast<std::uint8_t>(n * 37);
      pixel[1] = static_cast<std::uint8_t>(255 - n * 11);
      pixel[2] = static_cast<std::uint8_t>(n * 5 + y);
      pixel[3] = static_cast<std::uint8_t>(n);
      icon.mask[static_cast<std::size_t>(n)] = pixel[3] == 0 ? 1 : 0;
    }
  }
  return MakeIconPicture(icon);
}

}  // namespace glyphon::testing
