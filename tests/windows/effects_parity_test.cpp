// PaintEffects and the faded and greyed pixel effects through the native and the soft engine,
// pixel for pixel, over a striped background so that every keyed or mixed pixel shows. Pictures
// are made inside each render, by the engine that paints them.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "content/paint_effects.h"
#include "content/pixel_effects.h"
#include "platform/codec/bitmap_png.h"
#include "samples/sample_pictures.h"
#include "surface/canvas.h"
#include "tests/surface/surface_test_support.h"
#include "tests/windows/engine_parity.h"
#include "tests/windows/gdi_scenarios.h"
#include "tests/windows/host_pictures.h"

namespace glyphon::testing {
namespace {

using samples::SamplePicture;
using win::RGB;

constexpr int kWidth = 64;
constexpr int kHeight = 56;

// Paints on a striped canvas of the test size with a fresh PaintEffects.
ParityCase StripedCase(std::string name,
                       std::function<void(const PaintEffects&, Canvas&)> paint) {
  return {std::move(name), [=] {
            auto canvas = MakeCanvas(kWidth, kHeight);
            PaintBands(canvas->hdc(), kWidth, kHeight);
            const PaintEffects effects;
            paint(effects, *canvas);
            return Captured(canvas->hdc());
          }};
}

// One operation on a picture of w x h pixels.
struct PictureEffect {
  const char* name;
  void (*paint)(const PaintEffects& fx, Canvas& canvas, const StdPicture& pic, int w, int h);
};

constexpr PictureEffect kPictureEffects[] = {
    {"Normal",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintNormalStdPic(c.hdc(), 3, 4, w, h, pic, 0, 0, c.hPal());
     }},
    // Bitmaps copy part of themselves from an offset; icons are drawn smaller and larger.
    {"NormalPart",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintNormalStdPic(c.hdc(), 5, 6, w - 5, h - 3, pic, 3, 2);
     }},
    {"NormalLarger",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintNormalStdPic(c.hdc(), 1, 2, w + w / 4, h + h / 4, pic, 0, 0);
     }},
    {"Transparent",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintTransparentStdPic(c.hdc(), 3, 4, w, h, pic, 0, 0, kDefaultMaskColor, c.hPal());
     }},
    {"TransparentRedPart",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintTransparentStdPic(c.hdc(), 6, 2, w - 4, h - 2, pic, 4, 2, RGB(255, 0, 0));
     }},
    {"TransparentSystemWhite",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintTransparentStdPic(c.hdc(), 3, 4, w, h, pic, 0, 0, 0x80000000u | win::COLOR_WINDOW);
     }},
    {"Disabled",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintDisabledStdPic(c.hdc(), 3, 4, w, h, pic, 0, 0);
     }},
    // Black ink makes the emboss key on red; a white mask skips the keying.
    {"DisabledBlackOnRed",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintDisabledStdPic(c.hdc(), 3, 4, w, h, pic, 0, 0, kDefaultMaskColor, RGB(0, 0, 255),
                              RGB(0, 0, 0), c.hPal());
     }},
    {"DisabledWhiteMask",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintDisabledStdPic(c.hdc(), 3, 4, w, h, pic, 0, 0, RGB(255, 255, 255));
     }},
    {"Mono",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintMonoStandardPic(pic, c, 3, 4, w, h);
     }},
    {"MonoUnmasked",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintMonoStandardPic(pic, c, 3, 4, w, h, kDefaultMaskColor, RGB(200, 0, 100), nullptr,
                               false);
     }},
    {"Blurred0",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintBlurredStandardPic(pic, c, 3, 4, w, h, 0);
     }},
    {"Blurred2",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintBlurredStandardPic(pic, c, 3, 4, w, h);
     }},
    {"Blurred5Unmasked",
     [](const PaintEffects& fx, Canvas& c, const StdPicture& pic, int w, int h) {
       fx.PaintBlurredStandardPic(pic, c, 3, 4, w, h, 5, kDefaultMaskColor, RGB(0, 0, 90),
                                  c.hPal(), false);
     }},
    {"Faded",
     [](const PaintEffects&, Canvas& c, const StdPicture& pic, int, int) {
       PaintFadedPicture(pic, c.hdc(), 3, 4, -1, -1, 50);
     }},
    {"FadedMasked",
     [](const PaintEffects&, Canvas& c, const StdPicture& pic, int, int) {
       PaintFadedPicture(pic, c.hdc(), 3, 4, -1, -1, 70, kDefaultMaskColor);
     }},
    {"FadedStretched",
     [](const PaintEffects&, Canvas& c, const StdPicture& pic, int w, int h) {
       PaintFadedPicture(pic, c.hdc(), 2, 1, w + w / 3, h - 5, 40, kDefaultMaskColor);
     }},
    {"Greyed",
     [](const PaintEffects&, Canvas& c, const StdPicture& pic, int, int) {
       PaintGreyedPicture(pic, c.hdc(), 3, 4, -1, -1, 50, kPlainGrey);
     }},
    {"GreyedMasked",
     [](const PaintEffects&, Canvas& c, const StdPicture& pic, int, int) {
       PaintGreyedPicture(pic, c.hdc(), 3, 4, -1, -1, 100, kPlainGrey, kDefaultMaskColor);
     }},
    {"GreyedRedShrunk",
     [](const PaintEffects&, Canvas& c, const StdPicture& pic, int w, int h) {
       PaintGreyedPicture(pic, c.hdc(), 3, 4, w / 2 + 1, h / 2, 60, RGB(255, 0, 0),
                          kDefaultMaskColor);
     }},
    {"GreyedBlueTint",
     [](const PaintEffects&, Canvas& c, const StdPicture& pic, int, int) {
       PaintGreyedPicture(pic, c.hdc(), 3, 4, -1, -1, 80, RGB(0, 0, 255), kDefaultMaskColor);
     }},
};

// A picture to make in the engine that paints, with its size in pixels.
struct TestPicture {
  std::string name;
  int width;
  int height;
  std::function<StdPicture()> make;
};

// Samples of each kind (bitmap with mask-coloured parts, odd-sized bitmap, masked icon, alpha
// icon) and every host picture.
std::vector<TestPicture> TestPictures() {
  std::vector<TestPicture> pictures;
  for (const SamplePicture sample : {SamplePicture::Swatches32, SamplePicture::Arrow15x13,
                                     SamplePicture::Globe32Icon, SamplePicture::Gem48AlphaIcon}) {
    const samples::SampleInfo& info = samples::InfoOf(sample);
    pictures.push_back({std::string(info.name), info.width, info.height,
                        [sample] { return samples::MakeSamplePicture(sample); }});
  }
  for (const HostPictureInfo& info : AllHostPictures()) {
    pictures.push_back({std::string(info.name), info.width, info.height,
                        [id = info.id] { return MakeHostPicture(id); }});
  }
  return pictures;
}

std::vector<ParityCase> PictureEffectCases() {
  std::vector<ParityCase> cases;
  for (const PictureEffect effect : kPictureEffects) {
    for (const TestPicture& picture : TestPictures()) {
      cases.push_back(StripedCase(std::string(effect.name) + "_" + picture.name,
                                  [effect, picture](const PaintEffects& fx, Canvas& canvas) {
                                    effect.paint(fx, canvas, picture.make(), picture.width,
                                                 picture.height);
                                  }));
    }
  }
  return cases;
}

// The context forms, from a chequered colour source or a monochrome one.
std::vector<ParityCase> ContextEffectCases() {
  constexpr int kSource = 24;
  constexpr win::COLORREF kCheck = RGB(70, 190, 255);  // one of the source's check colours
  const auto withSource = [](bool monochrome, auto paint) {
    return [=](const PaintEffects& fx, Canvas& canvas) {
      const SourceDc source(kSource, kSource, monochrome);
      PaintChecks(source.dc(), kSource, kSource);
      FillSolid(source.dc(), 6, 6, 14, 12, RGB(0, 255, 255));
      paint(fx, canvas.hdc(), source.dc());
    };
  };
  return {
      StripedCase("TransparentDC", withSource(false, [](auto& fx, auto dest, auto src) {
                    fx.PaintTransparentDC(dest, 4, 4, kSource, kSource, src, 0, 0, kCheck);
                  })),
      // 0 bits take the source's text colour, 1 bits its background colour.
      StripedCase("TransparentDCMonochrome",
                  withSource(true, [](auto& fx, auto dest, auto src) {
                    win::SetTextColor(src, RGB(0, 0, 160));
                    win::SetBkColor(src, RGB(0, 255, 0));
                    fx.PaintTransparentDC(dest, 4, 4, kSource - 2, kSource - 2, src, 2, 2,
                                          RGB(0, 255, 0));
                  })),
      StripedCase("DisabledDC", withSource(false, [](auto& fx, auto dest, auto src) {
                    fx.PaintDisabledDC(dest, 4, 4, kSource, kSource, src, 0, 0);
                  })),
      StripedCase("DisabledDCWhiteMask", withSource(false, [](auto& fx, auto dest, auto src) {
                    fx.PaintDisabledDC(dest, 4, 4, kSource, kSource, src, 0, 0,
                                       RGB(255, 255, 255), RGB(255, 255, 0), RGB(0, 0, 128));
                  })),
      StripedCase("FadedDCGrown", withSource(false, [](auto&, auto dest, auto src) {
                    PaintFadedDC(src, 2, 2, 20, 18, dest, 3, 3, 50, 41, 50, kDefaultMaskColor);
                  })),
      StripedCase("GreyedDCShrunk", withSource(false, [](auto&, auto dest, auto src) {
                    PaintGreyedDC(src, 0, 0, kSource, kSource, dest, 3, 3, 13, 7, 75,
                                  RGB(0, 255, 0));
                  })),
      StripedCase("GreyedDCOwnSize", withSource(false, [](auto&, auto dest, auto src) {
                    PaintGreyedDC(src, 0, 0, kSource, kSource, dest, 5, 5, -1, -1, 30,
                                  RGB(90, 60, 30), kDefaultMaskColor);
                  })),
  };
}

// Areas that hang over the canvas's edges, a mirrored copy and empty areas.
std::vector<ParityCase> EdgeCases() {
  const auto withSwatches = [](auto paint) {
    return [=](const PaintEffects& fx, Canvas& canvas) {
      paint(fx, canvas, samples::MakeSamplePicture(SamplePicture::Swatches32));
    };
  };
  std::vector<ParityCase> cases;
  for (const auto& [name, x, y] :
       {std::tuple{"TopLeft", -7, -5}, std::tuple{"BottomRight", kWidth - 10, kHeight - 8}}) {
    cases.push_back(StripedCase(
        std::string("OverEdge") + name,
        withSwatches([x, y](auto& fx, Canvas& c, const StdPicture& pic) {
          fx.PaintTransparentStdPic(c.hdc(), x, y, 32, 32, pic, 0, 0, kDefaultMaskColor);
          fx.PaintDisabledStdPic(c.hdc(), x + 8, y + 4, 32, 32, pic, 0, 0);
          fx.PaintMonoStandardPic(pic, c, x + 4, y + 12, 32, 32);
          PaintFadedPicture(pic, c.hdc(), x + 12, y + 6, -1, -1, 50, kDefaultMaskColor);
        })));
  }
  cases.push_back(
      StripedCase("NormalMirrored", withSwatches([](auto& fx, Canvas& c, const StdPicture& pic) {
                    fx.PaintNormalStdPic(c.hdc(), 40, 4, -32, 32, pic, 0, 0);
                    fx.PaintNormalStdPic(c.hdc(), 20, 50, 32, -32, pic, 0, 0);
                  })));
  cases.push_back(
      StripedCase("EmptyAreas", withSwatches([](auto& fx, Canvas& c, const StdPicture& pic) {
                    fx.PaintTransparentStdPic(c.hdc(), 3, 4, 0, 32, pic, 0, 0, kDefaultMaskColor);
                    fx.PaintDisabledStdPic(c.hdc(), 3, 4, 32, 0, pic, 0, 0);
                    fx.PaintMonoStandardPic(pic, c, 3, 4, 0, 0);
                    fx.PaintBlurredStandardPic(pic, c, 3, 4, -4, 32);
                    PaintGreyedPicture(pic, c.hdc(), 3, 4, 0, 10, 50, kPlainGrey);
                  })));
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Pictures, EngineParity, ::testing::ValuesIn(PictureEffectCases()),
                         ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Edges, EngineParity, ::testing::ValuesIn(EdgeCases()), ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Contexts, EngineParity, ::testing::ValuesIn(ContextEffectCases()),
                         ParityCaseName);

}  // namespace
}  // namespace glyphon::testing
