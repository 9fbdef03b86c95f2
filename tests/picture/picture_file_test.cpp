#include "platform/codec/picture_file.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/codec/ico_codec.h"
#include "platform/codec/picture_error.h"
#include "platform/codec/picture_objects.h"
#include "tests/picture/picture_samples.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using namespace win;

constexpr std::uint32_t kCyan = 0x00FFFF;      // the buttons' default mask colour, as 0xRRGGBB
constexpr std::uint32_t kNearCyan = 0x00FEFF;  // one step off: must not count as mask colour

// 4x2, 4 bits: a mask-coloured column, a near-mask column and two ordinary colours.
Bytes MaskedBmp() {
  DibSample sample(4, 2, 4);
  sample.colors = {kCyan, kNearCyan, 0xFF0000, 0x123456};
  sample.colorsUsed = 4;
  sample.bits = PackRows(4, 4, {0, 1, 2, 3, 0, 1, 3, 2});
  return sample.BmpFile();
}

std::uint32_t Rgb(const Image& image, int x, int y) { return PixelAt(image, x, y) & 0xFFFFFF; }

TEST(PictureLoading, BitmapsBecomeOpaque32BitDibSections) {
  LeakCheck leaks;
  const StdPicture picture = LoadPictureData(MaskedBmp());
  ASSERT_EQ(picture.Type(), PICTYPE_BITMAP);
  EXPECT_TRUE(picture.OwnsHandle());
  EXPECT_EQ(picture.Width(), StdPicture::PixelsToHiMetric(4));
  EXPECT_EQ(picture.Height(), StdPicture::PixelsToHiMetric(2));
  DIBSECTION section{};
  ASSERT_EQ(GetObjectA(picture.Bitmap(), sizeof section, &section), static_cast<int>(sizeof section));
  EXPECT_EQ(section.dsBm.bmBitsPixel, 32);
  const Image pixels = ReadBitmapPixels(picture.Bitmap());
  EXPECT_EQ(Rgb(pixels, 0, 0), kCyan);
  EXPECT_EQ(Rgb(pixels, 1, 0), kNearCyan);
  EXPECT_EQ(Rgb(pixels, 3, 0), 0xFF0000u);  // the first stored row is the bottom one
  EXPECT_EQ(Rgb(pixels, 3, 1), 0x123456u);
}

TEST(PictureLoading, PngBecomesAnOpaqueBitmap) {
  LeakCheck leaks;
  const Image image{2, 1, {0x10, 0x20, 0x30, 0x00, 0x40, 0x50, 0x60, 0xFF}};
  const StdPicture picture = LoadPictureData(*EncodePng(image));
  ASSERT_EQ(picture.Type(), PICTYPE_BITMAP);
  const Image pixels = ReadBitmapPixels(picture.Bitmap());
  EXPECT_EQ(PixelAt(pixels, 0, 0), 0x00302010u);
  EXPECT_EQ(PixelAt(pixels, 1, 0), 0x00605040u);
}

TEST(PictureSaving, SavedBytesLoadToTheSamePixelsAndSaveAlike) {
  LeakCheck leaks;
  const StdPicture bitmap = LoadPictureData(MaskedBmp());
  const Bytes bitmapBytes = SavePictureData(bitmap);
  const StdPicture bitmapAgain = LoadPictureData(bitmapBytes);
  EXPECT_EQ(ReadBitmapPixels(bitmapAgain.Bitmap()), ReadBitmapPixels(bitmap.Bitmap()));
  EXPECT_EQ(SavePictureData(bitmapAgain), bitmapBytes);
}

TEST(PictureSaving, DeviceBitmapsFromElsewhereSaveToo) {
  LeakCheck leaks;
  const std::uint32_t pixels[2] = {0x00112233, 0x00445566};  // 0x00RRGGBB device pixels
  const StdPicture picture = StdPicture::FromBitmap(CreateBitmap(2, 1, 1, 32, pixels), true);
  const Image saved = ReadBitmapPixels(LoadPictureData(SavePictureData(picture)).Bitmap());
  EXPECT_EQ(Rgb(saved, 0, 0), 0x112233u);
  EXPECT_EQ(Rgb(saved, 1, 0), 0x445566u);
}

TEST(PictureSaving, NoPicturesAndMetafiles) {
  EXPECT_TRUE(SavePictureData(StdPicture()).empty());
  EXPECT_TRUE(SavePictureData(StdPicture::Empty()).empty());
  const StdPicture loaded = LoadPictureData({});
  EXPECT_FALSE(loaded.IsNothing());
  EXPECT_EQ(loaded.Type(), PICTYPE_NONE);
  EXPECT_THROW(SavePictureData(StdPicture::Metafile(PICTYPE_METAFILE, 10, 10)), PictureError);
  HBITMAP stale = CreateBitmap(1, 1, 1, 32, nullptr);
  DeleteObject(stale);
  EXPECT_THROW(SavePictureData(StdPicture::FromBitmap(stale, false)), PictureError);
}

class PictureFiles : public ::testing::Test {
 protected:
  void SetUp() override {
    directory_ = std::filesystem::temp_directory_path() /
                 ("glyphon-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::filesystem::create_directories(directory_);
  }
  void TearDown() override { std::filesystem::remove_all(directory_); }

  std::filesystem::path Write(const char* name, const Bytes& bytes) {
    const std::filesystem::path path = directory_ / name;
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()),
                                                static_cast<std::streamsize>(bytes.size()));
    return path;
  }

  static std::string ErrorOf(const std::filesystem::path& path) {
    try {
      LoadPictureFile(path);
    } catch (const PictureError& e) {
      return e.what();
    }
    return "no error";
  }

  std::filesystem::path directory_;
};

TEST_F(PictureFiles, SaveAndLoadByPath) {
  LeakCheck leaks;
  const StdPicture bitmap = LoadPictureFile(Write("in.bmp", MaskedBmp()));
  SavePictureFile(bitmap, directory_ / "out.bmp");
  EXPECT_EQ(ReadBitmapPixels(LoadPictureFile(directory_ / "out.bmp").Bitmap()), ReadBitmapPixels(bitmap.Bitmap()));
}

TEST_F(PictureFiles, ErrorsNameTheFile) {
  LeakCheck leaks;
  const std::filesystem::path missing = directory_ / "missing.bmp";
  EXPECT_EQ(ErrorOf(missing).rfind(missing.string() + ": cannot open", 0), 0u) << ErrorOf(missing);
  const std::filesystem::path empty = Write("empty.bmp", {});
  EXPECT_EQ(ErrorOf(empty), empty.string() + ": the file is empty");
  Bytes truncated = MaskedBmp();
  truncated.resize(20);
  const std::filesystem::path damaged = Write("damaged.bmp", truncated);
  EXPECT_EQ(ErrorOf(damaged), damaged.string() + ": bitmap header ends early");
}

}  // namespace
}  // namespace glyphon::testing
