// A form of several buttons: Tab order, access keys across the form, the default button and the
// form's ambient properties.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "control/glyphon.h"
#include "control/host/form_host.h"
#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"
#include "tests/support/leak_check.h"

namespace glyphon {
namespace {

using testing::LeakCheck;

win::soft::UserSystem& User() { return win::soft::ThreadSoftEngine().User(); }

// Three buttons side by side: OK, Cancel and Help, each initialised with its caption.
struct ThreeButtonForm {
  ThreeButtonForm() {
    const char* captions[] = {"&OK", "&Cancel", "&Help"};
    for (int i = 0; i < 3; ++i) {
      FormSite& site = form.AddSite("Button" + std::to_string(i + 1), SiteRect{10 + 90 * i, 10});
      buttons.push_back(std::make_unique<Glyphon>(site));
      site.Attach(buttons.back().get());
      buttons.back()->InitProperties();
      buttons.back()->SetCaption(captions[i]);
    }
    User().MouseMove(win::POINT{350, 250});
    for (const auto& site : form.Sites()) site->Recorder().ClearLog();
  }
  ~ThreeButtonForm() {
    for (const auto& site : form.Sites()) site->Attach(nullptr);
  }

  FormSite& Site(int index) { return *form.Sites()[static_cast<std::size_t>(index)]; }
  Glyphon& Button(int index) { return *buttons[static_cast<std::size_t>(index)]; }
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

  FormHost form;
  std::vector<std::unique_ptr<Glyphon>> buttons;
};

TEST(FormHostTest, TabVisitsEnabledTabStopsInOrderAndWraps) {
  LeakCheck leaks;
  ThreeButtonForm f;
  win::SetFocus(f.Site(0).hWnd());
  f.Button(1).SetStealFocus(false);  // takes the button out of the tab order
  f.Tab();
  EXPECT_EQ(win::GetFocus(), f.Site(2).hWnd());
  f.Tab();
  EXPECT_EQ(win::GetFocus(), f.Site(0).hWnd()) << "wraps to the first";
  f.Tab(true);
  EXPECT_EQ(win::GetFocus(), f.Site(2).hWnd()) << "Shift+Tab goes back, wrapping";

  f.Button(1).SetStealFocus(true);
  f.Button(0).SetEnabled(false);
  f.Tab();
  EXPECT_EQ(win::GetFocus(), f.Site(1).hWnd()) << "a disabled button is skipped";
  for (const auto& site : f.form.Sites()) {
    for (const std::string& entry : site->Recorder().Log()) {
      EXPECT_TRUE(entry.find("(9") == std::string::npos) << "the control never sees Tab: " << entry;
    }
  }
}

TEST(FormHostTest, AltAndAnAccessKeyClicksTheButtonThatHasIt) {
  LeakCheck leaks;
  ThreeButtonForm f;
  win::SetFocus(f.Site(0).hWnd());
  f.AltKey('h');
  EXPECT_EQ(win::GetFocus(), f.Site(2).hWnd());
  EXPECT_EQ(std::count(f.Site(2).Recorder().Log().begin(), f.Site(2).Recorder().Log().end(),
                       "Click"),
            1);
  EXPECT_TRUE(f.Site(0).Recorder().Log().empty() ||
              std::count(f.Site(0).Recorder().Log().begin(), f.Site(0).Recorder().Log().end(),
                         "Click") == 0);

  f.Site(2).Recorder().ClearLog();
  f.Button(2).SetEnabled(false);
  f.AltKey('H');
  EXPECT_EQ(std::count(f.Site(2).Recorder().Log().begin(), f.Site(2).Recorder().Log().end(),
                       "Click"),
            0)
      << "a disabled button ignores its access key";
}

TEST(FormHostTest, TheFocusedButtonShowsAsDefaultElseTheDefaultButtonDoes) {
  LeakCheck leaks;
  ThreeButtonForm f;
  f.form.SetDefaultSite(&f.Site(0));
  EXPECT_TRUE(f.Button(0).Default());
  EXPECT_FALSE(f.Button(1).Default());

  win::SetFocus(f.Site(1).hWnd());
  EXPECT_FALSE(f.Button(0).Default());
  EXPECT_TRUE(f.Button(1).Default());

  win::SetFocus(f.form.hWnd());
  EXPECT_TRUE(f.Button(0).Default()) << "back to the default button when no button has focus";
  EXPECT_FALSE(f.Button(1).Default());

  f.Button(0).SetEnabled(false);
  EXPECT_EQ(f.form.DefaultSite(), nullptr) << "disabling the default button takes the role away";
}

TEST(FormHostTest, EnterOnTheFormPressesTheDefaultButton) {
  LeakCheck leaks;
  ThreeButtonForm f;
  f.form.SetDefaultSite(&f.Site(2));
  win::SetFocus(f.form.hWnd());
  User().Char('\r');
  const auto& log = f.Site(2).Recorder().Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "Click"), 1);
}

TEST(FormHostTest, AmbientsComeFromTheFormAndItPaintsItsColour) {
  LeakCheck leaks;
  ThreeButtonForm f;
  f.form.SetBackColor(0x00336699);
  User().DispatchPendingMessages();
  EXPECT_EQ(f.Site(0).Ambient().BackColor(), 0x00336699u);
  EXPECT_EQ(f.Site(0).GetExtender()->ContainerBackColor(), 0x00336699u);
  EXPECT_EQ(f.Button(0).ContainerBackColor(), 0x00336699u);
  EXPECT_EQ(f.Site(1).GetExtender()->Name(), "Button2");

  const auto pixels = User().WindowPixels(f.form.hWnd());
  const win::HDC screen = win::GetDC(f.form.hWnd());
  EXPECT_EQ(win::GetPixel(screen, 5, 5), 0x00336699u) << "the form paints its back colour";
  EXPECT_EQ(win::GetPixel(screen, 390, 290), 0x00336699u);
  win::ReleaseDC(f.form.hWnd(), screen);
  EXPECT_NE(pixels, nullptr);

  f.form.SetUserMode(false);
  EXPECT_FALSE(f.Button(2).UserMode());
}

}  // namespace
}  // namespace glyphon
