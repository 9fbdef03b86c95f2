// PaintEffects: the embossed look of a disabled picture.
#include <array>

#include "content/paint_effects.h"
#include "content/scratch_surface.h"
#include "surface/named_colors.h"

namespace glyphon {

namespace {

constexpr win::RGBQUAD kBlackEntry{0, 0, 0, 0};
constexpr win::RGBQUAD kWhiteEntry{255, 255, 255, 0};

// A header and a two-colour table, laid out as the platform reads a BITMAPINFO.
struct MonochromeInfo {
  win::BITMAPINFOHEADER header;
  std::array<win::RGBQUAD, 2> colors;
};

// A top-down one-bit DIB section with the table {black, white}.
win::HBITMAP CreateMonochromeDib(win::HDC screen, int width, int height) {
  MonochromeInfo info{};
  info.header.biSize = sizeof(win::BITMAPINFOHEADER);
  info.header.biWidth = width;
  info.header.biHeight = -height;
  info.header.biPlanes = 1;
  info.header.biBitCount = 1;
  info.header.biCompression = win::BI_RGB;
  info.colors = {kBlackEntry, kWhiteEntry};
  void* bits = nullptr;
  return win::CreateDIBSection(screen, reinterpret_cast<const win::BITMAPINFO*>(&info),
                               win::DIB_RGB_COLORS, &bits, nullptr, 0);
}

}  // namespace

win::COLORREF EmbossKeyColor(win::COLORREF shadow, win::COLORREF highlight) {
  for (const win::COLORREF key : {kBlack, win::RGB(255, 0, 0), win::RGB(0, 0, 255)}) {
    if (key != shadow && key != highlight) return key;
  }
  return kBlack;  // unreachable: two colours cannot take three keys
}

void PaintEffects::PaintDisabledDC(win::HDC hdcDest, int xDest, int yDest, int width, int height,
                                   win::HDC hdcSrc, int xSrc, int ySrc, win::OLE_COLOR clrMask,
                                   win::OLE_COLOR clrHighlight, win::OLE_COLOR clrShadow,
                                   win::HPALETTE hPal) const {
  const ScreenDc screen;
  const win::HPALETTE palette = PaletteOr(hPal);
  const win::COLORREF shadowRgb = ToRgb(clrShadow, hPal);
  const win::COLORREF highlightRgb = ToRgb(clrHighlight, hPal);
  const win::COLORREF maskRgb = ToRgb(clrMask, hPal);
  const win::COLORREF whiteRgb = ToRgb(kWhite, hPal);

  // The picture in one bit: the platform's conversion decides what is dark; the keyed-out area
  // is made white first so that it never counts as ink.
  const ScratchSurface bits =
      ScratchSurface::Adopt(screen.Get(), CreateMonochromeDib(screen.Get(), width, height));
  if (maskRgb != whiteRgb) {
    const ScratchSurface keyed = ScratchSurface::Color(screen.Get(), width, height, nullptr);
    const win::RECT all{0, 0, width, height};
    const auto white = static_cast<win::HBRUSH>(win::GetStockObject(win::WHITE_BRUSH));
    win::FillRect(keyed.Dc(), &all, white);
    PaintTransparentDC(keyed.Dc(), 0, 0, width, height, hdcSrc, xSrc, ySrc, maskRgb, hPal);
    win::BitBlt(bits.Dc(), 0, 0, width, height, keyed.Dc(), 0, 0, win::SRCCOPY);
  } else {
    win::BitBlt(bits.Dc(), 0, 0, width, height, hdcSrc, xSrc, ySrc, win::SRCCOPY);
  }

  const ScratchSurface work = ScratchSurface::Color(screen.Get(), width, height, palette);
  win::BitBlt(work.Dc(), 0, 0, width, height, hdcDest, xDest, yDest, win::SRCCOPY);

  // With the table swapped the dark pixels read as ink and everything else as the key colour,
  // which the transparent copies below leave out.
  const win::COLORREF key = EmbossKeyColor(shadowRgb, highlightRgb);
  const std::array<win::RGBQUAD, 2> swapped{kWhiteEntry, kBlackEntry};
  win::SetDIBColorTable(bits.Dc(), 0, 2, swapped.data());

  const ScratchSurface ink = ScratchSurface::Monochrome(screen.Get(), width, height, palette);
  for (const auto& [color, offset] : {std::pair{highlightRgb, 1}, std::pair{shadowRgb, 0}}) {
    win::SetBkColor(ink.Dc(), color);
    win::SetTextColor(ink.Dc(), key);
    win::BitBlt(ink.Dc(), 0, 0, width, height, bits.Dc(), 0, 0, win::SRCCOPY);
    PaintTransparentDC(work.Dc(), offset, offset, width, height, ink.Dc(), 0, 0, key, hPal);
  }
  win::BitBlt(hdcDest, xDest, yDest, width, height, work.Dc(), 0, 0, win::SRCCOPY);
}

}  // namespace glyphon
