#include "control/glyphon_metadata.h"

#include <array>

#include "control/ascii_case.h"

namespace glyphon {

namespace {

using enum MemberKind;
using enum MemberType;

constexpr std::uint8_t kGetLet = kAccessGet | kAccessLet;
constexpr std::uint8_t kGetLetByRef = kAccessGet | kAccessLetByRef;
constexpr std::uint8_t kGetSet = kAccessGet | kAccessSet;

constexpr std::array<ParameterInfo, 4> kMouseParameters{{
    {"Button", Integer, true},
    {"Shift", Integer, true},
    {"x", Single, true},
    {"y", Single, true},
}};
constexpr std::array<ParameterInfo, 2> kKeyParameters{{
    {"KeyCode", Integer, true},
    {"Shift", Integer, true},
}};
constexpr std::array<ParameterInfo, 1> kKeyPressParameters{{
    {"KeyAscii", Integer, true},
}};

constexpr MemberInfo MakeProperty(std::string_view name, std::int32_t dispId, std::string_view help,
                              MemberType type, std::uint8_t access,
                              std::string_view enumeration = {}) {
  return MemberInfo{name, Property, dispId, help, type, enumeration, access, {}};
}

constexpr MemberInfo MakeMethod(std::string_view name, std::int32_t dispId, std::string_view help) {
  return MemberInfo{name, Method, dispId, help, None, {}, 0, {}};
}

constexpr MemberInfo MakeEvent(std::string_view name, std::int32_t dispId, std::string_view help,
                           std::span<const ParameterInfo> parameters = {}) {
  return MemberInfo{name, Event, dispId, help, None, {}, 0, parameters};
}

// Standard identifiers are negative; the control's own are small positive numbers, assigned once.
constexpr std::array kMembers{
    MakeProperty("Alignment", 1,
             "Sets or returns a value that determines where the picture and text will be placed "
             "on the button.",
             Enumeration, kGetLet, "zonAlignmentConstants"),
    MakeProperty("BackColor", -501, "Sets or returns the background color of the control", Color,
             kGetLet),
    MakeProperty("BorderColor", -503, "Sets or returns the border color of the button.", Color,
             kGetLet),
    MakeProperty("BorderStyle", -504,
             "Sets or returns a value that determines the border style of the control.",
             Enumeration, kGetLetByRef, "zonBorderStyleConstants"),
    MakeProperty("Caption", -517,
             "Sets or returns a value that determines the text displayed in the button.", String,
             kGetLetByRef),
    MakeProperty("Default", 2,
             "Sets or returns a value that determines if the button should be the default on a "
             "form.",
             Boolean, kGetLet),
    MakeProperty("DisabledColor", 3,
             "Sets or returns the color used to paint portions of the button when it is disabled.",
             Color, kGetLet),
    MakeProperty("DropShadow", 4,
             "Sets or returns a value that determines if a drop shadow will appear under the "
             "picture.",
             Boolean, kGetLet),
    MakeProperty("Enabled", -514, "", Boolean, kGetLet),
    MakeProperty("Font", -512, "Sets or returnss the font used for the control.", Font, kGetSet),
    MakeProperty("ForeColor", -513,
             "Sets or returns the foreground color used to display text of the button.", Color,
             kGetLet),
    MakeProperty("HighlightColor", 5,
             "Sets or returns the color used to display portions of the button which are "
             "highlighted.",
             Color, kGetLet),
    MakeProperty("hWnd", -515, "Returns the hWnd value of the control.", Handle, kAccessGet),
    MakeProperty("MaskColor", 6,
             "Sets or returns a color value that allows the background of the control to show "
             "through.",
             Color, kGetLet),
    MakeProperty("MouseIcon", 7,
             "Sets or returns a value that determines a custom Icon to be displayed when the "
             "pointer moves over the control.",
             Picture, kGetSet),
    MakeProperty("MousePointer", 8,
             "Sets or returns a value that determines the MousePointer to be displayed when the "
             "pointer moves over the control.",
             Enumeration, kGetLet, "zonMousePointerConstants"),
    MakeProperty("Picture", 9, "Returns or sets the picture to be displayed on the button.", Picture,
             kGetSet),
    MakeProperty("PictureAlignment", 10,
             "Determines where the picture will be placed in relation to the caption.",
             Enumeration, kGetLet, "zonPictureAlignmentConstants"),
    MakeProperty("PictureDisabled", 11,
             "Returns or sets the picture to be displayed on the button when the control is "
             "disabled.",
             Picture, kGetSet),
    MakeProperty("PictureDown", 12,
             "Returns or sets the picture to be displayed on the button when the button is in the "
             "Down state.",
             Picture, kGetSet),
    MakeProperty("PictureOver", 13,
             "Returns or sets the picture to be displayed on the button when it is in the Up "
             "state.",
             Picture, kGetSet),
    MakeProperty("PictureSpacing", 14,
             "Sets or returns a value that determines the spacing to be used between the picture "
             "and the caption.",
             Long, kGetLet),
    MakeProperty("PictureStyle", 15,
             "Sets or returns a value that determines the style of picture to be painted on the "
             "control.",
             Enumeration, kGetLet, "zonPictureStyleConstants"),
    MakeProperty("RightToLeft", 16, "", Boolean, kGetLet),
    MakeProperty("ShadowColor", 17,
             "Sets or returns the color used to display portions of the button which require "
             "shadow effects.",
             Color, kGetLet),
    MakeProperty("ShowDefault", 18,
             "Sets or returns a value that determines whether or not the button will be displayed "
             "as the default button.",
             Boolean, kAccessGet),
    MakeProperty("ShowFocus", 19,
             "Sets or returns a value that determines whether or not the focus rectangle should be "
             "shown.",
             Boolean, kGetLetByRef),
    MakeProperty("StealFocus", 20, "", Boolean, kGetLet),
    MakeProperty("Style", 21, "Sets or returns a value that determines how the button will be drawn.",
             Enumeration, kGetLet, "zonButtonStyleConstants"),
    MakeProperty("Tag", 22,
             "Sets or returns an expression that stores any extra data you wish to store.", String,
             kGetLet),
    MakeProperty("ToolTipText", 23, "", String, kGetLet),
    MakeProperty("UseMaskColor", 24,
             "Sets or returns a value that determines if the MaskColor property is used.", Boolean,
             kGetLetByRef),
    MakeMethod("About", -552, "Displays the About box for this control."),
    MakeMethod("Refresh", 25, "Causes the control to repaint itself."),
    MakeEvent("Click", 1, "Occurs when the user presses and releases the mouse button."),
    MakeEvent("KeyDown", 2, "Occurs when the user presses a key on the keyboard.", kKeyParameters),
    MakeEvent("KeyPress", 3, "Occurs when the user presses and releases a key on the keyboard.",
          kKeyPressParameters),
    MakeEvent("KeyUp", 4, "Occurs when the user releases a key on the keyboard.", kKeyParameters),
    MakeEvent("MouseDown", 5, "Occurs when the user presses the mouse button on the control.",
          kMouseParameters),
    MakeEvent("MouseMove", 6, "Occurs when the user moves the mouse over the control.",
          kMouseParameters),
    MakeEvent("MouseOut", 7, "Occurs when the user moves the mouse pointer out of the control."),
    MakeEvent("MouseOver", 8, "Occurs when the user moves the mouse pointer inside of the control."),
    MakeEvent("MouseUp", 9,
          "Occurs when the user releases the mouse button after pressing it on the control.",
          kMouseParameters),
};

constexpr std::array<EnumMemberInfo, 3> kAlignment{{
    {"zonAlignLeft", 0},
    {"zonAlignRight", 1},
    {"zonAlignCenter", 2},
}};
constexpr std::array<EnumMemberInfo, 6> kButtonStyle{{
    {"zonStyleWin9x", 0},
    {"zonStyleWin3x", 1},
    {"zonStyleWinXPBlue", 2},
    {"zonStyleWinXPOliveGreen", 3},
    {"zonStyleWinXPSilver", 4},
    {"zonStyleMac8x", 5},
}};
constexpr std::array<EnumMemberInfo, 5> kPictureAlignment{{
    {"zonPicAlignLeft", 0},
    {"zonPicAlignRight", 1},
    {"zonPicAlignCenter", 2},
    {"zonPicAlignTop", 3},
    {"zonPicAlignBottom", 4},
}};
constexpr std::array<EnumMemberInfo, 5> kPictureStyle{{
    {"zonPicStyleNormal", 0},
    {"zonPicStyleMono", 1},
    {"zonPicStylePopup", 2},
    {"zonPicStyleStatic", 3},
    {"zonPicStyleActive", 4},
}};
constexpr std::array<EnumMemberInfo, 2> kBorderStyle{{
    {"zonBorderNone", 0},
    {"zonBorderSingle", 1},
}};
constexpr std::array<EnumMemberInfo, 17> kMousePointer{{
    {"zonDefault", 0},
    {"zonArrow", 1},
    {"zonCrossHair", 2},
    {"zonIBeam", 3},
    {"zonIconPointer", 4},
    {"zonSizePointer", 5},
    {"zonSizeNESW", 6},
    {"zonSizeNW", 7},
    {"zonSizeNWSE", 8},
    {"zonSizeWE", 9},
    {"zonUpArrow", 10},
    {"zonHourglass", 11},
    {"zonNoDrop", 12},
    {"zonArrowHourglass", 13},
    {"zonArrowQuestion", 14},
    {"zonSizeAll", 15},
    {"zonCustom", 99},
}};

constexpr std::array<EnumInfo, 6> kEnumerations{{
    {"zonAlignmentConstants", kAlignment},
    {"zonButtonStyleConstants", kButtonStyle},
    {"zonPictureAlignmentConstants", kPictureAlignment},
    {"zonPictureStyleConstants", kPictureStyle},
    {"zonBorderStyleConstants", kBorderStyle},
    {"zonMousePointerConstants", kMousePointer},
}};

}  // namespace

std::span<const MemberInfo> GlyphonMembers() { return kMembers; }

std::span<const EnumInfo> GlyphonEnumerations() { return kEnumerations; }

const MemberInfo* FindMember(std::string_view name, MemberKind kind) {
  for (const MemberInfo& member : kMembers) {
    if (member.kind == kind && EqualsIgnoringCase(member.name, name)) return &member;
  }
  return nullptr;
}

const EnumInfo* FindEnumeration(std::string_view name) {
  for (const EnumInfo& enumeration : kEnumerations) {
    if (EqualsIgnoringCase(enumeration.name, name)) return &enumeration;
  }
  return nullptr;
}

}  // namespace glyphon
