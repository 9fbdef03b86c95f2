// Copying a cDIBSection out: plain, or transparent by a mask colour.
#include "surface/dib_section.h"

namespace glyphon {

namespace {

// A screen-compatible bitmap in a context of its own with the halftone palette selected as a
// background palette and realised.
struct PaletteSurface {
  win::HDC dc = nullptr;
  win::HBITMAP bitmap = nullptr;
  win::HGDIOBJ previousBitmap = nullptr;
  win::HPALETTE previousPalette = nullptr;
};

PaletteSurface OpenPaletteSurface(win::HDC screen, win::HPALETTE palette, int width, int height) {
  PaletteSurface surface;
  surface.dc = win::CreateCompatibleDC(screen);
  surface.bitmap = win::CreateCompatibleBitmap(screen, width, height);
  surface.previousBitmap = win::SelectObject(surface.dc, surface.bitmap);
  surface.previousPalette = win::SelectPalette(surface.dc, palette, win::TRUE);
  win::RealizePalette(surface.dc);
  return surface;
}

void ClosePaletteSurface(const PaletteSurface& surface) {
  win::SelectObject(surface.dc, surface.previousBitmap);
  win::DeleteObject(surface.bitmap);
  win::SelectPalette(surface.dc, surface.previousPalette, win::TRUE);
  win::RealizePalette(surface.dc);
  win::DeleteDC(surface.dc);
}

constexpr win::COLORREF kBlack = win::RGB(0, 0, 0);
constexpr win::COLORREF kWhite = win::RGB(255, 255, 255);
// Destination AND NOT source.
constexpr win::DWORD kAndNotSource = 0x00220326;

}  // namespace

void cDIBSection::PaintPicture(win::HDC lHDC, win::OLE_COLOR maskColor, int lDestLeft,
                               int lDestTop, int lDestWidth, int lDestHeight, int lSrcLeft,
                               int lSrcTop, win::DWORD eRop) {
  if (maskColor == kNoColor) {
    win::BitBlt(lHDC, lDestLeft, lDestTop, lDestWidth < 0 ? Width() : lDestWidth,
                lDestHeight < 0 ? Height() : lDestHeight, hdc_, lSrcLeft, lSrcTop, eRop);
    return;
  }
  const int width = Width();
  const int height = Height();
  const win::HDC screen = win::GetDC(nullptr);
  win::COLORREF maskRgb = 0;
  win::OleTranslateColor(maskColor, hPal_, &maskRgb);

  const PaletteSurface background = OpenPaletteSurface(screen, hPal_, width, height);
  win::BitBlt(background.dc, 0, 0, width, height, lHDC, lDestLeft, lDestTop, win::SRCCOPY);

  const PaletteSurface image = OpenPaletteSurface(screen, hPal_, width, height);
  win::SetBkColor(image.dc, win::GetBkColor(hdc_));
  win::SetTextColor(image.dc, win::GetTextColor(hdc_));
  win::BitBlt(image.dc, 0, 0, width, height, hdc_, lSrcLeft, lSrcTop, win::SRCCOPY);

  // Mask: 1 where the image shows the mask colour, 0 elsewhere.
  const win::HDC maskDc = win::CreateCompatibleDC(screen);
  const win::HBITMAP mask = win::CreateBitmap(width, height, 1, 1, nullptr);
  const win::HGDIOBJ previousMask = win::SelectObject(maskDc, mask);
  win::SetBkColor(image.dc, maskRgb);
  win::SetTextColor(image.dc, kWhite);
  win::BitBlt(maskDc, 0, 0, width, height, image.dc, 0, 0, win::SRCCOPY);

  // Blacken the transparent pixels of the image and the opaque area of the background, then
  // merge the two.
  win::SetTextColor(image.dc, kBlack);
  win::SetBkColor(image.dc, kWhite);
  win::BitBlt(image.dc, 0, 0, width, height, maskDc, 0, 0, kAndNotSource);
  win::BitBlt(background.dc, 0, 0, width, height, maskDc, 0, 0, win::SRCAND);
  win::BitBlt(background.dc, 0, 0, width, height, image.dc, 0, 0, win::SRCPAINT);
  win::BitBlt(lHDC, lDestLeft, lDestTop, width, height, background.dc, 0, 0, win::SRCCOPY);

  ClosePaletteSurface(image);
  ClosePaletteSurface(background);
  win::SelectObject(maskDc, previousMask);
  win::DeleteObject(mask);
  win::DeleteDC(maskDc);
  win::ReleaseDC(nullptr, screen);
}

void cDIBSection::RenderHDC(win::HDC lnghDC, win::DWORD rop) {
  // The DIB is already selected into this object's context, so selecting it here fails and the
  // transfer reads the new context's default bitmap. The context is not deleted.
  const win::HDC dc = win::CreateCompatibleDC(lnghDC);
  win::SelectObject(dc, hDib_);
  win::BitBlt(lnghDC, 0, 0, Width(), Height(), dc, 0, 0, rop);
}

}  // namespace glyphon
