// Setter rules: what each property stores, repaints, notifies, and the errors it raises.
#include <gtest/gtest.h>

#include <functional>

#include "control/glyphon_errors.h"
#include "surface/mod_colors.h"
#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using Log = std::vector<std::string>;

// Runs the call and returns the error it raised; fails the test when it raised none.
AutomationError ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const AutomationError& error) {
    return error;
  }
  ADD_FAILURE() << "no error raised";
  return AutomationError(0, "", "");
}

TEST(PropertiesTest, LookSettersStoreRepaintThenNotify) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
  const std::vector<std::pair<std::string, std::function<void()>>> setters{
      {"Alignment", [&] { b.SetAlignment(zonAlignLeft); }},
      {"BorderColor", [&] { b.SetBorderColor(0x112233); }},
      {"Caption", [&] { b.SetCaption("Go"); }},
      {"Default", [&] { b.SetDefault(true); }},
      {"DisabledColor", [&] { b.SetDisabledColor(0x445566); }},
      {"DropShadow", [&] { b.SetDropShadow(true); }},
      {"Enabled", [&] { b.SetEnabled(true); }},
      {"ForeColor", [&] { b.SetForeColor(0x0000FF); }},
      {"HighlightColor", [&] { b.SetHighlightColor(0xFFFFFF); }},
      {"MaskColor", [&] { b.SetMaskColor(0x00FF00); }},
      {"PictureAlignment", [&] { b.SetPictureAlignment(zonPicAlignTop); }},
      {"PictureSpacing", [&] { b.SetPictureSpacing(-7); }},
      {"PictureStyle", [&] { b.SetPictureStyle(zonPicStyleActive); }},
      {"ShadowColor", [&] { b.SetShadowColor(0x808080); }},
      {"ShowFocus", [&] { b.SetShowFocus(false); }},
      {"Style", [&] { b.SetStyle(zonStyleWinXPSilver); }},
      {"UseMaskColor", [&] { b.SetUseMaskColor(false); }},
      {"Picture", [&] { b.SetPicture(StdPicture{}); }},
  };
  for (const auto& [name, set] : setters) {
    hosted.host.ClearLog();
    set();
    EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed " + name})) << name;
  }
  EXPECT_EQ(b.PictureSpacing(), -7) << "no range check";
}

TEST(PropertiesTest, DelegatedSettersNotifyWithoutRepainting) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;

  b.SetMousePointer(zonHourglass);
  b.SetRightToLeft(true);
  b.SetToolTipText("tip");
  b.SetTag("kept by the host");
  EXPECT_EQ(hosted.host.Log(),
            (Log{"changed MousePointer", "changed RightToLeft", "changed ToolTipText"}));
  EXPECT_EQ(hosted.host.MousePointer(), zonHourglass);
  EXPECT_TRUE(hosted.host.RightToLeft());
  EXPECT_EQ(hosted.host.Tag(), "kept by the host");
  EXPECT_EQ(b.ToolTipText(), "tip");

  const AutomationError overflow = ErrorOf([&] { b.SetMousePointer(40000); });
  EXPECT_EQ(overflow.Number(), kOverflowNumber);
  EXPECT_EQ(b.MousePointer(), zonHourglass);
}

TEST(PropertiesTest, BackColorDerivesTheFrameColours) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
  const win::OLE_COLOR back = win::RGB(212, 208, 200);
  b.SetBackColor(back);

  win::COLORREF shadow = 0;
  win::COLORREF border = 0;
  win::COLORREF highlight = 0;
  modColors::DeriveButtonColors(back, shadow, border, highlight);
  EXPECT_EQ(b.BackColor(), back);
  EXPECT_EQ(b.ShadowColor(), shadow);
  EXPECT_EQ(b.BorderColor(), border);
  EXPECT_EQ(b.HighlightColor(), highlight);
  EXPECT_EQ(b.DisabledColor(), shadow);
  EXPECT_EQ(b.BorderColor(), 0u);
  // The derived colours are not notified on their own.
  EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed BackColor"}));
}

TEST(PropertiesTest, BorderStyleOnlyForWin3x) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
  for (const std::int32_t style : {zonStyleWin9x, zonStyleWinXPBlue, zonStyleMac8x}) {
    b.SetStyle(style);
    const std::int32_t before = b.BorderStyle();
    hosted.host.ClearLog();
    const AutomationError error = ErrorOf([&] { b.SetBorderStyle(zonBorderSingle - before); });
    EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x800403E8));
    EXPECT_EQ(error.Source(), "BorderStyle");
    EXPECT_EQ(error.Description(), "BorderStyle can only be set for the Win3x style.");
    EXPECT_EQ(b.BorderStyle(), before);
    EXPECT_EQ(hosted.host.Log(), Log{});
  }
  b.SetStyle(zonStyleWin3x);
  hosted.host.ClearLog();
  b.SetBorderStyle(zonBorderNone);
  EXPECT_EQ(b.BorderStyle(), zonBorderNone);
  EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed BorderStyle"}));
}

TEST(PropertiesTest, StyleForcesClassicSettingsOnly) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
  b.SetStyle(zonStyleWin3x);
  b.SetBorderStyle(zonBorderNone);
  b.SetShowFocus(false);

  b.SetStyle(zonStyleWinXPBlue);  // leaves all three as they are
  EXPECT_EQ(b.BorderStyle(), zonBorderNone);
  EXPECT_FALSE(b.ShowFocus());
  b.SetStyle(zonStyleWin3x);
  EXPECT_EQ(b.BorderStyle(), zonBorderSingle);
  EXPECT_TRUE(b.ShowFocus());
  b.SetStyle(zonStyleWin9x);
  EXPECT_EQ(b.BorderStyle(), zonBorderNone);
  EXPECT_TRUE(b.ShowDefault());

  b.SetStyle(zonStyleMac8x);
  hosted.host.ClearLog();
  b.SetShowFocus(false);  // silently ignored for the Mac look
  EXPECT_TRUE(b.ShowFocus());
  EXPECT_EQ(hosted.host.Log(), Log{});
}

TEST(PropertiesTest, PictureRuleAcceptsBitmapsAndIconsOnly) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
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
    hosted.host.ClearLog();
    for (const StdPicture& refused : {metafile, enhanced}) {
      const AutomationError error = ErrorOf([&] { (b.*c.set)(refused); });
      EXPECT_EQ(error.Number(), kControlErrorNumber);
      EXPECT_EQ(error.Source(), c.source) << c.name;
      EXPECT_EQ(error.Description(),
                "Picture, PictureOver, PictureDown, and PictureDisabled Properties must be "
                "Bitmap or Icon.");
      EXPECT_EQ((b.*c.get)(), bitmap) << c.name << " kept";
    }
    EXPECT_EQ(hosted.host.Log(), Log{}) << c.name;

    (b.*c.set)(StdPicture::Empty());
    EXPECT_TRUE((b.*c.get)().IsNothing()) << c.name << ": an empty picture clears";
  }
}

TEST(PropertiesTest, DisablingAndNotStealingClearDefault) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;

  b.SetDefault(true);
  b.SetEnabled(false);
  EXPECT_FALSE(b.Default());
  EXPECT_FALSE(win::IsWindowEnabled(hosted.host.hWnd()));
  b.SetEnabled(true);
  EXPECT_FALSE(b.Default()) << "not restored";

  b.SetDefault(true);
  hosted.host.ClearLog();
  b.SetStealFocus(false);
  EXPECT_FALSE(b.Default());
  EXPECT_EQ(hosted.host.ExtenderObject().tabStop, false);
  EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed Default", "changed StealFocus"}));
  b.SetStealFocus(true);
  EXPECT_FALSE(b.Default()) << "not restored";
  EXPECT_EQ(hosted.host.ExtenderObject().tabStop, true);

  hosted.host.ExtenderObject().tabStop.reset();  // a container without TabStop
  b.SetStealFocus(false);
  EXPECT_FALSE(b.StealFocus());
  hosted.host.SetHasExtender(false);
  b.SetStealFocus(true);
  EXPECT_TRUE(b.StealFocus());
}

TEST(PropertiesTest, CaptionRegistersTheFirstAccessKey) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;

  b.SetCaption("&Save && Exit");
  EXPECT_EQ(b.DisplayCaption(), "Save && Exit");
  EXPECT_EQ(b.AccessKeyPosition(), 1);
  EXPECT_EQ(hosted.host.AccessKeys(), "S");

  b.SetCaption("A&&B");  // no escape: the first "&" marks the second as the key
  EXPECT_EQ(b.DisplayCaption(), "A&B");
  EXPECT_EQ(b.AccessKeyPosition(), 2);
  EXPECT_EQ(hosted.host.AccessKeys(), "&");

  b.SetCaption("Plain");  // the previous key stays registered
  EXPECT_EQ(b.DisplayCaption(), "Plain");
  EXPECT_EQ(b.AccessKeyPosition(), 0);
  EXPECT_EQ(hosted.host.AccessKeys(), "&");

  b.SetCaption("End&");
  EXPECT_EQ(b.DisplayCaption(), "End");
  EXPECT_EQ(b.AccessKeyPosition(), 4);
  EXPECT_EQ(hosted.host.AccessKeys(), "");
  EXPECT_EQ(b.Caption(), "End&");
}

TEST(PropertiesTest, FontIsCopiedIntoTheHostsFont) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
  StdFont font;
  font.Name("Arial");
  font.Size(12);
  font.Italic(true);
  font.Weight(700);
  hosted.host.ClearLog();
  b.SetFont(font);
  EXPECT_EQ(hosted.host.Log(), (Log{"paint Up", "changed Font"}));

  font.Name("Courier New");  // later changes to the caller's font do not reach the button
  EXPECT_EQ(b.Font().Name(), "Arial");
  EXPECT_EQ(b.Font().Size(), 12);
  EXPECT_TRUE(b.Font().Italic());
  EXPECT_TRUE(b.Font().Bold());
  EXPECT_EQ(b.Font().Weight(), 700);
  ASSERT_TRUE(hosted.host.Font().has_value());
  EXPECT_EQ(hosted.host.Font()->Name(), "Arial");
}

}  // namespace
}  // namespace glyphon::testing
