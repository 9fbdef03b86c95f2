// Pictures a host may hand over but the samples never make: a monochrome device bitmap, DIB
// sections of 1, 8 and 24 bits with colour tables and padded rows, and a bitmap compatible with
// the screen, each holding chequers with an area of the button's default mask colour (which the
// indexed ones keep in their tables); and an icon with every alpha level. All are made by the
// current engine.
#pragma once

#include <span>
#include <string_view>

#include "platform/ole/std_picture.h"

namespace glyphon::testing {

enum class HostBitmap { Monochrome, Dib1Coloured, Dib8, Dib24, ScreenCompatible };

struct HostBitmapInfo {
  HostBitmap id;
  std::string_view name;
};

std::span<const HostBitmapInfo> AllHostBitmaps();

// Every host bitmap has this odd size, so that rows of every depth are padded.
inline constexpr int kHostBitmapWidth = 21;
inline constexpr int kHostBitmapHeight = 17;

// A picture that owns its bitmap.
StdPicture MakeHostBitmapPicture(HostBitmap which);

// An icon whose pixels run through every alpha value (0 only where its mask is set), each in
// several colours, so that any rounding of the blend shows.
inline constexpr int kAlphaRampIconSize = 32;
StdPicture MakeAlphaRampIconPicture();

}  // namespace glyphon::testing
