// PaintEffects: the copy that keys one colour out, with whole-rectangle raster operations only.
#include "content/paint_effects.h"
#include "content/scratch_surface.h"
#include "surface/named_colors.h"

namespace glyphon {

namespace {
constexpr win::DWORD kDestinationAndNotSource = 0x00220326;
}  // namespace

void PaintEffects::PaintTransparentDC(win::HDC hdcDest, int xDest, int yDest, int width,
                                      int height, win::HDC hdcSrc, int xSrc, int ySrc,
                                      win::OLE_COLOR clrMask, win::HPALETTE hPal) const {
  const ScreenDc screen;
  const win::HPALETTE palette = PaletteOr(hPal);
  const win::COLORREF maskRgb = ToRgb(clrMask, hPal);

  const ScratchSurface work = ScratchSurface::Color(screen.Get(), width, height, palette);
  win::BitBlt(work.Dc(), 0, 0, width, height, hdcDest, xDest, yDest, win::SRCCOPY);

  // A monochrome source turns into colour here as hdcSrc itself would colour it.
  const ScratchSurface source = ScratchSurface::Color(screen.Get(), width, height, palette);
  win::SetBkColor(source.Dc(), win::GetBkColor(hdcSrc));
  win::SetTextColor(source.Dc(), win::GetTextColor(hdcSrc));
  win::BitBlt(source.Dc(), 0, 0, width, height, hdcSrc, xSrc, ySrc, win::SRCCOPY);

  // 1 where the source shows the mask colour.
  const ScratchSurface mask = ScratchSurface::Monochrome(screen.Get(), width, height);
  win::SetBkColor(source.Dc(), maskRgb);
  win::SetTextColor(source.Dc(), kWhite);
  win::BitBlt(mask.Dc(), 0, 0, width, height, source.Dc(), 0, 0, win::SRCCOPY);

  // Black out the keyed pixels of the source and the opaque ones of the background, then OR the
  // two together.
  win::SetTextColor(source.Dc(), kBlack);
  win::SetBkColor(source.Dc(), kWhite);
  win::BitBlt(source.Dc(), 0, 0, width, height, mask.Dc(), 0, 0, kDestinationAndNotSource);
  win::BitBlt(work.Dc(), 0, 0, width, height, mask.Dc(), 0, 0, win::SRCAND);
  win::BitBlt(work.Dc(), 0, 0, width, height, source.Dc(), 0, 0, win::SRCPAINT);
  win::BitBlt(hdcDest, xDest, yDest, width, height, work.Dc(), 0, 0, win::SRCCOPY);
}

}  // namespace glyphon
