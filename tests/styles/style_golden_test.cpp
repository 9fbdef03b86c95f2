// Golden images of every look: background and frame, with no caption or picture, by state, flag
// and size. Regenerate only on purpose, after checking the new pictures by eye:
//   GLYPHON_UPDATE_GOLDEN=1 build/release/tests/style_tests --gtest_filter='AllStyles/*'
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "tests/support/test_button.h"
#include "tests/support/image_compare.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

struct LookCase {
  std::int32_t style = zonStyleWin9x;
  std::int32_t state = DrawStateUp;
  int width = 81;
  int height = 25;
  bool enabled = true;
  bool isDefault = false;
  // Focused with ShowFocus on.
  bool focus = false;
  bool designMode = false;
  std::int32_t borderStyle = zonBorderNone;
  // A peach BackColor with its derived frame colours instead of the system button face.
  bool peach = false;
  bool flat = false;
};

constexpr const char* kStyleNames[] = {"win9x", "win3x", "xp_blue", "xp_olive", "xp_silver",
                                       "mac8"};
constexpr const char* kStateNames[] = {"hot", "down", "up"};
constexpr std::int32_t kStates[] = {DrawStateHot, DrawStateDown, DrawStateUp};
constexpr win::COLORREF kPeach = win::RGB(255, 200, 120);

// The button a control would be for the case: Win3x comes with a single border.
LookCase ForStyle(std::int32_t style) {
  LookCase c;
  c.style = style;
  c.borderStyle = style == zonStyleWin3x ? zonBorderSingle : zonBorderNone;
  return c;
}

std::string NameOf(const LookCase& c) {
  std::string name = std::string(kStyleNames[c.style]) + "_" + std::to_string(c.width) + "x" +
                     std::to_string(c.height) + "_" + kStateNames[c.state];
  if (!c.enabled) name += "_disabled";
  if (c.isDefault) name += "_default";
  if (c.focus) name += "_focus";
  if (c.designMode) name += "_design";
  if (c.borderStyle != ForStyle(c.style).borderStyle) {
    name += c.borderStyle == zonBorderNone ? "_borderless" : "_single";
  }
  if (c.peach) name += "_peach";
  if (c.flat) name += "_flat";
  return name;
}

// The case for the style in the state, changed by setUp.
template <class SetUp>
LookCase Case(std::int32_t style, std::int32_t state, SetUp setUp) {
  LookCase c = ForStyle(style);
  c.state = state;
  setUp(c);
  return c;
}

std::vector<LookCase> AllCases() {
  std::vector<LookCase> cases;
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    for (const std::int32_t state : kStates) {
      // Every state by enabled, default and focus, at the usual size, in run mode.
      for (const bool enabled : {true, false}) {
        for (const bool isDefault : {false, true}) {
          for (const bool focus : {false, true}) {
            cases.push_back(Case(style, state, [&](LookCase& c) {
              c.enabled = enabled;
              c.isDefault = isDefault;
              c.focus = focus;
            }));
          }
        }
      }
      // At design time a disabled default button still shows its ring.
      cases.push_back(Case(style, state, [](LookCase& c) {
        c.enabled = false;
        c.isDefault = true;
        c.designMode = true;
      }));
      // The extreme sizes: plain, and default with focus.
      for (const auto& [width, height] : {std::pair{5, 5}, std::pair{200, 60}}) {
        for (const bool decorated : {false, true}) {
          cases.push_back(Case(style, state, [&](LookCase& c) {
            c.width = width;
            c.height = height;
            c.isDefault = c.focus = decorated;
          }));
        }
      }
    }
  }
  for (const std::int32_t state : kStates) {
    for (const bool isDefault : {false, true}) {
      // Borderless Win3x: a dotted outline at design time only, enabled or not.
      for (const bool designMode : {false, true}) {
        for (const bool enabled : {true, false}) {
          cases.push_back(Case(zonStyleWin3x, state, [&](LookCase& c) {
            c.isDefault = isDefault;
            c.enabled = enabled;
            c.designMode = designMode;
            c.borderStyle = zonBorderNone;
          }));
        }
      }
      // The flat looks on a colour of their own.
      for (const std::int32_t style : {zonStyleWin9x, zonStyleWin3x}) {
        cases.push_back(Case(style, state, [&](LookCase& c) {
          c.isDefault = isDefault;
          c.focus = c.peach = true;
        }));
      }
      // The dormant flat mode: Win9x borders at design and run time, Win3x without a pressed
      // shadow.
      for (const auto& [borderStyle, designMode] :
           {std::pair{zonBorderNone, false}, {zonBorderNone, true}, {zonBorderSingle, false}}) {
        cases.push_back(Case(zonStyleWin9x, state, [&](LookCase& c) {
          c.isDefault = isDefault;
          c.focus = c.flat = true;
          c.borderStyle = borderStyle;
          c.designMode = designMode;
        }));
      }
    }
    cases.push_back(Case(zonStyleWin3x, state, [](LookCase& c) { c.flat = true; }));
  }
  return cases;
}

// Test listings show the case by its image's name.
void PrintTo(const LookCase& c, std::ostream* os) { *os << NameOf(c); }

TestButton ButtonFor(const LookCase& c) {
  TestButton button;
  button.style = c.style;
  button.borderStyle = c.borderStyle;
  if (c.peach) button.SetBackColor(kPeach);
  button.enabled = c.enabled;
  button.isDefault = c.isDefault;
  button.hasFocus = c.focus;
  button.showFocus = c.focus;
  button.userMode = !c.designMode;
  button.pushLook = c.flat ? 0 : 1;
  return button;
}

class Looks : public ::testing::TestWithParam<LookCase> {};

TEST_P(Looks, MatchGolden) {
  LeakCheck leaks;
  const LookCase& c = GetParam();
  const auto canvas = PaintLook(ButtonFor(c), c.width, c.height, c.state);
  const std::string path = GLYPHON_GOLDEN_DIR "/styles/" + NameOf(c) + ".png";
  EXPECT_TRUE(DcMatchesPng(canvas->hdc(), path));
}

INSTANTIATE_TEST_SUITE_P(AllStyles, Looks, ::testing::ValuesIn(AllCases()),
                         [](const auto& testInfo) { return NameOf(testInfo.param); });

}  // namespace
}  // namespace glyphon::testing
