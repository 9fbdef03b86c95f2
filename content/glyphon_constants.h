// The six enumerations of the button's automation interface. Values are part of the persisted form
// and of the type library, so they never change.
#pragma once

#include <cstdint>

namespace glyphon {

enum zonAlignmentConstants : std::int32_t {
  zonAlignLeft = 0,
  zonAlignRight = 1,
  zonAlignCenter = 2,
};

enum zonButtonStyleConstants : std::int32_t {
  zonStyleWin9x = 0,
  zonStyleWin3x = 1,
  zonStyleWinXPBlue = 2,
  zonStyleWinXPOliveGreen = 3,
  zonStyleWinXPSilver = 4,
  zonStyleMac8x = 5,
};

enum zonPictureAlignmentConstants : std::int32_t {
  zonPicAlignLeft = 0,
  zonPicAlignRight = 1,
  zonPicAlignCenter = 2,
  zonPicAlignTop = 3,
  zonPicAlignBottom = 4,
};

enum zonPictureStyleConstants : std::int32_t {
  zonPicStyleNormal = 0,
  zonPicStyleMono = 1,
  zonPicStylePopup = 2,
  zonPicStyleStatic = 3,
  zonPicStyleActive = 4,
};

enum zonBorderStyleConstants : std::int32_t {
  zonBorderNone = 0,
  zonBorderSingle = 1,
};

enum zonMousePointerConstants : std::int32_t {
  zonDefault = 0,
  zonArrow = 1,
  zonCrossHair = 2,
  zonIBeam = 3,
  zonIconPointer = 4,
  zonSizePointer = 5,
  zonSizeNESW = 6,
  zonSizeNW = 7,
  zonSizeNWSE = 8,
  zonSizeWE = 9,
  zonUpArrow = 10,
  zonHourglass = 11,
  zonNoDrop = 12,
  zonArrowHourglass = 13,
  zonArrowQuestion = 14,
  zonSizeAll = 15,
  zonCustom = 99,
};

// The visual state handed to every painter.
inline constexpr std::int32_t DrawStateHot = 0;
inline constexpr std::int32_t DrawStateDown = 1;
inline constexpr std::int32_t DrawStateUp = 2;

}  // namespace glyphon
