// Picture blitting with effects: plain, transparent (one colour keyed out), embossed disabled,
// a one-colour silhouette and a blurred copy. Every operation draws through off-screen bitmaps
// made for the call and ends with one copy to the destination, so the destination never shows a
// step in between.
//
// Colours are OLE colours, translated against the palette in use (hPal, or the object's halftone
// palette when hPal is null), so system colours work everywhere. Pictures must be bitmaps or
// icons: anything else, no object or an empty picture throws AutomationError 481 "Invalid picture"
// with the operation's name as its source, and nothing is drawn. Icons are drawn at the size asked
// for, not at their own.
#pragma once

#include "platform/ole/std_picture.h"
#include "platform/win32.h"

namespace glyphon {

class Canvas;

// The button's defaults for the optional colours.
inline constexpr win::OLE_COLOR kDefaultMaskColor = win::RGB(0, 255, 255);
inline constexpr win::OLE_COLOR kButtonShadowColor = 0x80000010;
inline constexpr win::OLE_COLOR kButtonHighlightColor = 0x80000014;
inline constexpr win::OLE_COLOR kButtonTextColor = 0x80000012;
inline constexpr int kDefaultSmoothness = 2;

class PaintEffects {
 public:
  // Makes the default halftone palette from the screen's context.
  PaintEffects();
  ~PaintEffects();
  PaintEffects(const PaintEffects&) = delete;
  PaintEffects& operator=(const PaintEffects&) = delete;

  // The picture softened by a separable box filter of radius `smoothness` pixels (negative
  // counts as 0, more than 32 as 32), run along rows and then columns. Picture pixels of clrMask
  // (every pixel counts as picture when useMaskColor is false) take no part, and the edge of the
  // picture runs into clrShadow: each pixel is the mean of its window with the missing part of
  // the window filled with clrShadow, so an opaque neighbourhood keeps the picture's own colours
  // and the rim fades into the shadow. Pixels whose window holds no picture at all stay
  // transparent.
  void PaintBlurredStandardPic(const StdPicture& picSource, Canvas& destCanvas, int xDest,
                               int yDest, int picWidth, int picHeight,
                               int smoothness = kDefaultSmoothness,
                               win::OLE_COLOR clrMask = kDefaultMaskColor,
                               win::OLE_COLOR clrShadow = kButtonShadowColor,
                               win::HPALETTE hPal = nullptr, bool useMaskColor = true) const;

  // The picture as a one-colour silhouette in clrForeColor: every pixel that is not clrMask
  // (with useMaskColor false, every pixel of the picWidth x picHeight area) becomes the ink.
  // Transparent parts of an icon read as clrMask and so stay transparent when masking.
  void PaintMonoStandardPic(const StdPicture& picSource, Canvas& destCanvas, int xDest, int yDest,
                            int picWidth, int picHeight,
                            win::OLE_COLOR clrMask = kDefaultMaskColor,
                            win::OLE_COLOR clrForeColor = kButtonTextColor,
                            win::HPALETTE hPal = nullptr, bool useMaskColor = true) const;

  // "Paints a disabled appearing image (embossed) given a source picture object."
  void PaintDisabledStdPic(win::HDC hdcDest, int xDest, int yDest, int width, int height,
                           const StdPicture& picSource, int xSrc, int ySrc,
                           win::OLE_COLOR clrMask = kDefaultMaskColor,
                           win::OLE_COLOR clrHighlight = kButtonHighlightColor,
                           win::OLE_COLOR clrShadow = kButtonShadowColor,
                           win::HPALETTE hPal = nullptr) const;

  // The embossed look of an area of hdcSrc: its dark pixels (as the platform's conversion to one
  // bit sees them; clrMask counts as light) in clrHighlight one pixel right and down, under the
  // same pixels in clrShadow. A clrMask of white skips the keying, so white pixels vanish too.
  void PaintDisabledDC(win::HDC hdcDest, int xDest, int yDest, int width, int height,
                       win::HDC hdcSrc, int xSrc, int ySrc,
                       win::OLE_COLOR clrMask = kDefaultMaskColor,
                       win::OLE_COLOR clrHighlight = kButtonHighlightColor,
                       win::OLE_COLOR clrShadow = kButtonShadowColor,
                       win::HPALETTE hPal = nullptr) const;

  // An area of hdcSrc whose pixels of clrMask leave the destination as it was. A monochrome
  // source is coloured with hdcSrc's text (0) and background (1) colours.
  void PaintTransparentDC(win::HDC hdcDest, int xDest, int yDest, int width, int height,
                          win::HDC hdcSrc, int xSrc, int ySrc, win::OLE_COLOR clrMask,
                          win::HPALETTE hPal = nullptr) const;

  void PaintTransparentStdPic(win::HDC hdcDest, int xDest, int yDest, int width, int height,
                              const StdPicture& picSource, int xSrc, int ySrc,
                              win::OLE_COLOR clrMask, win::HPALETTE hPal = nullptr) const;

  // A bitmap is stretched from (xSrc, ySrc) over width x height; an icon is drawn with its mask.
  void PaintNormalStdPic(win::HDC hdcDest, int xDest, int yDest, int width, int height,
                         const StdPicture& picSource, int xSrc, int ySrc,
                         win::HPALETTE hPal = nullptr) const;

 private:
  win::HPALETTE PaletteOr(win::HPALETTE hPal) const;
  // The colour translated against the palette in use, as a plain RGB value: the translation
  // marks it palette-relative, which would make black differ from RGB(0, 0, 0) in comparisons.
  win::COLORREF ToRgb(win::OLE_COLOR color, win::HPALETTE hPal) const;
  // Draws the picture over clrMask on a scratch canvas, lets rewrite change its pixels
  // (0x00RRGGBB, rows top-down) and puts the result on destCanvas keyed on clrMask.
  template <class Rewrite>
  void PaintRewritten(const StdPicture& picSource, Canvas& destCanvas, int xDest, int yDest,
                      int picWidth, int picHeight, win::OLE_COLOR clrMask, win::HPALETTE hPal,
                      Rewrite rewrite) const;

  win::HPALETTE defaultPalette_ = nullptr;
};

// The colour the embossed look keys its ink on: the first of black, red and blue that is
// neither of the two ink colours (RGB values).
win::COLORREF EmbossKeyColor(win::COLORREF shadow, win::COLORREF highlight);

}  // namespace glyphon
