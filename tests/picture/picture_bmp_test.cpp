#include <gtest/gtest.h>

#include "platform/codec/bmp_codec.h"
#include "tests/picture/picture_samples.h"

namespace glyphon::testing {
namespace {

using win::BI_BITFIELDS;
using win::BI_RLE4;
using win::BI_RLE8;

std::vector<std::uint32_t> Palette(unsigned count) {
  std::vector<std::uint32_t> colors;
  for (unsigned i = 0; i < count; ++i) colors.push_back(PaletteColor(i));
  return colors;
}

// Rows as a file stores them: bottom-up files keep the bottom row first.
std::vector<std::uint32_t> StoredRows(const std::vector<std::uint32_t>& topDown, int width, bool topDownFile) {
  if (topDownFile) return topDown;
  std::vector<std::uint32_t> stored;
  for (std::size_t row = topDown.size() / width; row-- > 0;) {
    stored.insert(stored.end(), topDown.begin() + static_cast<std::ptrdiff_t>(row * width),
                  topDown.begin() + static_cast<std::ptrdiff_t>((row + 1) * width));
  }
  return stored;
}

void ExpectPixels(const Image& image, int width, const std::vector<std::uint32_t>& expected) {
  ASSERT_EQ(image.width, width);
  ASSERT_EQ(static_cast<std::size_t>(image.width * image.height), expected.size());
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < width; ++x) {
      EXPECT_EQ(PixelAt(image, x, y), expected[static_cast<std::size_t>(y * width + x)])
          << "at " << x << "," << y;
    }
  }
}

TEST(BmpDecoding, IndexedDepthsInBothRowOrders) {
  // Seven columns leave a partial byte at every depth and need row padding.
  constexpr int kWidth = 7;
  constexpr int kHeight = 3;
  for (int bits : {1, 4, 8}) {
    for (bool topDown : {false, true}) {
      SCOPED_TRACE(std::to_string(bits) + (topDown ? " bits top-down" : " bits bottom-up"));
      std::vector<std::uint32_t> indices;
      std::vector<std::uint32_t> expected;
      for (unsigned i = 0; i < kWidth * kHeight; ++i) {
        indices.push_back((i * 5 + 1) % (1u << bits));
        expected.push_back(PaletteColor(indices.back()));
      }
      DibSample sample(kWidth, topDown ? -kHeight : kHeight, bits);
      sample.colors = Palette(1u << bits);
      sample.bits = PackRows(bits, kWidth, StoredRows(indices, kWidth, topDown));
      ExpectPixels(DecodeBmp(sample.BmpFile()), kWidth, expected);
    }
  }
}

TEST(BmpDecoding, SixteenBitChannelsWidenByRepeatingTheirTopBits) {
  DibSample rgb555(4, 1, 16);
  rgb555.bits = PackRows(16, 4, {0x7FFF, 0x7C00, 0x0001, 0x0210});
  ExpectPixels(DecodeBmp(rgb555.BmpFile()), 4, {0xFFFFFF, 0xFF0000, 0x000008, 0x008484});

  DibSample rgb565(4, 1, 16, BI_BITFIELDS);
  rgb565.masks = {0xF800, 0x07E0, 0x001F, 0};
  rgb565.bits = PackRows(16, 4, {0xF800, 0x07E0, 0x0020, 0x0841});
  ExpectPixels(DecodeBmp(rgb565.BmpFile()), 4, {0xFF0000, 0x00FF00, 0x000400, 0x080808});
}

TEST(BmpDecoding, TrueColourDepthsAndStoredAlpha) {
  // Three 24-bit pixels need three bytes of padding per row.
  DibSample rgb24(3, -2, 24);
  rgb24.bits = PackRows(24, 3, {0x112233, 0x445566, 0x778899, 0xAABBCC, 0xDDEEFF, 0x010203});
  ExpectPixels(DecodeBmp(rgb24.BmpFile()), 3, {0x112233, 0x445566, 0x778899, 0xAABBCC, 0xDDEEFF, 0x010203});

  // The fourth byte of plain 32-bit pixels comes through as alpha; icons depend on it.
  DibSample rgb32(2, 1, 32);
  rgb32.bits = PackRows(32, 2, {0x80123456, 0x00ABCDEF});
  ExpectPixels(DecodeBmp(rgb32.BmpFile()), 2, {0x80123456, 0x00ABCDEF});

  // A version 5 header's masks, here in red-green-blue-alpha byte order.
  DibSample v5(1, 1, 32, BI_BITFIELDS, DibHeader::V5);
  v5.masks = {0x000000FF, 0x0000FF00, 0x00FF0000, 0xFF000000};
  v5.bits = PackRows(32, 1, {0x40302010});
  ExpectPixels(DecodeBmp(v5.BmpFile()), 1, {0x40102030});
}

TEST(BmpDecoding, ColourTablesOfEveryForm) {
  // Core headers store three-byte entries and always a full table.
  DibSample core(2, 1, 8, win::BI_RGB, DibHeader::Core);
  core.colors = Palette(256);
  core.bits = PackRows(8, 2, {3, 255});
  ExpectPixels(DecodeBmp(core.BmpFile()), 2, {PaletteColor(3), PaletteColor(255)});

  DibSample core24(1, 1, 24, win::BI_RGB, DibHeader::Core);
  core24.bits = PackRows(24, 1, {0x123456});
  ExpectPixels(DecodeBmp(core24.BmpFile()), 1, {0x123456});

  // A short table: indices past its end read as black.
  DibSample shortTable(2, 1, 8);
  shortTable.colorsUsed = 2;
  shortTable.colors = Palette(2);
  shortTable.bits = PackRows(8, 2, {1, 2});
  ExpectPixels(DecodeBmp(shortTable.BmpFile()), 2, {PaletteColor(1), 0});
}

TEST(BmpDecoding, PixelsAreFoundThroughTheFileOffset) {
  DibSample sample(1, 1, 24);
  sample.bits = PackRows(24, 1, {0xABCDEF});
  Bytes file = sample.BmpFile();
  // Move the pixels four bytes further and point the offset at them.
  file.insert(file.end() - 4, {0xEE, 0xEE, 0xEE, 0xEE});
  file[10] = static_cast<std::uint8_t>(file[10] + 4);
  ExpectPixels(DecodeBmp(file), 1, {0xABCDEF});
}

// One picture, 6x4, in both RLE forms: a run, an absolute run, a skipped line, a delta, and
// the end-of-bitmap code before the last row is complete. Skipped pixels stay black.
const std::vector<std::uint32_t> kRleExpected = {
    0, 0, PaletteColor(7), PaletteColor(7), 0, 0,
    0, 0, 0, 0, 0, 0,
    PaletteColor(1), PaletteColor(2), PaletteColor(3), PaletteColor(4), PaletteColor(6), 0,
    PaletteColor(5), PaletteColor(6), PaletteColor(5), 0, 0, 0,
};

TEST(BmpDecoding, Rle8RunsEscapesAndDeltas) {
  DibSample sample(6, 4, 8, BI_RLE8);
  sample.colors = Palette(256);
  sample.bits = {0x01, 0x05, 0x01, 0x06, 0x01, 0x05, 0x00, 0x00,  // runs, end of line
                 0x00, 0x05, 1, 2, 3, 4, 6, 0x00, 0x00, 0x00,      // odd absolute run + pad, eol
                 0x00, 0x02, 0x02, 0x01,                           // delta over a line
                 0x02, 0x07, 0x00, 0x01};                          // run, end of bitmap
  ExpectPixels(DecodeBmp(sample.BmpFile()), 6, kRleExpected);
}

TEST(BmpDecoding, Rle4RunsAlternateNibbles) {
  DibSample sample(6, 4, 4, BI_RLE4);
  sample.colors = Palette(16);
  sample.bits = {0x03, 0x56, 0x00, 0x00,                    // 5 6 5, end of line
                 0x00, 0x05, 0x12, 0x34, 0x60, 0x00,        // five nibbles in three bytes + pad
                 0x00, 0x00, 0x00, 0x02, 0x02, 0x01,        // end of line, delta
                 0x02, 0x77, 0x00, 0x01};
  ExpectPixels(DecodeBmp(sample.BmpFile()), 6, kRleExpected);
}

}  // namespace
}  // namespace glyphon::testing
