#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <vector>

#include "platform/win32.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::Owned;
using testing::Selected;

// A BITMAPINFO with room for a full colour table.
struct Info {
  BITMAPINFOHEADER header{};
  RGBQUAD colors[256]{};
  BITMAPINFO* get() { return reinterpret_cast<BITMAPINFO*>(this); }
};

Info Header(int width, int height, int bits) {
  Info info;
  info.header = {sizeof(BITMAPINFOHEADER), width, height, 1, static_cast<WORD>(bits), BI_RGB, 0,
                 0, 0, 0, 0};
  return info;
}

constexpr RGBQUAD Quad(int r, int g, int b) {
  return RGBQUAD{static_cast<BYTE>(b), static_cast<BYTE>(g), static_cast<BYTE>(r), 0};
}

// The bitmap as top-down 0x00RRGGBB values, read through GetDIBits.
std::vector<std::uint32_t> Read32(HBITMAP bitmap, int width, int height) {
  Info info = Header(width, -height, 32);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
  Owned dc{CreateCompatibleDC(nullptr)};
  EXPECT_EQ(GetDIBits(dc, bitmap, 0, static_cast<UINT>(height), pixels.data(), info.get(),
                      DIB_RGB_COLORS),
            height);
  for (auto& p : pixels) p &= 0xFFFFFF;
  return pixels;
}

TEST(DibSections, TwentyFourBitRowsFollowTheHeightSign) {
  testing::LeakCheck leaks;
  for (const int height : {2, -2}) {
    Info info = Header(2, height, 24);
    void* bits = nullptr;
    Owned dib{CreateDIBSection(nullptr, info.get(), DIB_RGB_COLORS, &bits, nullptr, 0)};
    ASSERT_NE(dib, nullptr);
    // First row in memory: blue, green, red bytes of pure red; the second row stays black.
    static_cast<std::uint8_t*>(bits)[2] = 0xFF;
    const auto pixels = Read32(dib, 2, 2);
    const std::size_t redIndex = height > 0 ? 2 : 0;  // bottom-up: memory starts at the bottom
    EXPECT_EQ(pixels[redIndex], 0xFF0000u) << "height " << height;
    EXPECT_EQ(pixels[2 - redIndex], 0u);
  }
}

TEST(DibSections, GetObjectDescribesStrideAndPositiveHeight) {
  testing::LeakCheck leaks;
  const int expectedStride[] = {4, 8, 12, 12, 16};
  for (int width = 1; width <= 5; ++width) {
    Info info = Header(width, -3, 24);
    void* bits = nullptr;
    Owned dib{CreateDIBSection(nullptr, info.get(), DIB_RGB_COLORS, &bits, nullptr, 0)};
    DIBSECTION section{};
    ASSERT_EQ(GetObjectA(dib, sizeof section, &section), static_cast<int>(sizeof section));
    EXPECT_EQ(section.dsBm.bmWidthBytes, expectedStride[width - 1]);
    EXPECT_EQ(section.dsBm.bmBits, bits);
    EXPECT_EQ(section.dsBmih.biHeight, 3);
    EXPECT_EQ(section.dsBmih.biSizeImage, static_cast<DWORD>(3 * expectedStride[width - 1]));
    EXPECT_EQ(GetObjectA(dib, 0, nullptr), static_cast<int>(sizeof(BITMAP)));
  }
}

TEST(DibSections, OneBitSectionShowsItsColorTable) {
  testing::LeakCheck leaks;
  Info info = Header(3, 1, 1);
  info.colors[0] = Quad(255, 0, 0);
  info.colors[1] = Quad(0, 0, 255);
  void* bits = nullptr;
  Owned dib{CreateDIBSection(nullptr, info.get(), DIB_RGB_COLORS, &bits, nullptr, 0)};
  ASSERT_NE(dib, nullptr);
  static_cast<std::uint8_t*>(bits)[0] = 0b0100'0000;
  EXPECT_EQ(Read32(dib, 3, 1), (std::vector<std::uint32_t>{0xFF0000, 0x0000FF, 0xFF0000}));

  Owned dc{CreateCompatibleDC(nullptr)};
  RGBQUAD table[4]{};
  EXPECT_EQ(GetDIBColorTable(dc, 0, 2, table), 0u);  // the stock bitmap has no table
  Selected selected(dc, dib);
  ASSERT_EQ(GetDIBColorTable(dc, 0, 4, table), 2u);
  EXPECT_EQ(table[1].rgbBlue, 255);
  const RGBQUAD green = Quad(0, 255, 0);
  EXPECT_EQ(SetDIBColorTable(dc, 1, 5, &green), 1u);
  EXPECT_EQ(SetDIBColorTable(dc, 2, 1, &green), 0u);
  EXPECT_EQ(Read32(dib, 3, 1), (std::vector<std::uint32_t>{0xFF0000, 0x00FF00, 0xFF0000}));
}

TEST(DibSections, PaletteIndexTableComesFromTheDcPalette) {
  testing::LeakCheck leaks;
  Owned dc{CreateCompatibleDC(nullptr)};
  Info info = Header(1, 1, 8);
  info.header.biClrUsed = 2;
  const WORD indices[2] = {13, 19};  // red and white of the default palette
  std::memcpy(info.colors, indices, sizeof indices);
  void* bits = nullptr;
  Owned dib{CreateDIBSection(dc, info.get(), DIB_PAL_COLORS, &bits, nullptr, 0)};
  ASSERT_NE(dib, nullptr);
  EXPECT_EQ(Read32(dib, 1, 1)[0], 0xFF0000u);
  static_cast<std::uint8_t*>(bits)[0] = 1;
  EXPECT_EQ(Read32(dib, 1, 1)[0], 0xFFFFFFu);
}

TEST(DibSections, CompatibleBitmapOfADibDcIsADibOfTheSameFormat) {
  testing::LeakCheck leaks;
  Info info = Header(4, 3, 1);
  info.colors[0] = Quad(10, 20, 30);
  info.colors[1] = Quad(200, 100, 50);
  Owned section{CreateDIBSection(nullptr, info.get(), DIB_RGB_COLORS, nullptr, nullptr, 0)};
  Owned dc{CreateCompatibleDC(nullptr)};
  Selected selected(dc, section);
  Owned made{CreateCompatibleBitmap(dc, 7, 5)};
  DIBSECTION description{};
  ASSERT_EQ(GetObjectA(made, sizeof description, &description),
            static_cast<int>(sizeof description));
  EXPECT_EQ(description.dsBmih.biBitCount, 1);
  EXPECT_EQ(description.dsBm.bmWidth, 7);
  EXPECT_EQ(description.dsBm.bmHeight, 5);
  RGBQUAD colors[2]{};
  Selected again(dc, made);
  ASSERT_EQ(GetDIBColorTable(dc, 0, 2, colors), 2u);
  EXPECT_EQ(colors[1].rgbRed, 200);
}

TEST(DibSections, RefusedFormatsAndSizesGiveNoHandle) {
  testing::LeakCheck leaks;
  auto create = [](Info info) {
    void* bits = reinterpret_cast<void*>(1);
    HBITMAP dib = CreateDIBSection(nullptr, info.get(), DIB_RGB_COLORS, &bits, nullptr, 0);
    EXPECT_EQ(bits, nullptr);
    return dib;
  };
  for (const auto& [width, height, bits] : {std::array{0, 1, 24}, std::array{1, 0, 24},
                                           std::array{1, 1, 16}, std::array{16385, 1, 1},
                                           std::array{16384, -16384, 32}}) {  // the last 1 GiB
    EXPECT_EQ(create(Header(width, height, bits)), nullptr) << width << "x" << height;
  }
  Info compressed = Header(4, 4, 8);
  compressed.header.biCompression = BI_RLE8;
  EXPECT_EQ(create(compressed), nullptr);
  Info small = Header(4, 4, 24);
  small.header.biSize = 12;
  EXPECT_EQ(create(small), nullptr);
  EXPECT_EQ(CreateDIBSection(nullptr, nullptr, DIB_RGB_COLORS, nullptr, nullptr, 0), nullptr);
}

TEST(DibSections, GetDibitsQueryDescribesTheBitmap) {
  testing::LeakCheck leaks;
  Owned dc{CreateCompatibleDC(nullptr)};
  Owned color{CreateBitmap(5, 3, 1, 32, nullptr)};
  Owned mono{CreateBitmap(9, 2, 1, 1, nullptr)};
  Info info;
  info.header.biSize = sizeof(BITMAPINFOHEADER);
  EXPECT_EQ(GetDIBits(dc, color, 0, 0, nullptr, info.get(), DIB_RGB_COLORS), 3);
  EXPECT_EQ(info.header.biWidth, 5);
  EXPECT_EQ(info.header.biHeight, 3);
  EXPECT_EQ(info.header.biBitCount, 32);
  EXPECT_EQ(info.header.biCompression, BI_BITFIELDS);
  EXPECT_EQ(info.header.biSizeImage, 60u);
  info = Info{};
  info.header.biSize = sizeof(BITMAPINFOHEADER);
  EXPECT_EQ(GetDIBits(dc, mono, 0, 0, nullptr, info.get(), DIB_RGB_COLORS), 2);
  EXPECT_EQ(info.header.biBitCount, 1);
  EXPECT_EQ(info.header.biSizeImage, 8u);  // rows padded to four bytes

  // Without bits but with a depth: the colour table and image size are filled in.
  info = Header(5, 3, 8);
  EXPECT_EQ(GetDIBits(dc, color, 0, 3, nullptr, info.get(), DIB_RGB_COLORS), 1);
  EXPECT_EQ(info.header.biSizeImage, 24u);
  EXPECT_EQ(info.colors[246].rgbRed, 255);  // the default 8-bit table
  EXPECT_EQ(info.colors[246].rgbBlue, 240);
}

TEST(DibSections, BitsRoundTripAtEveryDepth) {
  testing::LeakCheck leaks;
  Owned dc{CreateCompatibleDC(nullptr)};
  // Colours every default table holds exactly, so each depth keeps them.
  const std::array<std::uint32_t, 4> colors = {0x000000, 0xFFFFFF, 0xFF0000, 0x000080};
  for (const int depth : {1, 4, 8, 24, 32}) {
    const int n = depth == 1 ? 2 : 4;
    Owned original{CreateBitmap(n, 2, 1, 32, nullptr)};
    Info source = Header(n, -2, 32);
    std::vector<std::uint32_t> pixels(colors.begin(), colors.begin() + n);
    pixels.insert(pixels.end(), colors.rbegin() + (4 - n), colors.rend());
    ASSERT_EQ(SetDIBits(dc, original, 0, 2, pixels.data(), source.get(), DIB_RGB_COLORS), 2);

    Info info = Header(n, 2, depth);
    std::vector<std::uint8_t> bits(64);
    ASSERT_EQ(GetDIBits(dc, original, 0, 2, bits.data(), info.get(), DIB_RGB_COLORS), 2) << depth;
    Owned copy{CreateBitmap(n, 2, 1, 32, nullptr)};
    info.header.biClrUsed = 0;
    ASSERT_EQ(SetDIBits(dc, copy, 0, 2, bits.data(), info.get(), DIB_RGB_COLORS), 2);
    EXPECT_EQ(Read32(copy, n, 2), pixels) << depth << " bits per pixel";
  }
}

TEST(DibSections, ScanLinesCountFromTheBottomAndMonochromeTakesTheNearest) {
  testing::LeakCheck leaks;
  Owned dc{CreateCompatibleDC(nullptr)};
  Owned bitmap{CreateBitmap(1, 4, 1, 32, nullptr)};
  const std::uint32_t rows[4] = {1, 2, 3, 4};  // top to bottom
  Info topDown = Header(1, -4, 32);
  SetDIBits(dc, bitmap, 0, 4, rows, topDown.get(), DIB_RGB_COLORS);

  std::uint32_t out[4] = {9, 9, 9, 9};
  Info bottomUp = Header(1, 4, 32);
  EXPECT_EQ(GetDIBits(dc, bitmap, 1, 2, out, bottomUp.get(), DIB_RGB_COLORS), 2);
  EXPECT_EQ(out[0] & 0xFF, 3u);  // scan 1 is the second row from the bottom
  EXPECT_EQ(out[1] & 0xFF, 2u);
  EXPECT_EQ(out[2], 9u);

  EXPECT_EQ(GetDIBits(dc, bitmap, 0, 1, out, topDown.get(), DIB_RGB_COLORS), 1);
  EXPECT_EQ(out[0] & 0xFF, 4u);  // even top-down, scan 0 is the bottom row

  // Writing two bottom-up scans from scan 2 reaches the two top rows.
  const std::uint32_t twoRows[2] = {7, 8};
  EXPECT_EQ(SetDIBits(dc, bitmap, 2, 5, twoRows, bottomUp.get(), DIB_RGB_COLORS), 2);
  const std::uint32_t expected[4] = {8, 7, 3, 4};
  Info read = Header(1, -4, 32);
  GetDIBits(dc, bitmap, 0, 4, out, read.get(), DIB_RGB_COLORS);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(out[i] & 0xFF, expected[i]) << i;

  // Monochrome bitmaps take the nearest of black and white.
  Owned mono{CreateBitmap(2, 1, 1, 1, nullptr)};
  const std::uint32_t pixels[2] = {0x404040, 0xC8C8C8};
  Info info = Header(2, 1, 32);
  EXPECT_EQ(SetDIBits(dc, mono, 0, 1, pixels, info.get(), DIB_RGB_COLORS), 1);
  EXPECT_EQ(Read32(mono, 2, 1), (std::vector<std::uint32_t>{0x000000, 0xFFFFFF}));
}

TEST(DibSections, InvalidHandlesAreRefused) {
  testing::LeakCheck leaks;
  Owned dc{CreateCompatibleDC(nullptr)};
  HBITMAP bitmap = CreateBitmap(2, 2, 1, 32, nullptr);
  Info info = Header(2, 2, 32);
  std::uint32_t bits[4] = {};
  DeleteObject(bitmap);
  EXPECT_EQ(GetDIBits(dc, bitmap, 0, 2, bits, info.get(), DIB_RGB_COLORS), 0);
  EXPECT_EQ(SetDIBits(dc, bitmap, 0, 2, bits, info.get(), DIB_RGB_COLORS), 0);
  Owned live{CreateBitmap(2, 2, 1, 32, nullptr)};
  EXPECT_EQ(GetDIBits(nullptr, live, 0, 2, bits, info.get(), DIB_RGB_COLORS), 0);
  EXPECT_EQ(GetDIBits(dc, live, 0, 2, bits, nullptr, DIB_RGB_COLORS), 0);
  EXPECT_EQ(SetDIBits(dc, live, 0, 2, nullptr, info.get(), DIB_RGB_COLORS), 0);
  EXPECT_EQ(SetDIBColorTable(nullptr, 0, 1, info.colors), 0u);
}

}  // namespace
}  // namespace glyphon::win
