// USER's FillRect and FrameRect: pattern copies with a given brush, whatever the DC's mix.
#include <cstdint>

#include "platform/soft/gdi/raster.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {

// USER also takes a system colour index plus one in place of a brush.
const BrushObject* FillBrush(SoftEngine& engine, HBRUSH brush) {
  const auto value = reinterpret_cast<std::uintptr_t>(brush);
  if (value >= 1 && value <= static_cast<std::uintptr_t>(SYSTEM_COLOR_COUNT)) {
    brush = engine.GetSysColorBrush(static_cast<int>(value - 1));
  }
  return engine.Brush(brush);
}

long long Extent(LONG from, LONG to) { return static_cast<long long>(to) - from; }

void PatCopy(const RasterTarget& target, const BrushPixels& brush, long long x, long long y,
             long long width, long long height) {
  BrushRect(*target.surface, BlitRect(x, y, width, height), brush, R2_COPYPEN);
}

}  // namespace

int SoftEngine::FillRect(HDC hdc, const RECT* rect, HBRUSH brush) {
  const BrushObject* record = FillBrush(*this, brush);
  if (rect == nullptr || Dc(hdc) == nullptr || record == nullptr) return 0;
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (target) {
    PatCopy(target, BrushPixels(record, target), rect->left, rect->top,
            Extent(rect->left, rect->right), Extent(rect->top, rect->bottom));
  }
  return 1;
}

int SoftEngine::FrameRect(HDC hdc, const RECT* rect, HBRUSH brush) {
  const BrushObject* record = FillBrush(*this, brush);
  if (rect == nullptr || Dc(hdc) == nullptr || record == nullptr) return 0;
  if (rect->right <= rect->left || rect->bottom <= rect->top) return 0;
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (target) {
    const BrushPixels pixels(record, target);
    const long long width = Extent(rect->left, rect->right);
    const long long height = Extent(rect->top, rect->bottom);
    PatCopy(target, pixels, rect->left, rect->top, 1, height);
    PatCopy(target, pixels, rect->right - 1LL, rect->top, 1, height);
    PatCopy(target, pixels, rect->left, rect->top, width, 1);
    PatCopy(target, pixels, rect->left, rect->bottom - 1LL, width, 1);
  }
  return 1;
}

}  // namespace glyphon::win::soft
