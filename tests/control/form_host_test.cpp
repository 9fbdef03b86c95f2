// A form of several buttons: Tab order, access keys across the form, the default button and the
// form's ambient properties.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "control/glyphon.h"
#include "control/host/form_host.h"
#include "tests/control/hosted_button.h"

namespace glyphon {
namespace {

using testing::LeakCheck;

win::soft::UserSystem& User() { return win::soft::ThreadSoftEngine().User(); }

// Three buttons side by side: OK, Cancel and Help, each initialised with its caption.
class FormHostTest : public ::testing::Test {
 protected:
  FormHostTest() {
    const char* captions[] = {"&OK", "&Cancel", "&Help"};
    for (int i = 0; i < 3; ++i) {
      FormSite& site = form_.AddSite("Button" + std::to_string(i + 1), SiteRect{10 + 90 * i, 10});
      buttons_.push_back(std::make_unique<Glyphon>(site));
      site.Attach(buttons_.back().get());
      buttons_.back()->InitProperties();
      buttons_.back()->SetCaption(captions[i]);
    }
    User().MouseMove(win::POINT{350, 250});
    for (const auto& site : form_.Sites()) site->Recorder().ClearLog();
  }
  ~FormHostTest() override {
    for (const auto& site : form_.Sites()) site->Attach(nullptr);
  }

  FormSite& Site(int index) { return *form_.Sites()[static_cast<std::size_t>(index)]; }
  Glyphon& Button(int index) { return *buttons_[static_cast<std::size_t>(index)]; }
  void Tab(bool shift = false) {
    if (shift) User().KeyDown(win::VK_SHIFT);
    User().KeyDown(win::VK_TAB);
    User().KeyUp(win::VK_TAB);
    if (shift) User().KeyUp(win::VK_SHIFT);
  }
  void AltKey(char key) {
    User().KeyDown(win::VK_MENU);
    User().Char(key);
    User().KeyUp(win::VK_MENU);
  }

  // Number of clicks the button at index has had.
  std::ptrdiff_t Clicks(int index) {
    return testing::CountOf(Site(index).Recorder().Log(), "Click");
  }

  LeakCheck leaks_;
  FormHost form_;
  std::vector<std::unique_ptr<Glyphon>> buttons_;
};

TEST_F(FormHostTest, TabVisitsEnabledTabStopsInOrderAndWraps) {
  win::SetFocus(Site(0).hWnd());
  Button(1).SetStealFocus(false);  // takes the button out of the tab order
  Tab();
  EXPECT_EQ(win::GetFocus(), Site(2).hWnd());
  Tab();
  EXPECT_EQ(win::GetFocus(), Site(0).hWnd()) << "wraps to the first";
  Tab(true);
  EXPECT_EQ(win::GetFocus(), Site(2).hWnd()) << "Shift+Tab goes back, wrapping";

  Button(1).SetStealFocus(true);
  Button(0).SetEnabled(false);
  Tab();
  EXPECT_EQ(win::GetFocus(), Site(1).hWnd()) << "a disabled button is skipped";
  for (const auto& site : form_.Sites()) {
    for (const std::string& entry : site->Recorder().Log()) {
      EXPECT_TRUE(entry.find("(9") == std::string::npos) << "the control never sees Tab: " << entry;
    }
  }
}

TEST_F(FormHostTest, AltAndAnAccessKeyClicksTheButtonThatHasIt) {
  win::SetFocus(Site(0).hWnd());
  AltKey('h');
  EXPECT_EQ(win::GetFocus(), Site(2).hWnd());
  EXPECT_EQ(Clicks(2), 1);
  EXPECT_EQ(Clicks(0), 0);

  Site(2).Recorder().ClearLog();
  Button(2).SetEnabled(false);
  AltKey('H');
  EXPECT_EQ(Clicks(2), 0) << "a disabled button ignores its access key";
}

TEST_F(FormHostTest, TheFocusedButtonShowsAsDefaultElseTheDefaultButtonDoes) {
  form_.SetDefaultSite(&Site(0));
  EXPECT_TRUE(Button(0).Default());
  EXPECT_FALSE(Button(1).Default());

  win::SetFocus(Site(1).hWnd());
  EXPECT_FALSE(Button(0).Default());
  EXPECT_TRUE(Button(1).Default());

  win::SetFocus(form_.hWnd());
  EXPECT_TRUE(Button(0).Default()) << "back to the default button when no button has focus";
  EXPECT_FALSE(Button(1).Default());

  Button(0).SetEnabled(false);
  EXPECT_EQ(form_.DefaultSite(), nullptr) << "disabling the default button takes the role away";
}

TEST_F(FormHostTest, EnterOnTheFormPressesTheDefaultButton) {
  form_.SetDefaultSite(&Site(2));
  win::SetFocus(form_.hWnd());
  User().Char('\r');
  EXPECT_EQ(Clicks(2), 1);
}

TEST_F(FormHostTest, AmbientsComeFromTheFormAndItPaintsItsColour) {
  form_.SetBackColor(0x00336699);
  User().DispatchPendingMessages();
  EXPECT_EQ(Site(0).Ambient().BackColor(), 0x00336699u);
  EXPECT_EQ(Site(0).GetExtender()->ContainerBackColor(), 0x00336699u);
  EXPECT_EQ(Button(0).ContainerBackColor(), 0x00336699u);
  EXPECT_EQ(Site(1).GetExtender()->Name(), "Button2");

  const auto pixels = User().WindowPixels(form_.hWnd());
  const win::HDC screen = win::GetDC(form_.hWnd());
  EXPECT_EQ(win::GetPixel(screen, 5, 5), 0x00336699u) << "the form paints its back colour";
  EXPECT_EQ(win::GetPixel(screen, 390, 290), 0x00336699u);
  win::ReleaseDC(form_.hWnd(), screen);
  EXPECT_NE(pixels, nullptr);

  form_.SetUserMode(false);
  EXPECT_FALSE(Button(2).UserMode());
}

}  // namespace
}  // namespace glyphon
