// Every look through the native and the soft engine, pixel for pixel: background and frame alone,
// and with a picture and an empty caption. Picture handles belong to the engine that made them, so
// each render makes its own pictures inside the engine scope it paints in.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/codec/bitmap_png.h"
#include "samples/sample_pictures.h"
#include "tests/support/test_button.h"
#include "tests/windows/engine_parity.h"
#include "tests/windows/host_pictures.h"

namespace glyphon::testing {
namespace {

using samples::SamplePicture;

constexpr const char* kStyleNames[] = {"Win9x",        "Win3x",    "XPBlue",
                                       "XPOliveGreen", "XPSilver", "Mac8x"};
constexpr const char* kStateNames[] = {"Hot", "Down", "Up"};
constexpr std::int32_t kStates[] = {DrawStateHot, DrawStateDown, DrawStateUp};

std::string SampleName(SamplePicture sample) { return std::string(samples::InfoOf(sample).name); }

using PictureMaker = std::function<StdPicture()>;

PictureMaker Sample(SamplePicture sample) {
  return [sample] { return samples::MakeSamplePicture(sample); };
}

// A button of the given style with the picture made as its Picture, changed by setUp (which
// runs in the engine scope too, so it may make more pictures) and painted whole in drawState;
// without a picture maker, only its background and frame are painted.
ParityCase ButtonCase(std::string name, std::int32_t style, const PictureMaker& makePicture,
                      std::int32_t drawState, std::function<void(TestButton&)> setUp = {},
                      int width = 72, int height = 60) {
  return {std::move(name), [=] {
            TestButton button;
            button.style = style;
            button.borderStyle = style == zonStyleWin3x ? zonBorderSingle : zonBorderNone;
            if (makePicture) button.picture = makePicture();
            if (setUp) setUp(button);
            const auto canvas = makePicture ? PaintButton(button, width, height, drawState)
                                            : PaintLook(button, width, height, drawState);
            return Captured(canvas->hdc());
          }};
}

// Every style in every state, enabled or not, plain or default with the focus, without content
// and with a picture at the button's defaults.
std::vector<ParityCase> StyleLookCases() {
  std::vector<ParityCase> cases;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    for (const std::int32_t state : kStates) {
      for (const bool enabled : {true, false}) {
        for (const bool decorated : {false, true}) {
          for (const bool withPicture : {false, true}) {
            const std::string name = std::string(kStyleNames[style]) + "_" + kStateNames[state] +
                                     (enabled ? "" : "_Disabled") +
                                     (decorated ? "_DefaultFocus" : "") +
                                     (withPicture ? "_Picture" : "");
            cases.push_back(ButtonCase(
                name, style, withPicture ? Sample(SamplePicture::Check16) : PictureMaker{}, state,
                [=](TestButton& b) {
                  b.enabled = enabled;
                  b.isDefault = decorated;
                  b.hasFocus = decorated;
                },
                81, 25));
          }
        }
      }
    }
  }
  return cases;
}

// Each PictureStyle (Active both idling in a running form and in full at design time) in each
// state, with and without drop shadow and mask colour, for a bitmap with mask-coloured holes, a
// masked icon and an alpha icon, each under another style's shadow colour.
std::vector<ParityCase> PictureStyleCases() {
  struct Variant {
    const char* name;
    std::int32_t pictureStyle;
    bool userMode;
  };
  constexpr Variant kVariants[] = {
      {"Normal", zonPicStyleNormal, true},    {"Mono", zonPicStyleMono, true},
      {"Popup", zonPicStylePopup, true},      {"Static", zonPicStyleStatic, true},
      {"ActiveRun", zonPicStyleActive, true}, {"ActiveDesign", zonPicStyleActive, false}};
  struct Subject {
    std::int32_t style;
    SamplePicture sample;
  };
  constexpr Subject kSubjects[] = {{zonStyleWin9x, SamplePicture::Swatches32},
                                   {zonStyleWinXPSilver, SamplePicture::Globe32Icon},
                                   {zonStyleMac8x, SamplePicture::Gem48AlphaIcon}};
  std::vector<ParityCase> cases;
  for (const Subject subject : kSubjects) {
    for (const Variant variant : kVariants) {
      for (const std::int32_t state : kStates) {
        for (const bool dropShadow : {false, true}) {
          for (const bool useMask : {false, true}) {
            const std::string name = std::string(kStyleNames[subject.style]) + "_" +
                                     SampleName(subject.sample) + "_" + variant.name + "_" +
                                     kStateNames[state] + (dropShadow ? "_Shadow" : "") +
                                     (useMask ? "_Masked" : "");
            cases.push_back(
                ButtonCase(name, subject.style, Sample(subject.sample), state, [=](TestButton& b) {
                  b.pictureStyle = variant.pictureStyle;
                  b.userMode = variant.userMode;
                  b.dropShadow = dropShadow;
                  b.useMaskColor = useMask;
                }));
          }
        }
      }
    }
  }
  // A default button that shows its ring counts as active, idle or not.
  cases.push_back(ButtonCase("Win9x_ActiveRun_Up_Default", zonStyleWin9x,
                             Sample(SamplePicture::Swatches32), DrawStateUp, [](TestButton& b) {
                               b.pictureStyle = zonPicStyleActive;
                               b.isDefault = true;
                             }));
  return cases;
}

// The disabled looks of each style: embossed silhouettes, the XP greyed picture, and the
// button's own PictureDisabled drawn plain.
std::vector<ParityCase> DisabledCases() {
  constexpr SamplePicture kSamples[] = {SamplePicture::Check16, SamplePicture::Swatches32,
                                        SamplePicture::Stop16Icon, SamplePicture::Gem48AlphaIcon};
  std::vector<ParityCase> cases;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    const std::string prefix = std::string(kStyleNames[style]) + "_Disabled_";
    for (const SamplePicture sample : kSamples) {
      for (const bool useMask : {false, true}) {
        cases.push_back(ButtonCase(prefix + SampleName(sample) + (useMask ? "_Masked" : ""), style,
                                   Sample(sample), DrawStateUp, [=](TestButton& b) {
                                     b.enabled = false;
                                     b.useMaskColor = useMask;
                                   }));
      }
    }
    cases.push_back(ButtonCase(prefix + "PictureDisabled", style, Sample(SamplePicture::Check16),
                               DrawStateDown, [](TestButton& b) {
                                 b.enabled = false;
                                 b.pictureDisabled =
                                     samples::MakeSamplePicture(SamplePicture::Folder16);
                               }));
  }
  // The dormant look without the pressed shift: a flat silhouette when disabled, and a mono
  // picture that takes the face colour when down.
  cases.push_back(ButtonCase("Win9x_Disabled_Flat", zonStyleWin9x,
                             Sample(SamplePicture::Swatches32), DrawStateUp, [](TestButton& b) {
                               b.enabled = false;
                               b.pushLook = 0;
                             }));
  cases.push_back(ButtonCase("Win9x_Mono_Down_Flat", zonStyleWin9x,
                             Sample(SamplePicture::Swatches32), DrawStateDown, [](TestButton& b) {
                               b.pictureStyle = zonPicStyleMono;
                               b.pushLook = 0;
                             }));
  return cases;
}

// Every sample, plain and as a silhouette, keyed and not; the large landscape overflows the
// button on every side.
std::vector<ParityCase> SampleCases() {
  std::vector<ParityCase> cases;
  for (const samples::SampleInfo& info : samples::AllSamplePictures()) {
    for (const std::int32_t pictureStyle : {zonPicStyleNormal, zonPicStyleMono}) {
      for (const bool useMask : {false, true}) {
        const std::string name = "Sample_" + std::string(info.name) +
                                 (pictureStyle == zonPicStyleMono ? "_Mono" : "_Normal") +
                                 (useMask ? "_Masked" : "");
        cases.push_back(
            ButtonCase(name, zonStyleWin9x, Sample(info.id), DrawStateHot, [=](TestButton& b) {
              b.pictureStyle = pictureStyle;
              b.useMaskColor = useMask;
            }));
      }
    }
  }
  return cases;
}

// Every Alignment by PictureAlignment, on a short odd-sized 9x button and on a focused 3.x one,
// whose dotted focus rectangle hugs the picture.
std::vector<ParityCase> AlignmentCases() {
  constexpr const char* kAlignments[] = {"Left", "Right", "Center"};
  constexpr const char* kPictureAlignments[] = {"Left", "Right", "Center", "Top", "Bottom"};
  std::vector<ParityCase> cases;
  for (const std::int32_t style : {zonStyleWin9x, zonStyleWin3x}) {
    for (std::int32_t alignment = zonAlignLeft; alignment <= zonAlignCenter; ++alignment) {
      for (std::int32_t picture = zonPicAlignLeft; picture <= zonPicAlignBottom; ++picture) {
        const std::string name = std::string(kStyleNames[style]) + "_Align" +
                                 kAlignments[alignment] + "_Picture" + kPictureAlignments[picture];
        cases.push_back(ButtonCase(
            name, style, Sample(SamplePicture::Arrow15x13), DrawStateDown,
            [=](TestButton& b) {
              b.alignment = alignment;
              b.pictureAlignment = picture;
              b.hasFocus = style == zonStyleWin3x;
            },
            81, style == zonStyleWin3x ? 40 : 25));
      }
    }
  }
  return cases;
}

// Colours other than the defaults: a mask that keys a picture colour, a system colour as the mask
// (the XP greyed picture and the faded one translate it themselves), and a custom face whose
// derived shadow inks the drop shadow and the embossed look.
std::vector<ParityCase> ColourCases() {
  const PictureMaker swatches = Sample(SamplePicture::Swatches32);
  constexpr win::OLE_COLOR kSystemWhite = 0x80000000u | win::COLOR_WINDOW;
  return {
      ButtonCase("Win9x_MaskRed", zonStyleWin9x, swatches, DrawStateHot,
                 [](TestButton& b) { b.maskColor = win::RGB(255, 0, 0); }),
      ButtonCase("XPBlue_Disabled_MaskSystemWhite", zonStyleWinXPBlue, swatches, DrawStateUp,
                 [=](TestButton& b) {
                   b.enabled = false;
                   b.maskColor = kSystemWhite;
                 }),
      ButtonCase("Mac8x_ActiveRun_MaskSystemWhite", zonStyleMac8x, swatches, DrawStateUp,
                 [=](TestButton& b) {
                   b.pictureStyle = zonPicStyleActive;
                   b.maskColor = kSystemWhite;
                 }),
      ButtonCase("Win9x_CustomFace_Mono_Down_Shadow", zonStyleWin9x, swatches, DrawStateDown,
                 [](TestButton& b) {
                   b.SetBackColor(win::RGB(200, 180, 140));
                   b.pictureStyle = zonPicStyleMono;
                   b.dropShadow = true;
                 }),
      ButtonCase("Win3x_CustomFace_Disabled", zonStyleWin3x, swatches, DrawStateUp,
                 [](TestButton& b) {
                   b.SetBackColor(win::RGB(60, 90, 160));
                   b.enabled = false;
                 }),
  };
}

// Every picture a host may hand over that the samples do not make: copied with a drop shadow,
// embossed, greyed and faded.
std::vector<ParityCase> HostPictureCases() {
  struct Use {
    const char* name;
    std::int32_t style;
    std::int32_t drawState;
    void (*setUp)(TestButton&);
  };
  constexpr Use kUses[] = {
      {"Shadow", zonStyleWin9x, DrawStateHot, [](TestButton& b) { b.dropShadow = true; }},
      {"Embossed", zonStyleWin9x, DrawStateUp, [](TestButton& b) { b.enabled = false; }},
      {"Greyed", zonStyleWinXPOliveGreen, DrawStateUp, [](TestButton& b) { b.enabled = false; }},
      {"Faded", zonStyleWinXPBlue, DrawStateUp,
       [](TestButton& b) { b.pictureStyle = zonPicStyleActive; }},
  };
  std::vector<ParityCase> cases;
  for (const HostPictureInfo& info : AllHostPictures()) {
    for (const Use use : kUses) {
      cases.push_back(ButtonCase(
          "Host_" + std::string(info.name) + "_" + use.name, use.style,
          [id = info.id] { return MakeHostPicture(id); }, use.drawState, use.setUp));
    }
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(Looks, EngineParity, ::testing::ValuesIn(StyleLookCases()),
                         ParityCaseName);
INSTANTIATE_TEST_SUITE_P(PictureStyles, EngineParity, ::testing::ValuesIn(PictureStyleCases()),
                         ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Disabled, EngineParity, ::testing::ValuesIn(DisabledCases()),
                         ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Samples, EngineParity, ::testing::ValuesIn(SampleCases()), ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Colours, EngineParity, ::testing::ValuesIn(ColourCases()), ParityCaseName);
INSTANTIATE_TEST_SUITE_P(HostPictures, EngineParity, ::testing::ValuesIn(HostPictureCases()),
                         ParityCaseName);
INSTANTIATE_TEST_SUITE_P(Alignments, EngineParity, ::testing::ValuesIn(AlignmentCases()),
                         ParityCaseName);

}  // namespace
}  // namespace glyphon::testing
