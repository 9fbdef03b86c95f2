// Canvas: the off-screen drawing surface of every repaint. A memory context compatible with the
// screen, with a halftone palette realised into it and one screen-compatible bitmap selected, plus
// the shared pen/brush/font state and drawing members (surface/drawing_surface.h).
//
// Calling order: CreatehDC, InitProperties, CreateBitmap, then drawing; everything the canvas
// created is released, in a fixed order, when it is destroyed. Handles passed in (a context given
// to hdc(), BasedOnhDC, BasehDC, SelectBmp's bitmap) stay the caller's.
#pragma once

#include <string>

#include "platform/ole/std_picture.h"
#include "surface/byte_array_2d.h"
#include "surface/drawing_surface.h"

namespace glyphon {

class Canvas : protected DrawingSurface {
 public:
  Canvas() = default;
  ~Canvas();

  // A memory context compatible with the screen, with the halftone palette selected (as a
  // background palette) and realised. Returns the context.
  win::HDC CreatehDC();
  using DrawingSurface::BackColor;
  // Fills (0, 0, Width, Height) with BackColor; the selected brush is not used.
  void Cls();
  // Fills the rectangle with the current brush (FillColor and FillStyle), not with BackColor.
  void ClsRect(int left, int top, int right, int bottom);
  // A bitmap of this size compatible with basedOnhDC (normally the screen), selected into the
  // canvas. Throws AutomationError (source "CreateBitmap") when there is no context.
  void CreateBitmap(win::HDC basedOnhDC, int bitmapWidth, int bitmapHeight);
  // Default position of PrintText; plain storage.
  int CurrentX() const { return currentX_; }
  void CurrentX(int newX) { currentX_ = newX; }
  int CurrentY() const { return currentY_; }
  void CurrentY(int newY) { currentY_ = newY; }
  using DrawingSurface::DrawFocusRect;
  // Writes bytes, shaped as CreateBitmapArray shapes them, into the bitmap's bits.
  void DrawFromArray(const ByteArray2D& bytes);
  using DrawingSurface::DrawMode;
  using DrawingSurface::DrawPixel;
  using DrawingSurface::DrawStyle;
  using DrawingSurface::DrawWidth;
  // Resizes bytes to (scan lines, bytes per scan line) of the bitmap and copies its bits in.
  void CreateBitmapArray(ByteArray2D& bytes);
  using DrawingSurface::FillColor;
  using DrawingSurface::FillStyle;
  // Copies the font selected in basehDC (its metrics and face, antialiased quality).
  void CreateFont(win::HDC basehDC);
  // Re-creates the canvas's own font with weight 551 when bold (else the default weight), and
  // italic and underline as given.
  void SetFont(bool bold, bool italic, bool underline);
  using DrawingSurface::FontTransparent;
  using DrawingSurface::ForeColor;
  // A fixed black-to-blue set of nested L-shaped bands anchored at the canvas origin, sized by
  // the rectangle; startColor and endColor are not used.
  void FillRectGradient(int left, int top, int right, int bottom, win::OLE_COLOR startColor,
                        win::OLE_COLOR endColor);
  using DrawingSurface::FillGradientTopToBottom;
  using DrawingSurface::FillGradientLeftToRight;
  using DrawingSurface::hdc;
  // Adopts an outside context without creating anything; the canvas never deletes it.
  void hdc(win::HDC newhDC) { hdc_ = newhDC; }
  int Height() const { return height_; }
  using DrawingSurface::DrawLine;
  using DrawingSurface::DrawRect;
  using DrawingSurface::FillRectangle;
  using DrawingSurface::DrawRect3D;
  win::HPALETTE hPal() const { return hPal_; }
  // Captures the context's stock pen, brush and font and sets the defaults: DrawMode 13, solid
  // pen of width 1 in the button-text colour, hollow brush (after a solid button-face one),
  // transparent text, CurrentX = CurrentY = 0, ScaleMode 3. BackColor is left alone. Throws
  // AutomationError (source "Initialize") when there is no context.
  void InitProperties();
  using DrawingSurface::DrawRoundRect;
  using DrawingSurface::FillRoundRect;
  win::HBITMAP BITMAP() const { return bitmap_; }
  win::HBITMAP OriginalBitmap() const { return originalBitmap_; }
  // The bitmap as a picture that owns it. Picture leaves OriginalBitmap selected; Picture3 selects
  // back whatever was selected before.
  StdPicture Picture();
  StdPicture Picture3();
  // Always no object.
  StdPicture Picture2() const { return {}; }
  StdPicture PictureFromIcon(win::HICON) const { return {}; }
  // Plain text output at (left, top); a 0 coordinate means CurrentX / CurrentY, which do not
  // advance.
  void PrintText(const std::string& text, int left = 0, int top = 0);
  // Measures the text into (left, top, right, bottom) with options plus DT_CALCRECT, then draws
  // it with options into the measured rectangle.
  void DrawTextOut(const std::string& text, int left, int top, int right, int bottom,
                   win::UINT options);
  // Stored only; coordinates are always pixels.
  int ScaleMode() const { return scaleMode_; }
  void ScaleMode(int newScaleMode) { scaleMode_ = newScaleMode; }
  // Selects a bitmap into the context without remembering the one it replaces.
  void SelectBmp(win::HBITMAP bitmapHandle);
  int Width() const { return width_; }

 private:
  StdPicture HandOverBitmap();

  int currentX_ = 0;
  int currentY_ = 0;
  int width_ = 0;
  int height_ = 0;
  int scaleMode_ = 0;
  win::HDC createdDc_ = nullptr;
  win::HPALETTE hPal_ = nullptr;
  win::HPALETTE oldPalette_ = nullptr;
  win::HBITMAP originalBitmap_ = nullptr;
  win::HBITMAP bitmap_ = nullptr;
  // The picture that took over bitmap_, if any (see HandOverBitmap).
  StdPicture bitmapPicture_;
  // FillRectGradient's colour depth and band count, found on its first call.
  int gradientDepth_ = 0;
  int gradientBands_ = 0;
};

}  // namespace glyphon
