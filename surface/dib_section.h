// cDIBSection: a drawing surface on a 24-bit bottom-up DIB section whose pixel memory the caller
// reads and writes directly (DIBSectionBitsPtr, BytesPerScanLine: 3 bytes per pixel in the order
// blue, green, red, rows padded to 4 bytes, the bottom row first). It shares the pen/brush/font
// state and drawing members of Canvas (surface/drawing_surface.h) but has defaults of its own:
// black background, black pen, hollow brush, transparent text.
#pragma once

#include <cstdint>
#include <string>

#include "platform/ole/std_picture.h"
#include "surface/drawing_surface.h"

namespace glyphon {

class cDIBSection : protected DrawingSurface {
 public:
  // Creates the halftone palette. No context or DIB exists until Create or CreateFromPicture.
  cDIBSection();
  ~cDIBSection();

  using DrawingSurface::ForeColor;
  using DrawingSurface::FontTransparent;
  // Describes a width x height 24-bit DIB in the header and creates it for lHDC, receiving the
  // bits pointer; stores the handle into hDib. True when a DIB was created.
  bool CreateDIB(win::HDC lHDC, int lWidth, int lHeight, win::HBITMAP& hDib);
  // Create with the picture's bitmap size, then copies the bitmap in. Callers test hdc() or
  // DIBSectionBitsPtr() for success; icons do not load. Throws as Create does.
  void CreateFromPicture(const StdPicture& picThis);
  // Releases any previous DIB (and, the first time, the palette made at construction), makes a
  // new context and DIB and sets the defaults. Returns true on success; when the platform refuses
  // the size it throws AutomationError (source "Initialize") instead of returning false.
  bool Create(int lWidth, int lHeight);
  // This class has no DrawMode getter.
  void DrawMode(int newDrawMode) { DrawingSurface::DrawMode(newDrawMode); }
  using DrawingSurface::DrawWidth;
  using DrawingSurface::FillColor;
  // (width + 1) x 3 with the two low bits cleared: the padded length of one pixel row.
  int BytesPerScanLine() const { return ((Width() + 1) * 3) & ~3; }
  void DrawStyle(int newDrawStyle) { DrawingSurface::DrawStyle(newDrawStyle); }
  int Width() const { return info_.bmiHeader.biWidth; }
  using DrawingSurface::BackColor;
  int Height() const { return info_.bmiHeader.biHeight; }
  // Copies from lHDC at (lSrcLeft, lSrcTop) to (0, 0) with eRop; a negative size means the DIB's.
  void LoadPictureBlt(win::HDC lHDC, int lSrcLeft = 0, int lSrcTop = 0, int lSrcWidth = -1,
                      int lSrcHeight = -1, win::DWORD eRop = win::SRCCOPY);
  // With maskColor kNoColor: one transfer of lDestWidth x lDestHeight (negative: the DIB's size)
  // with eRop. Otherwise a transparent copy of the whole DIB in which pixels of maskColor leave
  // the destination as it was; the size arguments and eRop are then not used.
  void PaintPicture(win::HDC lHDC, win::OLE_COLOR maskColor, int lDestLeft = 0, int lDestTop = 0,
                    int lDestWidth = -1, int lDestHeight = -1, int lSrcLeft = 0, int lSrcTop = 0,
                    win::DWORD eRop = win::SRCCOPY);
  using DrawingSurface::hdc;
  win::HBITMAP hDib() const { return hDib_; }
  // The first byte of pixel memory (the bottom row), null when there is no DIB.
  std::uint8_t* DIBSectionBitsPtr() const { return bits_; }
  // Releases the drawing objects, the DIB and the context, and deletes the halftone palette.
  void Cleanup();
  // Copies the DIB to lnghDC through a second context that the DIB cannot be selected into, and
  // that is never deleted. Use PaintPicture with kNoColor to copy the DIB out.
  void RenderHDC(win::HDC lnghDC, win::DWORD rop);
  using DrawingSurface::FillGradientLeftToRight;
  using DrawingSurface::FillGradientTopToBottom;
  // Fills (0, 0, Width, Height) with BackColor.
  void Cls() { FillWithBackColor(Width(), Height()); }
  using DrawingSurface::DrawFocusRect;
  using DrawingSurface::DrawLine;
  using DrawingSurface::DrawPixel;
  using DrawingSurface::DrawRoundRect;
  int DrawStyle() const { return DrawingSurface::DrawStyle(); }
  // As Canvas::DrawTextOut.
  void DrawTextOut(const std::string& text, int left, int top, int right, int bottom,
                   win::UINT options);
  // As Canvas::CreateFont.
  void CreateFont(win::HDC basehDC);
  using DrawingSurface::FillRectangle;
  using DrawingSurface::FillRoundRect;
  using DrawingSurface::FillStyle;
  using DrawingSurface::DrawRect;
  using DrawingSurface::DrawRect3D;

 private:
  // The defaults, set through the setters; throws when there is no context.
  void Initialize();

  win::HBITMAP hDib_ = nullptr;
  win::HGDIOBJ earlierBitmap_ = nullptr;
  std::uint8_t* bits_ = nullptr;
  win::BITMAPINFO info_{};  // the header describing the DIB
  win::HPALETTE hPal_ = nullptr;
};

}  // namespace glyphon
