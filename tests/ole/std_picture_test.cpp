#include "platform/ole/std_picture.h"

#include <gtest/gtest.h>

#include "platform/soft/soft_engine.h"
#include "tests/support/leak_check.h"

namespace glyphon {
namespace {

using namespace win;

bool IsLiveBitmap(HBITMAP bitmap) { return GetObjectType(bitmap) == OBJ_BITMAP; }

TEST(StdPicture, NoObjectAndEmptyPictureAnswerAlikeButDiffer) {
  const StdPicture nothing;
  const StdPicture empty = StdPicture::Empty();
  EXPECT_TRUE(nothing.IsNothing());
  EXPECT_FALSE(empty.IsNothing());
  for (const StdPicture& p : {nothing, empty}) {
    EXPECT_EQ(p.Type(), PICTYPE_NONE);
    EXPECT_EQ(p.Handle(), nullptr);
    EXPECT_EQ(p.Width(), 0);
    EXPECT_EQ(p.Height(), 0);
  }
  EXPECT_TRUE(nothing == StdPicture());
  EXPECT_FALSE(empty == StdPicture::Empty());  // two objects, not one
}

TEST(StdPicture, MetafilesHaveTypeAndSizeButNoHandle) {
  const StdPicture wmf = StdPicture::Metafile(PICTYPE_METAFILE, 2540, 1270);
  const StdPicture emf = StdPicture::Metafile(PICTYPE_ENHMETAFILE, 10, 20);
  EXPECT_EQ(wmf.Type(), PICTYPE_METAFILE);
  EXPECT_EQ(emf.Type(), PICTYPE_ENHMETAFILE);
  EXPECT_EQ(wmf.Handle(), nullptr);
  EXPECT_EQ(wmf.Width(), 2540);
  EXPECT_EQ(wmf.Height(), 1270);
  EXPECT_TRUE(StdPicture::Metafile(PICTYPE_BITMAP, 1, 1).IsNothing());
}

TEST(StdPicture, HiMetricRoundsHalvesAwayFromZero) {
  EXPECT_EQ(StdPicture::PixelsToHiMetric(0), 0);
  EXPECT_EQ(StdPicture::PixelsToHiMetric(1), 26);    // 26.46
  EXPECT_EQ(StdPicture::PixelsToHiMetric(16), 423);  // 423.33
  EXPECT_EQ(StdPicture::PixelsToHiMetric(32), 847);  // 846.67
  EXPECT_EQ(StdPicture::PixelsToHiMetric(12), 318);  // 317.5
  EXPECT_EQ(StdPicture::PixelsToHiMetric(36), 953);  // 952.5: not to even
  EXPECT_EQ(StdPicture::PixelsToHiMetric(96), 2540);
}

TEST(StdPicture, BitmapPictureMeasuresItsBitmap) {
  testing::LeakCheck leaks;
  HBITMAP bitmap = CreateBitmap(36, 12, 1, 32, nullptr);
  const StdPicture picture = StdPicture::FromBitmap(bitmap, true);
  EXPECT_EQ(picture.Type(), PICTYPE_BITMAP);
  EXPECT_EQ(picture.Handle(), bitmap);
  EXPECT_EQ(picture.Bitmap(), bitmap);
  EXPECT_EQ(picture.Icon(), nullptr);
  EXPECT_EQ(picture.Width(), 953);
  EXPECT_EQ(picture.Height(), 318);
}

TEST(StdPicture, OwnedHandleGoesWithTheLastCopy) {
  testing::LeakCheck leaks;
  HBITMAP bitmap = CreateBitmap(4, 4, 1, 32, nullptr);
  auto first = std::make_unique<StdPicture>(StdPicture::FromBitmap(bitmap, true));
  StdPicture second = *first;
  EXPECT_TRUE(second == *first);
  first.reset();
  EXPECT_TRUE(IsLiveBitmap(bitmap));
  StdPicture third = std::move(second);
  second = StdPicture();
  EXPECT_TRUE(IsLiveBitmap(bitmap));
  third = StdPicture::Empty();
  EXPECT_FALSE(IsLiveBitmap(bitmap));
}

TEST(StdPicture, BorrowedHandleAndPaletteOutliveThePicture) {
  testing::LeakCheck leaks;
  HBITMAP bitmap = CreateBitmap(4, 4, 1, 32, nullptr);
  HPALETTE palette = static_cast<HPALETTE>(GetStockObject(DEFAULT_PALETTE));
  {
    const StdPicture borrowed = StdPicture::FromBitmap(bitmap, palette, false);
    EXPECT_EQ(borrowed.Palette(), palette);
    EXPECT_FALSE(borrowed.OwnsHandle());
  }
  EXPECT_TRUE(IsLiveBitmap(bitmap));
  DeleteObject(bitmap);
}

TEST(StdPicture, DescriptionsBuildTheTypeTheyName) {
  testing::LeakCheck leaks;
  PICTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.picType = PICTYPE_BITMAP;
  description.bmp.hbitmap = CreateBitmap(2, 3, 1, 32, nullptr);
  const StdPicture bitmap = StdPicture::FromDescription(description, true);
  EXPECT_EQ(bitmap.Bitmap(), description.bmp.hbitmap);
  EXPECT_EQ(bitmap.Height(), StdPicture::PixelsToHiMetric(3));

  description.picType = PICTYPE_NONE;
  const StdPicture empty = StdPicture::FromDescription(description, true);
  EXPECT_FALSE(empty.IsNothing());
  EXPECT_EQ(empty.Type(), PICTYPE_NONE);

  description.picType = PICTYPE_UNINITIALIZED;
  EXPECT_TRUE(StdPicture::FromDescription(description, true).IsNothing());
}

TEST(StdPicture, ReleaseGoesToTheEngineThatMadeThePicture) {
  soft::SoftEngine other;
  StdPicture picture;
  {
    EngineScope scope(other);
    picture = StdPicture::FromBitmap(CreateBitmap(4, 4, 1, 32, nullptr), true);
  }
  const auto bitmaps = [&] {
    return other.LiveObjectCounts()[static_cast<std::size_t>(soft::ObjectKind::Bitmap)];
  };
  EXPECT_EQ(bitmaps(), 1);
  picture = StdPicture();
  EXPECT_EQ(bitmaps(), 0);
}

TEST(StdPicture, InvalidHandlesMeasureAsZero) {
  testing::LeakCheck leaks;
  HBITMAP stale = CreateBitmap(4, 4, 1, 32, nullptr);
  DeleteObject(stale);
  const StdPicture picture = StdPicture::FromBitmap(stale, true);
  EXPECT_EQ(picture.Type(), PICTYPE_BITMAP);
  EXPECT_EQ(picture.Width(), 0);
  EXPECT_EQ(StdPicture::FromIcon(nullptr, true).Width(), 0);
}

}  // namespace
}  // namespace glyphon
