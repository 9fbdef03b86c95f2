// Where a block transfer reads and writes. Each side is a rectangle as the caller gave it (width
// and height may be negative, which mirrors a stretch) plus the part of its surface it may touch.
#pragma once

#include "platform/soft/pixmap.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

struct BlitSide {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  RECT visible{};

  int VisibleWidth() const { return visible.right - visible.left; }
  int VisibleHeight() const { return visible.bottom - visible.top; }
};

// The pixels an extent covers: a negative extent covers the pixels before x, not including x
// itself but including x + 1, which is GDI's convention.
RECT BoundingRect(long long x, long long y, long long width, long long height);

// Clips a destination and, when there is one, a source to their surfaces and to each other
// (through the scale between them when the extents differ). False when nothing is left to do.
bool ClipTransfer(BlitSide& dst, const Pixmap& dstSurface, BlitSide* src, const Pixmap* srcSurface);

}  // namespace glyphon::win::soft
