// Rectangle arithmetic of the window manager; right and bottom edges are exclusive, as in Win32.
#pragma once

#include <algorithm>

#include "platform/win32_types.h"

namespace glyphon::win::soft {

inline bool Contains(const RECT& r, POINT p) {
  return p.x >= r.left && p.x < r.right && p.y >= r.top && p.y < r.bottom;
}
inline bool IsEmpty(const RECT& r) { return r.left >= r.right || r.top >= r.bottom; }
inline RECT Intersect(const RECT& a, const RECT& b) {
  return RECT{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
              std::min(a.bottom, b.bottom)};
}
inline RECT Bounds(const RECT& a, const RECT& b) {
  return RECT{std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
              std::max(a.bottom, b.bottom)};
}
inline RECT Offset(const RECT& r, int dx, int dy) {
  return RECT{r.left + dx, r.top + dy, r.right + dx, r.bottom + dy};
}

}  // namespace glyphon::win::soft
