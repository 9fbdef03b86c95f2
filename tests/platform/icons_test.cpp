#include <gtest/gtest.h>

#include "tests/platform/memory_surface.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::MemorySurface;
using testing::Owned;
using Values = std::vector<std::uint32_t>;

constexpr std::uint32_t kRed = 0xFF0000, kGreen = 0x00FF00, kBlue = 0x0000FF, kWhite = 0xFFFFFF;

// An icon built from a mask and (unless `color` is empty) a 32-bit colour image, one row high
// (two for monochrome icons).
HICON MakeIcon(const Values& mask, const Values& color) {
  const int width = static_cast<int>(color.empty() ? mask.size() / 2 : mask.size());
  MemorySurface maskBitmap(width, color.empty() ? 2 : 1, 1);
  maskBitmap.Set(mask);
  MemorySurface colorBitmap(width, 1, 32);
  if (!color.empty()) colorBitmap.Set(color);
  ICONINFO info{TRUE, 3, 4, maskBitmap.bitmap(), color.empty() ? nullptr : colorBitmap.bitmap()};
  return CreateIconIndirect(&info);
}

// The surface after drawing the icon over what it held.
Values DrawnOver(MemorySurface& dst, const Values& under, HICON icon, UINT flags, int width = 0,
                 int height = 0) {
  dst.Set(under);
  EXPECT_TRUE(DrawIconEx(dst.dc(), 0, 0, icon, width, height, 0, nullptr, flags));
  return dst.Get();
}

TEST(Icons, MaskThenImageComposeOverTheDestination) {
  testing::LeakCheck leaks;
  // Opaque red, transparent, and an inverting pixel (mask 1, white image).
  Owned icon{MakeIcon({0, 1, 1}, {kRed, 0, kWhite})};
  ASSERT_NE(icon, nullptr);
  MemorySurface dst(3, 1, 32);
  SetTextColor(dst.dc(), RGB(1, 2, 3));
  const Values blue = {kBlue, kBlue, kBlue};
  EXPECT_EQ(DrawnOver(dst, blue, icon, DI_NORMAL), (Values{kRed, kBlue, 0xFFFF00}));
  EXPECT_EQ(GetTextColor(dst.dc()), RGB(1, 2, 3));  // the DC's state comes back
  EXPECT_EQ(DrawnOver(dst, blue, icon, DI_MASK), (Values{0, kWhite, kWhite}));
  EXPECT_EQ(DrawnOver(dst, {0, kWhite, kWhite}, icon, DI_IMAGE), (Values{kRed, 0, kWhite}));

  // Stretched to the size given.
  Owned pair{MakeIcon({0, 1}, {kRed, 0})};
  MemorySurface wide(4, 2, 32);
  EXPECT_EQ(DrawnOver(wide, Values(8, kGreen), pair, DI_NORMAL, 4, 2),
            (Values{kRed, kRed, kGreen, kGreen, kRed, kRed, kGreen, kGreen}));
}

TEST(Icons, MonochromeIconsStackTheirMasks) {
  testing::LeakCheck leaks;
  // AND row over XOR row: black, transparent, white, inverted.
  Owned icon{MakeIcon({0, 1, 0, 1, /* XOR */ 0, 0, 1, 1}, {})};
  ASSERT_NE(icon, nullptr);
  MemorySurface dst(4, 1, 32);
  EXPECT_EQ(DrawnOver(dst, Values(4, kGreen), icon, DI_NORMAL),
            (Values{0, kGreen, kWhite, 0xFF00FF}));
  ICONINFO info{};
  ASSERT_TRUE(GetIconInfo(icon, &info));
  Owned mask{info.hbmMask};
  EXPECT_EQ(info.hbmColor, nullptr);
  BITMAP bitmap{};
  GetObjectA(mask, sizeof bitmap, &bitmap);
  EXPECT_EQ(bitmap.bmHeight, 2);
  EXPECT_EQ(info.yHotspot, 0u);  // half of one row
}

TEST(Icons, AlphaImagesBlendAndIgnoreTheMask) {
  testing::LeakCheck leaks;
  Owned icon{MakeIcon({0, 0, 0}, {0x80FF0000, 0xFF00FF00, 0x00FFFFFF})};
  const Values blue = {kBlue, kBlue, kBlue};
  MemorySurface dst(3, 1, 32);
  // Half-transparent red over blue; opaque green; fully transparent leaves blue.
  EXPECT_EQ(DrawnOver(dst, blue, icon, DI_NORMAL), (Values{0x8080007F, 0xFF00FF00, kBlue}));
  MemorySurface dib24(3, 1, 24, {});
  EXPECT_EQ(DrawnOver(dib24, blue, icon, DI_NORMAL), (Values{0x80007F, kGreen, kBlue}));
  // Without DI_IMAGE the mask is all there is.
  EXPECT_EQ(DrawnOver(dib24, blue, icon, DI_MASK), (Values{0, 0, 0}));
}

TEST(Icons, CreationCopiesAndGetIconInfoHandsOutNewCopies) {
  testing::LeakCheck leaks;
  MemorySurface mask(2, 1, 1);
  MemorySurface color(2, 1, 32);
  color.Set({kRed, kGreen});
  ICONINFO info{FALSE, 1, 0, mask.bitmap(), color.bitmap()};
  HICON cursor = CreateIconIndirect(&info);
  ASSERT_NE(cursor, nullptr);
  color.Set({kBlue, kBlue});  // the icon keeps its own copy

  ICONINFO out{};
  ASSERT_TRUE(GetIconInfo(cursor, &out));
  Owned outColor{out.hbmColor}, outMask{out.hbmMask};
  EXPECT_EQ(out.fIcon, FALSE);
  EXPECT_EQ(out.xHotspot, 1u);
  EXPECT_NE(out.hbmColor, color.bitmap());
  EXPECT_NE(out.hbmMask, mask.bitmap());
  {
    Owned dc{CreateCompatibleDC(nullptr)};
    testing::Selected selected(dc, outColor);
    BitBlt(color.dc(), 0, 0, 2, 1, dc, 0, 0, SRCCOPY);
  }
  EXPECT_EQ(color.Get(), (Values{kRed, kGreen}));
  EXPECT_TRUE(DestroyIcon(cursor));
}

TEST(Icons, InvalidIconsAndDcsAreRefused) {
  testing::LeakCheck leaks;
  HICON icon = MakeIcon({0}, {kRed});
  MemorySurface dst(1, 1, 32);
  EXPECT_FALSE(DeleteObject(icon));  // icons go through DestroyIcon
  EXPECT_FALSE(DrawIconEx(nullptr, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  EXPECT_TRUE(DestroyIcon(icon));
  EXPECT_FALSE(DestroyIcon(icon));
  EXPECT_FALSE(DrawIconEx(dst.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  ICONINFO info{};
  EXPECT_FALSE(GetIconInfo(icon, &info));
  ICONINFO noMask{TRUE, 0, 0, nullptr, nullptr};
  EXPECT_EQ(CreateIconIndirect(&noMask), nullptr);
  EXPECT_EQ(CreateIconIndirect(nullptr), nullptr);
}

}  // namespace
}  // namespace glyphon::win
