// PaintEffects: the silhouette and the blurred picture, which rewrite the picture's pixels.
#include <cstdint>
#include <span>
#include <vector>

#include "content/paint_effects.h"
#include "content/picture_rewrites.h"
#include "content/picture_source.h"
#include "content/scratch_surface.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

win::BITMAPINFO TopDown32(int width, int height) {
  win::BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(win::BITMAPINFOHEADER);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = win::BI_RGB;
  return info;
}

}  // namespace

template <class Rewrite>
void PaintEffects::PaintRewritten(const StdPicture& picSource, Canvas& destCanvas, int xDest,
                                  int yDest, int picWidth, int picHeight, win::OLE_COLOR clrMask,
                                  win::HPALETTE hPal, Rewrite rewrite) const {
  if (picWidth <= 0 || picHeight <= 0) return;
  Canvas scratch;
  scratch.CreatehDC();
  scratch.InitProperties();
  {
    const ScreenDc screen;
    scratch.CreateBitmap(screen.Get(), picWidth, picHeight);
  }
  scratch.BackColor(clrMask);
  scratch.Cls();
  PaintTransparentStdPic(scratch.hdc(), 0, 0, picWidth, picHeight, picSource, 0, 0, clrMask,
                         hPal);

  const win::COLORREF maskRgb = ToRgb(clrMask, hPal);
  win::BITMAPINFO info = TopDown32(picWidth, picHeight);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(picWidth) *
                                    static_cast<std::size_t>(picHeight));
  // The bitmap leaves its context while its bits are read and written.
  scratch.SelectBmp(scratch.OriginalBitmap());
  const auto lines = static_cast<win::UINT>(picHeight);
  win::GetDIBits(scratch.hdc(), scratch.BITMAP(), 0, lines, pixels.data(), &info,
                 win::DIB_RGB_COLORS);
  rewrite(std::span<std::uint32_t>(pixels), PixelOf(maskRgb));
  win::SetDIBits(scratch.hdc(), scratch.BITMAP(), 0, lines, pixels.data(), &info,
                 win::DIB_RGB_COLORS);
  scratch.SelectBmp(scratch.BITMAP());

  PaintTransparentDC(destCanvas.hdc(), xDest, yDest, picWidth, picHeight, scratch.hdc(), 0, 0,
                     clrMask, hPal);
}

void PaintEffects::PaintMonoStandardPic(const StdPicture& picSource, Canvas& destCanvas,
                                        int xDest, int yDest, int picWidth, int picHeight,
                                        win::OLE_COLOR clrMask, win::OLE_COLOR clrForeColor,
                                        win::HPALETTE hPal, bool useMaskColor) const {
  RequireDrawablePicture(picSource, "PaintMonoStandardPic");
  const win::COLORREF ink = ToRgb(clrForeColor, hPal);
  PaintRewritten(picSource, destCanvas, xDest, yDest, picWidth, picHeight, clrMask, hPal,
                 [&](std::span<std::uint32_t> pixels, std::uint32_t mask) {
                   MakeSilhouette(pixels, mask, PixelOf(ink), useMaskColor);
                 });
}

void PaintEffects::PaintBlurredStandardPic(const StdPicture& picSource, Canvas& destCanvas,
                                           int xDest, int yDest, int picWidth, int picHeight,
                                           int smoothness, win::OLE_COLOR clrMask,
                                           win::OLE_COLOR clrShadow, win::HPALETTE hPal,
                                           bool useMaskColor) const {
  RequireDrawablePicture(picSource, "PaintBlurredStandardPic");
  const win::COLORREF shadow = ToRgb(clrShadow, hPal);
  PaintRewritten(picSource, destCanvas, xDest, yDest, picWidth, picHeight, clrMask, hPal,
                 [&](std::span<std::uint32_t> pixels, std::uint32_t mask) {
                   BlurPixels(pixels, picWidth, picHeight, smoothness, mask, PixelOf(shadow),
                              useMaskColor);
                 });
}

}  // namespace glyphon
