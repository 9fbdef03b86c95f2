// The General page driven as a designer drives it, against real buttons.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "control/glyphon_errors.h"
#include "tests/propertypage/page_fixture.h"
#include "tests/support/error_of.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

using Strings = std::vector<std::string>;

// Forwards to a real button and records the names written; can fail one name the way a
// control's setter raises.
class RecordingObject final : public LateBoundObject {
 public:
  explicit RecordingObject(LateBoundObject& inner) : inner_(inner) {}
  PropertyValue GetProperty(std::string_view name) const override {
    return inner_.GetProperty(name);
  }
  void SetProperty(std::string_view name, const PropertyValue& value) override {
    written.emplace_back(name);
    if (name == failOn) throw AutomationError(kControlErrorNumber, failOn, "Setter failed.");
    inner_.SetProperty(name, value);
  }

  Strings written;
  std::string failOn;

 private:
  LateBoundObject& inner_;
};

// "E" or "D" for chkShowDefault, chkShowFocus, cboBorderStyle, lblBorderStyle.
std::string EnabledStates(const GeneralPage& page) {
  std::string states;
  for (const PageControl* control : {static_cast<const PageControl*>(&page.chkShowDefault),
                                     static_cast<const PageControl*>(&page.chkShowFocus),
                                     static_cast<const PageControl*>(&page.cboBorderStyle),
                                     static_cast<const PageControl*>(&page.lblBorderStyle)}) {
    states += control->Enabled() ? 'E' : 'D';
  }
  return states;
}

TEST(GeneralPageLayoutTest, ControlsCaptionsAccessKeysAndPlaces) {
  GeneralPage page;
  struct Expected {
    const char* name;
    PageControlKind kind;
    const char* caption;
    char key;
  };
  using enum PageControlKind;
  const Expected expected[] = {
      {"lblCaption", Label, "&Caption:", 'C'},
      {"txtCaption", TextBox, "", 0},
      {"lblStyle", Label, "&Style:", 'S'},
      {"cboStyle", DropDownList, "", 0},
      {"lblBorderStyle", Label, "&Border Style", 'B'},
      {"cboBorderStyle", DropDownList, "", 0},
      {"lblAlignment", Label, "A&lignment:", 'l'},
      {"cboAlignment", DropDownList, "", 0},
      {"lblPictureStyle", Label, "Pictu&re Style:", 'r'},
      {"cboPictureStyle", DropDownList, "", 0},
      {"lblPictureAlignment", Label, "&Picture Alignment:", 'P'},
      {"cboPictureAlignment", DropDownList, "", 0},
      {"lblPictureSpacing", Label, "P&icture Spacing:", 'i'},
      {"txtPictureSpacing", TextBox, "", 0},
      {"lblTag", Label, "&Tag:", 'T'},
      {"txtTag", TextBox, "", 0},
      {"Label1", Label, "Display Options:", 0},
      {"chkEnabled", CheckBox, "&Enabled", 'E'},
      {"chkShowDefault", CheckBox, "Show&Default", 'D'},
      {"chkShowFocus", CheckBox, "Show&Focus", 'F'},
      {"chkDropShadow", CheckBox, "Dr&opShadow", 'o'},
      {"chkUseMaskColor", CheckBox, "&UseMaskColor", 'U'},
  };
  const auto controls = page.Controls();
  ASSERT_EQ(controls.size(), std::size(expected));
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const PageControl& control = *controls[i];
    EXPECT_EQ(control.Name(), expected[i].name);
    EXPECT_EQ(control.Kind(), expected[i].kind) << expected[i].name;
    EXPECT_EQ(control.Caption(), expected[i].caption);
    EXPECT_EQ(control.AccessKey(), expected[i].key) << expected[i].name;
    // Every label's access key moves to the control after it in the tab order.
    if (control.Kind() == Label && control.AccessKey() != 0) {
      EXPECT_EQ(static_cast<const glyphon::Label&>(control).Target(), controls[i + 1]);
    }
    const win::RECT& r = control.Bounds();
    EXPECT_TRUE(r.left >= 0 && r.top >= 0 && r.right <= GeneralPage::kWidth &&
                r.bottom <= GeneralPage::kHeight && r.left < r.right && r.top < r.bottom)
        << expected[i].name;
    for (std::size_t j = 0; j < i; ++j) {
      const win::RECT& o = controls[j]->Bounds();
      const bool apart =
          r.right <= o.left || o.right <= r.left || r.bottom <= o.top || o.bottom <= r.top;
      EXPECT_TRUE(apart) << expected[i].name << " overlaps " << controls[j]->Name();
    }
  }
  EXPECT_EQ(page.chkShowDefault.DisplayCaption(), "ShowDefault");
  EXPECT_EQ(page.Label1.Target(), nullptr);
}

TEST_F(PageTest, ListsAreIndexThenConstantAndOfferNoActivePictureStyle) {
  hosted.button.SetPictureStyle(zonPicStyleActive);
  Select(object);
  EXPECT_EQ(page.cboStyle.Items(), (Strings{"0 - zonStyleWin9x", "1 - zonStyleWin3x",
                                            "2 - zonStyleWinXPBlue", "3 - zonStyleWinXPOliveGreen",
                                            "4 - zonStyleWinXPSilver", "5 - zonStyleMac8x"}));
  EXPECT_EQ(page.cboBorderStyle.Items(), (Strings{"0 - zonBorderNone", "1 - zonBorderSingle"}));
  EXPECT_EQ(page.cboPictureAlignment.Items(),
            (Strings{"0 - zonPicAlignLeft", "1 - zonPicAlignRight", "2 - zonPicAlignCenter",
                     "3 - zonPicAlignTop", "4 - zonPicAlignBottom"}));
  EXPECT_EQ(page.cboPictureStyle.Items(),
            (Strings{"0 - zonPicStyleNormal", "1 - zonPicStyleMono", "2 - zonPicStylePopup",
                     "3 - zonPicStyleStatic"}));
  EXPECT_EQ(page.cboAlignment.Items(),
            (Strings{"0 - zonAlignLeft", "1 - zonAlignRight", "2 - zonAlignCenter"}));

  // The active picture style has no item: the list shows none, and applying keeps the style.
  EXPECT_EQ(page.cboPictureStyle.ListIndex(), DropDownList::kNoSelection);
  page.ApplyChanges();
  EXPECT_EQ(hosted.button.PictureStyle(), zonPicStyleActive);

  // Showing the page again rebuilds the lists rather than adding to them.
  Select(object);
  EXPECT_EQ(page.cboAlignment.Items().size(), 3u);
}

TEST_F(PageTest, OnlyTheFirstOfSeveralSelectedButtonsIsReadAndWritten) {
  HostedButton& first = hosted;
  HostedButton second;
  first.button.SetCaption("First");
  first.button.SetPictureSpacing(-7);
  first.host.SetTag("one");
  first.button.SetStyle(zonStyleWin3x);
  first.button.SetUseMaskColor(false);
  second.button.SetCaption("Second");
  first.host.ClearLog();
  second.host.ClearLog();
  GlyphonObject other(second.button);
  Select({&object, &other});

  EXPECT_EQ(page.txtCaption.Text(), "First");
  EXPECT_EQ(page.txtPictureSpacing.Text(), "-7");
  EXPECT_EQ(page.txtTag.Text(), "one");
  EXPECT_EQ(page.txtCaption.SelStart(), 0);
  EXPECT_EQ(page.txtCaption.SelLength(), 5);
  EXPECT_EQ(page.cboStyle.ListIndex(), zonStyleWin3x);
  EXPECT_EQ(page.cboBorderStyle.ListIndex(), zonBorderSingle);
  EXPECT_EQ(page.chkUseMaskColor.Value(), CheckBox::kUnchecked);
  EXPECT_EQ(page.chkEnabled.Value(), CheckBox::kChecked);  // true (-1) shows checked

  page.txtCaption.SetText("Edited");
  page.ApplyChanges();
  EXPECT_EQ(first.button.Caption(), "Edited");
  EXPECT_EQ(second.button.Caption(), "Second");
  EXPECT_TRUE(second.host.Log().empty());
}

TEST_F(PageTest, FillingThePageNeitherPromptsNorMarksItChanged) {
  hosted.button.SetStyle(zonStyleMac8x);
  hosted.button.SetDropShadow(true);

  struct Listener final : GeneralPageListener {
    void ControlChanged(const PageControl& control) override { names.emplace_back(control.Name()); }
    void PageChanged(bool changed) override { flags.push_back(changed); }
    Strings names;
    std::vector<bool> flags;
  } listener;
  page.SetListener(&listener);
  Select(object);

  EXPECT_TRUE(prompts.empty());
  EXPECT_FALSE(page.Changed());
  EXPECT_FALSE(page.Loading());
  EXPECT_TRUE(listener.flags.empty());
  EXPECT_EQ(page.cboStyle.ListIndex(), zonStyleMac8x);
  EXPECT_EQ(page.chkDropShadow.Value(), CheckBox::kChecked);
  // Views hear about what changed, including the enabled states.
  EXPECT_EQ(CountOf(listener.names, "chkDropShadow"), 1);
  EXPECT_GE(CountOf(listener.names, "chkShowFocus"), 1);
  EXPECT_GE(CountOf(listener.names, "cboStyle"), 1);

  // An edit afterwards marks the page changed once; applying clears the mark.
  page.txtTag.SetText("x");
  page.chkDropShadow.Toggle();
  page.ApplyChanges();
  EXPECT_EQ(listener.flags, (std::vector<bool>{true, false}));
  EXPECT_EQ(hosted.host.Tag(), "x");
  EXPECT_FALSE(hosted.button.DropShadow());
}

TEST_F(PageTest, YesToTheStylePromptSetsThatStylesDefaults) {
  page.SetPromptOwner(hosted.host.FormWindow(), "Form Designer");
  answer = win::IDYES;
  struct Case {
    std::int32_t style;
    int border;
    std::int16_t showFocus;
  };
  // Both check boxes start unchecked; Mac8x leaves ShowFocus as it is.
  for (const Case c : {Case{zonStyleWin3x, 1, 1}, Case{zonStyleWinXPBlue, 1, 1},
                       Case{zonStyleWinXPOliveGreen, 1, 1}, Case{zonStyleWinXPSilver, 1, 1},
                       Case{zonStyleMac8x, 1, 0}}) {
    Select(object);
    page.cboBorderStyle.SetListIndex(zonBorderNone);
    page.chkShowDefault.SetValue(CheckBox::kUnchecked);
    page.chkShowFocus.SetValue(CheckBox::kUnchecked);
    page.cboStyle.SetListIndex(c.style);
    EXPECT_EQ(page.cboBorderStyle.ListIndex(), c.border) << c.style;
    EXPECT_EQ(page.chkShowDefault.Value(), CheckBox::kChecked) << c.style;
    EXPECT_EQ(page.chkShowFocus.Value(), c.showFocus) << c.style;
    EXPECT_TRUE(page.Changed());
    page.SetChanged(false);
  }
  // Back to Win9x from Win3x: no border.
  hosted.button.SetStyle(zonStyleWin3x);
  Select(object);
  page.cboStyle.SetListIndex(zonStyleWin9x);
  EXPECT_EQ(page.cboBorderStyle.ListIndex(), zonBorderNone);

  ASSERT_EQ(prompts.size(), 6u);
  EXPECT_EQ(prompts[0].owner, hosted.host.FormWindow());
  EXPECT_EQ(prompts[0].text, "Set all default properties for this style?");
  EXPECT_EQ(prompts[0].caption, "Form Designer");
  EXPECT_EQ(prompts[0].type, 0x4034u);
  EXPECT_EQ(kStylePromptHelpContext, 2150u);
}

TEST_F(PageTest, NoToTheStylePromptChangesNoValueYetEnablesAndMarks) {
  Select(object);
  page.cboStyle.SetListIndex(zonStyleWin3x);
  ASSERT_EQ(prompts.size(), 1u);
  EXPECT_EQ(prompts[0].caption, "<none>");  // the system's title when the host gave none
  EXPECT_EQ(page.cboBorderStyle.ListIndex(), zonBorderNone);
  EXPECT_EQ(EnabledStates(page), "EEEE");
  EXPECT_TRUE(page.Changed());
  // Nothing reaches the button before Apply.
  EXPECT_EQ(hosted.button.Style(), zonStyleWin9x);
  EXPECT_TRUE(hosted.host.Log().empty());
}

TEST_F(PageTest, EnabledStatesByStyleOnBothPaths) {
  const char* const onSelection[] = {"EEDD", "EEEE", "DEDD", "DEDD", "DEDD", "EDDD"};
  const char* const onStyleClick[] = {"EEDD", "EEEE", "DEDD", "DEDD", "DEDD", "E?DD"};
  for (std::int32_t style = zonStyleWin9x; style <= zonStyleMac8x; ++style) {
    hosted.button.SetStyle(style);
    Select(object);
    EXPECT_EQ(EnabledStates(page), onSelection[style]) << "selection, style " << style;

    // Choosing the style: Mac8x leaves ShowFocus as it was, enabled or not.
    for (const bool showFocusBefore : {true, false}) {
      hosted.button.SetStyle(style == zonStyleWin9x ? zonStyleWin3x : zonStyleWin9x);
      Select(object);
      page.chkShowFocus.SetEnabled(showFocusBefore);
      page.cboStyle.SetListIndex(style);
      std::string expected = onStyleClick[style];
      if (expected[1] == '?') expected[1] = showFocusBefore ? 'E' : 'D';
      EXPECT_EQ(EnabledStates(page), expected) << "click, style " << style;
    }
  }
}

TEST_F(PageTest, PictureSpacingTakesDigitsAndEditingKeysAndBeepsAtTheRest) {
  for (const int key : {int{'0'}, int{'9'}, 8, 3, 22, 24, 26}) {
    auto typed = static_cast<std::int16_t>(key);
    page.txtPictureSpacing.KeyPress(typed);
    EXPECT_EQ(typed, key);
  }
  EXPECT_TRUE(beeps.empty());
  for (const int key : {int{'a'}, int{'-'}, int{'.'}, int{' '}, int{'/'}, int{':'}, 13}) {
    auto typed = static_cast<std::int16_t>(key);
    page.txtPictureSpacing.KeyPress(typed);
    EXPECT_EQ(typed, 0) << key;
  }
  EXPECT_EQ(beeps.size(), 7u);
  // The other boxes take anything.
  std::int16_t typed = 'a';
  page.txtCaption.KeyPress(typed);
  EXPECT_EQ(typed, 'a');
  EXPECT_EQ(beeps.size(), 7u);
}

TEST_F(PageTest, LeavingABoxSelectsItsWholeText) {
  for (TextBox* box : {&page.txtCaption, &page.txtPictureSpacing, &page.txtTag}) {
    box->SetText("12345");
    box->SetSelection(2, 1);
    box->LostFocus();
    EXPECT_EQ(box->SelStart(), 0) << box->Name();
    EXPECT_EQ(box->SelLength(), 5) << box->Name();
  }
}

TEST_F(PageTest, ApplyWritesInOrderButNeverBorderStyle) {
  hosted.button.SetStyle(zonStyleWin3x);
  hosted.host.ClearLog();
  RecordingObject button(object);
  Select(std::vector<LateBoundObject*>{&button});

  page.txtCaption.SetText("&Run");
  page.txtPictureSpacing.SetText(" 12px");
  page.txtTag.SetText("tag");
  page.cboBorderStyle.SetListIndex(zonBorderNone);
  page.cboPictureAlignment.SetListIndex(zonPicAlignTop);
  page.cboAlignment.SetListIndex(zonAlignRight);
  page.chkShowFocus.Toggle();
  page.ApplyChanges();

  // ShowDefault is read-only, so its check box has nothing to write.
  EXPECT_EQ(button.written,
            (Strings{"Caption", "PictureSpacing", "Tag", "UseMaskColor", "Enabled", "Style",
                     "ShowFocus", "PictureAlignment", "PictureStyle", "Alignment", "DropShadow"}));
  EXPECT_EQ(
      Only(hosted.host.Log(), "changed"),
      (Strings{"changed Caption", "changed PictureSpacing", "changed UseMaskColor",
               "changed Enabled", "changed Style", "changed ShowFocus", "changed PictureAlignment",
               "changed PictureStyle", "changed Alignment", "changed DropShadow"}));
  EXPECT_EQ(hosted.host.AccessKeys(), "R");
  EXPECT_EQ(hosted.button.PictureSpacing(), 12);
  EXPECT_EQ(hosted.host.Tag(), "tag");
  EXPECT_EQ(hosted.button.BorderStyle(), zonBorderSingle);
  EXPECT_FALSE(hosted.button.ShowFocus());
  EXPECT_EQ(hosted.button.PictureAlignment(), zonPicAlignTop);
  EXPECT_EQ(hosted.button.Alignment(), zonAlignRight);
}

TEST_F(PageTest, ApplyErrorsReachTheHostUnchangedAndKeepThePageChanged) {
  RecordingObject button(object);
  button.failOn = "Style";
  Select(std::vector<LateBoundObject*>{&button});
  page.txtCaption.SetText("Go");
  page.chkDropShadow.Toggle();
  const AutomationError refused = ErrorOf([&] { page.ApplyChanges(); });
  EXPECT_EQ(refused.Number(), kControlErrorNumber);
  EXPECT_EQ(refused.Source(), "Style");
  EXPECT_EQ(refused.Description(), "Setter failed.");
  EXPECT_EQ(button.written.back(), "Style");
  EXPECT_EQ(hosted.button.Caption(), "Go");
  EXPECT_FALSE(hosted.button.DropShadow());  // written after the failure: not reached
  EXPECT_TRUE(page.Changed());

  // Pasted digits beyond 32 bits overflow as the property is written.
  button.failOn.clear();
  button.written.clear();
  page.txtPictureSpacing.SetText("99999999999");
  EXPECT_EQ(ErrorOf([&] { page.ApplyChanges(); }).Number(), kOverflowNumber);
  EXPECT_EQ(button.written, Strings{"Caption"});
}

}  // namespace
}  // namespace glyphon::testing
