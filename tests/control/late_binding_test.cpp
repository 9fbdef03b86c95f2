// The member table and setting properties by name through it.
#include <gtest/gtest.h>

#include <set>

#include "control/glyphon_errors.h"
#include "control/glyphon_metadata.h"
#include "control/property_access.h"
#include "tests/control/hosted_button.h"
#include "tests/support/error_of.h"

namespace glyphon::testing {
namespace {

using LateBindingTest = HostedButtonTest;

TEST(MetadataTest, MembersHaveUniqueIdentifiersAndTheStandardOnes) {
  std::set<std::int32_t> defaultInterface;
  std::set<std::int32_t> events;
  int properties = 0;
  for (const MemberInfo& member : GlyphonMembers()) {
    auto& ids = member.kind == MemberKind::Event ? events : defaultInterface;
    EXPECT_TRUE(ids.insert(member.dispId).second) << member.name;
    properties += member.kind == MemberKind::Property ? 1 : 0;
    if (member.type == MemberType::Enumeration) {
      EXPECT_NE(FindEnumeration(member.enumeration), nullptr) << member.name;
    }
  }
  EXPECT_EQ(properties, 32);
  EXPECT_EQ(events.size(), 9u);
  const std::pair<const char*, std::int32_t> standard[] = {
      {"BackColor", -501}, {"ForeColor", -513}, {"Font", -512},        {"Enabled", -514},
      {"hWnd", -515},      {"Caption", -517},   {"BorderColor", -503}, {"BorderStyle", -504}};
  for (const auto& [name, id] : standard) {
    EXPECT_EQ(FindMember(name, MemberKind::Property)->dispId, id) << name;
  }
  EXPECT_EQ(FindMember("about", MemberKind::Method)->dispId, -552);
  EXPECT_EQ(FindMember("FONT", MemberKind::Property)->helpString,
            "Sets or returnss the font used for the control.");
  EXPECT_EQ(FindMember("StealFocus", MemberKind::Property)->helpString, "");
  EXPECT_EQ(FindMember("ShowDefault", MemberKind::Property)->access, kAccessGet);
  EXPECT_EQ(FindMember("Click", MemberKind::Property), nullptr);
  EXPECT_EQ(FindMember("MouseUp", MemberKind::Event)->parameters.size(), 4u);
  EXPECT_EQ(FindEnumeration("zonMousePointerConstants")->members.back().value, 99);
}

TEST_F(LateBindingTest, EveryPropertyReadsByName) {
  for (const MemberInfo& member : GlyphonMembers()) {
    if (member.kind != MemberKind::Property) continue;
    EXPECT_NO_THROW(GetPropertyByName(button_, member.name)) << member.name;
  }
  EXPECT_EQ(std::get<std::string>(GetPropertyByName(button_, "caption")), "Glyphon1");
  EXPECT_EQ(std::get<std::int32_t>(GetPropertyByName(button_, "BackColor")),
            static_cast<std::int32_t>(0x8000000F));
}

TEST_F(LateBindingTest, SettingByNameGoesThroughTheSetters) {
  SetPropertyByName(button_, "caption", std::string("&Run"));
  EXPECT_EQ(host_.AccessKeys(), "R");
  SetPropertyByName(button_, "ENABLED", std::int16_t{1});  // check-box values are non-zero integers
  EXPECT_TRUE(button_.Enabled());
  SetPropertyByName(button_, "PictureSpacing", std::string("9"));
  EXPECT_EQ(button_.PictureSpacing(), 9);
  EXPECT_EQ(host_.Log(),
            (std::vector<std::string>{"paint Up", "changed Caption", "paint Up", "changed Enabled",
                                      "paint Up", "changed PictureSpacing"}));

  SetPropertyFromText(button_, "style", "zonStylewin3x");
  EXPECT_EQ(button_.Style(), zonStyleWin3x);
  SetPropertyFromText(button_, "BackColor", "&H000000FF&");
  EXPECT_EQ(button_.BackColor(), 0x000000FFu);
  SetPropertyFromText(button_, "ShowFocus", "False");
  EXPECT_FALSE(button_.ShowFocus());
  SetPropertyFromText(button_, "Alignment", "1");
  EXPECT_EQ(button_.Alignment(), zonAlignRight);
}

TEST_F(LateBindingTest, ErrorsOfLateBinding) {
  const std::pair<std::function<void()>, std::int32_t> cases[] = {
      {[&] { SetPropertyByName(button_, "NoSuchThing", true); }, kNoSuchMemberNumber},
      {[&] { SetPropertyByName(button_, "ShowDefault", false); }, kNoSuchMemberNumber},
      {[&] { SetPropertyByName(button_, "hWnd", std::int32_t{0}); }, kNoSuchMemberNumber},
      {[&] { SetPropertyByName(button_, "Alignment", std::string("left")); }, kTypeMismatchNumber},
      {[&] { SetPropertyFromText(button_, "Font", "Arial"); }, kTypeMismatchNumber},
      // The setter's own error comes through unchanged.
      {[&] { SetPropertyFromText(button_, "BorderStyle", "zonBorderSingle"); },
       kControlErrorNumber},
  };
  for (const auto& [call, number] : cases) EXPECT_EQ(ErrorOf(call).Number(), number);
  EXPECT_EQ(button_.Alignment(), zonAlignCenter);
}

}  // namespace
}  // namespace glyphon::testing
