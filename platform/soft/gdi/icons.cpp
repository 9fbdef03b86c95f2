// Icons: an AND mask and an XOR colour image (or, for monochrome icons, both halves of one
// double-height mask), drawn with ROP codes or, for 32-bit images with alpha, blended.
#include <algorithm>
#include <cstring>

#include "platform/soft/gdi/blit_transfer.h"
#include "platform/soft/gdi/pixel_rows.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {

std::shared_ptr<Pixmap> NewDeviceBitmapPixels(int width, int height, int bitsPerPixel) {
  return Pixmap::Create(width, height, bitsPerPixel, true, Pixmap::RowAlignment::Word);
}

bool IsDeviceMonochrome(const BitmapObject& bitmap) {
  return bitmap.pixmap->BitsPerPixel() == 1 && !bitmap.dibSection;
}

// Copies a bitmap into new device-bitmap pixels of the given size and depth, as a StretchBlt
// into a fresh memory DC would (black text, white background, BLACKONWHITE).
std::shared_ptr<Pixmap> CopyIntoNew(SoftEngine& engine, const BitmapObject& from, int width,
                                    int height, int bitsPerPixel) {
  auto bitmap = std::make_unique<BitmapObject>();
  bitmap->pixmap = NewDeviceBitmapPixels(width, height, bitsPerPixel);
  if (!bitmap->pixmap) return nullptr;
  std::shared_ptr<Pixmap> pixels = bitmap->pixmap;
  HBITMAP handle = engine.AddObject<HBITMAP>(std::move(bitmap));
  HDC dc = engine.CreateCompatibleDC(nullptr);
  HGDIOBJ old = engine.SelectObject(dc, handle);
  const RasterTarget target = ResolveTarget(engine, dc);
  bool copied = false;
  if (old != nullptr && target) {
    const TransferSource source{from.pixmap.get(), IsDeviceMonochrome(from)};
    copied = TransferToTarget(engine, target, BlitSide{0, 0, width, height, {}}, source,
                              BlitSide{0, 0, from.pixmap->Width(), from.pixmap->Height(), {}},
                              SRCCOPY) != FALSE;
    engine.SelectObject(dc, old);
  }
  engine.DeleteDC(dc);
  engine.DeleteObject(handle);
  return copied ? pixels : nullptr;
}

std::shared_ptr<Pixmap> Clone(const Pixmap& pixels) {
  auto copy = NewDeviceBitmapPixels(pixels.Width(), pixels.Height(), pixels.BitsPerPixel());
  if (copy) std::memcpy(copy->Bits(), pixels.Bits(), copy->ByteSize());
  return copy;
}

HBITMAP AddBitmap(SoftEngine& engine, std::shared_ptr<Pixmap> pixels) {
  if (!pixels) return nullptr;
  auto bitmap = std::make_unique<BitmapObject>();
  bitmap->pixmap = std::move(pixels);
  return engine.AddObject<HBITMAP>(std::move(bitmap));
}

// A 32-bit image carries alpha when any pixel's top byte is set.
bool HasAlpha(const Pixmap* color) {
  if (color == nullptr || color->BitsPerPixel() != 32) return false;
  for (int y = 0; y < color->Height(); ++y) {
    const std::uint8_t* row = color->Row(y);
    for (int x = 0; x < color->Width(); ++x) {
      if (row[x * 4 + 3] != 0) return true;
    }
  }
  return false;
}

// The image with its colours premultiplied by alpha, the form GDI blends.
PixelBlock Premultiplied(const Pixmap& color) {
  PixelBlock block = ReadBlock(color, RECT{0, 0, color.Width(), color.Height()});
  for (PixelValue& v : block.values) {
    const PixelValue a = v >> 24;
    auto scale = [a](PixelValue c) { return (c * a + 127) / 255; };
    v = (a << 24) | (scale((v >> 16) & 0xFF) << 16) | (scale((v >> 8) & 0xFF) << 8) |
        scale(v & 0xFF);
  }
  return block;
}

// Source over destination with premultiplied source pixels; a 32-bit destination's top byte
// blends like the colours.
PixelValue BlendPixel(PixelValue dst, PixelValue src, bool withAlphaByte) {
  const PixelValue a = src >> 24;
  PixelValue out = 0;
  for (int shift = 0; shift < (withAlphaByte ? 32 : 24); shift += 8) {
    const PixelValue s = (src >> shift) & 0xFF;
    const PixelValue d = (dst >> shift) & 0xFF;
    out |= ((s + (d * (255 - a) + 127) / 255) & 0xFF) << shift;
  }
  return out;
}

// AlphaBlend of the premultiplied image over the target, stretched with COLORONCOLOR. False
// when GDI's AlphaBlend would refuse (negative extents), so the caller falls back to the masks.
bool BlendIcon(const RasterTarget& target, int x, int y, int width, int height,
               const Pixmap& color) {
  if (width < 0 || height < 0) return false;
  BlitSide dst{x, y, width, height, {}};
  BlitSide src{0, 0, color.Width(), color.Height(), {}};
  if (!ClipTransfer(dst, *target.surface, &src, &color)) return true;
  const PixelBlock whole = Premultiplied(color);
  PixelBlock block = NewBlock(src.visible);
  for (int row = src.visible.top; row < src.visible.bottom; ++row) {
    std::copy_n(whole.Row(row) + src.visible.left, block.Width(), block.Row(row));
  }
  if (src.width != dst.width || src.height != dst.height) {
    PixelBlock stretched;
    if (!StretchBlock(block, src, dst, COLORONCOLOR, color, stretched)) return false;
    block = std::move(stretched);
  } else {
    block.area = dst.visible;
  }
  Pixmap& surface = *target.surface;
  const bool withAlphaByte = surface.BitsPerPixel() == 32;
  std::vector<PixelValue> row(static_cast<std::size_t>(block.Width()));
  for (int r = block.area.top; r < block.area.bottom; ++r) {
    ReadPixels(surface, block.area.left, r, block.Width(), row.data());
    const PixelValue* source = block.Row(r);
    for (int i = 0; i < block.Width(); ++i) row[i] = BlendPixel(row[i], source[i], withAlphaByte);
    WritePixels(surface, block.area.left, r, block.Width(), row.data());
  }
  return true;
}

// The AND mask, then the XOR image (the mask's lower half for monochrome icons).
void DrawWithMasks(const SoftEngine& engine, const RasterTarget& target, const BlitSide& dst,
                   const IconObject& icon, int frameWidth, int frameHeight, UINT flags) {
  const TransferSource mask{icon.mask.get(), true};
  if (flags & DI_MASK) {
    TransferToTarget(engine, target, dst, mask, BlitSide{0, 0, frameWidth, frameHeight, {}},
                     (flags & DI_IMAGE) ? SRCAND : SRCCOPY);
  }
  if (flags & DI_IMAGE) {
    const DWORD rop = (flags & DI_MASK) ? SRCINVERT : SRCCOPY;
    if (icon.color) {
      TransferToTarget(engine, target, dst, TransferSource{icon.color.get(), false},
                       BlitSide{0, 0, frameWidth, frameHeight, {}}, rop);
    } else {
      TransferToTarget(engine, target, dst, mask,
                       BlitSide{0, frameHeight, frameWidth, frameHeight, {}}, rop);
    }
  }
}

// The image part of DrawIconEx on a target whose drawing state it sets for the duration.
void DrawFrame(const SoftEngine& engine, const RasterTarget& target, int x, int y, int width,
               int height, const IconObject& icon, UINT flags) {
  const int frameWidth = icon.mask->Width();
  const int frameHeight = icon.color ? icon.mask->Height() : icon.mask->Height() / 2;
  const bool blendable = !target.monochromeDevice && target.surface->BitsPerPixel() > 8;
  if ((flags & DI_IMAGE) && blendable && HasAlpha(icon.color.get()) &&
      BlendIcon(target, x, y, width, height, *icon.color)) {
    return;
  }
  DrawWithMasks(engine, target, BlitSide{x, y, width, height, {}}, icon, frameWidth, frameHeight,
                flags);
}

}  // namespace

HICON SoftEngine::CreateIconIndirect(ICONINFO* info) {
  if (info == nullptr) return nullptr;
  const BitmapObject* mask = Bitmap(info->hbmMask);
  const BitmapObject* color = info->hbmColor != nullptr ? Bitmap(info->hbmColor) : nullptr;
  if (mask == nullptr || (info->hbmColor != nullptr && color == nullptr)) return nullptr;
  // A colour icon takes the colour image's size; a monochrome one stacks AND over XOR.
  const int width = color != nullptr ? color->pixmap->Width() : mask->pixmap->Width();
  const int height = color != nullptr ? color->pixmap->Height() : mask->pixmap->Height();
  auto icon = std::make_unique<IconObject>();
  icon->isIcon = info->fIcon != FALSE;
  icon->mask = CopyIntoNew(*this, *mask, width, height, 1);
  if (color != nullptr) icon->color = CopyIntoNew(*this, *color, width, height, 32);
  if (!icon->mask || (color != nullptr && !icon->color)) return nullptr;
  const int frameHeight = color != nullptr ? height : height / 2;
  icon->hotspot = icon->isIcon
                      ? POINT{width / 2, frameHeight / 2}
                      : POINT{static_cast<LONG>(info->xHotspot), static_cast<LONG>(info->yHotspot)};
  return AddObject<HICON>(std::move(icon));
}

BOOL SoftEngine::GetIconInfo(HICON handle, ICONINFO* info) {
  const IconObject* icon = Icon(handle);
  if (icon == nullptr || info == nullptr) return FALSE;
  HBITMAP mask = AddBitmap(*this, Clone(*icon->mask));
  HBITMAP color = icon->color ? AddBitmap(*this, Clone(*icon->color)) : nullptr;
  if (mask == nullptr || (icon->color && color == nullptr)) {
    DeleteObject(mask);
    DeleteObject(color);
    return FALSE;
  }
  info->fIcon = icon->isIcon ? TRUE : FALSE;
  info->xHotspot = static_cast<DWORD>(icon->hotspot.x);
  info->yHotspot = static_cast<DWORD>(icon->hotspot.y);
  info->hbmMask = mask;
  info->hbmColor = color;
  return TRUE;
}

BOOL SoftEngine::DestroyIcon(HICON icon) {
  if (Icon(icon) == nullptr) return FALSE;
  return objects_.Remove(reinterpret_cast<std::uintptr_t>(icon)) ? TRUE : FALSE;
}

BOOL SoftEngine::DrawIconEx(HDC hdc, int x, int y, HICON handle, int width, int height, UINT,
                            HBRUSH flickerFreeBrush, UINT flags) {
  const IconObject* icon = Icon(handle);
  const RasterTarget target = ResolveTarget(*this, hdc);
  if (icon == nullptr || !target || !icon->mask) return FALSE;
  if (width == 0) width = icon->mask->Width();
  if (height == 0) height = icon->color ? icon->mask->Height() : icon->mask->Height() / 2;

  // Drawing uses black text, a white background and COLORONCOLOR on the caller's DC for the
  // duration, as GDI's own DrawIconEx does.
  DcAttributes& state = target.dc->attributes;
  const DcAttributes saved = state;
  state.textColor = RGB(0, 0, 0);
  state.backgroundColor = RGB(255, 255, 255);
  state.stretchMode = COLORONCOLOR;

  if (Brush(flickerFreeBrush) != nullptr) {
    // Composed off screen on the brush, then copied in one go.
    HBITMAP offscreen = CreateCompatibleBitmap(hdc, width, height);
    HDC composer = CreateCompatibleDC(hdc);
    HGDIOBJ oldBitmap = SelectObject(composer, offscreen);
    HGDIOBJ oldBrush = SelectObject(composer, flickerFreeBrush);
    PatBlt(composer, 0, 0, width, height, PATCOPY);
    SelectObject(composer, oldBrush);
    if (const RasterTarget scratch = ResolveTarget(*this, composer);
        scratch && oldBitmap != nullptr) {
      DrawFrame(*this, scratch, 0, 0, width, height, *icon, flags);
      BitBlt(hdc, x, y, width, height, composer, 0, 0, SRCCOPY);
    }
    SelectObject(composer, oldBitmap);
    DeleteDC(composer);
    DeleteObject(offscreen);
  } else {
    DrawFrame(*this, target, x, y, width, height, *icon, flags);
  }
  state.textColor = saved.textColor;
  state.backgroundColor = saved.backgroundColor;
  state.stretchMode = saved.stretchMode;
  return TRUE;
}

}  // namespace glyphon::win::soft
