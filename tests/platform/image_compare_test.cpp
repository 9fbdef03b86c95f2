#include "tests/support/image_compare.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "tests/platform/memory_surface.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using namespace win;

class ImageCompare : public ::testing::Test {
 protected:
  void SetUp() override {
    // One folder per test: CTest runs the tests of this fixture in parallel processes.
    dir_ = std::filesystem::path(::testing::TempDir()) / "image_compare_test" /
           ::testing::UnitTest::GetInstance()->current_test_info()->name();
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
  }
  void TearDown() override { std::filesystem::remove_all(dir_); }

  static Image Checker() {
    Image image = Image::Blank(4, 3);
    for (int y = 0; y < 3; ++y) {
      for (int x = 0; x < 4; ++x) {
        std::uint8_t* p = image.Pixel(x, y);
        p[0] = p[1] = p[2] = (x + y) % 2 ? 255 : 0;
        p[3] = 255;
      }
    }
    return image;
  }

  std::filesystem::path dir_;
};

TEST_F(ImageCompare, ReportsCountAndFirstDifference) {
  Image actual = Checker();
  EXPECT_TRUE(ImagesEqual(actual, Checker()));
  actual.Pixel(2, 1)[2] = 0x12;  // red channel of (2, 1)
  actual.Pixel(3, 2)[0] = 0x34;
  const auto result = ImagesEqual(actual, Checker());
  EXPECT_FALSE(result);
  EXPECT_STREQ(result.message(),
               "2 of 12 pixels differ; first at (2, 1): #12FFFFFF, expected #FFFFFFFF");
  EXPECT_STREQ(ImagesEqual(Image::Blank(2, 2), Checker()).message(), "size is 2x2, expected 4x3");
}

TEST_F(ImageCompare, MismatchWritesActualAndDiffNextToExpected) {
  LeakCheck leaks;
  const auto expected = dir_ / "shape.png";
  ASSERT_TRUE(WritePngFile(Checker(), expected));

  // A bitmap showing the checker, then all but one pixel of it.
  std::vector<std::uint32_t> pixels(12);
  std::memcpy(pixels.data(), Checker().bgra.data(), 4 * 3 * 4);
  MemorySurface bitmap(4, 3, 32, {});
  bitmap.Set(pixels);
  EXPECT_TRUE(BitmapMatchesPng(bitmap.bitmap(), expected));
  EXPECT_FALSE(std::filesystem::exists(ActualPathFor(expected)));

  pixels[0] = (pixels[0] & ~0xFFu) | 7;
  bitmap.Set(pixels);
  const auto result = BitmapMatchesPng(bitmap.bitmap(), expected);
  EXPECT_FALSE(result);
  EXPECT_NE(std::string(result.message()).find("1 of 12 pixels differ; first at (0, 0)"),
            std::string::npos)
      << result.message();
  const auto actual = ReadPngFile(ActualPathFor(expected));
  ASSERT_TRUE(actual);
  EXPECT_EQ(actual->Pixel(0, 0)[0], 7);
  const auto diff = ReadPngFile(DiffPathFor(expected));
  ASSERT_TRUE(diff);
  EXPECT_EQ(diff->Pixel(0, 0)[2], 255);  // the differing pixel is red
  EXPECT_EQ(diff->Pixel(0, 0)[1], 0);
  EXPECT_EQ(diff->Pixel(1, 0)[0], diff->Pixel(1, 0)[2]);  // equal pixels are grey
}

void SetUpdateGolden(bool update) {
#ifdef _WIN32
  _putenv_s("GLYPHON_UPDATE_GOLDEN", update ? "1" : "");  // an empty value removes it
#else
  if (update) {
    ::setenv("GLYPHON_UPDATE_GOLDEN", "1", 1);
  } else {
    ::unsetenv("GLYPHON_UPDATE_GOLDEN");
  }
#endif
}

TEST_F(ImageCompare, MissingExpectedImageFailsUnlessUpdating) {
  LeakCheck leaks;
  const auto expected = dir_ / "new.png";
  Owned bitmap{CreateBitmap(2, 2, 1, 32, nullptr)};
  EXPECT_FALSE(BitmapMatchesPng(bitmap, expected));
  EXPECT_TRUE(std::filesystem::exists(ActualPathFor(expected)));

  SetUpdateGolden(true);
  EXPECT_TRUE(BitmapMatchesPng(bitmap, expected));
  SetUpdateGolden(false);
  EXPECT_TRUE(BitmapMatchesPng(bitmap, expected));
}

TEST_F(ImageCompare, ComparesBitmapsAndDcAreas) {
  LeakCheck leaks;
  MemorySurface a(3, 3, 32), b(3, 3, 32);
  EXPECT_TRUE(BitmapsEqual(a.bitmap(), b.bitmap()));
  b.Clear(RGB(255, 255, 255));
  EXPECT_FALSE(BitmapsEqual(a.bitmap(), b.bitmap()));

  const auto area = dir_ / "area.png";
  ASSERT_TRUE(WritePngFile(Image::Blank(2, 1), area));
  EXPECT_FALSE(DcAreaMatchesPng(b.dc(), RECT{1, 1, 3, 2}, area));  // white, not transparent black
  EXPECT_FALSE(DcAreaMatchesPng(b.dc(), RECT{2, 2, 4, 3}, area));  // leaves the bitmap
}

}  // namespace
}  // namespace glyphon::testing
