#include <gtest/gtest.h>

#include "platform/soft/soft_engine.h"
#include "tests/platform/memory_surface.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"

namespace glyphon::win {
namespace {

using testing::Owned;

TEST(Palettes, HalftonePaletteHoldsTheStaticColorsAroundAColorCube) {
  testing::LeakCheck leaks;
  Owned halftone{CreateHalftonePalette(nullptr)};
  ASSERT_NE(halftone, nullptr);
  EXPECT_EQ(GetPaletteEntries(halftone, 0, 0, nullptr), 256u);
  PALETTEENTRY entries[256];
  ASSERT_EQ(GetPaletteEntries(halftone, 0, 256, entries), 256u);
  for (const auto& [index, color] : {std::pair{0, RGB(0, 0, 0)}, {8, RGB(192, 220, 192)},
                                      {10, RGB(64, 32, 0)}, {245, RGB(160, 192, 192)},
                                      {246, RGB(255, 251, 240)}, {255, RGB(255, 255, 255)}}) {
    const PALETTEENTRY& e = entries[index];
    EXPECT_EQ(RGB(e.peRed, e.peGreen, e.peBlue), color) << index;
  }
  Owned second{CreateHalftonePalette(nullptr)};
  EXPECT_NE(second, halftone);
  EXPECT_EQ(GetNearestPaletteIndex(second, RGB(64, 32, 0)), 10u);
}

TEST(Palettes, EntriesAndNearestIndex) {
  testing::LeakCheck leaks;
  struct {
    WORD version = 0x300;
    WORD count = 3;
    PALETTEENTRY entries[3] = {{10, 10, 10, 0}, {200, 0, 0, 0}, {200, 0, 0, 0}};
  } log;
  HPALETTE palette = CreatePalette(reinterpret_cast<const LOGPALETTE*>(&log));
  PALETTEENTRY out[4] = {};
  EXPECT_EQ(GetPaletteEntries(palette, 1, 5, out), 2u);
  EXPECT_EQ(out[0].peRed, 200);
  EXPECT_EQ(GetPaletteEntries(palette, 3, 1, out), 0u);
  EXPECT_EQ(GetNearestPaletteIndex(palette, RGB(190, 5, 5)), 1u);  // first of two equal entries
  EXPECT_EQ(GetNearestPaletteIndex(palette, RGB(0, 0, 0)), 0u);
  EXPECT_EQ(RealizePalette(nullptr), 0u);
  DeleteObject(palette);
  EXPECT_EQ(GetPaletteEntries(palette, 0, 1, out), 0u);
  EXPECT_EQ(GetNearestPaletteIndex(palette, RGB(200, 0, 0)), 0u);
  EXPECT_EQ(CreatePalette(nullptr), nullptr);
}

TEST(Palettes, HaveNoVisibleEffectAtThirtyTwoBits) {
  testing::LeakCheck leaks;
  testing::MemorySurface source(2, 1, 32);
  source.Set({0x123456, 0xFEDCBA});
  testing::MemorySurface destination(2, 1, 32);
  Owned halftone{CreateHalftonePalette(destination.dc())};
  HPALETTE old = SelectPalette(destination.dc(), halftone, TRUE);
  EXPECT_EQ(RealizePalette(destination.dc()), 0u);
  BitBlt(destination.dc(), 0, 0, 2, 1, source.dc(), 0, 0, SRCCOPY);
  EXPECT_EQ(destination.Get(), source.Get());
  SelectPalette(destination.dc(), old, TRUE);
}

TEST(OleColors, TranslatesEveryForm) {
  testing::LeakCheck leaks;
  // System colours take only the low byte; palette forms pass without a palette to check.
  for (const auto& [color, expected] :
       {std::pair<OLE_COLOR, COLORREF>{0x00123456, 0x00123456},
        {0x80000005, GetSysColor(COLOR_WINDOW)}, {0x8000FF0F, GetSysColor(COLOR_BTNFACE)},
        {0x8000001E, GetSysColor(COLOR_MENUBAR)}, {0x02ABCDEF, 0x02ABCDEF},
        {0x01000007, 0x01000007}}) {
    COLORREF out = 0xDEADBEEF;
    EXPECT_EQ(OleTranslateColor(color, nullptr, &out), S_OK) << std::hex << color;
    EXPECT_EQ(out, expected) << std::hex << color;
  }
  EXPECT_EQ(OleTranslateColor(0x80000005, nullptr, nullptr), S_OK);  // a pure validity check

  COLORREF out = 0xDEADBEEF;
  for (const OLE_COLOR bad : {0x8000001Fu, 0x800000FFu, 0x03000000u, 0x40000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(OleTranslateColor(bad, nullptr, &out), E_INVALIDARG) << std::hex << bad;
  }
  EXPECT_EQ(out, 0xDEADBEEFu);
}

TEST(OleColors, APaletteMakesRgbPaletteRelativeAndChecksIndices) {
  testing::LeakCheck leaks;
  HPALETTE halftone = CreateHalftonePalette(nullptr);
  COLORREF out = 0;
  EXPECT_EQ(OleTranslateColor(0x00FF00FF, halftone, &out), S_OK);
  EXPECT_EQ(out, 0x02FF00FFu);
  EXPECT_EQ(OleTranslateColor(0x010000FF, halftone, &out), S_OK);
  EXPECT_EQ(OleTranslateColor(0x01000100, halftone, &out), E_INVALIDARG);
  EXPECT_EQ(OleTranslateColor(0x8000000F, halftone, &out), S_OK);  // system colours ignore it
  EXPECT_EQ(out, GetSysColor(COLOR_BTNFACE));
  DeleteObject(halftone);
  // A deleted palette still turns RGB palette-relative, but validates no index.
  EXPECT_EQ(OleTranslateColor(0x00000001, halftone, &out), S_OK);
  EXPECT_EQ(out, 0x02000001u);
  EXPECT_EQ(OleTranslateColor(0x01000000, halftone, &out), E_INVALIDARG);
}

TEST(OleColors, SystemColorsFollowTheEngineTable) {
  auto& engine = soft::ThreadSoftEngine();
  soft::SystemColors original;
  for (int i = 0; i < SYSTEM_COLOR_COUNT; ++i) original[i] = GetSysColor(i);
  soft::SystemColors changed = original;
  changed[COLOR_BTNFACE] = RGB(1, 2, 3);
  engine.SetSystemColors(changed);
  COLORREF out = 0;
  EXPECT_EQ(OleTranslateColor(0x8000000F, nullptr, &out), S_OK);
  EXPECT_EQ(out, RGB(1, 2, 3));
  engine.SetSystemColors(original);
}

}  // namespace
}  // namespace glyphon::win
