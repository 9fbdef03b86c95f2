#include <gtest/gtest.h>

#include "tests/platform/blit_surfaces.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using Values = std::vector<std::uint32_t>;

constexpr std::uint32_t kRed = 0xFF0000, kGreen = 0x00FF00, kBlue = 0x0000FF, kWhite = 0xFFFFFF;

// An icon built from a mask and (unless `color` is empty) a 32-bit colour image, one row high
// (two for monochrome icons).
HICON MakeIcon(const Values& mask, const Values& color, BOOL isIcon = TRUE) {
  const int width = static_cast<int>(color.empty() ? mask.size() / 2 : mask.size());
  MemorySurface maskBitmap(width, color.empty() ? 2 : 1, 1);
  maskBitmap.Set(mask);
  ICONINFO info{isIcon, 3, 4, maskBitmap.bitmap(), nullptr};
  if (color.empty()) return CreateIconIndirect(&info);
  MemorySurface colorBitmap(width, 1, 32);
  colorBitmap.Set(color);
  info.hbmColor = colorBitmap.bitmap();
  return CreateIconIndirect(&info);
}

TEST(Icons, MaskThenImageComposeOverTheDestination) {
  testing::LeakCheck leaks;
  // Opaque red, transparent, and an inverting pixel (mask 1, white image).
  HICON icon = MakeIcon({0, 1, 1}, {kRed, 0, kWhite});
  ASSERT_NE(icon, nullptr);
  MemorySurface dst(3, 1, 32);
  dst.Set({kBlue, kBlue, kBlue});
  SetTextColor(dst.dc(), RGB(1, 2, 3));
  EXPECT_TRUE(DrawIconEx(dst.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  EXPECT_EQ(dst.Get(), (Values{kRed, kBlue, 0xFFFF00}));
  EXPECT_EQ(GetTextColor(dst.dc()), RGB(1, 2, 3));  // the DC's state comes back

  EXPECT_TRUE(DrawIconEx(dst.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_MASK));
  EXPECT_EQ(dst.Get(), (Values{0, kWhite, kWhite}));
  EXPECT_TRUE(DrawIconEx(dst.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_IMAGE));
  EXPECT_EQ(dst.Get(), (Values{kRed, 0, kWhite}));
  DestroyIcon(icon);
}

TEST(Icons, StretchToTheGivenSize) {
  testing::LeakCheck leaks;
  HICON icon = MakeIcon({0, 1}, {kRed, 0});
  MemorySurface dst(4, 2, 32);
  dst.Set({kGreen, kGreen, kGreen, kGreen, kGreen, kGreen, kGreen, kGreen});
  EXPECT_TRUE(DrawIconEx(dst.dc(), 0, 0, icon, 4, 2, 0, nullptr, DI_NORMAL));
  EXPECT_EQ(dst.Get(), (Values{kRed, kRed, kGreen, kGreen, kRed, kRed, kGreen, kGreen}));
  DestroyIcon(icon);
}

TEST(Icons, MonochromeIconsStackTheirMasks) {
  testing::LeakCheck leaks;
  // AND row over XOR row: black, transparent, white, inverted.
  HICON icon = MakeIcon({0, 1, 0, 1, /* XOR */ 0, 0, 1, 1}, {});
  ASSERT_NE(icon, nullptr);
  MemorySurface dst(4, 1, 32);
  dst.Set({kGreen, kGreen, kGreen, kGreen});
  EXPECT_TRUE(DrawIconEx(dst.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  EXPECT_EQ(dst.Get(), (Values{0, kGreen, kWhite, 0xFF00FF}));
  ICONINFO info{};
  ASSERT_TRUE(GetIconInfo(icon, &info));
  EXPECT_EQ(info.hbmColor, nullptr);
  BITMAP mask{};
  GetObjectA(info.hbmMask, sizeof mask, &mask);
  EXPECT_EQ(mask.bmHeight, 2);
  EXPECT_EQ(info.yHotspot, 0u);  // half of one row
  DeleteObject(info.hbmMask);
  DestroyIcon(icon);
}

TEST(Icons, AlphaImagesBlendAndIgnoreTheMask) {
  testing::LeakCheck leaks;
  HICON icon = MakeIcon({0, 0, 0}, {0x80FF0000, 0xFF00FF00, 0x00FFFFFF});
  MemorySurface dst(3, 1, 32);
  dst.Set({kBlue, kBlue, kBlue});
  EXPECT_TRUE(DrawIconEx(dst.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  // Half-transparent red over blue; opaque green; fully transparent leaves blue.
  EXPECT_EQ(dst.Get(), (Values{0x8080007F, 0xFF00FF00, kBlue}));

  MemorySurface dib24(3, 1, 24, {});
  dib24.Set({kBlue, kBlue, kBlue});
  EXPECT_TRUE(DrawIconEx(dib24.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
  EXPECT_EQ(dib24.Get(), (Values{0x80007F, kGreen, kBlue}));

  // Without DI_IMAGE the mask is all there is.
  EXPECT_TRUE(DrawIconEx(dib24.dc(), 0, 0, icon, 0, 0, 0, nullptr, DI_MASK));
  EXPECT_EQ(dib24.Get(), (Values{0, 0, 0}));
  DestroyIcon(icon);
}

TEST(Icons, CreationCopiesAndGetIconInfoHandsOutNewCopies) {
  testing::LeakCheck leaks;
  MemorySurface mask(2, 1, 1);
  mask.Set({0, 0});
  MemorySurface color(2, 1, 32);
  color.Set({kRed, kGreen});
  ICONINFO info{FALSE, 1, 0, mask.bitmap(), color.bitmap()};
  HICON cursor = CreateIconIndirect(&info);
  ASSERT_NE(cursor, nullptr);
  color.Set({kBlue, kBlue});  // the icon keeps its own copy

  ICONINFO out{};
  ASSERT_TRUE(GetIconInfo(cursor, &out));
  EXPECT_EQ(out.fIcon, FALSE);
  EXPECT_EQ(out.xHotspot, 1u);
  EXPECT_NE(out.hbmColor, color.bitmap());
  EXPECT_NE(out.hbmMask, mask.bitmap());
  MemorySurface check(2, 1, 32);
  HDC dc = CreateCompatibleDC(nullptr);
  HGDIOBJ old = SelectObject(dc, out.hbmColor);
  BitBlt(check.dc(), 0, 0, 2, 1, dc, 0, 0, SRCCOPY);
  EXPECT_EQ(check.Get(), (Values{kRed, kGreen}));
  SelectObject(dc, old);
  DeleteDC(dc);
  DeleteObject(out.hbmColor);
  DeleteObject(out.hbmMask);
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
