// Fonts and text on Canvas and cDIBSection.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <memory>

#include "platform/soft/soft_engine.h"
#include "surface/canvas.h"
#include "surface/dib_section.h"
#include "tests/support/gdi_scope.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"
#include "tests/surface/surface_test_support.h"

namespace glyphon::testing {
namespace {

using win::HDC;

win::LOGFONTA SelectedFont(HDC hdc) {
  win::LOGFONTA logFont{};
  win::GetObjectA(win::GetCurrentObject(hdc, win::OBJ_FONT), sizeof logFont, &logFont);
  return logFont;
}

win::TEXTMETRICA MetricsOf(HDC hdc) {
  win::TEXTMETRICA metrics{};
  win::GetTextMetricsA(hdc, &metrics);
  return metrics;
}

int LiveFonts() {
  return win::soft::ThreadSoftEngine()
      .LiveObjectCounts()[static_cast<std::size_t>(win::soft::ObjectKind::Font)];
}

// Whether two surfaces of at least width x height show the same pixels there.
::testing::AssertionResult SamePixels(HDC a, HDC b, int width, int height) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const win::COLORREF first = win::GetPixel(a, x, y), second = win::GetPixel(b, x, y);
      if (first == win::CLR_INVALID || first != second) {
        return ::testing::AssertionFailure()
               << "at " << x << "," << y << ": " << std::hex << first << " against " << second;
      }
    }
  }
  return ::testing::AssertionSuccess();
}

// Pixels of (0, 0, width, height) that are not white.
int InkCount(HDC hdc, int width, int height) {
  int ink = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const win::COLORREF pixel = win::GetPixel(hdc, x, y);
      ink += pixel != kWhite && pixel != win::CLR_INVALID ? 1 : 0;
    }
  }
  return ink;
}

// The host's context, holding the control's font: 8 points, italic and struck out.
class SurfaceText : public ::testing::Test {
 protected:
  LeakCheck leaks_;
  PinnedFont pinned_;
  Owned<HDC> host_{win::CreateCompatibleDC(nullptr)};
  Owned<win::HFONT> font_{
      win::CreateFontA(-11, 0, 0, 0, win::FW_NORMAL, 1, 0, 1, 0, 0, 0, 0, 0, "MS Shell Dlg")};
  Selected selected_{host_, font_};
};

TEST_F(SurfaceText, CreateFontCopiesTheHostFontAtAntialiasedQuality) {
  auto canvas = MakeCanvas(40, 20);
  const int fontsBefore = LiveFonts();
  canvas->CreateFont(host_);
  canvas->CreateFont(host_);  // the first copy is released, not leaked
  EXPECT_EQ(LiveFonts(), fontsBefore + 1);
  const win::LOGFONTA copy = SelectedFont(canvas->hdc());
  EXPECT_EQ(copy.lfHeight, 13);  // the cell height, the same 11-pixel em
  EXPECT_EQ(copy.lfWidth, 6);
  EXPECT_EQ(copy.lfWeight, 400);
  EXPECT_NE(copy.lfItalic, 0);
  EXPECT_NE(copy.lfStrikeOut, 0);
  EXPECT_EQ(copy.lfQuality, win::ANTIALIASED_QUALITY);
  EXPECT_STREQ(copy.lfFaceName, "DejaVu Sans");
  const win::TEXTMETRICA host = MetricsOf(host_), own = MetricsOf(canvas->hdc());
  EXPECT_EQ(std::memcmp(&host, &own, sizeof host), 0);
}

TEST_F(SurfaceText, SetFontChangesBoldItalicAndUnderlineOnly) {
  auto canvas = MakeCanvas(40, 20);
  canvas->CreateFont(host_);
  canvas->SetFont(true, false, true);
  // Weight, italic, underline and the weight drawn; 551 is enough for a bold face.
  auto state = [&canvas] {
    const win::LOGFONTA font = SelectedFont(canvas->hdc());
    EXPECT_NE(font.lfStrikeOut, 0);
    EXPECT_EQ(font.lfHeight, 13);
    EXPECT_EQ(font.lfQuality, win::ANTIALIASED_QUALITY);
    return std::array<long, 4>{font.lfWeight, font.lfItalic, font.lfUnderline,
                               MetricsOf(canvas->hdc()).tmWeight};
  };
  EXPECT_EQ(state(), (std::array<long, 4>{551, 0, 1, 700}));
  canvas->SetFont(false, true, false);
  EXPECT_EQ(state(), (std::array<long, 4>{0, 1, 0, 400}));
}

TEST_F(SurfaceText, PrintTextTakesZeroForTheCurrentPosition) {
  auto canvas = MakeCanvas(60, 30), expected = MakeCanvas(60, 30);
  canvas->CreateFont(host_);
  expected->CreateFont(host_);
  canvas->CurrentX(20);
  canvas->CurrentY(8);
  canvas->PrintText("ab", 0, 15);
  canvas->PrintText("cd");
  canvas->PrintText("ef", 3, 2);
  win::TextOutA(expected->hdc(), 20, 15, "ab", 2);
  win::TextOutA(expected->hdc(), 20, 8, "cd", 2);
  win::TextOutA(expected->hdc(), 3, 2, "ef", 2);
  EXPECT_TRUE(SamePixels(canvas->hdc(), expected->hdc(), 60, 30));
  EXPECT_GT(InkCount(canvas->hdc(), 60, 30), 0);
  EXPECT_EQ(canvas->CurrentX(), 20);  // not advanced
}

TEST_F(SurfaceText, DrawTextOutAlignsWithinTheMeasuredRectangle) {
  auto canvas = MakeCanvas(60, 40), expected = MakeCanvas(60, 40);
  canvas->CreateFont(host_);
  expected->CreateFont(host_);
  // Measured first to (0, 0, 14, 26): "ab" (14) over "cd" (13), so centring within that moves
  // neither line, where centring within the 20 pixels given would move both by 3. The italic
  // overhang beyond the measured rectangle is clipped.
  canvas->DrawTextOut("ab cd", 0, 0, 20, 40, win::DT_CENTER | win::DT_WORDBREAK);
  win::RECT measured{0, 0, 14, 26};
  win::DrawTextA(expected->hdc(), "ab cd", 5, &measured, win::DT_CENTER | win::DT_WORDBREAK);
  EXPECT_TRUE(SamePixels(canvas->hdc(), expected->hdc(), 60, 40));
  EXPECT_GT(InkCount(canvas->hdc(), 60, 40), 0);
}

TEST_F(SurfaceText, DibSectionDrawsTextLikeCanvas) {
  auto canvas = MakeCanvas(60, 40);
  cDIBSection dib;
  ASSERT_TRUE(dib.Create(60, 40));
  dib.BackColor(kWhite);
  dib.Cls();
  for (HDC hdc : {canvas->hdc(), dib.hdc()}) win::SetTextColor(hdc, win::RGB(0, 0, 128));
  canvas->CreateFont(host_);
  dib.CreateFont(host_);
  dib.CreateFont(host_);
  canvas->DrawTextOut("Wrap &me now", 2, 2, 40, 40, win::DT_WORDBREAK | win::DT_CENTER);
  dib.DrawTextOut("Wrap &me now", 2, 2, 40, 40, win::DT_WORDBREAK | win::DT_CENTER);
  EXPECT_TRUE(SamePixels(canvas->hdc(), dib.hdc(), 60, 40));
  EXPECT_GT(InkCount(dib.hdc(), 60, 40), 0);
}

}  // namespace
}  // namespace glyphon::testing
