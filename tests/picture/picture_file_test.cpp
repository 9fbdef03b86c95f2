#include "platform/codec/picture_file.h"

#include <gtest/gtest.h>

#include <fstream>

#include "platform/codec/ico_codec.h"
#include "platform/codec/picture_error.h"
#include "platform/codec/picture_objects.h"
#include "tests/picture/picture_samples.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using namespace win;
using testing::Owned;
using testing::Selected;

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

Bytes SeveralIcons() {
  std::vector<std::uint8_t> mask(32 * 32, 0);
  for (int i = 0; i < 32; ++i) mask[static_cast<std::size_t>(i * 32 + i)] = 1;  // a diagonal of holes
  std::vector<std::uint32_t> alpha32(32 * 32);
  for (std::size_t i = 0; i < alpha32.size(); ++i) alpha32[i] = static_cast<std::uint32_t>(i % 256) << 24 | 0x00336699;
  return IcoFile({
      {16, 16, 4, IconDib(16, 16, 4, {0, 0xFF0000}, std::vector<std::uint32_t>(256, 1), std::vector<std::uint8_t>(256, 0))},
      {32, 32, 32, IconDib(32, 32, 32, {}, alpha32, mask)},
      {48, 48, 8, IconDib(48, 48, 8, {0, 0x00FF00}, std::vector<std::uint32_t>(48 * 48, 1), std::vector<std::uint8_t>(48 * 48, 1))},
  });
}

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

TEST(PictureLoading, MaskColourPixelsAndOnlyThoseTurnWhiteInTheMonochromeStep) {
  LeakCheck leaks;
  const StdPicture picture = LoadPictureData(MaskedBmp());
  // The transparent copy: picture to a compatible bitmap, then to a monochrome one against the
  // mask colour as background.
  Owned source{CreateCompatibleDC(nullptr)}, work{CreateCompatibleDC(nullptr)};
  Owned monoDc{CreateCompatibleDC(nullptr)};
  Owned mono{CreateBitmap(4, 2, 1, 1, nullptr)};
  {
    Selected fromPicture(source, picture.Bitmap());
    Owned copy{CreateCompatibleBitmap(source, 4, 2)};
    Selected toCopy(work, copy), toMono(monoDc, mono);
    BitBlt(work, 0, 0, 4, 2, source, 0, 0, SRCCOPY);
    SetBkColor(work, RGB(0, 255, 255));
    BitBlt(monoDc, 0, 0, 4, 2, work, 0, 0, SRCCOPY);
  }
  const Image mask = ReadBitmapPixels(mono);
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 4; ++x) {
      EXPECT_EQ(Rgb(mask, x, y), x == 0 ? 0xFFFFFFu : 0u) << x << "," << y;
    }
  }
}

TEST(PictureLoading, IconsAreTheBestFitWithMaskAndAlpha) {
  LeakCheck leaks;
  const Bytes file = SeveralIcons();
  const StdPicture picture = LoadPictureData(file);
  ASSERT_EQ(picture.Type(), PICTYPE_ICON);
  EXPECT_EQ(picture.Width(), StdPicture::PixelsToHiMetric(32));
  EXPECT_EQ(picture.Height(), StdPicture::PixelsToHiMetric(32));
  EXPECT_EQ(ReadIconPixels(picture.Icon()), DecodeIco(file));

  const StdPicture small = LoadPictureData(file, "icons", {16, 16, 32});
  EXPECT_EQ(small.Width(), StdPicture::PixelsToHiMetric(16));
  const IconImage smallPixels = ReadIconPixels(small.Icon());
  EXPECT_EQ(PixelAt(smallPixels.color, 5, 5), 0x00FF0000u);  // no alpha: the mask decides
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

  const StdPicture icon = LoadPictureData(SeveralIcons());
  const Bytes iconBytes = SavePictureData(icon);
  const StdPicture iconAgain = LoadPictureData(iconBytes);
  EXPECT_EQ(ReadIconPixels(iconAgain.Icon()), ReadIconPixels(icon.Icon()));
  EXPECT_EQ(SavePictureData(iconAgain), iconBytes);
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
