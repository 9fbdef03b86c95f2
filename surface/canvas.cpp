// Canvas lifecycle, defaults, bitmap and the members only the canvas has.
#include "surface/canvas.h"

#include <algorithm>
#include <cstddef>

#include "surface/rounding.h"

namespace glyphon {

Canvas::~Canvas() {
  win::SelectObject(hdc_, originalBitmap_);
  // A bitmap handed to a picture is the picture's to delete (bitmapPicture_ lets go of it).
  if (bitmapPicture_.IsNothing()) win::DeleteObject(bitmap_);
  ReleaseDrawingObjects();
  win::SelectPalette(createdDc_, oldPalette_, win::TRUE);
  win::DeleteObject(hPal_);
  win::DeleteDC(createdDc_);
}

win::HDC Canvas::CreatehDC() {
  const win::HDC screen = win::GetDC(nullptr);
  hPal_ = win::CreateHalftonePalette(screen);
  const win::HDC dc = win::CreateCompatibleDC(screen);
  oldPalette_ = win::SelectPalette(dc, hPal_, win::TRUE);
  win::RealizePalette(dc);
  win::ReleaseDC(nullptr, screen);
  createdDc_ = dc;
  hdc_ = dc;
  return dc;
}

void Canvas::Cls() { FillWithBackColor(width_, height_); }

void Canvas::ClsRect(int left, int top, int right, int bottom) {
  const win::RECT area{left, top, right, bottom};
  win::FillRect(hdc_, &area, CurrentBrush());
}

void Canvas::CreateBitmap(win::HDC basedOnhDC, int bitmapWidth, int bitmapHeight) {
  RequireDc("CreateBitmap");
  width_ = bitmapWidth;
  height_ = bitmapHeight;
  // Compatible with the given context, not with the canvas's own, to get the screen's format.
  bitmap_ = win::CreateCompatibleBitmap(basedOnhDC, bitmapWidth, bitmapHeight);
  originalBitmap_ = static_cast<win::HBITMAP>(win::SelectObject(hdc_, bitmap_));
}

void Canvas::InitProperties() {
  RequireDc("Initialize");
  CaptureInitialObjects();
  currentX_ = 0;
  currentY_ = 0;
  DrawMode(win::R2_COPYPEN);
  DrawStyle(win::PS_SOLID);
  DrawWidth(1);
  // Set while FillStyle is still 0: a solid button-face brush first, then the hollow one.
  FillColor(0x80000000u | win::COLOR_BTNFACE);
  FillStyle(1);
  FontTransparent(true);
  ForeColor(0x80000000u | win::COLOR_BTNTEXT);
  ScaleMode(3);
}

void Canvas::SelectBmp(win::HBITMAP bitmapHandle) { win::SelectObject(hdc_, bitmapHandle); }

void Canvas::FillRectGradient(int left, int top, int right, int bottom, win::OLE_COLOR,
                              win::OLE_COLOR) {
  if (gradientDepth_ == 0) {
    gradientDepth_ = win::GetDeviceCaps(hdc_, win::BITSPIXEL) * win::GetDeviceCaps(hdc_, win::PLANES);
    switch (gradientDepth_) {
      case 4: case 8: gradientBands_ = 64; break;
      case 15: gradientBands_ = 32; break;
      case 16: case 24: case 32: gradientBands_ = 256; break;
      default:
        gradientDepth_ = 4;
        gradientBands_ = 64;
        break;
    }
  }
  const double bands = gradientBands_;
  const int colorStep = RoundHalfEven(256.0 / bands);
  const int heightStep = RoundHalfEven((bottom - top) / bands);
  const int widthStep = RoundHalfEven((right - left) / bands);
  // The bands shrink towards the canvas origin, wherever the rectangle lies.
  win::RECT rest{0, 0, right - left, bottom - top};
  for (int i = 0; i < gradientBands_; ++i) {
    const win::HBRUSH brush = win::CreateSolidBrush(win::RGB(0, 0, i * colorStep));
    const win::RECT lower{0, rest.bottom - heightStep, rest.right, rest.bottom};
    win::FillRect(hdc_, &lower, brush);
    const win::RECT side{rest.right - widthStep, 0, rest.right, rest.bottom};
    win::FillRect(hdc_, &side, brush);
    rest.bottom -= heightStep;
    rest.right -= widthStep;
    win::DeleteObject(brush);
  }
  const win::HBRUSH blue = win::CreateSolidBrush(win::RGB(0, 0, 255));
  win::FillRect(hdc_, &rest, blue);
  win::DeleteObject(blue);
}

void Canvas::CreateBitmapArray(ByteArray2D& bytes) {
  win::BITMAP description{};
  win::GetObjectA(bitmap_, sizeof description, &description);
  bytes.Resize(description.bmHeight, description.bmWidthBytes);
  win::GetBitmapBits(bitmap_, static_cast<win::LONG>(bytes.Size()), bytes.Data());
}

void Canvas::DrawFromArray(const ByteArray2D& bytes) {
  win::BITMAP description{};
  win::GetObjectA(bitmap_, sizeof description, &description);
  const std::size_t wanted = static_cast<std::size_t>(std::max(description.bmWidthBytes, 0)) *
                             static_cast<std::size_t>(std::max(description.bmHeight, 0));
  // Never read past the array, whatever shape it has.
  const std::size_t count = std::min(wanted, bytes.Size());
  win::SetBitmapBits(bitmap_, static_cast<win::DWORD>(count), bytes.Data());
}

// The picture object owns the bitmap from now on. The canvas keeps one reference to that same
// picture and hands out copies of it on later calls, so exactly one owner ever deletes the
// bitmap, and the canvas's own clean-up no longer does.
StdPicture Canvas::HandOverBitmap() {
  if (bitmapPicture_.IsNothing()) {
    win::PICTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.picType = win::PICTYPE_BITMAP;
    description.bmp.hbitmap = bitmap_;
    description.bmp.hpal = hPal_;
    bitmapPicture_ = StdPicture::FromDescription(description, true);
  }
  return bitmapPicture_;
}

StdPicture Canvas::Picture() {
  win::SelectObject(hdc_, originalBitmap_);
  return HandOverBitmap();
}

StdPicture Canvas::Picture3() {
  const win::HGDIOBJ selected = win::SelectObject(hdc_, originalBitmap_);
  StdPicture picture = HandOverBitmap();
  win::SelectObject(hdc_, selected);
  return picture;
}

}  // namespace glyphon
