// New instances, saving and loading: keys, defaults, order of access and the style rules.
#include <gtest/gtest.h>

#include "control/host/memory_property_bag.h"
#include "control/property_access.h"
#include "surface/mod_colors.h"
#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using Keys = std::vector<std::string>;
using Log = std::vector<std::string>;

const Keys kWrittenKeys{
    "Caption",        "Alignment",    "Default",       "Enabled",         "Font",
    "ToolTipText",    "StealFocus",   "BackColor",     "ForeColor",       "HighlightColor",
    "ShadowColor",    "BorderColor",  "DisabledColor", "MaskColor",       "UseMaskColor",
    "Picture",        "PictureDown",  "PictureOver",   "PictureDisabled", "PictureAlignment",
    "PictureSpacing", "PictureStyle", "ShowFocus",     "ShowDefault",     "BorderStyle",
    "DropShadow",     "Style",        "MouseIcon",     "MousePointer",    "RightToLeft"};

// Keys read before the colour rule and between it and the style rule.
const Keys kLeadingReads{"Caption", "Alignment", "Default",   "ToolTipText", "StealFocus",
                         "Font",    "Enabled",   "BackColor", "ForeColor"};
const Keys kDependentColors{"ShadowColor", "BorderColor", "HighlightColor", "DisabledColor"};
const Keys kMiddleReads{"MaskColor",      "UseMaskColor",    "Picture",          "PictureDown",
                        "PictureOver",    "PictureDisabled", "PictureAlignment", "PictureStyle",
                        "PictureSpacing", "Style",           "DropShadow",       "MouseIcon",
                        "MousePointer",   "RightToLeft"};

Keys Concat(std::initializer_list<Keys> parts) {
  Keys all;
  for (const Keys& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

using PersistenceTest = HostedButtonTest;

std::int32_t StoredInt(const MemoryPropertyBag& bag, std::string_view key) {
  const PropertyValue* value = bag.Find(key);
  return value != nullptr ? std::get<std::int32_t>(*value) : -12345;
}

TEST(NewInstanceTest, GetsTheDefaults) {
  LeakCheck leaks;
  HostedButton hosted({}, false);
  Glyphon& b = hosted.button;
  hosted.host.SetEnabled(false);
  hosted.host.ClearLog();
  b.InitProperties();

  EXPECT_EQ(b.Caption(), "Glyphon1");
  EXPECT_TRUE(b.Enabled());
  EXPECT_EQ(b.PushLook(), 1);
  EXPECT_FALSE(b.SuppressRedraw());
  // Every other default equals the stored default: saving keeps nothing but the pointer.
  MemoryPropertyBag bag;
  b.WriteProperties(bag);
  EXPECT_EQ(bag.Size(), 1u);
  ASSERT_NE(bag.Find("MousePointer"), nullptr);
  EXPECT_TRUE(SameStoredValue(*bag.Find("MousePointer"), std::int16_t{zonDefault}));
  // Only the font goes through its setter; nothing paints while loading.
  EXPECT_EQ(hosted.host.Log(), Log{"changed Font"});
}

TEST(NewInstanceTest, CaptionFallsBackWhenTheContainerHasNoName) {
  LeakCheck leaks;
  HostedButton hosted({}, false);
  hosted.host.ExtenderObject().name.reset();
  hosted.button.InitProperties();
  EXPECT_EQ(hosted.button.Caption(), "Glyphon");
  hosted.host.SetHasExtender(false);
  MemoryPropertyBag bag;
  hosted.button.ReadProperties(bag);
  EXPECT_EQ(hosted.button.Caption(), "Glyphon");
}

TEST_F(PersistenceTest, WritesAllThirtyKeysInOrderWhateverTheStyle) {
  MemoryPropertyBag bag;
  button_.WriteProperties(bag);
  EXPECT_EQ(bag.WrittenKeys(), kWrittenKeys);

  button_.SetStyle(zonStyleMac8x);  // every key is written whatever the style
  MemoryPropertyBag macBag;
  button_.WriteProperties(macBag);
  EXPECT_EQ(macBag.WrittenKeys(), kWrittenKeys);
}

TEST(RoundTripTest, RestoresEveryProperty) {
  LeakCheck leaks;
  MemoryPropertyBag bag;
  const StdPicture picture = StdPicture::FromBitmap(nullptr, false);
  StdFont font;
  font.Name("Arial");
  // In the order they are set: the style before its border, disabling last.
  const std::pair<const char*, PropertyValue> customised[] = {
      {"Style", zonStyleWin3x},
      {"BorderStyle", zonBorderNone},
      {"Caption", std::string("&Print")},
      {"Alignment", zonAlignRight},
      {"Default", true},
      {"ToolTipText", std::string("Prints")},
      {"StealFocus", false},
      {"BackColor", std::int32_t{win::RGB(10, 20, 30)}},
      {"ShadowColor", 0x010101},
      {"ForeColor", 0x00FF00},
      {"MaskColor", 0x0000FF},
      {"UseMaskColor", false},
      {"Picture", picture},
      {"PictureDisabled", picture},
      {"PictureAlignment", zonPicAlignBottom},
      {"PictureSpacing", 12},
      {"PictureStyle", zonPicStyleMono},
      {"ShowFocus", false},
      {"DropShadow", true},
      {"MousePointer", zonCustom},
      {"RightToLeft", true},
      {"Enabled", false},
  };
  {
    HostedButton saved;
    saved.button.SetFont(font);
    for (const auto& [name, value] : customised) SetPropertyByName(saved.button, name, value);
    saved.button.WriteProperties(bag);
  }

  HostedButton loaded({}, false);
  Glyphon& b = loaded.button;
  b.ReadProperties(bag);
  for (const auto& [name, value] : customised) {
    if (std::string_view(name) == "Default") continue;
    EXPECT_TRUE(SameStoredValue(GetPropertyByName(b, name), value)) << name;
  }
  EXPECT_FALSE(b.Default()) << "disabling cleared it before saving";
  EXPECT_EQ(b.DisplayCaption(), "Print");
  EXPECT_EQ(loaded.host.AccessKeys(), "P");
  EXPECT_EQ(b.Font().Name(), "Arial");
  EXPECT_TRUE(b.PictureDown().IsNothing());
  EXPECT_EQ(b.PushLook(), 1);
  EXPECT_EQ(StoredInt(bag, "PictureSpacing"), 12) << "written as 32-bit";
}

TEST_F(PersistenceTest, CaptionEqualToTheNameFollowsARename) {
  MemoryPropertyBag bag;
  button_.WriteProperties(bag);
  EXPECT_EQ(bag.Find("Caption"), nullptr);

  host_.ExtenderObject().name = "cmdRenamed";
  button_.ReadProperties(bag);
  EXPECT_EQ(button_.Caption(), "cmdRenamed");
}

TEST_F(PersistenceTest, ReadOrderAndTheSystemColourRule) {
  MemoryPropertyBag bag;
  bag.Store("ShadowColor", std::int32_t{0x0000FF});
  button_.ReadProperties(bag);
  EXPECT_EQ(bag.ReadKeys(), Concat({kLeadingReads, kMiddleReads, {"ShowFocus", "ShowDefault"}}));
  // With a system back colour the stored shadow is ignored and the colours are derived.
  win::COLORREF shadow = 0;
  win::COLORREF border = 0;
  win::COLORREF highlight = 0;
  modColors::DeriveButtonColors(0x8000000F, shadow, border, highlight);
  EXPECT_EQ(button_.ShadowColor(), shadow);
  EXPECT_EQ(button_.DisabledColor(), shadow);
  EXPECT_EQ(button_.HighlightColor(), highlight);

  bag.Store("BackColor", static_cast<std::int32_t>(win::RGB(1, 2, 3)));
  bag.ClearKeyLog();
  button_.ReadProperties(bag);
  EXPECT_EQ(bag.ReadKeys(),
            Concat({kLeadingReads, kDependentColors, kMiddleReads, {"ShowFocus", "ShowDefault"}}));
  EXPECT_EQ(button_.ShadowColor(), 0x0000FFu);
  EXPECT_EQ(button_.DisabledColor(), 0x80000011u);
}

TEST_F(PersistenceTest, StyleDecidesWhichSettingsAreRead) {
  MemoryPropertyBag bag;
  bag.Store("BorderStyle", std::int32_t{zonBorderSingle});
  bag.Store("ShowFocus", false);
  bag.Store("ShowDefault", false);

  struct Case {
    std::int32_t style;
    Keys styleReads;
    std::int32_t borderStyle;
    bool showFocus;
    bool showDefault;
  };
  const Case cases[] = {
      {zonStyleWin9x, {"ShowFocus", "ShowDefault"}, zonBorderNone, false, false},
      {zonStyleWin3x, {"ShowFocus", "ShowDefault", "BorderStyle"}, zonBorderSingle, false, false},
      {zonStyleWinXPOliveGreen, {"ShowFocus"}, zonBorderSingle, false, true},
      {zonStyleMac8x, {"ShowDefault"}, zonBorderSingle, false, false},
  };
  for (const Case& c : cases) {
    bag.Store("Style", c.style);
    bag.ClearKeyLog();
    button_.ReadProperties(bag);
    const Keys& reads = bag.ReadKeys();
    EXPECT_EQ(Keys(reads.end() - static_cast<long>(c.styleReads.size()), reads.end()), c.styleReads)
        << c.style;
    EXPECT_EQ(button_.BorderStyle(), c.borderStyle) << c.style;
    EXPECT_EQ(button_.ShowFocus(), c.showFocus) << c.style;
    EXPECT_EQ(button_.ShowDefault(), c.showDefault) << c.style;
  }

  bag.Store("ShowFocus", true);
  bag.Store("Style", std::int32_t{zonStyleMac8x});
  button_.ReadProperties(bag);
  EXPECT_FALSE(button_.ShowFocus()) << "a Mac button never shows focus";
  bag.Store("BorderStyle", std::int32_t{zonBorderNone});
  bag.Store("Style", std::int32_t{zonStyleWinXPBlue});
  button_.ReadProperties(bag);
  EXPECT_EQ(button_.BorderStyle(), zonBorderSingle);
}

TEST_F(PersistenceTest, MissingPointerLoadsAsArrow) {
  MemoryPropertyBag bag;
  button_.ReadProperties(bag);
  EXPECT_EQ(button_.MousePointer(), zonArrow);
}

TEST_F(PersistenceTest, ValuesOfOtherTypesAreCoercedOrDefaulted) {
  MemoryPropertyBag bag;
  bag.Store("Alignment", std::int16_t{zonAlignLeft});  // widened
  bag.Store("MousePointer", std::int32_t{zonIBeam});   // narrowed, fits
  bag.Store("PictureSpacing", std::string("  17 "));   // numeric text
  bag.Store("BackColor", std::string("&H00FF0000"));   // hexadecimal text
  bag.Store("Caption", std::int32_t{42});              // number as text
  bag.Store("Default", std::int16_t{-1});              // Boolean as integer
  bag.Store("Style", std::string("XP please"));        // not a number: default
  bag.Store("RightToLeft", StdPicture::Empty());       // wrong kind: default
  bag.Store("Font", std::int32_t{3});                  // not a font: ambient font
  bag.Store("Picture", std::string("photo.bmp"));      // not a picture: none
  bag.Store("PictureStyle", std::int32_t{70000});      // no range check here
  bag.Store("UseMaskColor", std::monostate{});

  button_.ReadProperties(bag);
  EXPECT_EQ(button_.Alignment(), zonAlignLeft);
  EXPECT_EQ(button_.MousePointer(), zonIBeam);
  EXPECT_EQ(button_.PictureSpacing(), 17);
  EXPECT_EQ(button_.BackColor(), 0x00FF0000u);
  EXPECT_EQ(button_.Caption(), "42");
  EXPECT_TRUE(button_.Default());
  EXPECT_EQ(button_.Style(), zonStyleWin9x);
  EXPECT_FALSE(button_.RightToLeft());
  EXPECT_EQ(button_.Font().Name(), host_.Ambient().Font().Name());
  EXPECT_TRUE(button_.Picture().IsNothing());
  EXPECT_EQ(button_.PictureStyle(), 70000);
  EXPECT_TRUE(button_.UseMaskColor());

  bag.Store("MousePointer", std::int32_t{40000});  // does not fit 16 bits: default
  button_.ReadProperties(bag);
  EXPECT_EQ(button_.MousePointer(), zonArrow);
}

TEST(NewInstanceTest, LoadingPaintsNothingUntilItEnds) {
  LeakCheck leaks;
  HostedButton hosted({}, false);
  MemoryPropertyBag bag;
  hosted.button.ReadProperties(bag);
  EXPECT_EQ(Only(hosted.host.Log(), "paint"), Log{});
  EXPECT_FALSE(hosted.button.SuppressRedraw());
  hosted.button.Paint();
  EXPECT_EQ(Only(hosted.host.Log(), "paint"), Log{"paint Up"});
}

}  // namespace
}  // namespace glyphon::testing
