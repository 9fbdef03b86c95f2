// Sample pictures drawn in code, for the gallery, the demo and the tests: bitmaps of several
// sizes (odd ones too) whose transparent parts are the button's default mask colour, icons with
// an AND mask, and an icon whose edges and shadow are alpha.
#pragma once

#include <span>
#include <string_view>

#include "platform/ole/std_picture.h"
#include "platform/win32_types.h"

namespace glyphon::samples {

// The colour of the transparent parts of the sample bitmaps: the button's default MaskColor.
inline constexpr win::COLORREF kSampleMaskColor = win::RGB(0, 255, 255);

enum class SamplePicture {
  Check16,         // bitmap 16 x 16: a green tick on the mask colour
  Folder16,        // bitmap 16 x 16: a yellow folder on the mask colour
  Arrow15x13,      // bitmap 15 x 13: a blue arrow on the mask colour
  Swatches32,      // bitmap 32 x 32: colour squares, black and white, a mask-coloured hole
  Landscape256,    // bitmap 256 x 256: sky, sun and hills, no mask colour anywhere
  Stop16Icon,      // icon 16 x 16: a red octagon with a white bar, masked corners
  Globe32Icon,     // icon 32 x 32: a blue and green globe, masked outside the circle
  Gem48AlphaIcon,  // icon 48 x 48: a smoothed gem with a soft alpha shadow
};

struct SampleInfo {
  SamplePicture id;
  std::string_view name;  // a short file-name-friendly name, e.g. "check16"
  int width;              // pixels
  int height;
  bool icon;
};

// Every sample, in the order of the enumeration.
std::span<const SampleInfo> AllSamplePictures();
const SampleInfo& InfoOf(SamplePicture which);

// A new picture object that owns its handle. Throws DecodeError when the platform cannot make it.
StdPicture MakeSamplePicture(SamplePicture which);

}  // namespace glyphon::samples
