// The demo: its form of a dozen buttons, saving and loading it, the input scripts, and the real
// window driven on a virtual display.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "apps/demo/demo_script.h"
#include "apps/demo/demo_session.h"
#include "control/tooltip.h"
#include "platform/soft/soft_engine.h"
#include "content/glyphon_constants.h"
#include "platform/automation_error.h"
#include "platform/codec/png_codec.h"
#include "tests/support/leak_check.h"

namespace glyphon::apps {
namespace {

using testing::LeakCheck;

std::string RunScript(DemoSession& session, const std::string& script) {
  std::istringstream in(script);
  std::ostringstream events;
  RunDemoScript(session, in, events);
  return events.str();
}

std::filesystem::path TestFolder(const std::string& name) {
  const auto folder = std::filesystem::temp_directory_path() / "glyphon_demo_test" / name;
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  return folder;
}

TEST(DemoFormTest, ADozenButtonsShowEveryStyleAndFeature) {
  LeakCheck leaks;
  DemoForm form;
  ASSERT_EQ(form.Buttons().size(), 12u);
  std::set<std::int32_t> styles;
  std::set<std::string> names;
  int disabled = 0;
  int withTip = 0;
  int withPicture = 0;
  std::set<std::int32_t> pictureStyles;
  for (const DemoButton& entry : form.Buttons()) {
    if (entry.button->Picture().Handle() != 0) {
      ++withPicture;
      pictureStyles.insert(entry.button->PictureStyle());
    }
    styles.insert(entry.button->Style());
    names.insert(entry.site->Name());
    disabled += entry.button->Enabled() ? 0 : 1;
    withTip += entry.site->ToolTipText().empty() ? 0 : 1;
  }
  EXPECT_EQ(styles.size(), 6u);
  EXPECT_EQ(names.size(), 12u) << "names are unique";
  EXPECT_EQ(disabled, 1);
  EXPECT_EQ(withTip, 1);
  EXPECT_GE(withPicture, 4);
  EXPECT_GE(pictureStyles.size(), 3u) << "pictures with effects";
  ASSERT_NE(form.Host().DefaultSite(), nullptr);
  EXPECT_TRUE(form.Find(form.Host().DefaultSite()->Name())->button->Default());
}

TEST(DemoFormTest, SavedFormsLoadBackTheSameButtons) {
  LeakCheck leaks;
  DemoSession session;
  RunScript(session, "select cmdBlue\nset Caption=Changed\nset PictureSpacing=9\n");
  const auto file = TestFolder("save") / "form.json";
  session.SaveForm(file);

  DemoSession other;
  other.LoadForm(file);
  DemoButton* blue = other.Form().Find("cmdBlue");
  ASSERT_NE(blue, nullptr);
  EXPECT_EQ(blue->button->Caption(), "Changed");
  EXPECT_EQ(blue->button->PictureSpacing(), 9);
  EXPECT_EQ(blue->button->Style(), zonStyleWinXPBlue);
  EXPECT_EQ(blue->site->Rect().left, session.Form().Find("cmdBlue")->site->Rect().left);
  EXPECT_EQ(other.Form().Host().DefaultSite()->Name(), "cmdOK");
  EXPECT_FALSE(other.Form().Find("cmdDisabled")->button->Enabled());

  EXPECT_THROW(other.LoadForm(TestFolder("missing") / "none.json"), FormFileError);
  EXPECT_EQ(other.Form().Buttons().size(), 12u) << "a failed load keeps the form";
}

TEST(DemoScriptTest, ReplaysInputAsEvents) {
  LeakCheck leaks;
  DemoSession session;
  const std::string events = RunScript(session,
                                 "# press and release on the OK button\n"
                                 "move 70 30\n"
                                 "\n"
                                 "click 70 30\n"
                                 "key TAB\n"
                                 "key SPACE\n"
                                 "alt g\n");
  EXPECT_NE(events.find("cmdOK: MouseOver\ncmdOK: MouseDown(1,0,54,14)\ncmdOK: Click\n"),
            std::string::npos)
      << events;
  EXPECT_NE(events.find("cmdWin3x: KeyUp(32,0)\ncmdWin3x: Click\n"), std::string::npos)
      << "Tab moved the focus to the next button:\n" << events;
  EXPECT_NE(events.find("cmdOlive: Click"), std::string::npos) << "Alt+G: " << events;
  EXPECT_EQ(session.Selected()->site->Name(), "cmdOK") << "pressing a button selects it";
}

TEST(DemoScriptTest, HoveringTheTooltipButtonShowsItsTip) {
  LeakCheck leaks;
  DemoSession session;
  const SiteRect& tip = session.Form().Find("cmdTip")->site->Rect();
  RunScript(session, "move " + std::to_string(tip.left + 5) + " " + std::to_string(tip.top + 5) +
                         "\nwait 1500\n");
  const auto state = win::soft::ThreadSoftEngine().User().TooltipState(TooltipWindow());
  ASSERT_TRUE(state.has_value());
  EXPECT_TRUE(state->visible);
  EXPECT_EQ(state->text, "A Glyphon button with a tooltip");
}

TEST(DemoScriptTest, BadLinesNameTheirLine) {
  LeakCheck leaks;
  DemoSession session;
  const auto fails = [&](const std::string& script, const std::string& expected) {
    try {
      RunScript(session, script);
      ADD_FAILURE() << "ran: " << script;
    } catch (const ScriptError& error) {
      EXPECT_NE(std::string(error.what()).find(expected), std::string::npos) << error.what();
    }
  };
  fails("move 1 1\njump 3 4\n", "line 2: jump: unknown command");
  fails("click 5\n", "line 1: click: wants X Y");
  fails("key F13\n", "no key 'F13'");
  fails("press 1 1 thumb\n", "no mouse button 'thumb'");
  fails("select cmdNobody\n", "no button cmdNobody");
  fails("wait soon\n", "wants MILLISECONDS");
  EXPECT_THROW(RunScript(session, "select cmdOK\nset BorderStyle=1\n"), AutomationError);
}

TEST(DemoScriptTest, ScreenshotsShowTheForm) {
  LeakCheck leaks;
  DemoSession session;
  const auto file = TestFolder("shot") / "form.png";
  RunScript(session, "screenshot " + file.string() + "\n");
  const auto image = ReadPngFile(file);
  ASSERT_TRUE(image.has_value());
  EXPECT_EQ(image->width, DemoForm::kWidth);
  EXPECT_EQ(image->height, DemoForm::kHeight);
}

bool HaveCommand(const char* name) {
  return std::system((std::string("command -v ") + name + " >/dev/null 2>&1").c_str()) == 0;
}

// The demo in a window under Xvfb, clicked with synthetic input: the click is logged, and the
// button in the screenshot is the button `glyphon render` paints from the same saved bag in the
// same state.
TEST(DemoWindowTest, AClickedButtonLooksAsTheRendererPaintsIt) {
  if (!HaveCommand("xvfb-run") || !HaveCommand("xdotool")) {
    GTEST_SKIP() << "needs xvfb-run and xdotool (scripts/install-deps.sh installs them)";
  }
  const auto folder = TestFolder("window");
  const std::string program = GLYPHON_PROGRAM;
  const std::string drive = "xvfb-run -a -s '-screen 0 1280x800x24' " +
                            std::string(GLYPHON_DRIVE_DEMO) + " " + program + " " +
                            folder.string();
  ASSERT_EQ(std::system(drive.c_str()), 0) << drive;

  std::ifstream log(folder / "events.log");
  std::stringstream events;
  events << log.rdbuf();
  EXPECT_NE(events.str().find("cmdOK: MouseDown(1,0,"), std::string::npos) << events.str();
  EXPECT_NE(events.str().find("cmdOK: Click"), std::string::npos) << events.str();

  // The demo's buttons are loaded from their bags, so the renderer loads the same bag.
  {
    DemoSession session;
    session.SaveForm(folder / "form.json");
  }
  const std::string render = program + " render --props " + (folder / "form.json").string() +
                             " --size 120x40 --state hot --focus " +
                             (folder / "rendered.png").string() + " >/dev/null";
  ASSERT_EQ(std::system(render.c_str()), 0);
  const auto shot = ReadPngFile(folder / "glyphon-demo-1.png");
  const auto rendered = ReadPngFile(folder / "rendered.png");
  ASSERT_TRUE(shot && rendered);
  for (int y = 0; y < rendered->height; ++y) {
    for (int x = 0; x < rendered->width; ++x) {
      const std::uint8_t* expected = rendered->bgra.data() + (y * rendered->width + x) * 4;
      const std::uint8_t* actual = shot->bgra.data() + ((16 + y) * shot->width + 16 + x) * 4;
      ASSERT_TRUE(std::equal(expected, expected + 3, actual)) << "at " << x << "," << y;
    }
  }
}

}  // namespace
}  // namespace glyphon::apps
