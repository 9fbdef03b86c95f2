#include "platform/soft/gdi/cosmetic_line.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "platform/soft/gdi/region_shapes.h"

namespace glyphon::win::soft {

namespace {

// Octants numbered 1 to 8 clockwise from the positive x axis (y grows downwards), as bits.
unsigned OctantMask(long long dx, long long dy) {
  int octant;
  if (dy > 0) {
    octant = dx > 0 ? (dx > dy ? 1 : 2) : (-dx > dy ? 4 : 3);
  } else {
    octant = dx < 0 ? (-dx > -dy ? 5 : 6) : (dx > -dy ? 8 : 7);
  }
  return 1u << (octant - 1);
}

constexpr unsigned kYIncreasing = 0x0F;
constexpr unsigned kXIncreasing = 0xC3;
constexpr unsigned kXMajor = 0x99;
constexpr unsigned kPositiveSlope = 0x33;
constexpr unsigned kBiased = 0xB4;  // octants 3, 5, 6 and 8 round their ties the other way

// Steps of one Bresenham line, with its minor-axis tie rule.
struct LineParams {
  long long dx, dy;  // absolute extents
  bool xMajor, positiveSlope;
  int bias, xStep, yStep;

  LineParams(const Point64& start, const Point64& end) {
    const long long sx = end.x - start.x, sy = end.y - start.y;
    const unsigned octant = OctantMask(sx, sy);
    dx = std::llabs(sx);
    dy = std::llabs(sy);
    xMajor = (octant & kXMajor) != 0;
    positiveSlope = (octant & kPositiveSlope) != 0;
    bias = (octant & kBiased) != 0 ? 1 : 0;
    xStep = (octant & kXIncreasing) != 0 ? 1 : -1;
    yStep = (octant & kYIncreasing) != 0 ? 1 : -1;
  }
};

enum OutCode : unsigned { kLeft = 1, kRight = 2, kTop = 4, kBottom = 8 };

unsigned Outcode(const Point64& p, const RECT& clip) {
  unsigned code = 0;
  if (p.x < clip.left) code |= kLeft;
  else if (p.x >= clip.right) code |= kRight;
  if (p.y < clip.top) code |= kTop;
  else if (p.y >= clip.bottom) code |= kBottom;
  return code;
}

// Moves the ends of a line onto the clip rectangle where the line's own pixels first and last
// fall inside it. Solving the Bresenham error inequality for the crossing gives, for a start
// moved m pixels along x, the y offset n = ceil((2m dy + bias - dx) / 2dx) on x-major lines, and
// so on for the other seven cases. Returns 0 when no pixel is inside, 1 when clipped, 2 when
// untouched.
int ClipLine(const Point64& start, const Point64& end, const RECT& clip, const LineParams& p,
             Point64& first, Point64& last) {
  const long long dx = p.dx, dy = p.dy, dx2 = 2 * dx, dy2 = 2 * dy, bias = p.bias;
  first = start;
  last = end;
  unsigned startCode = Outcode(start, clip), endCode = Outcode(end, clip);
  bool clipped = false;
  // Each pass settles one side of one end, so a few passes always finish.
  for (int pass = 0; pass < 16; ++pass) {
    if (startCode == 0 && endCode == 0) return clipped ? 1 : 2;
    if ((startCode & endCode) != 0) return 0;
    clipped = true;
    const bool moveStart = startCode != 0;
    const unsigned code = moveStart ? startCode : endCode;
    const Point64& origin = moveStart ? start : end;
    Point64& moved = moveStart ? first : last;
    if (code & (kLeft | kRight)) {
      const bool left = (code & kLeft) != 0;
      const long long m = left ? clip.left - origin.x : origin.x - clip.right + 1;
      long long n;
      if (moveStart) {
        n = p.xMajor ? (m * dy2 + bias + dx - 1) / dx2 : (m * dy2 - bias - dy) / dx2 + 1;
      } else {
        n = p.xMajor ? (m * dy2 - bias + dx) / dx2 : (m * dy2 + bias - dy - 1) / dx2 + 1;
      }
      if (!p.positiveSlope) n = -n;
      moved.x = left ? clip.left : clip.right - 1;
      moved.y = left ? origin.y + n : origin.y - n;
    } else {
      const bool top = (code & kTop) != 0;
      const long long n = top ? clip.top - origin.y : origin.y - clip.bottom + 1;
      long long m;
      if (moveStart) {
        m = p.xMajor ? (n * dx2 - bias - dx) / dy2 + 1 : (n * dx2 + bias + dy - 1) / dy2;
      } else {
        m = p.xMajor ? (n * dx2 + bias - dx - 1) / dy2 + 1 : (n * dx2 - bias + dy) / dy2;
      }
      if (!p.positiveSlope) m = -m;
      moved.y = top ? clip.top : clip.bottom - 1;
      moved.x = top ? origin.x + m : origin.x - m;
    }
    (moveStart ? startCode : endCode) = Outcode(moved, clip);
  }
  return 0;
}

// Coordinates this large are scaled down before walking, as GDI does, to keep the error terms in
// range.
Point64 Crop(POINT p) {
  constexpr long long kLimit = 0x10000000;
  Point64 q{p.x, p.y};
  if (q.x >= kLimit || q.x <= -kLimit || q.y >= kLimit || q.y <= -kLimit) {
    q.x /= 8;
    q.y /= 8;
  }
  return q;
}

// Steps through pixels along a line, by word offsets on 32-bpp surfaces.
class PixelWalk {
 public:
  PixelWalk(Pixmap& surface, int x, int y, int stepX, int stepY)
      : surface_(surface), x_(x), y_(y), stepX_(stepX), stepY_(stepY) {
    if (surface.BitsPerPixel() == 32) {
      words_ = reinterpret_cast<std::uint32_t*>(surface.Bits());
      rowStep_ = (surface.TopDown() ? 1 : -1) * static_cast<std::ptrdiff_t>(surface.Stride() / 4);
      at_ = (surface.Row(y) - surface.Bits()) / 4 + x;
      step_ = stepX + stepY * rowStep_;
    }
  }

  // Mixes count pixels from the current one onwards and moves past them.
  void Mix(long long count, const RopMasks& masks) {
    if (words_ != nullptr) {
      if (!masks.IsNop()) {
        std::ptrdiff_t at = at_;
        for (long long i = 0; i < count; ++i, at += step_) words_[at] = masks.Apply(words_[at]);
      }
      at_ += step_ * static_cast<std::ptrdiff_t>(count);
    } else {
      for (long long i = 0; i < count; ++i) {
        MixPixel(surface_, x_, y_, masks);
        x_ += stepX_;
        y_ += stepY_;
      }
    }
  }

  void Move(int dx, int dy) {
    if (words_ != nullptr) {
      at_ += dx + dy * rowStep_;
    } else {
      x_ += dx;
      y_ += dy;
    }
  }

 private:
  Pixmap& surface_;
  int x_, y_, stepX_, stepY_;
  std::uint32_t* words_ = nullptr;
  std::ptrdiff_t at_ = 0, rowStep_ = 0, step_ = 0;
};

}  // namespace

CosmeticLine::CosmeticLine(Pixmap& surface, const RopMasks& pen, const RopMasks& gap,
                           const DashPattern* pattern)
    : surface_(surface), pen_(pen), gap_(gap), pattern_(pattern) {
  if (pattern_ != nullptr) dash_.left = pattern_->dashes[0];
}

void CosmeticLine::Skip(long long pixels) {
  if (pattern_ == nullptr) return;
  if (pixels >= pattern_->total) pixels %= pattern_->total;
  do {
    if (dash_.left > pixels) {
      dash_.left -= pixels;
      return;
    }
    pixels -= dash_.left;
    if (++dash_.index == pattern_->count) dash_.index = 0;
    dash_.left = pattern_->dashes[dash_.index];
    dash_.mark = !dash_.mark;
  } while (pixels != 0);
}

void CosmeticLine::Draw(POINT start, POINT end) {
  if (start.y == end.y) {
    Straight(start.x, end.x, start.y, true);
  } else if (start.x == end.x) {
    Straight(start.y, end.y, start.x, false);
  } else {
    Diagonal(start, end);
  }
}

void CosmeticLine::Straight(long long from, long long to, long long fixed, bool horizontal) {
  const DashState origin = dash_;
  const long long length = std::llabs(to - from);
  const long long limit = horizontal ? surface_.Width() : surface_.Height();
  const long long across = horizontal ? surface_.Height() : surface_.Width();
  if (length > 0 && fixed >= 0 && fixed < across) {
    // Pixel k of the line is at from + step * k; find the visible k.
    const long long step = to > from ? 1 : -1;
    const long long first = step > 0 ? std::max(0LL, -from) : std::max(0LL, from - (limit - 1));
    const long long last = std::min(length - 1, step > 0 ? limit - 1 - from : from);
    if (first <= last) {
      Skip(first);
      const long long start = from + step * first;
      const int x = static_cast<int>(horizontal ? start : fixed);
      const int y = static_cast<int>(horizontal ? fixed : start);
      PixelWalk walk(surface_, x, y, horizontal ? static_cast<int>(step) : 0,
                     horizontal ? 0 : static_cast<int>(step));
      for (long long k = first; k <= last;) {
        const long long run = pattern_ != nullptr ? std::min(dash_.left, last - k + 1)
                                                  : last - k + 1;
        walk.Mix(run, Current());
        Skip(run);
        k += run;
      }
    }
  }
  dash_ = origin;
  Skip(length);
}

void CosmeticLine::Diagonal(POINT start, POINT end) {
  const DashState origin = dash_;
  const Point64 p1 = Crop(start), p2 = Crop(end);
  const LineParams params(p1, p2);
  // Only the line's bounding box on the surface can be reached.
  RECT clip{static_cast<LONG>(std::max(0LL, std::min(p1.x, p2.x))),
            static_cast<LONG>(std::max(0LL, std::min(p1.y, p2.y))),
            static_cast<LONG>(std::min<long long>(surface_.Width(), std::max(p1.x, p2.x) + 1)),
            static_cast<LONG>(std::min<long long>(surface_.Height(), std::max(p1.y, p2.y) + 1))};
  Point64 first{}, last{};
  if (!IsEmptyRect(clip) && ClipLine(p1, p2, clip, params, first, last) != 0) {
    const long long m = std::llabs(first.x - p1.x), n = std::llabs(first.y - p1.y);
    long long err, length;
    if (params.xMajor) {
      err = 2 * params.dy - params.dx + 2 * m * params.dy - 2 * n * params.dx;
      length = std::llabs(last.x - first.x) + 1;
      Skip(m);
    } else {
      err = 2 * params.dx - params.dy + 2 * n * params.dx - 2 * m * params.dy;
      length = std::llabs(last.y - first.y) + 1;
      Skip(n);
    }
    if (last == p2) --length;
    const long long major = params.xMajor ? params.dx : params.dy;
    const long long minor = params.xMajor ? params.dy : params.dx;
    const int majorX = params.xMajor ? params.xStep : 0, majorY = params.xMajor ? 0 : params.yStep;
    PixelWalk walk(surface_, static_cast<int>(first.x), static_cast<int>(first.y), majorX,
                   majorY);
    const int minorX = params.xMajor ? 0 : params.xStep, minorY = params.xMajor ? params.yStep : 0;
    for (; length > 0; --length) {
      walk.Mix(1, Current());
      Skip(1);
      const bool stepMinor = err + params.bias > 0;
      err += stepMinor ? 2 * minor - 2 * major : 2 * minor;
      if (stepMinor) walk.Move(minorX, minorY);
    }
  }
  dash_ = origin;
  Skip(params.xMajor ? params.dx : params.dy);
}

}  // namespace glyphon::win::soft
