#include "platform/ole/std_picture.h"

#include <gtest/gtest.h>

#include "platform/soft/soft_engine.h"
#include "tests/support/leak_check.h"

namespace glyphon {
namespace {

using namespace win;

bool IsLiveBitmap(HBITMAP bitmap) { return GetObjectType(bitmap) == OBJ_BITMAP; }

TEST(StdPicture, NoObjectEmptyAndMetafilesAreHandleless) {
  const StdPicture nothing;
  const StdPicture empty = StdPicture::Empty();
  EXPECT_TRUE(nothing.IsNothing());
  EXPECT_FALSE(empty.IsNothing());
  for (const StdPicture& p : {nothing, empty}) {
    EXPECT_EQ(p.Type(), PICTYPE_NONE);
    EXPECT_EQ(p.Handle(), nullptr);
    EXPECT_EQ(p.Width(), 0);
  }
  EXPECT_TRUE(nothing == StdPicture());
  EXPECT_FALSE(empty == StdPicture::Empty());  // two objects, not one

  const StdPicture wmf = StdPicture::Metafile(PICTYPE_METAFILE, 2540, 1270);
  EXPECT_EQ(wmf.Type(), PICTYPE_METAFILE);
  EXPECT_EQ(wmf.Handle(), nullptr);
  EXPECT_EQ(wmf.Height(), 1270);
  EXPECT_EQ(StdPicture::Metafile(PICTYPE_ENHMETAFILE, 1, 1).Type(), PICTYPE_ENHMETAFILE);
  EXPECT_TRUE(StdPicture::Metafile(PICTYPE_BITMAP, 1, 1).IsNothing());
}

TEST(StdPicture, DescriptionsMakeMeasuredPictures) {
  testing::LeakCheck leaks;
  PICTDESC description{};
  description.cbSizeofstruct = sizeof description;
  description.picType = PICTYPE_BITMAP;
  description.bmp.hbitmap = CreateBitmap(36, 12, 1, 32, nullptr);
  description.bmp.hpal = static_cast<HPALETTE>(GetStockObject(DEFAULT_PALETTE));
  const StdPicture bitmap = StdPicture::FromDescription(description, true);
  EXPECT_EQ(bitmap.Type(), PICTYPE_BITMAP);
  EXPECT_EQ(bitmap.Bitmap(), description.bmp.hbitmap);
  EXPECT_EQ(bitmap.Icon(), nullptr);
  EXPECT_EQ(bitmap.Palette(), description.bmp.hpal);
  // HiMetric rounds halves away from zero: 36 pixels are 952.5, 12 are 317.5.
  EXPECT_EQ(bitmap.Width(), 953);
  EXPECT_EQ(bitmap.Height(), 318);
  EXPECT_EQ(StdPicture::PixelsToHiMetric(1), 26);    // 26.46
  EXPECT_EQ(StdPicture::PixelsToHiMetric(32), 847);  // 846.67

  description.picType = PICTYPE_NONE;
  EXPECT_EQ(StdPicture::FromDescription(description, true).Type(), PICTYPE_NONE);
  EXPECT_FALSE(StdPicture::FromDescription(description, true).IsNothing());
  description.picType = PICTYPE_UNINITIALIZED;
  EXPECT_TRUE(StdPicture::FromDescription(description, true).IsNothing());

  // A handle that is no longer valid measures as nothing rather than failing.
  HBITMAP stale = CreateBitmap(4, 4, 1, 32, nullptr);
  DeleteObject(stale);
  EXPECT_EQ(StdPicture::FromBitmap(stale, true).Width(), 0);
}

TEST(StdPicture, OwnedHandleGoesWithTheLastCopyBorrowedOneStays) {
  testing::LeakCheck leaks;
  HBITMAP owned = CreateBitmap(4, 4, 1, 32, nullptr);
  auto first = std::make_unique<StdPicture>(StdPicture::FromBitmap(owned, true));
  StdPicture second = *first;
  EXPECT_TRUE(second == *first);
  first.reset();
  EXPECT_TRUE(IsLiveBitmap(owned));
  StdPicture third = std::move(second);
  third = StdPicture::Empty();
  EXPECT_FALSE(IsLiveBitmap(owned));

  HBITMAP borrowed = CreateBitmap(4, 4, 1, 32, nullptr);
  StdPicture::FromBitmap(borrowed, false);
  EXPECT_TRUE(IsLiveBitmap(borrowed));
  DeleteObject(borrowed);
}

TEST(StdPicture, IconsMeasureTheirImageAndAreDestroyedWhenOwned) {
  testing::LeakCheck leaks;
  HBITMAP mask = CreateBitmap(24, 16, 1, 1, nullptr);
  HBITMAP color = CreateBitmap(24, 16, 1, 32, nullptr);
  ICONINFO info{TRUE, 0, 0, mask, color};
  HICON icon = CreateIconIndirect(&info);
  // Monochrome icons stack the AND and XOR masks in one bitmap of twice the height.
  info.hbmColor = nullptr;
  HICON monochrome = CreateIconIndirect(&info);
  DeleteObject(mask);
  DeleteObject(color);
  {
    const StdPicture picture = StdPicture::FromIcon(icon, true);
    EXPECT_EQ(picture.Type(), PICTYPE_ICON);
    EXPECT_EQ(picture.Icon(), icon);
    EXPECT_EQ(picture.Bitmap(), nullptr);
    EXPECT_EQ(picture.Width(), StdPicture::PixelsToHiMetric(24));
    EXPECT_EQ(picture.Height(), StdPicture::PixelsToHiMetric(16));
    EXPECT_EQ(StdPicture::FromIcon(monochrome, false).Height(), StdPicture::PixelsToHiMetric(8));
  }
  EXPECT_FALSE(DestroyIcon(icon));  // already gone with the picture
  EXPECT_TRUE(DestroyIcon(monochrome));
}

TEST(StdPicture, ReleaseGoesToTheEngineThatMadeThePicture) {
  soft::SoftEngine other;
  const auto bitmaps = [&] {
    return other.LiveObjectCounts()[static_cast<std::size_t>(soft::ObjectKind::Bitmap)];
  };
  StdPicture picture;
  {
    EngineScope scope(other);
    picture = StdPicture::FromBitmap(CreateBitmap(4, 4, 1, 32, nullptr), true);
  }
  EXPECT_EQ(bitmaps(), 1);
  picture = StdPicture();
  EXPECT_EQ(bitmaps(), 0);
}

}  // namespace
}  // namespace glyphon
