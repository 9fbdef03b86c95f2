#include "platform/codec/png_codec.h"

#include <gtest/gtest.h>
#include <png.h>
#include <zlib.h>

#include <filesystem>

namespace glyphon {
namespace {

Image Sample() {
  Image image = Image::Blank(3, 2);
  const std::uint8_t pixels[] = {0, 0, 255, 255, 10,  20,  30, 0,   255, 255, 255, 128,
                                 1, 2, 3,   4,   200, 100, 50, 255, 0,   0,   0,   255};
  std::copy(std::begin(pixels), std::end(pixels), image.bgra.begin());
  return image;
}

// PNG bytes in formats the encoder never writes, made with libpng's simplified writer.
std::vector<std::uint8_t> WriteWithLibpng(png_uint_32 format, const void* pixels, int width,
                                          const void* colormap, png_uint_32 colors) {
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(width);
  image.height = 1;
  image.format = format;
  image.colormap_entries = colors;
  png_alloc_size_t size = 0;
  EXPECT_TRUE(png_image_write_to_memory(&image, nullptr, &size, 0, pixels, 0, colormap));
  std::vector<std::uint8_t> bytes(size);
  EXPECT_TRUE(png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels, 0, colormap));
  bytes.resize(size);
  return bytes;
}

// Rewrites the IHDR size of an encoded PNG and fixes the chunk's checksum.
void SetHeaderSize(std::vector<std::uint8_t>& png, std::uint32_t width, std::uint32_t height) {
  for (int i = 0; i < 4; ++i) {
    png[16 + i] = static_cast<std::uint8_t>(width >> (24 - 8 * i));
    png[20 + i] = static_cast<std::uint8_t>(height >> (24 - 8 * i));
  }
  const uLong crc = crc32(0, png.data() + 12, 17);
  for (int i = 0; i < 4; ++i) png[29 + i] = static_cast<std::uint8_t>(crc >> (24 - 8 * i));
}

TEST(PngCodec, OtherFormatsComeOutAsEightBitBgra) {
  const std::uint8_t grey[] = {0x40, 0xC0};
  auto decoded = DecodePng(WriteWithLibpng(PNG_FORMAT_GRAY, grey, 2, nullptr, 0));
  ASSERT_TRUE(decoded);
  EXPECT_EQ(decoded->bgra,
            (std::vector<std::uint8_t>{0x40, 0x40, 0x40, 255, 0xC0, 0xC0, 0xC0, 255}));

  // A palette with a transparent entry: tRNS becomes alpha.
  const std::uint8_t indices[] = {1, 0};
  const std::uint8_t colormap[] = {10, 20, 30, 0, 200, 150, 100, 255};
  decoded = DecodePng(WriteWithLibpng(PNG_FORMAT_RGBA_COLORMAP, indices, 2, colormap, 2));
  ASSERT_TRUE(decoded);
  EXPECT_EQ(decoded->bgra, (std::vector<std::uint8_t>{100, 150, 200, 255, 30, 20, 10, 0}));

  // Sixteen-bit samples keep their high byte.
  const std::uint16_t deep[] = {0x1234, 0xABCD, 0xFFFF};
  decoded = DecodePng(WriteWithLibpng(PNG_FORMAT_LINEAR_RGB, deep, 1, nullptr, 0));
  ASSERT_TRUE(decoded);
  EXPECT_EQ(decoded->bgra, (std::vector<std::uint8_t>{0xFF, 0xAB, 0x12, 255}));
}

TEST(PngCodec, BadDataFailsWithAMessage) {
  std::string error;
  const std::uint8_t junk[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
  EXPECT_FALSE(DecodePng(junk, &error));
  EXPECT_EQ(error, "not a PNG file");

  auto bytes = *EncodePng(Sample());
  const std::vector<std::uint8_t> truncated(bytes.begin(), bytes.begin() + bytes.size() / 2);
  EXPECT_FALSE(DecodePng(truncated, &error));
  EXPECT_NE(error.find("bad PNG data"), std::string::npos) << error;

  auto corrupt = bytes;
  corrupt[corrupt.size() - 20] ^= 0xFF;  // inside the image data, so its checksum fails
  EXPECT_FALSE(DecodePng(corrupt, &error));
  EXPECT_FALSE(error.empty());
}

TEST(PngCodec, HugeDimensionsAreRefusedBeforeAllocating) {
  std::string error;
  auto bytes = *EncodePng(Sample());
  SetHeaderSize(bytes, 16384, 16384);  // sides allowed, 1 GiB of pixels not
  EXPECT_FALSE(DecodePng(bytes, &error));
  EXPECT_NE(error.find("too large"), std::string::npos) << error;
  SetHeaderSize(bytes, 100000, 1);
  EXPECT_FALSE(DecodePng(bytes, &error));
}

TEST(PngCodec, FilesRoundTripEveryChannelIncludingAlphaAndMissingFilesNameThePath) {
  const auto path = std::filesystem::path(::testing::TempDir()) / "png_codec_round_trip.png";
  ASSERT_TRUE(WritePngFile(Sample(), path));
  const auto read = ReadPngFile(path);
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, Sample());
  std::filesystem::remove(path);

  std::string error;
  EXPECT_FALSE(ReadPngFile(path, &error));
  EXPECT_NE(error.find(path.filename().string()), std::string::npos) << error;
}

TEST(PngCodec, EncoderRefusesInconsistentImages) {
  Image image = Sample();
  image.bgra.pop_back();
  EXPECT_FALSE(EncodePng(image));
  EXPECT_FALSE(EncodePng(Image{}));
  EXPECT_TRUE(Image::Blank(Image::kMaxSide + 1, 1).Empty());
}

}  // namespace
}  // namespace glyphon
