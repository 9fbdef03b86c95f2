#include "tests/windows/host_pictures.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/codec/picture_objects.h"
#include "tests/windows/gdi_scenarios.h"

namespace glyphon::testing {

namespace {

using namespace win;

// Odd, so that rows of every depth are padded.
constexpr int kWidth = 21;
constexpr int kHeight = 17;
constexpr int kIconSize = 32;

constexpr std::array<HostPictureInfo, 8> kHostPictures{{
    {HostPicture::MonochromeBitmap, "mono", kWidth, kHeight},
    {HostPicture::Dib1Coloured, "dib1", kWidth, kHeight},
    {HostPicture::Dib8, "dib8", kWidth, kHeight},
    {HostPicture::Dib24, "dib24", kWidth, kHeight},
    {HostPicture::ScreenCompatible, "ddb", kWidth, kHeight},
    {HostPicture::MonochromeIcon, "monoicon", kIconSize, kIconSize},
    {HostPicture::InvertingIcon, "invertingicon", kIconSize, kIconSize},
    {HostPicture::AlphaRampIcon, "alpharamp", kIconSize, kIconSize},
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

int IndexAt(int x, int y) {
  constexpr int kColours = static_cast<int>(kTable.size());
  return InMaskArea(x, y) ? kMaskIndex : 1 + (x / 3 + y / 3) % (kColours - 1);
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

HBITMAP NewBitmap(HostPicture which) {
  switch (which) {
    case HostPicture::MonochromeBitmap:
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
    case HostPicture::Dib1Coloured: {
      const std::array<RGBQUAD, 2> table{kTable[4], kTable[kMaskIndex]};
      return NewDibSection(1, table, [](std::uint8_t* row, int y) {
        for (int x = 0; x < kWidth; ++x) {
          if (InMaskArea(x, y) || (x + y) % 3 == 0) row[x / 8] |= 0x80 >> (x % 8);
        }
      });
    }
    case HostPicture::Dib8:
      return NewDibSection(8, kTable, [](std::uint8_t* row, int y) {
        for (int x = 0; x < kWidth; ++x) row[x] = static_cast<std::uint8_t>(IndexAt(x, y));
      });
    case HostPicture::Dib24:
      return NewDibSection(24, {}, [](std::uint8_t* row, int y) {
        for (int x = 0; x < kWidth; ++x) {
          const RGBQUAD& entry = kTable[static_cast<std::size_t>(IndexAt(x, y))];
          // A green ramp outside the mask area, so that neighbours differ in one channel.
          const int ramp = InMaskArea(x, y) ? 0 : x * 3;
          row[3 * x] = entry.rgbBlue;
          row[3 * x + 1] = static_cast<std::uint8_t>((entry.rgbGreen + ramp) & 0xFF);
          row[3 * x + 2] = entry.rgbRed;
        }
      });
    case HostPicture::ScreenCompatible: {
      HDC screen = GetDC(nullptr);
      HBITMAP bitmap = CreateCompatibleBitmap(screen, kWidth, kHeight);
      ReleaseDC(nullptr, screen);
      return Painted(bitmap, [](HDC dc) {
        PaintChecks(dc, kWidth, kHeight);
        FillSolid(dc, 6, 5, 14, 12, RGB(0, 255, 255));
      });
    }
    default: return nullptr;
  }
}

bool InDisc(int x, int y) {
  const int dx = 2 * x - kIconSize + 1;
  const int dy = 2 * y - kIconSize + 1;
  return dx * dx + dy * dy <= (kIconSize - 2) * (kIconSize - 2);
}

// AND over XOR, one monochrome bitmap of double height: a black and white disc, with inverted
// screen pixels in a band across it and transparent ones around it.
HICON NewMonochromeIcon() {
  constexpr int kStride = (kIconSize + 15) / 16 * 2;
  std::vector<std::uint8_t> bits(static_cast<std::size_t>(kStride * kIconSize * 2), 0);
  const auto set = [&](int x, int y) { bits[y * kStride + x / 8] |= 0x80 >> (x % 8); };
  for (int y = 0; y < kIconSize; ++y) {
    for (int x = 0; x < kIconSize; ++x) {
      const bool band = y >= 12 && y < 18;
      // AND: the screen shows around the disc and through the band.
      if (!InDisc(x, y) || band) set(x, y);
      // XOR: chequers on the disc, and the band inverts the screen.
      if ((InDisc(x, y) && (x / 4 + y / 4) % 2 == 0) || band) set(x, kIconSize + y);
    }
  }
  const HBITMAP mask = CreateBitmap(kIconSize, kIconSize * 2, 1, 1, bits.data());
  ICONINFO info{TRUE, 0, 0, mask, nullptr};
  const HICON icon = CreateIconIndirect(&info);
  DeleteObject(mask);
  return icon;
}

// Colours without alpha, so the AND mask decides; masked pixels that are not black invert.
IconImage InvertingIcon() {
  IconImage icon;
  icon.color = Image::Blank(kIconSize, kIconSize);
  icon.mask.resize(kIconSize * kIconSize);
  for (int y = 0; y < kIconSize; ++y) {
    for (int x = 0; x < kIconSize; ++x) {
      std::uint8_t* pixel = icon.color.Pixel(x, y);
      const bool inverting = x >= 20;
      pixel[0] = static_cast<std::uint8_t>(x * 8);
      pixel[1] = static_cast<std::uint8_t>(inverting ? 255 : y * 8);
      pixel[2] = static_cast<std::uint8_t>(InDisc(x, y) ? 200 : 0);
      icon.mask[static_cast<std::size_t>(y * kIconSize + x)] =
          inverting || !InDisc(x, y) ? 1 : 0;
      if (!inverting && !InDisc(x, y)) pixel[0] = pixel[1] = pixel[2] = 0;
    }
  }
  return icon;
}

// Every alpha value, each in several colours; alpha 0 only where the mask is set.
IconImage AlphaRampIcon() {
  IconImage icon;
  icon.color = Image::Blank(kIconSize, kIconSize);
  icon.mask.resize(kIconSize * kIconSize);
  for (int y = 0; y < kIconSize; ++y) {
    for (int x = 0; x < kIconSize; ++x) {
      const int n = y * kIconSize + x;
      std::uint8_t* pixel = icon.color.Pixel(x, y);
      pixel[0] = static_cast<std::uint8_t>(n * 37);
      pixel[1] = static_cast<std::uint8_t>(255 - n * 11);
      pixel[2] = static_cast<std::uint8_t>(n * 5 + y);
      pixel[3] = static_cast<std::uint8_t>(n);
      icon.mask[static_cast<std::size_t>(n)] = pixel[3] == 0 ? 1 : 0;
    }
  }
  return icon;
}

}  // namespace

std::span<const HostPictureInfo> AllHostPictures() { return kHostPictures; }

StdPicture MakeHostPicture(HostPicture which) {
  switch (which) {
    case HostPicture::MonochromeIcon: return StdPicture::FromIcon(NewMonochromeIcon(), true);
    case HostPicture::InvertingIcon: return MakeIconPicture(InvertingIcon());
    case HostPicture::AlphaRampIcon: return MakeIconPicture(AlphaRampIcon());
    default: return StdPicture::FromBitmap(NewBitmap(which), true);
  }
}

}  // namespace glyphon::testing
