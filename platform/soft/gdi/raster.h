// Shared internals of the soft engine's raster drawing: clipping to the surface, ROP2 mixing on
// device pixel values, colour to device pixel mapping, and brushes resolved into device pixels.
// Lines, shapes, fills and block transfers all paint through these, so they agree pixel for pixel.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/soft/gdi_objects.h"
#include "platform/soft/pixmap.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

class SoftEngine;

// ---- Targets ----------------------------------------------------------------------------------

// What one DC's drawing reaches, resolved once per call.
struct RasterTarget {
  DcObject* dc = nullptr;
  Pixmap* surface = nullptr;
  // The surface is a monochrome device-dependent bitmap: GDI dithers solid brushes whose colour
  // is neither black nor white there (DIB sections keep the plain nearest-colour rule).
  bool monochromeDevice = false;

  explicit operator bool() const { return dc != nullptr && surface != nullptr; }
};

// Empty (false) when hdc is not a live DC or draws on nothing.
RasterTarget ResolveTarget(const SoftEngine& engine, HDC hdc);

// ---- Clipping ---------------------------------------------------------------------------------

// rect intersected with the surface; right and bottom exclusive. Empty when left >= right or
// top >= bottom. Inputs may be huge or inverted; nothing overflows.
RECT ClipToSurface(const Pixmap& surface, const RECT& rect);
inline bool IsEmptyRect(const RECT& rect) {
  return rect.left >= rect.right || rect.top >= rect.bottom;
}

// The pixels a block transfer of width x height at (x, y) covers: a negative extent mirrors the
// area around the start pixel, so (10, 0, -5, 5) covers columns 6 to 10.
RECT BlitRect(long long x, long long y, long long width, long long height);

// ---- ROP2 -------------------------------------------------------------------------------------

// A foreground mix with a fixed pen value, reduced to result = (destination & andMask) ^ xorMask.
// Works bitwise on device pixel values, as GDI does (colour-table indices below 16 bpp).
struct RopMasks {
  PixelValue andMask = 0;
  PixelValue xorMask = 0;
  PixelValue Apply(PixelValue destination) const { return (destination & andMask) ^ xorMask; }
  bool IsNop() const { return andMask == ~PixelValue{0} && xorMask == 0; }
};

// rop2 is R2_BLACK..R2_WHITE; anything else is treated as R2_COPYPEN.
RopMasks Rop2Masks(int rop2, PixelValue pen);
inline PixelValue MixRop2(int rop2, PixelValue pen, PixelValue destination) {
  return Rop2Masks(rop2, pen).Apply(destination);
}

// ---- Colours ----------------------------------------------------------------------------------

// The device pixel value a colour maps to on surface (nearest colour-table entry below 16 bpp).
// Used for background colours, flood-fill colours and colour lookups.
PixelValue DevicePixel(const Pixmap& surface, COLORREF color);

// The device pixel value of a pen or brush colour. Equal to DevicePixel except on 1-bpp surfaces:
// a colour that exactly matches a colour-table entry takes that entry; otherwise the background
// colour takes its nearest entry and every other colour takes the opposite one.
PixelValue PenPixel(const Pixmap& surface, COLORREF color, COLORREF backgroundColor);

// The pixel a pen or hatch paints its gaps with (OPAQUE background mode), given its own pixel:
// the background colour, except at 1 bpp where it is the opposite of the pen's pixel unless the
// two colours are equal.
PixelValue GapPixel(const Pixmap& surface, COLORREF color, PixelValue penPixel,
                    COLORREF backgroundColor);

// ---- Brushes ----------------------------------------------------------------------------------

// One row of a resolved brush: position x (surface coordinates) paints values[x mod period], and
// only where paints is null or paints[x mod period] is non-zero.
struct BrushRow {
  const PixelValue* values = nullptr;
  const std::uint8_t* paints = nullptr;
  int period = 1;

  int Phase(int x) const {
    const int m = x % period;
    return m < 0 ? m + period : m;
  }
  PixelValue At(int x) const { return values[Phase(x)]; }
  bool Paints(int x) const { return paints == nullptr || paints[Phase(x)] != 0; }
};

// A brush resolved against one DC's state for one target surface: the device pixel value it gives
// each position. Patterns (hatches, pattern bitmaps, dithers) are aligned to the surface origin.
// Solid colours other than black and white are dithered on monochrome device bitmaps. Hatched
// brushes paint their background pixels in the DC's background colour when the background mode is
// OPAQUE and leave them alone when it is TRANSPARENT; a monochrome pattern bitmap takes the DC's
// text colour for 0 bits and background colour for 1 bits. A null brush record (deleted or invalid
// handle) behaves as BS_NULL.
// Resolve once per call, then paint rows; solid brushes cost no allocation.
class BrushPixels {
 public:
  BrushPixels(const BrushObject* brush, const RasterTarget& target);

  bool PaintsNothing() const { return kind_ == Kind::Null; }
  // Every position paints the same value, SolidValue().
  bool IsSolid() const { return kind_ == Kind::Solid; }
  PixelValue SolidValue() const { return solid_; }

  BrushRow Row(int y) const;
  PixelValue At(int x, int y) const { return Row(y).At(x); }
  bool Paints(int x, int y) const { return kind_ != Kind::Null && Row(y).Paints(x); }

 private:
  enum class Kind { Null, Solid, Pattern };
  void ResolveSolid(COLORREF color, const RasterTarget& target);
  void ResolveDither(COLORREF color);
  void ResolveHatch(int hatch, COLORREF color, const RasterTarget& target);
  void ResolvePattern(const Pixmap& pattern, const RasterTarget& target);
  void Allocate(int width, int height, bool withCoverage);

  Kind kind_ = Kind::Null;
  PixelValue solid_ = 0;
  int width_ = 1;
  int height_ = 1;
  std::vector<PixelValue> values_;   // width_ x height_, row-major, for Kind::Pattern
  std::vector<std::uint8_t> paints_;  // same layout, empty when every position paints
};

// ---- Painting ---------------------------------------------------------------------------------
// Coordinates are surface coordinates and must already lie inside the surface.

// Mixes one pixel.
void MixPixel(Pixmap& surface, int x, int y, const RopMasks& masks);

// Mixes the pixels [left, right) of row y with one pen value.
void MixSpan(Pixmap& surface, int y, int left, int right, const RopMasks& masks);

// Paints the pixels [left, right) of row y with a brush under a ROP2 mix.
void BrushSpan(Pixmap& surface, int y, int left, int right, const BrushPixels& brush, int rop2);

// Paints a rectangle (clipped to the surface here) with a brush under a ROP2 mix. Any ROP3 that
// does not use a source reduces to one of these (pattern as pen), which is what PatBlt needs.
void BrushRect(Pixmap& surface, const RECT& rect, const BrushPixels& brush, int rop2);

}  // namespace glyphon::win::soft
