// The render command: its options, its exit codes, and buttons brought to a look as a user would.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "apps/glyphon/button_scene.h"
#include "apps/glyphon/commands.h"
#include "apps/glyphon/render_options.h"
#include "control/glyphon_constants.h"
#include "control/host/property_bag_file.h"
#include "platform/codec/png_codec.h"
#include "tests/support/leak_check.h"

namespace glyphon::apps {
namespace {

using testing::LeakCheck;

RenderOptions Parse(std::initializer_list<std::string> arguments) {
  const std::vector<std::string> list(arguments);
  return ParseRenderOptions(list);
}

int Render(std::initializer_list<std::string> arguments, std::string* stderrText = nullptr) {
  const std::vector<std::string> list(arguments);
  ::testing::internal::CaptureStderr();
  ::testing::internal::CaptureStdout();
  const int status = RunRender(list);
  ::testing::internal::GetCapturedStdout();
  const std::string text = ::testing::internal::GetCapturedStderr();
  if (stderrText != nullptr) *stderrText = text;
  return status;
}

std::filesystem::path TestFile(const std::string& name) {
  const auto folder = std::filesystem::temp_directory_path() / "glyphon_render_test";
  std::filesystem::create_directories(folder);
  return folder / name;
}

TEST(RenderOptionsTest, ReadsEveryOption) {
  const RenderOptions options =
      Parse({"--size", "120x40", "--set", "Style=2", "--set", "Caption=a=b", "--state", "pressed",
             "--focus", "--design", "--container-color", "0x00FF8000", "--props", "f.json",
             "out.png"});
  EXPECT_EQ(options.width, 120);
  EXPECT_EQ(options.height, 40);
  ASSERT_EQ(options.settings.size(), 2u);
  EXPECT_EQ(options.settings[1].name, "Caption");
  EXPECT_EQ(options.settings[1].value, "a=b") << "only the first = splits";
  EXPECT_EQ(options.state, SceneState::Pressed);
  EXPECT_TRUE(options.focus);
  EXPECT_TRUE(options.design);
  EXPECT_EQ(options.containerColor, 0x00FF8000u);
  EXPECT_EQ(options.propertiesFile, std::filesystem::path("f.json"));
  EXPECT_EQ(options.output, std::filesystem::path("out.png"));
}

TEST(RenderOptionsTest, RejectsWhatItCannotUnderstand) {
  for (const auto& bad : std::vector<std::vector<std::string>>{
           {},
           {"a.png", "b.png"},
           {"--size", "81", "a.png"},
           {"--size", "81x", "a.png"},
           {"--size", "-1x5", "a.png"},
           {"--size", "16385x1", "a.png"},
           {"--state", "down", "a.png"},
           {"--set", "=5", "a.png"},
           {"--set", "Caption", "a.png"},
           {"--container-color", "0xZZ", "a.png"},
           {"--colour", "a.png"},
           {"a.png", "--size"},
       }) {
    EXPECT_THROW(ParseRenderOptions(bad), UsageError) << ::testing::PrintToString(bad);
  }
}

TEST(RenderCommandTest, WritesExactlyTheClientArea) {
  LeakCheck leaks;
  const auto out = TestFile("size.png");
  ASSERT_EQ(Render({"--size", "33x17", "--set", "caption=OK", "--set", "STYLE=zonStyleMac8x",
                    out.string()}),
            0);
  const auto image = ReadPngFile(out);
  ASSERT_TRUE(image.has_value());
  EXPECT_EQ(image->width, 33);
  EXPECT_EQ(image->height, 17);
}

TEST(RenderCommandTest, ASetterErrorIsReportedWithStatusTwo) {
  LeakCheck leaks;
  std::string errors;
  EXPECT_EQ(Render({"--set", "BorderStyle=0", TestFile("e.png").string()}, &errors), 2);
  EXPECT_NE(errors.find("-2147220504"), std::string::npos) << errors;
  EXPECT_NE(errors.find("BorderStyle can only be set for the Win3x style."), std::string::npos)
      << errors;
  EXPECT_EQ(Render({"--set", "NoSuchThing=1", TestFile("e.png").string()}), 2);
}

TEST(RenderCommandTest, BadOptionsAndBadPicturesGiveStatusOne) {
  LeakCheck leaks;
  std::string errors;
  EXPECT_EQ(Render({"--state", "sideways", "x.png"}, &errors), 1);
  EXPECT_NE(errors.find("usage: glyphon render"), std::string::npos);

  const auto broken = TestFile("broken.bmp");
  std::ofstream(broken, std::ios::binary) << "BM not really";
  EXPECT_EQ(Render({"--set", "Picture=@" + broken.string(), TestFile("p.png").string()}, &errors),
            1);
  EXPECT_NE(errors.find(broken.filename().string()), std::string::npos) << errors;
}

TEST(RenderCommandTest, LoadsTheFirstControlOfASavedForm) {
  LeakCheck leaks;
  SavedForm form;
  form.controls.push_back({"Command1", {}, {{"Caption", std::string("Saved")}, {"Style", 1}}});
  const auto file = TestFile("form.json");
  WriteSavedFormFile(form, file);
  // Only the Win3x style takes a BorderStyle, and a new button is Win9x: the saved style counts.
  EXPECT_EQ(Render({"--set", "BorderStyle=0", TestFile("f.png").string()}), 2);
  EXPECT_EQ(Render({"--props", file.string(), "--set", "BorderStyle=0",
                    TestFile("f.png").string()}),
            0);

  WriteSavedFormFile(SavedForm{}, file);
  std::string errors;
  EXPECT_EQ(Render({"--props", file.string(), TestFile("f.png").string()}, &errors), 1);
  EXPECT_NE(errors.find("holds no control"), std::string::npos) << errors;
}

TEST(ButtonSceneTest, ReachesEachLookAsAUserWould) {
  LeakCheck leaks;
  {
    ButtonScene scene;
    EXPECT_EQ(scene.Button().DrawState(), DrawStateUp);
    scene.Reach(SceneState::Hot);
    EXPECT_EQ(scene.Button().DrawState(), DrawStateHot);
    scene.Reach(SceneState::Pressed);
    EXPECT_EQ(scene.Button().DrawState(), DrawStateDown);
  }
  ButtonScene next;
  EXPECT_EQ(next.Button().DrawState(), DrawStateUp) << "the last scene let go of the mouse";
  next.Focus();
  EXPECT_TRUE(next.Button().HasFocus());
  next.MakeDefault();
  EXPECT_TRUE(next.Button().Default());
}

}  // namespace
}  // namespace glyphon::apps
