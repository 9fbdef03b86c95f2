// The member table and setting properties by name through it.
#include <gtest/gtest.h>

#include <set>

#include "control/glyphon_errors.h"
#include "control/glyphon_metadata.h"
#include "control/property_access.h"
#include "tests/control/hosted_button.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {
namespace {

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

TEST(LateBindingTest, EveryPropertyReadsByName) {
  LeakCheck leaks;
  HostedButton hosted;
  for (const MemberInfo& member : GlyphonMembers()) {
    if (member.kind != MemberKind::Property) continue;
    EXPECT_NO_THROW(GetPropertyByName(hosted.button, member.name)) << member.name;
  }
  EXPECT_EQ(std::get<std::string>(GetPropertyByName(hosted.button, "caption")), "Glyphon1");
  EXPECT_EQ(std::get<std::int32_t>(GetPropertyByName(hosted.button, "BackColor")),
            static_cast<std::int32_t>(0x8000000F));
}

TEST(LateBindingTest, SettingByNameGoesThroughTheSetters) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
  SetPropertyByName(b, "caption", std::string("&Run"));
  EXPECT_EQ(hosted.host.AccessKeys(), "R");
  SetPropertyByName(b, "ENABLED", std::int16_t{1});  // check-box values are non-zero integers
  EXPECT_TRUE(b.Enabled());
  SetPropertyByName(b, "PictureSpacing", std::string("9"));
  EXPECT_EQ(b.PictureSpacing(), 9);
  EXPECT_EQ(hosted.host.Log(), (std::vector<std::string>{"paint Up", "changed Caption",
                                                         "paint Up", "changed Enabled",
                                                         "paint Up", "changed PictureSpacing"}));

  SetPropertyFromText(b, "style", "zonStylewin3x");
  EXPECT_EQ(b.Style(), zonStyleWin3x);
  SetPropertyFromText(b, "BackColor", "&H000000FF&");
  EXPECT_EQ(b.BackColor(), 0x000000FFu);
  SetPropertyFromText(b, "ShowFocus", "False");
  EXPECT_FALSE(b.ShowFocus());
  SetPropertyFromText(b, "Alignment", "1");
  EXPECT_EQ(b.Alignment(), zonAlignRight);
}

TEST(LateBindingTest, ErrorsOfLateBinding) {
  LeakCheck leaks;
  HostedButton hosted;
  Glyphon& b = hosted.button;
  const auto numberOf = [&](auto&& call) {
    try {
      call();
    } catch (const AutomationError& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(numberOf([&] { SetPropertyByName(b, "NoSuchThing", true); }), kNoSuchMemberNumber);
  EXPECT_EQ(numberOf([&] { SetPropertyByName(b, "ShowDefault", false); }), kNoSuchMemberNumber);
  EXPECT_EQ(numberOf([&] { SetPropertyByName(b, "hWnd", std::int32_t{0}); }),
            kNoSuchMemberNumber);
  EXPECT_EQ(numberOf([&] { SetPropertyByName(b, "Alignment", std::string("left")); }),
            kTypeMismatchNumber);
  EXPECT_EQ(numberOf([&] { SetPropertyFromText(b, "Font", "Arial"); }), kTypeMismatchNumber);
  // The setter's own error comes through unchanged.
  EXPECT_EQ(numberOf([&] { SetPropertyFromText(b, "BorderStyle", "zonBorderSingle"); }),
            kControlErrorNumber);
  EXPECT_EQ(b.Alignment(), zonAlignCenter);
}

}  // namespace
}  // namespace glyphon::testing
