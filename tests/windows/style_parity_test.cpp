// Every look through the native and the soft engine, pixel for pixel: background and frame of
// each style by state, enabled, default and focus.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/codec/bitmap_png.h"
#include "tests/support/test_button.h"
#include "tests/support/leak_check.h"
#include "tests/windows/engine_parity.h"

namespace glyphon::testing {
namespace {

constexpr const char* kStyleNames[] = {"Win9x",       "Win3x",      "XPBlue",
                                       "XPOliveGreen", "XPSilver", "Mac8x"};
constexpr const char* kStateNames[] = {"Hot", "Down", "Up"};

ParityCase LookCase(std::int32_t style, std::int32_t state, bool enabled, bool decorated) {
  std::string name = std::string(kStyleNames[style]) + "_" + kStateNames[state];
  if (!enabled) name += "_Disabled";
  if (decorated) name += "_DefaultFocus";
  return {name, [=] {
            TestButton button;
            button.style = style;
            button.borderStyle = style == zonStyleWin3x ? zonBorderSingle : zonBorderNone;
            button.enabled = enabled;
            button.isDefault = decorated;
            button.hasFocus = decorated;
            const auto canvas = PaintLook(button, 81, 25, state);
            const std::optional<Image> image = CaptureDc(canvas->hdc());
            return image ? *image : Image{};
          }};
}

std::vector<ParityCase> LookCases() {
  std::vector<ParityCase> cases;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    for (const std::int32_t state : {DrawStateHot, DrawStateDown, DrawStateUp}) {
      for (const bool enabled : {true, false}) {
        for (const bool decorated : {false, true}) {
          cases.push_back(LookCase(style, state, enabled, decorated));
        }
      }
    }
  }
  return cases;
}

class StyleParity : public ::testing::TestWithParam<ParityCase> {};

TEST_P(StyleParity, BothEnginesPaintTheSameLook) {
  LeakCheck leaks;
  EXPECT_TRUE(EnginesAgree(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Looks, StyleParity, ::testing::ValuesIn(LookCases()), ParityCaseName);

}  // namespace
}  // namespace glyphon::testing
