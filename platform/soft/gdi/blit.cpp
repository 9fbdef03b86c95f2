// Block transfers: PatBlt, BitBlt and StretchBlt with every ROP3 code.
#include <cstring>
#include <vector>

#include "platform/soft/gdi/blit_transfer.h"
#include "platform/soft/gdi/colors.h"
#include "platform/soft/gdi/pixel_conversion.h"
#include "platform/soft/gdi/pixel_rows.h"
#include "platform/soft/gdi/rop3.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {

PixelConversion TransferConversion(const SoftEngine& engine, const TransferSource& from,
                                   const RasterTarget& to) {
  PixelConversion::Side source;
  source.pixmap = from.surface;
  source.deviceMonochrome = from.deviceMonochrome;
  source.background = from.background;
  PixelConversion::Side destination;
  destination.pixmap = to.surface;
  destination.deviceMonochrome = to.monochromeDevice;
  destination.text = ResolveDcColor(engine, *to.dc, to.dc->attributes.textColor);
  destination.background = ResolveDcColor(engine, *to.dc, to.dc->attributes.backgroundColor);
  return PixelConversion::ForTransfer(source, destination);
}

// SRCCOPY between surfaces of one format: plain row copies, one copy when the rows of both sides
// lie back to back.
bool CopyRows(const Pixmap& from, const RECT& src, Pixmap& to, const RECT& dst) {
  const int bitsPerPixel = to.BitsPerPixel();
  if (bitsPerPixel < 8 || from.BitsPerPixel() != bitsPerPixel) return false;
  const int bytesPerPixel = bitsPerPixel / 8;
  const auto rowBytes = static_cast<std::size_t>(dst.right - dst.left) * bytesPerPixel;
  const int rows = dst.bottom - dst.top;
  auto source = [&](int i) {
    return from.Row(src.top + i) + static_cast<std::size_t>(src.left) * bytesPerPixel;
  };
  auto target = [&](int i) {
    return to.Row(dst.top + i) + static_cast<std::size_t>(dst.left) * bytesPerPixel;
  };
  if (&from == &to) {
    // Within one surface: copy rows in the order that never overwrites a row still to be read.
    const bool downwards = dst.top > src.top;
    for (int k = 0; k < rows; ++k) {
      const int i = downwards ? rows - 1 - k : k;
      std::memmove(target(i), source(i), rowBytes);
    }
    return true;
  }
  const bool contiguous = from.TopDown() && to.TopDown() &&
                          static_cast<std::size_t>(from.Stride()) == rowBytes &&
                          static_cast<std::size_t>(to.Stride()) == rowBytes;
  if (contiguous) {
    std::memcpy(target(0), source(0), rowBytes * static_cast<std::size_t>(rows));
    return true;
  }
  for (int i = 0; i < rows; ++i) std::memcpy(target(i), source(i), rowBytes);
  return true;
}

// Combines destination, pattern and (when given) source under a ROP3 code over the block's area.
// Where a brush paints nothing (null brushes, hatch gaps in transparent mode) the destination
// stays as it is.
void Combine(const SoftEngine& engine, const RasterTarget& target, const RECT& area,
             const PixelBlock* source, DWORD rop) {
  const int width = area.right - area.left;
  if (width <= 0 || area.bottom <= area.top) return;
  const bool usesPattern = Rop3UsesPattern(rop);
  const BrushPixels brush(usesPattern ? engine.Brush(target.dc->attributes.brush) : nullptr,
                          target);
  if (usesPattern && brush.PaintsNothing()) return;
  std::vector<PixelValue> row(static_cast<std::size_t>(width));
  std::vector<PixelValue> before(usesPattern ? row.size() : 0);
  std::vector<PixelValue> pattern(usesPattern ? row.size() : 0);
  for (int y = area.top; y < area.bottom; ++y) {
    ReadPixels(*target.surface, area.left, y, width, row.data());
    if (usesPattern) {
      const BrushRow brushRow = brush.Row(y);
      for (int i = 0; i < width; ++i) pattern[i] = brushRow.At(area.left + i);
      before = row;
    }
    ApplyRop3Row(Rop3Index(rop), usesPattern ? pattern.data() : nullptr,
                 source != nullptr ? source->Row(y - area.top + source->area.top) : nullptr,
                 row.data(), width);
    if (usesPattern) {
      const BrushRow brushRow = brush.Row(y);
      for (int i = 0; i < width; ++i) {
        if (!brushRow.Paints(area.left + i)) row[i] = before[i];
      }
    }
    WritePixels(*target.surface, area.left, y, width, row.data());
  }
}

}  // namespace

PixelBlock ReadBlock(const Pixmap& surface, const RECT& area) {
  PixelBlock block = NewBlock(area);
  for (int y = area.top; y < area.bottom; ++y)
    ReadPixels(surface, area.left, y, block.Width(), block.Row(y));
  return block;
}

BOOL TransferToTarget(const SoftEngine& engine, const RasterTarget& to, BlitSide dst,
                      const TransferSource& from, BlitSide src, DWORD rop) {
  if (!ClipTransfer(dst, *to.surface, &src, from.surface)) return TRUE;
  // A one-pixel destination samples one source pixel less, as GDI does.
  if (dst.width == 1 && src.width > 1) --src.width;
  if (dst.height == 1 && src.height > 1) --src.height;
  const PixelConversion conversion = TransferConversion(engine, from, to);
  const bool stretching = src.width != dst.width || src.height != dst.height;
  if (!stretching && Rop3Index(rop) == Rop3Index(SRCCOPY) && conversion.IsIdentity() &&
      CopyRows(*from.surface, src.visible, *to.surface, dst.visible)) {
    return TRUE;
  }
  PixelBlock block = ReadBlock(*from.surface, src.visible);
  for (int y = block.area.top; y < block.area.bottom; ++y)
    conversion.Apply(block.Row(y), block.Width());
  if (stretching) {
    PixelBlock stretched;
    if (!StretchBlock(block, src, dst, to.dc->attributes.stretchMode, *to.surface, stretched)) {
      return FALSE;
    }
    block = std::move(stretched);
  }
  Combine(engine, to, dst.visible, &block, rop);
  return TRUE;
}

namespace {

BOOL Transfer(const SoftEngine& engine, HDC hdc, const BlitSide& dst, HDC hdcSource,
              const BlitSide& src, DWORD rop) {
  const RasterTarget to = ResolveTarget(engine, hdc);
  const RasterTarget from = ResolveTarget(engine, hdcSource);
  if (!to || !from) return FALSE;
  const TransferSource source{
      from.surface, from.monochromeDevice,
      ResolveDcColor(engine, *from.dc, from.dc->attributes.backgroundColor)};
  return TransferToTarget(engine, to, dst, source, src, rop);
}

}  // namespace

BOOL SoftEngine::PatBlt(HDC hdc, int x, int y, int width, int height, DWORD rop) {
  if (Rop3UsesSource(rop)) return FALSE;
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (!target) return FALSE;
  BlitSide dst{x, y, width, height, {}};
  if (!ClipTransfer(dst, *target.surface, nullptr, nullptr)) return TRUE;
  const int mix = Rop3PatternMix(rop);
  if (!Rop3UsesPattern(rop)) {
    // Black, white, invert and no-op need no brush, so even a null brush does not stop them.
    const RopMasks masks = Rop2Masks(mix, 0);
    for (int row = dst.visible.top; row < dst.visible.bottom; ++row) {
      MixSpan(*target.surface, row, dst.visible.left, dst.visible.right, masks);
    }
    return TRUE;
  }
  BrushRect(*target.surface, dst.visible, BrushPixels(Brush(target.dc->attributes.brush), target),
            mix);
  return TRUE;
}

BOOL SoftEngine::BitBlt(HDC hdc, int x, int y, int width, int height, HDC source, int sourceX,
                        int sourceY, DWORD rop) {
  return StretchBlt(hdc, x, y, width, height, source, sourceX, sourceY, width, height, rop);
}

BOOL SoftEngine::StretchBlt(HDC hdc, int x, int y, int width, int height, HDC source, int sourceX,
                            int sourceY, int sourceWidth, int sourceHeight, DWORD rop) {
  if (!Rop3UsesSource(rop)) return PatBlt(hdc, x, y, width, height, rop);
  return Transfer(*this, hdc, BlitSide{x, y, width, height, {}}, source,
                  BlitSide{sourceX, sourceY, sourceWidth, sourceHeight, {}}, rop);
}

}  // namespace glyphon::win::soft
