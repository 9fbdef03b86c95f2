// What Canvas and cDIBSection have in common: a memory device context with a current pen, brush
// and font built from colour and style properties, and the drawing members both classes offer.
// Both derive from it and re-export, with using-declarations, exactly the members each declares;
// everything here is protected, so neither class gains members the other one has.
//
// Properties are pairs of overloads: X() reads, X(value) writes. Colour arguments are OLE colours
// (0x00BBGGRR or a system colour 0x800000NN), translated to RGB when received; getters return the
// translated RGB value. Coordinates are device pixels; rectangles exclude right and bottom.
#pragma once

#include <cstdint>

#include "platform/win32.h"

namespace glyphon {

// DrawLine's PenColor that keeps the current pen, and PaintPicture's MaskColor for a plain copy.
inline constexpr win::OLE_COLOR kNoColor = 0xFFFFFFFFu;

class DrawingSurface {
 public:
  DrawingSurface(const DrawingSurface&) = delete;
  DrawingSurface& operator=(const DrawingSurface&) = delete;

 protected:
  DrawingSurface() = default;
  ~DrawingSurface() = default;

  // ---- Properties ----
  win::HDC hdc() const { return hdc_; }

  win::COLORREF BackColor() const { return backColor_; }
  void BackColor(win::OLE_COLOR newBackColor);
  // Also the text colour; rebuilds the pen.
  win::COLORREF ForeColor() const { return foreColor_; }
  void ForeColor(win::OLE_COLOR newForeColor);
  // The foreground mix mode (ROP2) of the context.
  int DrawMode() const { return drawMode_; }
  void DrawMode(int newDrawMode);
  // Pen style and width; each rebuilds the pen.
  int DrawStyle() const { return drawStyle_; }
  void DrawStyle(int newDrawStyle);
  int DrawWidth() const { return drawWidth_; }
  void DrawWidth(int newDrawWidth);
  // The two brush setters disagree on purpose: FillColor makes a hatched brush (hatch index =
  // FillStyle) whenever FillStyle is not 0, while FillStyle makes a solid brush for any value
  // other than 0 and 1 (1 is hollow).
  win::COLORREF FillColor() const { return fillColor_; }
  void FillColor(win::OLE_COLOR newFillColor);
  int FillStyle() const { return fillStyle_; }
  void FillStyle(int newFillStyle);
  // Background mode of the context: transparent when true, opaque when false.
  bool FontTransparent() const { return fontTransparent_; }
  void FontTransparent(bool fontIsTransparent);

  // ---- Drawing ----
  // The dotted XOR focus rectangle; drawing it twice removes it.
  void DrawFocusRect(int left, int top, int right, int bottom);
  // A line without its end point. A penColor other than kNoColor draws through the ForeColor
  // setter (pen rebuilt, text colour follows) and sets the previous ForeColor back afterwards.
  void DrawLine(int left, int top, int right, int bottom, win::OLE_COLOR penColor = kNoColor);
  // One pixel; the coordinates round to nearest, halves to even.
  void DrawPixel(float x, float y, win::OLE_COLOR color);
  // Outline with a pen of penColor (through ForeColor, restored afterwards), interior with the
  // current brush. There is no colour that keeps the current pen.
  void DrawRect(int left, int top, int right, int bottom, win::OLE_COLOR penColor);
  // A solid fill of penColor; pen and selected brush untouched.
  void FillRectangle(int left, int top, int right, int bottom, win::OLE_COLOR penColor);
  // Left and top edges in highlightColor, right and bottom edges one pixel inside in shadowColor.
  void DrawRect3D(int left, int top, int right, int bottom, win::OLE_COLOR highlightColor,
                  win::OLE_COLOR shadowColor);
  // A rounded rectangle with 15 x 15 corners in the current pen and brush; an outlineColor other
  // than 0 is used through ForeColor for the call (so black cannot be asked for). backgroundColor
  // is ignored.
  void DrawRoundRect(int left, int top, int right, int bottom, win::OLE_COLOR outlineColor,
                     win::OLE_COLOR backgroundColor = 0);
  // A fixed pixel pattern of rounded corners (all four coordinates inclusive) in outlineColor,
  // flood-filled with the current brush up to a border of pure red rather than the outline colour.
  // backgroundColor is ignored.
  void FillRoundRect(int left, int top, int right, int bottom, win::OLE_COLOR outlineColor,
                     win::OLE_COLOR backgroundColor = 0);
  // Gradients of one-pixel bands from (red1, green1, blue1) to (red2, green2, blue2), rows top to
  // bottom inclusive (columns left to right inclusive). Nothing when top > bottom (left > right).
  void FillGradientTopToBottom(int left, int top, int right, int bottom, int red1, int green1,
                               int blue1, int red2, int green2, int blue2);
  void FillGradientLeftToRight(int left, int top, int right, int bottom, int red1, int green1,
                               int blue1, int red2, int green2, int blue2);

  // ---- For the two classes ----
  // Throws the "Must set hDC property" error with this source when there is no context.
  void RequireDc(const char* source) const;
  // Remembers the pen, brush and font the context holds now, to select back before deleting ours.
  void CaptureInitialObjects();
  // Selects the initial brush, pen and font back and deletes the current ones, in that order.
  void ReleaseDrawingObjects();
  // Fills (0, 0, width, height) with a temporary solid brush of BackColor.
  void FillWithBackColor(int width, int height);
  // The current font: released (initial font back, ours deleted) and adopted (selected, owned).
  void ReleaseCurrentFont();
  void AdoptFont(win::HFONT font);
  win::HBRUSH CurrentBrush() const { return currentBrush_; }

  win::HDC hdc_ = nullptr;

 private:
  void RebuildPen();
  template <class Handle>
  void ReleaseCurrent(Handle& current, win::HGDIOBJ initial);
  template <class Handle>
  void AdoptCurrent(Handle& current, Handle created);
  // Runs draw with ForeColor set to color, then sets the previous RGB ForeColor back.
  template <class Draw>
  void WithForeColor(win::OLE_COLOR color, Draw draw);

  win::COLORREF backColor_ = 0;
  win::COLORREF foreColor_ = 0;
  win::COLORREF fillColor_ = 0;
  int fillStyle_ = 0;
  int drawMode_ = 0;
  int drawStyle_ = 0;
  int drawWidth_ = 0;
  bool fontTransparent_ = false;
  win::HPEN currentPen_ = nullptr;
  win::HBRUSH currentBrush_ = nullptr;
  win::HFONT currentFont_ = nullptr;
  win::HGDIOBJ initialPen_ = nullptr;
  win::HGDIOBJ initialBrush_ = nullptr;
  win::HGDIOBJ initialFont_ = nullptr;
};

}  // namespace glyphon
