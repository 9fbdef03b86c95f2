#include "platform/soft/gdi/stretch.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace glyphon::win::soft {

PixelBlock NewBlock(const RECT& area) {
  PixelBlock block;
  block.area = area;
  block.values.assign(static_cast<std::size_t>(block.Width()) * block.Height(), 0);
  return block;
}

namespace {

// One axis of a stretch: a Bresenham walk with the source along x and the destination along y.
// The error term starts one half-step further than for a line so that each destination pixel
// samples the source pixel under its centre.
struct AxisWalk {
  int srcStart = 0;
  int dstStart = 0;
  int srcEnd = 0;
  int dstEnd = 0;
  int srcStep = 1;
  int dstStep = 1;
  long long errorStart = 0;
  long long errorAdd1 = 0;  // when the minor axis moves
  long long errorAdd2 = 0;  // when it does not
  int length = 0;
  bool stretching = false;  // destination longer than source: the destination moves every step
};

enum Outcode : unsigned { kLeft = 1, kRight = 2, kTop = 4, kBottom = 8 };

unsigned OutcodeOf(const POINT& p, const RECT& clip) {
  unsigned code = 0;
  if (p.x < clip.left)
    code |= kLeft;
  else if (p.x >= clip.right)
    code |= kRight;
  if (p.y < clip.top)
    code |= kTop;
  else if (p.y >= clip.bottom)
    code |= kBottom;
  return code;
}

struct Line {
  long long dx = 0;
  long long dy = 0;
  long long bias = 0;
  bool xMajor = false;
  bool negativeSlope = false;
};

// Moves the ends of a Bresenham line onto the clip rectangle, choosing the first and last pixels
// the unclipped line would draw there. Returns 0 when the line misses it.
int ClipLine(const POINT& start, const POINT& end, const RECT& clip, const Line& line, POINT& p1,
             POINT& p2) {
  const long long dx = line.dx, dy = line.dy, bias = line.bias;
  const long long twoDx = 2 * dx, twoDy = 2 * dy;
  // Steps along the minor axis when the start moves m along x, or n along y.
  auto startMinor = [&](long long m) {
    return line.xMajor ? (m * twoDy + bias + dx - 1) / twoDx : (m * twoDy - bias - dy) / twoDx + 1;
  };
  auto startMajor = [&](long long n) {
    return line.xMajor ? (n * twoDx - bias - dx) / twoDy + 1 : (n * twoDx + bias + dy - 1) / twoDy;
  };
  auto endMinor = [&](long long m) {
    return line.xMajor ? (m * twoDy - bias + dx) / twoDx : (m * twoDy + bias - dy - 1) / twoDx + 1;
  };
  auto endMajor = [&](long long n) {
    return line.xMajor ? (n * twoDx + bias - dx - 1) / twoDy + 1 : (n * twoDx - bias + dy) / twoDy;
  };
  auto sign = [&](long long v) { return line.negativeSlope ? -v : v; };

  p1 = start;
  p2 = end;
  unsigned startCode = OutcodeOf(start, clip);
  unsigned endCode = OutcodeOf(end, clip);
  bool clipped = false;
  for (;;) {
    if (startCode == 0 && endCode == 0) return clipped ? 1 : 2;
    if ((startCode & endCode) != 0) return 0;
    clipped = true;
    if (startCode & kLeft) {
      p1.x = clip.left;
      p1.y = static_cast<LONG>(start.y + sign(startMinor(clip.left - start.x)));
      startCode = OutcodeOf(p1, clip);
    } else if (startCode & kRight) {
      p1.x = clip.right - 1;
      p1.y = static_cast<LONG>(start.y - sign(startMinor(start.x - clip.right + 1)));
      startCode = OutcodeOf(p1, clip);
    } else if (startCode & kTop) {
      p1.y = clip.top;
      p1.x = static_cast<LONG>(start.x + sign(startMajor(clip.top - start.y)));
      startCode = OutcodeOf(p1, clip);
    } else if (startCode & kBottom) {
      p1.y = clip.bottom - 1;
      p1.x = static_cast<LONG>(start.x - sign(startMajor(start.y - clip.bottom + 1)));
      startCode = OutcodeOf(p1, clip);
    } else if (endCode & kLeft) {
      p2.x = clip.left;
      p2.y = static_cast<LONG>(end.y + sign(endMinor(clip.left - end.x)));
      endCode = OutcodeOf(p2, clip);
    } else if (endCode & kRight) {
      p2.x = clip.right - 1;
      p2.y = static_cast<LONG>(end.y - sign(endMinor(end.x - clip.right + 1)));
      endCode = OutcodeOf(p2, clip);
    } else if (endCode & kTop) {
      p2.y = clip.top;
      p2.x = static_cast<LONG>(end.x + sign(endMajor(clip.top - end.y)));
      endCode = OutcodeOf(p2, clip);
    } else {
      p2.y = clip.bottom - 1;
      p2.x = static_cast<LONG>(end.x - sign(endMajor(end.y - clip.bottom + 1)));
      endCode = OutcodeOf(p2, clip);
    }
  }
}

bool PlanAxis(int dstStart, int dstLength, int dstVisibleStart, int dstVisibleEnd, int srcStart,
              int srcLength, int srcVisibleStart, int srcVisibleEnd, AxisWalk& walk) {
  Line line;
  line.dy = std::llabs(dstLength);
  line.dx = std::llabs(srcLength);
  line.xMajor = line.dx > line.dy;
  walk.srcStep = srcLength < 0 ? -1 : 1;
  walk.dstStep = dstLength < 0 ? -1 : 1;
  line.negativeSlope = walk.srcStep != walk.dstStep;
  line.bias = line.xMajor ? line.dy - line.dx : line.dx - line.dy;

  const POINT start{srcStart, dstStart};
  const POINT end{srcStart + srcLength, dstStart + dstLength};
  const RECT clip{srcVisibleStart, dstVisibleStart, srcVisibleEnd, dstVisibleEnd};
  POINT p1, p2;
  if (ClipLine(start, end, clip, line, p1, p2) == 0) return false;

  const long long m = std::llabs(static_cast<long long>(p1.x) - start.x);
  const long long n = std::llabs(static_cast<long long>(p1.y) - start.y);
  if (line.xMajor) {
    walk.errorStart = 3 * line.dy - 2 * line.dx + m * 2 * line.dy - n * 2 * line.dx;
    walk.errorAdd1 = 2 * line.dy - 2 * line.dx;
    walk.errorAdd2 = 2 * line.dy;
    walk.length = std::abs(p2.x - p1.x);
    walk.stretching = false;
  } else {
    walk.errorStart = 3 * line.dx - 2 * line.dy + n * 2 * line.dx - m * 2 * line.dy;
    walk.errorAdd1 = 2 * line.dx - 2 * line.dy;
    walk.errorAdd2 = 2 * line.dx;
    walk.length = std::abs(p2.y - p1.y);
    walk.stretching = true;
  }
  // The end point is normally clipped off, as it lies just past the area; count it back in.
  if (end.x != p2.x || end.y != p2.y) {
    p2.x += walk.srcStep;
    p2.y += walk.dstStep;
    ++walk.length;
  }
  walk.srcStart = p1.x;
  walk.dstStart = p1.y;
  walk.srcEnd = p2.x;
  walk.dstEnd = p2.y;
  return true;
}

PixelValue Merge(int mode, PixelValue kept, PixelValue incoming) {
  switch (mode) {
    case BLACKONWHITE: return kept & incoming;
    case WHITEONBLACK: return kept | incoming;
    default: return incoming;
  }
}

// A row pair with index checks, so that no walk can ever leave its buffers.
struct RowPair {
  PixelValue* dst;
  int dstWidth;
  const PixelValue* src;
  int srcWidth;

  bool Valid(int d, int s) const { return d >= 0 && d < dstWidth && s >= 0 && s < srcWidth; }
};

// Destination longer than source: every step writes a destination pixel.
void StretchRow(const RowPair& row, int d, int s, const AxisWalk& h, int mode, bool keep) {
  long long error = h.errorStart;
  for (int i = 0; i < h.length; ++i) {
    if (row.Valid(d, s)) row.dst[d] = keep ? Merge(mode, row.dst[d], row.src[s]) : row.src[s];
    d += h.dstStep;
    if (error > 0) {
      s += h.srcStep;
      error += h.errorAdd1;
    } else {
      error += h.errorAdd2;
    }
  }
}

// Source longer than destination: every step reads a source pixel into the current one.
void ShrinkRow(const RowPair& row, int d, int s, const AxisWalk& h, int mode, bool keep) {
  long long error = h.errorStart;
  bool fresh = true;
  for (int i = 0; i < h.length; ++i) {
    if (row.Valid(d, s)) {
      row.dst[d] = fresh && !keep ? row.src[s] : Merge(mode, row.dst[d], row.src[s]);
    }
    fresh = false;
    s += h.srcStep;
    if (error > 0) {
      d += h.dstStep;
      fresh = true;
      error += h.errorAdd1;
    } else {
      error += h.errorAdd2;
    }
  }
}

// HALFTONE: bilinear interpolation of the colours around each sample point, in float as GDI does.
float ClampF(float v, float low, float high) {
  return std::max(low, std::min(v, high));
}

BYTE Lerp(BYTE from, BYTE to, float t) {
  return static_cast<BYTE>(static_cast<float>(from) + static_cast<float>(to - from) * t + 0.5f);
}

void Halftone(const PixelBlock& source, const BlitSide& src, const BlitSide& dst,
              const Pixmap& format, PixelBlock& out) {
  RECT srcRect;
  const RECT srcBounds = BoundingRect(src.x, src.y, src.width, src.height);
  srcRect = RECT{
      std::max(srcBounds.left, src.visible.left), std::max(srcBounds.top, src.visible.top),
      std::min(srcBounds.right, src.visible.right), std::min(srcBounds.bottom, src.visible.bottom)};
  const int srcWidth = srcRect.right - srcRect.left;
  const int srcHeight = srcRect.bottom - srcRect.top;
  if (srcWidth <= 0 || srcHeight <= 0) return;
  const bool mirrorX = (dst.width < 0) != (src.width < 0);
  const bool mirrorY = (dst.height < 0) != (src.height < 0);
  const float stepX =
      (mirrorX ? -1.0f : 1.0f) * static_cast<float>(srcWidth) / static_cast<float>(out.Width());
  const float stepY =
      (mirrorY ? -1.0f : 1.0f) * static_cast<float>(srcHeight) / static_cast<float>(out.Height());
  auto color = [&](int x, int y) {
    return format.PixelToColor(source.Row(y)[x - source.area.left]);
  };
  float fy = static_cast<float>(mirrorY ? srcRect.bottom - 1 : srcRect.top);
  for (int y = out.area.top; y < out.area.bottom; ++y, fy += stepY) {
    fy = ClampF(fy, static_cast<float>(srcRect.top), static_cast<float>(srcRect.bottom - 1));
    const int y0 = static_cast<int>(fy);
    const int y1 =
        std::clamp(y0 + 1, static_cast<int>(srcRect.top), static_cast<int>(srcRect.bottom) - 1);
    const float ty = fy - static_cast<float>(y0);
    float fx = static_cast<float>(mirrorX ? srcRect.right - 1 : srcRect.left);
    PixelValue* row = out.Row(y);
    for (int x = 0; x < out.Width(); ++x, fx += stepX) {
      fx = ClampF(fx, static_cast<float>(srcRect.left), static_cast<float>(srcRect.right - 1));
      const int x0 = static_cast<int>(fx);
      const int x1 =
          std::clamp(x0 + 1, static_cast<int>(srcRect.left), static_cast<int>(srcRect.right) - 1);
      const float tx = fx - static_cast<float>(x0);
      const COLORREF c00 = color(x0, y0), c01 = color(x1, y0), c10 = color(x0, y1),
                     c11 = color(x1, y1);
      auto channel = [&](BYTE (*get)(COLORREF)) {
        return Lerp(Lerp(get(c00), get(c01), tx), Lerp(get(c10), get(c11), tx), ty);
      };
      row[x] = format.ColorToPixel(RGB(channel(GetRValue), channel(GetGValue), channel(GetBValue)));
    }
  }
}

}  // namespace

bool StretchBlock(const PixelBlock& source, const BlitSide& src, BlitSide& dst, int mode,
                  const Pixmap& format, PixelBlock& out) {
  if (mode == HALFTONE) {
    out = NewBlock(dst.visible);
    Halftone(source, src, dst, format, out);
    return true;
  }
  AxisWalk v, h;
  if (!PlanAxis(dst.y, dst.height, dst.visible.top, dst.visible.bottom, src.y, src.height,
                src.visible.top, src.visible.bottom, v) ||
      !PlanAxis(dst.x, dst.width, dst.visible.left, dst.visible.right, src.x, src.width,
                src.visible.left, src.visible.right, h)) {
    return false;
  }
  const RECT reached =
      BoundingRect(h.dstStart, v.dstStart, h.dstEnd - h.dstStart, v.dstEnd - v.dstStart);
  dst.visible = RECT{
      std::max(dst.visible.left, reached.left), std::max(dst.visible.top, reached.top),
      std::min(dst.visible.right, reached.right), std::min(dst.visible.bottom, reached.bottom)};
  if (dst.visible.left >= dst.visible.right || dst.visible.top >= dst.visible.bottom) {
    out = NewBlock(RECT{});
    return true;
  }
  out = NewBlock(dst.visible);
  auto rowFunction = h.stretching ? StretchRow : ShrinkRow;
  const int dstX = h.dstStart - out.area.left;
  const int srcX = h.srcStart - source.area.left;
  auto rowPair = [&](int dy, int sy) {
    const bool inside = dy >= out.area.top && dy < out.area.bottom && sy >= source.area.top &&
                        sy < source.area.bottom;
    return inside ? RowPair{out.Row(dy), out.Width(), source.Row(sy), source.Width()}
                  : RowPair{nullptr, 0, nullptr, 0};
  };
  long long error = v.errorStart;
  int dy = v.dstStart;
  int sy = v.srcStart;
  if (v.stretching) {
    // Growing vertically: draw a row when the source row changes, copy the one above otherwise.
    if (h.stretching) mode = COLORONCOLOR;
    bool needRow = true;
    for (int i = 0; i < v.length; ++i) {
      if (needRow) {
        rowFunction(rowPair(dy, sy), dstX, srcX, h, mode, false);
        needRow = false;
      } else {
        const int previous = dy - v.dstStep;
        if (dy >= out.area.top && dy < out.area.bottom && previous >= out.area.top &&
            previous < out.area.bottom) {
          std::memcpy(out.Row(dy), out.Row(previous),
                      static_cast<std::size_t>(out.Width()) * sizeof(PixelValue));
        }
      }
      if (error > 0) {
        sy += v.srcStep;
        needRow = true;
        error += v.errorAdd1;
      } else {
        error += v.errorAdd2;
      }
      dy += v.dstStep;
    }
  } else {
    // Shrinking vertically: source rows meeting in one destination row merge by the mode.
    int merged = 0;
    for (int i = 0; i < v.length; ++i) {
      if (mode != COLORONCOLOR || merged == 0) {
        rowFunction(rowPair(dy, sy), dstX, srcX, h, mode, merged != 0);
      }
      ++merged;
      if (error > 0) {
        dy += v.dstStep;
        merged = 0;
        error += v.errorAdd1;
      } else {
        error += v.errorAdd2;
      }
      sy += v.srcStep;
    }
  }
  return true;
}

}  // namespace glyphon::win::soft
