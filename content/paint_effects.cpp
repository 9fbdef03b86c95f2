// PaintEffects: the default palette, plain copies and the picture forms of the keyed and
// embossed copies.
#include "content/paint_effects.h"

#include "content/picture_source.h"
#include "content/scratch_surface.h"

namespace glyphon {

PaintEffects::PaintEffects() {
  const ScreenDc screen;
  defaultPalette_ = win::CreateHalftonePalette(screen.Get());
}

PaintEffects::~PaintEffects() { win::DeleteObject(defaultPalette_); }

win::HPALETTE PaintEffects::PaletteOr(win::HPALETTE hPal) const {
  return hPal != nullptr ? hPal : defaultPalette_;
}

win::COLORREF PaintEffects::ToRgb(win::OLE_COLOR color, win::HPALETTE hPal) const {
  win::COLORREF rgb = 0;
  win::OleTranslateColor(color, PaletteOr(hPal), &rgb);
  return rgb & 0x00FFFFFFu;
}

void PaintEffects::PaintNormalStdPic(win::HDC hdcDest, int xDest, int yDest, int width,
                                     int height, const StdPicture& picSource, int xSrc, int ySrc,
                                     win::HPALETTE hPal) const {
  RequireDrawablePicture(picSource, "PaintNormalStdPic");
  if (picSource.Type() == win::PICTYPE_ICON) {
    win::DrawIconEx(hdcDest, xDest, yDest, picSource.Icon(), width, height, 0, nullptr,
                    win::DI_NORMAL);
    return;
  }
  const ScreenDc screen;
  const PictureSource source(screen.Get(), picSource, xSrc, ySrc, width, height, 0,
                             PaletteOr(hPal));
  win::StretchBlt(hdcDest, xDest, yDest, width, height, source.Dc(), source.X(), source.Y(),
                  width, height, win::SRCCOPY);
}

void PaintEffects::PaintTransparentStdPic(win::HDC hdcDest, int xDest, int yDest, int width,
                                          int height, const StdPicture& picSource, int xSrc,
                                          int ySrc, win::OLE_COLOR clrMask,
                                          win::HPALETTE hPal) const {
  RequireDrawablePicture(picSource, "PaintTransparentStdPic");
  const ScreenDc screen;
  const PictureSource source(screen.Get(), picSource, xSrc, ySrc, width, height,
                             ToRgb(clrMask, hPal), PaletteOr(hPal));
  PaintTransparentDC(hdcDest, xDest, yDest, width, height, source.Dc(), source.X(), source.Y(),
                     clrMask, hPal);
}

void PaintEffects::PaintDisabledStdPic(win::HDC hdcDest, int xDest, int yDest, int width,
                                       int height, const StdPicture& picSource, int xSrc,
                                       int ySrc, win::OLE_COLOR clrMask,
                                       win::OLE_COLOR clrHighlight, win::OLE_COLOR clrShadow,
                                       win::HPALETTE hPal) const {
  RequireDrawablePicture(picSource, "PaintDisabledStdPic");
  const ScreenDc screen;
  const PictureSource source(screen.Get(), picSource, xSrc, ySrc, width, height,
                             ToRgb(clrMask, hPal), PaletteOr(hPal));
  PaintDisabledDC(hdcDest, xDest, yDest, width, height, source.Dc(), source.X(), source.Y(),
                  clrMask, clrHighlight, clrShadow, hPal);
}

}  // namespace glyphon
