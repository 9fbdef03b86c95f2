// The faded and greyed pictures: the picture (greyed first, for the second) mixed into what lies
// under it, with a mask colour whose pixels stay transparent. The work is done on the bytes of
// cDIBSection surfaces in place. Each returns true when the effect was drawn.
#pragma once

#include <cstdint>

#include "platform/ole/std_picture.h"
#include "platform/win32.h"
#include "surface/dib_section.h"
#include "surface/drawing_surface.h"

namespace glyphon {

// The grey tint that leaves grey pixels grey.
inline constexpr win::COLORREF kPlainGrey = win::RGB(128, 128, 128);

// Picture entries: width or height -1 means the picture's own. An icon is drawn at its own size
// over the mask colour, or over what lies under it when there is none. strength is the per cent
// of the picture in the mix; maskColor kNoColor keys nothing out.
bool PaintFadedPicture(const StdPicture& picture, win::HDC hdcDest, int xDest, int yDest,
                       int width, int height, int strength, win::OLE_COLOR maskColor = kNoColor);
bool PaintGreyedPicture(const StdPicture& picture, win::HDC hdcDest, int xDest, int yDest,
                        int width, int height, int strength, win::COLORREF tint,
                        win::OLE_COLOR maskColor = kNoColor);

// Context entries: the srcWidth x srcHeight area of hdcSrc at (xSrc, ySrc), resized to the
// destination size when that differs (-1: the source's own).
bool PaintFadedDC(win::HDC hdcSrc, int xSrc, int ySrc, int srcWidth, int srcHeight,
                  win::HDC hdcDest, int xDest, int yDest, int width, int height, int strength,
                  win::OLE_COLOR maskColor = kNoColor);
bool PaintGreyedDC(win::HDC hdcSrc, int xSrc, int ySrc, int srcWidth, int srcHeight,
                   win::HDC hdcDest, int xDest, int yDest, int width, int height, int strength,
                   win::COLORREF tint, win::OLE_COLOR maskColor = kNoColor);

// The steps, on whole DIB sections. maskRgb is an RGB value or kNoColor.
void TurnGrey(cDIBSection& image, win::COLORREF tint, win::COLORREF maskRgb);
// Writes the mix of effect (strength per cent) and background into background; effect pixels of
// maskRgb are copied as they are. Both must have the same size.
void MixInto(cDIBSection& background, const cDIBSection& effect, int strength,
             win::COLORREF maskRgb);
// Bilinear resampling of source over all of target. The step is (source size - 1) / target size,
// so the last row and column of target stop short of those of source and every read stays
// inside source.
void ResizeBilinear(const cDIBSection& source, cDIBSection& target);

}  // namespace glyphon
