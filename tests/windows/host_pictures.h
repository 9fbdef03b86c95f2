// Pictures a host may hand over but the samples never make, each made by the current engine:
// bitmaps of every format (a monochrome device bitmap, DIB sections of 1, 8 and 24 bits with
// colour tables and padded rows, a bitmap compatible with the screen), each holding chequers with
// an area of the button's default mask colour (which the indexed ones keep in their tables); and
// icons the samples never make: a monochrome one, a colour one with inverting pixels and one whose
// pixels run through every alpha value.
#pragma once

#include <span>
#include <string_view>

#include "platform/ole/std_picture.h"

namespace glyphon::testing {

enum class HostPicture {
  MonochromeBitmap,
  Dib1Coloured,
  Dib8,
  Dib24,
  ScreenCompatible,
  MonochromeIcon,
  InvertingIcon,
  AlphaRampIcon,
};

struct HostPictureInfo {
  HostPicture id;
  std::string_view name;
  int width;  // pixels
  int height;
};

std::span<const HostPictureInfo> AllHostPictures();

// A picture that owns its handle.
StdPicture MakeHostPicture(HostPicture which);

}  // namespace glyphon::testing
