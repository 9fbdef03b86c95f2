#include <gtest/gtest.h>

#include "platform/win32.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

TEST(GdiObjects, SelectReturnsPreviousAndDeleteWaitsForDeselection) {
  testing::LeakCheck leaks;
  HDC dc = CreateCompatibleDC(nullptr);
  ASSERT_NE(dc, nullptr);
  HPEN red = CreatePen(PS_SOLID, 1, RGB(255, 0, 0));
  HGDIOBJ stockPen = SelectObject(dc, red);
  EXPECT_EQ(stockPen, GetStockObject(BLACK_PEN));
  // Deleting a selected pen succeeds but keeps it usable until the DC lets go of it.
  EXPECT_TRUE(DeleteObject(red));
  EXPECT_EQ(GetObjectType(red), OBJ_PEN);
  EXPECT_EQ(SelectObject(dc, stockPen), red);
  EXPECT_EQ(GetObjectType(red), 0u);
  EXPECT_TRUE(DeleteDC(dc));
}

TEST(GdiObjects, StaleForeignAndNullHandlesAreIgnored) {
  testing::LeakCheck leaks;
  HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
  EXPECT_TRUE(DeleteObject(brush));
  EXPECT_FALSE(DeleteObject(brush));
  EXPECT_FALSE(DeleteObject(nullptr));
  HDC dc = CreateCompatibleDC(nullptr);
  EXPECT_EQ(SelectObject(dc, brush), nullptr);
  // A DC handle where a pen is expected is refused, not misread.
  EXPECT_EQ(SelectObject(dc, dc), nullptr);
  EXPECT_EQ(GetObjectA(brush, sizeof(LOGBRUSH), nullptr), 0);
  // A fresh handle in a reused slot differs from the stale one.
  HBRUSH again = CreateSolidBrush(RGB(4, 5, 6));
  EXPECT_NE(again, brush);
  EXPECT_EQ(SetBkColor(reinterpret_cast<HDC>(again), 0), CLR_INVALID);
  DeleteObject(again);
  EXPECT_TRUE(DeleteObject(dc));  // the generic deletion also frees DCs
}

TEST(GdiObjects, StockObjectsSurviveDeletion) {
  HGDIOBJ white = GetStockObject(WHITE_BRUSH);
  EXPECT_TRUE(DeleteObject(white));
  LOGBRUSH logBrush{};
  ASSERT_EQ(GetObjectA(white, sizeof logBrush, &logBrush), static_cast<int>(sizeof logBrush));
  EXPECT_EQ(logBrush.lbColor, RGB(255, 255, 255));
}

TEST(GdiObjects, BitmapLivesInOneMemoryDcAtATime) {
  testing::LeakCheck leaks;
  testing::Owned first{CreateCompatibleDC(nullptr)};
  HDC second = CreateCompatibleDC(nullptr);
  HBITMAP bitmap = CreateBitmap(8, 8, 1, 32, nullptr);
  HGDIOBJ original = SelectObject(first, bitmap);
  EXPECT_NE(original, nullptr);
  EXPECT_EQ(SelectObject(second, bitmap), nullptr);
  EXPECT_EQ(GetDeviceCaps(first, BITSPIXEL), 32);
  EXPECT_EQ(GetDeviceCaps(second, BITSPIXEL), 1);
  SelectObject(first, original);
  EXPECT_NE(SelectObject(second, bitmap), nullptr);
  DeleteDC(second);  // deselects, so the bitmap can go
  EXPECT_TRUE(DeleteObject(bitmap));
}

TEST(GdiObjects, ZeroSizedBitmapsAreTheMonochromeStockBitmap) {
  testing::LeakCheck leaks;
  testing::Owned dc{CreateCompatibleDC(nullptr)};
  HBITMAP empty = CreateCompatibleBitmap(dc, 0, 10);
  BITMAP info{};
  ASSERT_EQ(GetObjectA(empty, sizeof info, &info), static_cast<int>(sizeof info));
  EXPECT_EQ(info.bmWidth, 1);
  EXPECT_EQ(info.bmBitsPixel, 1);
  EXPECT_TRUE(DeleteObject(empty));
  EXPECT_EQ(CreateBitmap(16385, 1, 1, 32, nullptr), nullptr);
  EXPECT_EQ(CreateBitmap(16384, 16384, 1, 32, nullptr), nullptr);  // over 256 MiB
}

TEST(GdiObjects, SaveAndRestoreBringBackAttributesAndObjects) {
  testing::LeakCheck leaks;
  testing::Owned dc{CreateCompatibleDC(nullptr)};
  testing::Owned pen{CreatePen(PS_DOT, 1, 0)};
  SetBkColor(dc, RGB(1, 1, 1));
  const int level = SaveDC(dc);
  EXPECT_EQ(level, 1);
  SelectObject(dc, pen);
  SetBkColor(dc, RGB(2, 2, 2));
  EXPECT_TRUE(RestoreDC(dc, -1));
  EXPECT_EQ(GetBkColor(dc), RGB(1, 1, 1));
  EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), GetStockObject(BLACK_PEN));
  EXPECT_FALSE(RestoreDC(dc, 1));
}

}  // namespace
}  // namespace glyphon::win
