// Drawing state: colour and style properties and the pen, brush and font they select.
#include "surface/drawing_surface.h"

#include "platform/automation_error.h"

namespace glyphon {

namespace {
constexpr const char* kNoDcDescription = "Must set hDC property before performing this operation";

// A failed translation leaves the stored value as the platform left it, so translate in place.
void Translate(win::OLE_COLOR color, win::COLORREF& stored) {
  win::OleTranslateColor(color, nullptr, &stored);
}
}  // namespace

void DrawingSurface::RequireDc(const char* source) const {
  if (hdc_ == nullptr) throw AutomationError(kControlErrorNumber, source, kNoDcDescription);
}

void DrawingSurface::CaptureInitialObjects() {
  initialPen_ = win::GetCurrentObject(hdc_, win::OBJ_PEN);
  initialBrush_ = win::GetCurrentObject(hdc_, win::OBJ_BRUSH);
  initialFont_ = win::GetCurrentObject(hdc_, win::OBJ_FONT);
}

// Before a created object goes, the context gets back the object it held at the start.
template <class Handle>
void DrawingSurface::ReleaseCurrent(Handle& current, win::HGDIOBJ initial) {
  if (current == nullptr) return;
  win::SelectObject(hdc_, initial);
  win::DeleteObject(current);
  current = nullptr;
}

template <class Handle>
void DrawingSurface::AdoptCurrent(Handle& current, Handle created) {
  current = created;
  win::SelectObject(hdc_, created);
}

void DrawingSurface::BackColor(win::OLE_COLOR newBackColor) {
  Translate(newBackColor, backColor_);
  win::SetBkColor(hdc_, backColor_);
}

void DrawingSurface::ForeColor(win::OLE_COLOR newForeColor) {
  Translate(newForeColor, foreColor_);
  win::SetTextColor(hdc_, foreColor_);
  RebuildPen();
}

void DrawingSurface::DrawMode(int newDrawMode) {
  drawMode_ = newDrawMode;
  win::SetROP2(hdc_, newDrawMode);
}

void DrawingSurface::DrawStyle(int newDrawStyle) {
  drawStyle_ = newDrawStyle;
  RebuildPen();
}

void DrawingSurface::DrawWidth(int newDrawWidth) {
  drawWidth_ = newDrawWidth;
  RebuildPen();
}

void DrawingSurface::FillColor(win::OLE_COLOR newFillColor) {
  Translate(newFillColor, fillColor_);
  ReleaseCurrent(currentBrush_, initialBrush_);
  AdoptCurrent(currentBrush_, fillStyle_ != 0 ? win::CreateHatchBrush(fillStyle_, fillColor_)
                                              : win::CreateSolidBrush(fillColor_));
}

void DrawingSurface::FillStyle(int newFillStyle) {
  fillStyle_ = newFillStyle;
  ReleaseCurrent(currentBrush_, initialBrush_);
  win::LOGBRUSH description{win::BS_SOLID, fillColor_, 0};
  if (newFillStyle == 1) {
    description.lbStyle = win::BS_HOLLOW;
  } else if (newFillStyle != 0) {
    // A hatch index on a solid brush has no effect: the brush stays solid.
    description.lbHatch = static_cast<std::uintptr_t>(newFillStyle);
  }
  AdoptCurrent(currentBrush_, win::CreateBrushIndirect(&description));
}

void DrawingSurface::FontTransparent(bool fontIsTransparent) {
  fontTransparent_ = fontIsTransparent;
  win::SetBkMode(hdc_, fontIsTransparent ? win::TRANSPARENT : win::OPAQUE);
}

void DrawingSurface::RebuildPen() {
  ReleaseCurrent(currentPen_, initialPen_);
  AdoptCurrent(currentPen_, win::CreatePen(drawStyle_, drawWidth_, foreColor_));
}

void DrawingSurface::ReleaseCurrentFont() { ReleaseCurrent(currentFont_, initialFont_); }

void DrawingSurface::AdoptFont(win::HFONT font) { AdoptCurrent(currentFont_, font); }

void DrawingSurface::ReleaseDrawingObjects() {
  ReleaseCurrent(currentBrush_, initialBrush_);
  ReleaseCurrent(currentPen_, initialPen_);
  ReleaseCurrent(currentFont_, initialFont_);
}

void DrawingSurface::FillWithBackColor(int width, int height) {
  const win::LOGBRUSH description{win::BS_SOLID, backColor_, 0};
  const win::HBRUSH brush = win::CreateBrushIndirect(&description);
  const win::RECT area{0, 0, width, height};
  win::FillRect(hdc_, &area, brush);
  win::DeleteObject(brush);
}

}  // namespace glyphon
