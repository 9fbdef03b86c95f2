#include "platform/soft/gdi/blit_geometry.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace glyphon::win::soft {

namespace {

constexpr long long kIntMin = std::numeric_limits<int>::min();
constexpr long long kIntMax = std::numeric_limits<int>::max();

LONG Clamp(long long v) {
  return static_cast<LONG>(std::clamp(v, kIntMin, kIntMax));
}

bool Intersect(RECT& out, const RECT& a, const RECT& b) {
  out = RECT{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
             std::min(a.bottom, b.bottom)};
  return out.left < out.right && out.top < out.bottom;
}

void Offset(RECT& r, long long dx, long long dy) {
  r = RECT{Clamp(r.left + dx), Clamp(r.top + dy), Clamp(r.right + dx), Clamp(r.bottom + dy)};
}

void Order(RECT& r) {
  if (r.left > r.right) std::swap(r.left, r.right);
  if (r.top > r.bottom) std::swap(r.top, r.bottom);
}

void Grow(RECT& r) {
  r = RECT{Clamp(r.left - 1LL), Clamp(r.top - 1LL), Clamp(r.right + 1LL), Clamp(r.bottom + 1LL)};
}

LONG Scale(long long v, long long numerator, long long denominator) {
  return Clamp(v * numerator / denominator);
}

RECT SurfaceRect(const Pixmap& surface) {
  return RECT{0, 0, surface.Width(), surface.Height()};
}

// Narrows both visible rectangles to the parts that map onto each other.
bool IntersectSides(BlitSide& dst, BlitSide& src) {
  RECT rect;
  if (src.width == dst.width && src.height == dst.height) {
    rect = src.visible;
    Offset(rect, static_cast<long long>(dst.x) - src.x, static_cast<long long>(dst.y) - src.y);
    if (!Intersect(rect, rect, dst.visible)) return false;
    dst.visible = rect;
    src.visible = rect;
    Offset(src.visible, static_cast<long long>(src.x) - dst.x,
           static_cast<long long>(src.y) - dst.y);
    return true;
  }
  // Map the source area into destination coordinates.
  rect = src.visible;
  Offset(rect, -static_cast<long long>(src.x) - (src.width < 0 ? 1 : 0),
         -static_cast<long long>(src.y) - (src.height < 0 ? 1 : 0));
  rect = RECT{Scale(rect.left, dst.width, src.width), Scale(rect.top, dst.height, src.height),
              Scale(rect.right, dst.width, src.width), Scale(rect.bottom, dst.height, src.height)};
  Order(rect);
  // A flipped source that does not fit its surface leaves the destination unflipped: GDI shifts
  // the destination instead.
  if (src.width < 0 && dst.width > 0 &&
      (static_cast<long long>(src.x) + src.width + 1 < src.visible.left ||
       src.x > src.visible.right)) {
    dst.x = Clamp(static_cast<long long>(dst.x) + (dst.width - rect.right) - rect.left);
  } else if (src.width > 0 && dst.width < 0 &&
             (src.x < src.visible.left ||
              static_cast<long long>(src.x) + src.width > src.visible.right)) {
    dst.x = Clamp(static_cast<long long>(dst.x) -
                  (rect.right - (static_cast<long long>(dst.width) - rect.left)));
  }
  if (src.height < 0 && dst.height > 0 &&
      (static_cast<long long>(src.y) + src.height + 1 < src.visible.top ||
       src.y > src.visible.bottom)) {
    dst.y = Clamp(static_cast<long long>(dst.y) + (dst.height - rect.bottom) - rect.top);
  } else if (src.height > 0 && dst.height < 0 &&
             (src.y < src.visible.top ||
              static_cast<long long>(src.y) + src.height > src.visible.bottom)) {
    dst.y = Clamp(static_cast<long long>(dst.y) -
                  (rect.bottom - (static_cast<long long>(dst.height) - rect.top)));
  }
  Offset(rect, dst.x, dst.y);
  Grow(rect);  // rounding may lose a pixel at either end
  if (!Intersect(dst.visible, rect, dst.visible)) return false;

  // And the destination area back into source coordinates.
  rect = dst.visible;
  Offset(rect, -static_cast<long long>(dst.x) - (dst.width < 0 ? 1 : 0),
         -static_cast<long long>(dst.y) - (dst.height < 0 ? 1 : 0));
  rect = RECT{Clamp(src.x + static_cast<long long>(Scale(rect.left, src.width, dst.width))),
              Clamp(src.y + static_cast<long long>(Scale(rect.top, src.height, dst.height))),
              Clamp(src.x + static_cast<long long>(Scale(rect.right, src.width, dst.width))),
              Clamp(src.y + static_cast<long long>(Scale(rect.bottom, src.height, dst.height)))};
  Order(rect);
  Grow(rect);
  return Intersect(src.visible, rect, src.visible);
}

}  // namespace

RECT BoundingRect(long long x, long long y, long long width, long long height) {
  long long left = x, right = x + width, top = y, bottom = y + height;
  if (left > right) {
    const long long old = left;
    left = right + 1;
    right = old + 1;
  }
  if (top > bottom) {
    const long long old = top;
    top = bottom + 1;
    bottom = old + 1;
  }
  return RECT{Clamp(left), Clamp(top), Clamp(right), Clamp(bottom)};
}

bool ClipTransfer(BlitSide& dst, const Pixmap& dstSurface, BlitSide* src,
                  const Pixmap* srcSurface) {
  const bool dstVisible = Intersect(dst.visible, BoundingRect(dst.x, dst.y, dst.width, dst.height),
                                    SurfaceRect(dstSurface));
  if (src == nullptr) return dstVisible;
  if (!Intersect(src->visible, BoundingRect(src->x, src->y, src->width, src->height),
                 SurfaceRect(*srcSurface)) ||
      !dstVisible) {
    return false;
  }
  return IntersectSides(dst, *src);
}

}  // namespace glyphon::win::soft
