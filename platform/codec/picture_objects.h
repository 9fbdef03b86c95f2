// Decoded pixels to picture objects and back, through the platform.
//
// A bitmap picture is a 32-bit bottom-up DIB section with the fourth byte of every pixel 0,
// whatever depth it was stored in: copying it onto a screen-compatible bitmap (which is 32-bit)
// moves the exact colours, so the colour-to-monochrome step of the mask-colour transparency
// technique finds every pixel of the mask colour. Indexed and 16-bit sources would depend on
// the conversion of each blit; alpha has no meaning in a block transfer and would spoil equality
// with the mask colour on devices that compare all 32 bits.
//
// An icon picture is made by CreateIconIndirect from a 32-bit DIB section carrying the image's
// own alpha (0 throughout for images without alpha, so that the AND mask decides) and a
// monochrome AND mask.
#pragma once

#include "platform/codec/ico_codec.h"
#include "platform/codec/png_codec.h"
#include "platform/ole/std_picture.h"

namespace glyphon {

// Throw DecodeError when the platform cannot make or read the object.
StdPicture MakeBitmapPicture(const Image& image);
StdPicture MakeIconPicture(const IconImage& icon);
Image ReadBitmapPixels(win::HBITMAP bitmap);  // alpha 0
IconImage ReadIconPixels(win::HICON icon);

}  // namespace glyphon
