// PaintEffects on small pixel-art pictures: keyed copies, the embossed look and its key colour,
// silhouettes, blur, icons at the asked size and the invalid-picture error.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "content/paint_effects.h"
#include "content/picture_rewrites.h"
#include "platform/automation_error.h"
#include "platform/codec/picture_objects.h"
#include "samples/sample_pictures.h"
#include "tests/content/content_sheet.h"
#include "tests/support/error_of.h"
#include "tests/support/leak_check.h"

namespace glyphon {
namespace {

using testing::LeakCheck;
using win::RGB;

constexpr win::COLORREF kCyan = RGB(0, 255, 255);
constexpr win::COLORREF kFace = RGB(212, 208, 200);
constexpr win::COLORREF kWhite = RGB(255, 255, 255);
constexpr win::COLORREF kBlack = RGB(0, 0, 0);
constexpr win::COLORREF kGrey = RGB(128, 128, 128);
constexpr win::COLORREF kRed = RGB(255, 0, 0);

const std::map<char, win::COLORREF> kLegend{{'.', kFace}, {'c', kCyan},  {'w', kWhite},
                                            {'k', kBlack}, {'g', kGrey}, {'r', kRed},
                                            {'b', RGB(0, 0, 255)}};

// A bitmap picture from rows of legend characters.
StdPicture PixelArt(const std::vector<std::string>& rows) {
  Image image = Image::Blank(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      const std::string& row = rows[static_cast<std::size_t>(y)];
      const win::COLORREF color = kLegend.at(row[static_cast<std::size_t>(x)]);
      std::uint8_t* pixel = image.Pixel(x, y);
      pixel[0] = win::GetBValue(color);
      pixel[1] = win::GetGValue(color);
      pixel[2] = win::GetRValue(color);
    }
  }
  return MakeBitmapPicture(image);
}

// The canvas as rows of legend characters, '?' for anything else.
std::vector<std::string> Rows(const Canvas& canvas) {
  std::map<win::COLORREF, char> reverse;
  for (const auto& [key, color] : kLegend) reverse[color] = key;
  std::vector<std::string> rows;
  for (int y = 0; y < canvas.Height(); ++y) {
    std::string row;
    for (int x = 0; x < canvas.Width(); ++x) {
      const auto found = reverse.find(win::GetPixel(canvas.hdc(), x, y));
      row += found != reverse.end() ? found->second : '?';
    }
    rows.push_back(row);
  }
  return rows;
}

std::unique_ptr<Canvas> Face(int width, int height) {
  return testing::MakeFilledCanvas(width, height, kFace);
}

const std::vector<std::string> kRing{"cccc", "crrc", "crwc", "cccc"};

// The ring picture, a 4 x 4 face to paint it on, and the effects that paint.
class PaintEffectsTest : public ::testing::Test {
 protected:
  LeakCheck leaks_;
  const StdPicture ring_ = PixelArt(kRing);
  std::unique_ptr<Canvas> canvas_ = Face(4, 4);
  const PaintEffects effects_;
};

TEST_F(PaintEffectsTest, TransparentAndNormalCopies) {
  auto canvas = Face(6, 5);
  effects_.PaintTransparentStdPic(canvas->hdc(), 1, 1, 4, 4, ring_, 0, 0, kCyan, nullptr);
  EXPECT_EQ(Rows(*canvas),
            (std::vector<std::string>{"......", "......", "..rr..", "..rw..", "......"}));
  // A source offset, and a system colour as the key (3-D light is white in the classic scheme).
  effects_.PaintTransparentStdPic(canvas->hdc(), 0, 0, 3, 3, ring_, 1, 1, 0x80000014, nullptr);
  EXPECT_EQ(Rows(*canvas)[1], "r.c...");
  effects_.PaintNormalStdPic(canvas->hdc(), 2, 0, 4, 4, ring_, 0, 0);
  EXPECT_EQ(Rows(*canvas)[0], "rrcccc");
}

TEST_F(PaintEffectsTest, InvalidPicturesRaise481AndDrawNothing) {
  const win::HDC dc = canvas_->hdc();
  for (const StdPicture& bad :
       {StdPicture{}, StdPicture::Empty(), StdPicture::Metafile(win::PICTYPE_METAFILE, 100, 100)}) {
    const auto expect481 = [](const std::function<void()>& operation, const char* source) {
      const AutomationError error = testing::ErrorOf(operation);
      EXPECT_EQ(error.Number(), 481);
      EXPECT_EQ(error.Source(), source);
    };
    expect481([&] { effects_.PaintNormalStdPic(dc, 0, 0, 4, 4, bad, 0, 0); }, "PaintNormalStdPic");
    expect481([&] { effects_.PaintTransparentStdPic(dc, 0, 0, 4, 4, bad, 0, 0, kCyan); },
              "PaintTransparentStdPic");
    expect481([&] { effects_.PaintDisabledStdPic(dc, 0, 0, 4, 4, bad, 0, 0); },
              "PaintDisabledStdPic");
    expect481([&] { effects_.PaintMonoStandardPic(bad, *canvas_, 0, 0, 4, 4); },
              "PaintMonoStandardPic");
    expect481([&] { effects_.PaintBlurredStandardPic(bad, *canvas_, 0, 0, 4, 4); },
              "PaintBlurredStandardPic");
  }
  EXPECT_EQ(Rows(*canvas_), (std::vector<std::string>(4, "....")));
}

TEST_F(PaintEffectsTest, EmbossedLookDrawsInkInHighlightUnderShadow) {
  effects_.PaintDisabledStdPic(canvas_->hdc(), 0, 0, 4, 4, ring_, 0, 0, kCyan, kWhite, kGrey);
  // Red is dark and becomes ink; white and the keyed cyan do not.
  EXPECT_EQ(Rows(*canvas_), (std::vector<std::string>{"....", ".gg.", ".gww", "..w."}));
}

TEST_F(PaintEffectsTest, EmbossKeyAvoidsBothInkColours) {
  EXPECT_EQ(EmbossKeyColor(kGrey, kWhite), kBlack);
  EXPECT_EQ(EmbossKeyColor(kBlack, kWhite), kRed);
  EXPECT_EQ(EmbossKeyColor(kWhite, kBlack), kRed);
  EXPECT_EQ(EmbossKeyColor(kBlack, kRed), RGB(0, 0, 255));
  EXPECT_EQ(EmbossKeyColor(kRed, kBlack), RGB(0, 0, 255));

  // A black shadow still shows: the ink is keyed on red instead.
  effects_.PaintDisabledStdPic(canvas_->hdc(), 0, 0, 4, 4, ring_, 0, 0, kCyan, kWhite, kBlack);
  EXPECT_EQ(Rows(*canvas_)[1], ".kk.");
  effects_.PaintDisabledStdPic(canvas_->hdc(), 0, 0, 4, 4, ring_, 0, 0, kCyan, kRed, kBlack);
  EXPECT_EQ(Rows(*canvas_)[2], ".krr");
}

TEST_F(PaintEffectsTest, WhiteMaskSkipsTheKeyingSoWhitePixelsVanish) {
  const StdPicture picture = PixelArt({"wwww", "wkbw", "wwcw", "wwww"});
  effects_.PaintDisabledStdPic(canvas_->hdc(), 0, 0, 4, 4, picture, 0, 0, kWhite, kWhite, kGrey);
  // Black and blue are ink; cyan and white are light and vanish with the background.
  EXPECT_EQ(Rows(*canvas_), (std::vector<std::string>{"....", ".gg.", "..ww", "...."}));
}

TEST_F(PaintEffectsTest, SilhouetteKeepsTheMaskOnlyWhenAskedTo) {
  effects_.PaintMonoStandardPic(ring_, *canvas_, 0, 0, 4, 4, kCyan, kBlack, nullptr, true);
  EXPECT_EQ(Rows(*canvas_), (std::vector<std::string>{"....", ".kk.", ".kk.", "...."}));
  effects_.PaintMonoStandardPic(ring_, *canvas_, 0, 0, 4, 4, kCyan, kGrey, nullptr, false);
  EXPECT_EQ(Rows(*canvas_), (std::vector<std::string>(4, "gggg")));
}

TEST_F(PaintEffectsTest, IconsAreDrawnAtTheAskedSize) {
  const StdPicture stop = samples::MakeSamplePicture(samples::SamplePicture::Stop16Icon);
  auto canvas = Face(34, 34);
  effects_.PaintNormalStdPic(canvas->hdc(), 1, 1, 32, 32, stop, 0, 0);
  const auto painted = [&](int x, int y) { return win::GetPixel(canvas->hdc(), x, y) != kFace; };
  EXPECT_FALSE(painted(1, 1));   // a masked corner
  EXPECT_TRUE(painted(32, 16));  // the right edge of the octagon, twice as far out
  EXPECT_TRUE(painted(16, 32));
  EXPECT_FALSE(painted(33, 16));
  // Keyed: the icon's own transparency reads as the mask colour and stays out.
  auto keyed = Face(34, 34);
  effects_.PaintTransparentStdPic(keyed->hdc(), 1, 1, 32, 32, stop, 0, 0, kCyan);
  EXPECT_EQ(win::GetPixel(keyed->hdc(), 1, 1), kFace);
  EXPECT_EQ(win::GetPixel(keyed->hdc(), 16, 16), win::GetPixel(canvas->hdc(), 16, 16));
}

TEST(PictureRewrites, BlurSpreadsIntoTheShadowColour) {
  constexpr std::uint32_t kMask = PixelOf(kCyan);
  std::vector<std::uint32_t> pixels(25, kMask);
  pixels[12] = 0x00900000;  // red 144 in the middle of 5 x 5
  BlurPixels(pixels, 5, 5, 1, kMask, 0x00000009, true);
  // Each pixel next to it sees it in one of nine places; the rest of the window is shadow.
  EXPECT_EQ(pixels[6], 0x00100008u);
  EXPECT_EQ(pixels[12], 0x00100008u);
  EXPECT_EQ(pixels[0], kMask);  // nothing of the picture in its window
  std::vector<std::uint32_t> unchanged{1, 2, 3, 4};
  BlurPixels(unchanged, 2, 2, 0, kMask, 0, true);
  EXPECT_EQ(unchanged, (std::vector<std::uint32_t>{1, 2, 3, 4}));
}

TEST_F(PaintEffectsTest, BlurredPictureOfSmoothnessZeroIsTheKeyedCopy) {
  effects_.PaintBlurredStandardPic(ring_, *canvas_, 0, 0, 4, 4, 0, kCyan, kBlack);
  EXPECT_EQ(Rows(*canvas_), (std::vector<std::string>{"....", ".rr.", ".rw.", "...."}));
}

}  // namespace
}  // namespace glyphon
