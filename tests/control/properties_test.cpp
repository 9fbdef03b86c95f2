// Setter rules: what each property stores, repaints, notifies, and the errors it raises.
#include <gtest/gtest.h>

#include <functional>

#include "control/glyphon_errors.h"
#include "surface/mod_colors.h"
#include "tests/control/hosted_button.h"
#include "tests/support/error_of.h"

namespace glyphon::testing {
namespace {

using Log = std::vector<std::string>;

using PropertiesTest = HostedButtonTest;

TEST_F(PropertiesTest, LookSettersStoreRepaintThenNotify) {
  const std::vector<std::pair<std::string, std::function<void()>>> setters{
      {"Alignment", [&] { button_.SetAlignment(zonAlignLeft); }},
      {"BorderColor", [&] { button_.SetBorderColor(0x112233); }},
      {"Caption", [&] { button_.SetCaption("Go"); }},
      {"Default", [&] { button_.SetDefault(true); }},
      {"DisabledColor", [&] { button_.SetDisabledColor(0x445566); }},
      {"DropShadow", [&] { button_.SetDropShadow(true); }},
      {"Enabled", [&] { button_.SetEnabled(true); }},
      {"ForeColor", [&] { button_.SetForeColor(0x0000FF); }},
      {"HighlightColor", [&] { button_.SetHighlightColor(0xFFFFFF); }},
      {"MaskColor", [&] { button_.SetMaskColor(0x00FF00); }},
      {"PictureAlignment", [&] { button_.SetPictureAlignment(zonPicAlignTop); }},
      {"PictureSpacing", [&] { button_.SetPictureSpacing(-7); }},
      {"PictureStyle", [&] { button_.SetPictureStyle(zonPicStyleActive); }},
      {"ShadowColor", [&] { button_.SetShadowColor(0x808080); }},
      {"ShowFocus", [&] { button_.SetShowFocus(false); }},
      {"Style", [&] { button_.SetStyle(zonStyleWinXPSilver); }},
      {"UseMaskColor", [&] { button_.SetUseMaskColor(false); }},
      {"Picture", [&] { button_.SetPicture(StdPicture{}); }},
  };
  for (const auto& [name, set] : setters) {
    host_.ClearLog();
    set();
    EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed " + name})) << name;
  }
  EXPECT_EQ(button_.PictureSpacing(), -7) << "no range check";
}

TEST_F(PropertiesTest, DelegatedSettersNotifyWithoutRepainting) {
  button_.SetMousePointer(zonHourglass);
  button_.SetRightToLeft(true);
  button_.SetToolTipText("tip");
  button_.SetTag("kept by the host");
  EXPECT_EQ(host_.Log(),
            (Log{"changed MousePointer", "changed RightToLeft", "changed ToolTipText"}));
  EXPECT_EQ(host_.MousePointer(), zonHourglass);
  EXPECT_TRUE(host_.RightToLeft());
  EXPECT_EQ(host_.Tag(), "kept by the host");
  EXPECT_EQ(button_.ToolTipText(), "tip");

  const AutomationError overflow = ErrorOf([&] { button_.SetMousePointer(40000); });
  EXPECT_EQ(overflow.Number(), kOverflowNumber);
  EXPECT_EQ(button_.MousePointer(), zonHourglass);
}

TEST_F(PropertiesTest, BackColorDerivesTheFrameColours) {
  const win::OLE_COLOR back = win::RGB(212, 208, 200);
  button_.SetBackColor(back);

  win::COLORREF shadow = 0;
  win::COLORREF border = 0;
  win::COLORREF highlight = 0;
  modColors::DeriveButtonColors(back, shadow, border, highlight);
  EXPECT_EQ(button_.BackColor(), back);
  EXPECT_EQ(button_.ShadowColor(), shadow);
  EXPECT_EQ(button_.BorderColor(), border);
  EXPECT_EQ(button_.HighlightColor(), highlight);
  EXPECT_EQ(button_.DisabledColor(), shadow);
  EXPECT_EQ(button_.BorderColor(), 0u);
  // The derived colours are not notified on their own.
  EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed BackColor"}));
}

TEST_F(PropertiesTest, BorderStyleOnlyForWin3x) {
  for (const std::int32_t style : {zonStyleWin9x, zonStyleWinXPBlue, zonStyleMac8x}) {
    button_.SetStyle(style);
    const std::int32_t before = button_.BorderStyle();
    host_.ClearLog();
    const AutomationError error = ErrorOf([&] { button_.SetBorderStyle(1 - before); });
    EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x800403E8));
    EXPECT_EQ(error.Source(), "BorderStyle");
    EXPECT_EQ(error.Description(), "BorderStyle can only be set for the Win3x style.");
    EXPECT_EQ(button_.BorderStyle(), before);
    EXPECT_EQ(host_.Log(), Log{});
  }
  button_.SetStyle(zonStyleWin3x);
  host_.ClearLog();
  button_.SetBorderStyle(zonBorderNone);
  EXPECT_EQ(button_.BorderStyle(), zonBorderNone);
  EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed BorderStyle"}));
}

TEST_F(PropertiesTest, StyleForcesClassicSettingsOnly) {
  button_.SetStyle(zonStyleWin3x);
  button_.SetBorderStyle(zonBorderNone);
  button_.SetShowFocus(false);

  button_.SetStyle(zonStyleWinXPBlue);  // leaves all three as they are
  EXPECT_EQ(button_.BorderStyle(), zonBorderNone);
  EXPECT_FALSE(button_.ShowFocus());
  button_.SetStyle(zonStyleWin3x);
  EXPECT_EQ(button_.BorderStyle(), zonBorderSingle);
  EXPECT_TRUE(button_.ShowFocus());
  button_.SetStyle(zonStyleWin9x);
  EXPECT_EQ(button_.BorderStyle(), zonBorderNone);
  EXPECT_TRUE(button_.ShowDefault());

  button_.SetStyle(zonStyleMac8x);
  host_.ClearLog();
  button_.SetShowFocus(false);  // silently ignored for the Mac look
  EXPECT_TRUE(button_.ShowFocus());
  EXPECT_EQ(host_.Log(), Log{});
}

TEST_F(PropertiesTest, PictureRuleAcceptsBitmapsAndIconsOnly) {
  Glyphon& b = button_;
  const StdPicture bitmap = StdPicture::FromBitmap(nullptr, false);
  const StdPicture metafile = StdPicture::Metafile(win::PICTYPE_METAFILE, 100, 100);
  const StdPicture enhanced = StdPicture::Metafile(win::PICTYPE_ENHMETAFILE, 100, 100);

  struct Case {
    const char* name;
    void (Glyphon::*set)(const StdPicture&);
    const StdPicture& (Glyphon::*get)() const;
    const char* source;
  };
  // PictureOver reports its errors as "Picture".
  const Case cases[] = {
      {"Picture", &Glyphon::SetPicture, &Glyphon::Picture, "Picture"},
      {"PictureOver", &Glyphon::SetPictureOver, &Glyphon::PictureOver, "Picture"},
      {"PictureDown", &Glyphon::SetPictureDown, &Glyphon::PictureDown, "PictureDown"},
      {"PictureDisabled", &Glyphon::SetPictureDisabled, &Glyphon::PictureDisabled,
       "PictureDisabled"},
  };
  for (const Case& c : cases) {
    (b.*c.set)(bitmap);
    EXPECT_EQ((b.*c.get)(), bitmap) << c.name;
    host_.ClearLog();
    for (const StdPicture& refused : {metafile, enhanced}) {
      const AutomationError error = ErrorOf([&] { (b.*c.set)(refused); });
      EXPECT_EQ(error.Number(), kControlErrorNumber);
      EXPECT_EQ(error.Source(), c.source) << c.name;
      EXPECT_EQ(error.Description(),
                "Picture, PictureOver, PictureDown, and PictureDisabled Properties must be "
                "Bitmap or Icon.");
      EXPECT_EQ((b.*c.get)(), bitmap) << c.name << " kept";
    }
    EXPECT_EQ(host_.Log(), Log{}) << c.name;

    (b.*c.set)(StdPicture::Empty());
    EXPECT_TRUE((b.*c.get)().IsNothing()) << c.name << ": an empty picture clears";
  }
}

TEST_F(PropertiesTest, DisablingAndNotStealingClearDefault) {
  button_.SetDefault(true);
  button_.SetEnabled(false);
  EXPECT_FALSE(button_.Default());
  EXPECT_FALSE(win::IsWindowEnabled(host_.hWnd()));
  button_.SetEnabled(true);
  EXPECT_FALSE(button_.Default()) << "not restored";

  button_.SetDefault(true);
  host_.ClearLog();
  button_.SetStealFocus(false);
  EXPECT_FALSE(button_.Default());
  EXPECT_EQ(host_.ExtenderObject().tabStop, false);
  EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed Default", "changed StealFocus"}));
  button_.SetStealFocus(true);
  EXPECT_FALSE(button_.Default()) << "not restored";
  EXPECT_EQ(host_.ExtenderObject().tabStop, true);

  host_.ExtenderObject().tabStop.reset();  // a container without TabStop
  button_.SetStealFocus(false);
  EXPECT_FALSE(button_.StealFocus());
  host_.SetHasExtender(false);
  button_.SetStealFocus(true);
  EXPECT_TRUE(button_.StealFocus());
}

TEST_F(PropertiesTest, CaptionRegistersTheFirstAccessKey) {
  struct Case {
    const char* caption;
    const char* display;
    std::int32_t keyPosition;
    const char* registered;
  };
  for (const Case c : {Case{"&Save && Exit", "Save && Exit", 1, "S"},
                       // No escape: the first "&" marks the second as the key.
                       Case{"A&&B", "A&B", 2, "&"},
                       // The previous key stays registered.
                       Case{"Plain", "Plain", 0, "&"}, Case{"End&", "End", 4, ""}}) {
    button_.SetCaption(c.caption);
    EXPECT_EQ(button_.Caption(), c.caption);
    EXPECT_EQ(button_.DisplayCaption(), c.display) << c.caption;
    EXPECT_EQ(button_.AccessKeyPosition(), c.keyPosition) << c.caption;
    EXPECT_EQ(host_.AccessKeys(), c.registered) << c.caption;
  }
}

TEST_F(PropertiesTest, FontIsCopiedIntoTheHostsFont) {
  StdFont font;
  font.Name("Arial");
  font.Size(12);
  font.Italic(true);
  font.Weight(700);
  host_.ClearLog();
  button_.SetFont(font);
  EXPECT_EQ(host_.Log(), (Log{"paint Up", "changed Font"}));

  font.Name("Courier New");  // later changes to the caller's font do not reach the button
  EXPECT_EQ(button_.Font().Name(), "Arial");
  EXPECT_EQ(button_.Font().Size(), 12);
  EXPECT_TRUE(button_.Font().Italic());
  EXPECT_TRUE(button_.Font().Bold());
  EXPECT_EQ(button_.Font().Weight(), 700);
  ASSERT_TRUE(host_.Font().has_value());
  EXPECT_EQ(host_.Font()->Name(), "Arial");
}

}  // namespace
}  // namespace glyphon::testing
