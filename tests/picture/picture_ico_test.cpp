#include <gtest/gtest.h>

#include "platform/codec/ico_codec.h"
#include "tests/picture/picture_samples.h"

namespace glyphon::testing {
namespace {

// A square icon image of one colour, told apart by that colour.
IcoSample SolidEntry(int side, int bitCount, std::uint32_t color) {
  const auto pixels = static_cast<std::size_t>(side) * side;
  const bool indexed = bitCount <= 8;
  const Bytes dib = IconDib(side, side, bitCount, indexed ? std::vector<std::uint32_t>{0, color} : std::vector<std::uint32_t>{},
                            std::vector<std::uint32_t>(pixels, indexed ? 1 : color),
                            std::vector<std::uint8_t>(pixels, 0));
  return {side, side, bitCount, dib};
}

const Bytes kFourSizes = IcoFile({SolidEntry(16, 8, 0x000001), SolidEntry(32, 4, 0x000002),
                                  SolidEntry(32, 32, 0x000003), SolidEntry(48, 32, 0x000004)});

std::uint32_t Chosen(const Bytes& file, const IconRequest& request) {
  return PixelAt(DecodeIco(file, request).color, 0, 0);
}

TEST(IcoDecoding, ChoosesTheNearestSizeThenTheNearestDepth) {
  EXPECT_EQ(Chosen(kFourSizes, {}), 0x000003u);  // 32x32 at the display's 32 bits
  EXPECT_EQ(Chosen(kFourSizes, {16, 16, 32}), 0x000001u);
  EXPECT_EQ(Chosen(kFourSizes, {32, 32, 4}), 0x000002u);
  EXPECT_EQ(Chosen(kFourSizes, {64, 64, 32}), 0x000004u);
  // 40 is as far from 32 as from 48: the depth decides, then the order in the file.
  EXPECT_EQ(Chosen(kFourSizes, {40, 40, 32}), 0x000003u);
  EXPECT_EQ(Chosen(kFourSizes, {40, 40, 4}), 0x000002u);
}

TEST(IcoDecoding, DirectoryGapsAreFilledFromTheImages) {
  IcoSample big = SolidEntry(16, 32, 0x000005);
  big.width = big.height = 0;  // stands for 256
  IcoSample unknownDepth = SolidEntry(16, 4, 0x000006);
  unknownDepth.bitCount = 0;
  const Bytes file = IcoFile({unknownDepth, big});
  const std::vector<IconDirectoryEntry> entries = ReadIconDirectory(file);
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0].bitCount, 4);
  EXPECT_EQ(entries[1].width, 256);
  EXPECT_EQ(entries[1].height, 256);
  // The image's own header gives the decoded size, whatever the directory says.
  EXPECT_EQ(DecodeIco(file, {256, 256, 32}).color.width, 16);
}

TEST(IcoDecoding, IndexedImagesHaveNoAlphaAndKeepTheirMask) {
  const std::vector<std::uint8_t> mask = {1, 0, 0, 1,
                                          0, 1, 1, 0};
  const Bytes file = IcoFile({{4, 2, 4, IconDib(4, 2, 4, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF},
                                               {0, 1, 2, 3, 3, 2, 1, 0}, mask)}});
  const IconImage icon = DecodeIco(file);
  EXPECT_EQ(icon.mask, mask);
  EXPECT_EQ(PixelAt(icon.color, 1, 0), 0x00FF0000u);
  EXPECT_EQ(PixelAt(icon.color, 3, 0), 0x000000FFu);
  EXPECT_EQ(PixelAt(icon.color, 0, 1), 0x000000FFu);

  // Monochrome icons read their two colours from the table as well.
  const Bytes mono = IcoFile({{2, 1, 1, IconDib(2, 1, 1, {0x000000, 0xFFFFFF}, {1, 0}, {0, 1})}});
  const IconImage monoIcon = DecodeIco(mono);
  EXPECT_EQ(PixelAt(monoIcon.color, 0, 0), 0x00FFFFFFu);
  EXPECT_EQ(monoIcon.mask, (std::vector<std::uint8_t>{0, 1}));
}

TEST(IcoDecoding, AlphaImagesKeepTheirAlpha) {
  const Bytes file = IcoFile({{2, 2, 32, IconDib(2, 2, 32, {}, {0x00000000, 0x80FF0000, 0xFF00FF00, 0x400000FF},
                                                 {1, 0, 0, 0})}});
  const IconImage icon = DecodeIco(file);
  EXPECT_EQ(PixelAt(icon.color, 0, 0), 0x00000000u);
  EXPECT_EQ(PixelAt(icon.color, 1, 0), 0x80FF0000u);
  EXPECT_EQ(PixelAt(icon.color, 1, 1), 0x400000FFu);
  EXPECT_EQ(icon.mask, (std::vector<std::uint8_t>{1, 0, 0, 0}));
}

TEST(IcoDecoding, PngImagesTakeTheirMaskFromAlpha) {
  Image image{2, 1, {0x10, 0x20, 0x30, 0x00, 0x40, 0x50, 0x60, 0x7F}};
  const std::optional<Bytes> png = EncodePng(image);
  ASSERT_TRUE(png);
  const IconImage icon = DecodeIco(IcoFile({{2, 1, 32, *png}}));
  EXPECT_EQ(icon.color, image);
  EXPECT_EQ(icon.mask, (std::vector<std::uint8_t>{1, 0}));
}

TEST(IcoEncoding, SidesOf256ComeBackFromTheImageHeader) {
  // The directory cannot hold 256; the reader takes the size from the image.
  IconImage large;
  large.color = Image{256, 1, std::vector<std::uint8_t>(256 * 4, 0x11)};
  large.mask.assign(256, 0);
  EXPECT_EQ(DecodeIco(EncodeIco(large), {256, 1, 32}), large);
}

}  // namespace
}  // namespace glyphon::testing
