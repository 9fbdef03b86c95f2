// Selecting objects into DCs, deleting them, and describing them.
#include <algorithm>
#include <cstring>

#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {
std::uintptr_t Key(const void* handle) { return reinterpret_cast<std::uintptr_t>(handle); }

template <class Record>
int CopyOut(const Record& record, int size, void* buffer) {
  if (buffer == nullptr) return static_cast<int>(sizeof(Record));
  const int count = std::min(size, static_cast<int>(sizeof(Record)));
  if (count <= 0) return 0;
  std::memcpy(buffer, &record, static_cast<std::size_t>(count));
  return count;
}
}  // namespace

HGDIOBJ SoftEngine::SelectInto(Object& record, HGDIOBJ& slot, HGDIOBJ object) {
  ++record.selectionCount;
  HGDIOBJ previous = slot;
  slot = object;
  Release(previous);
  return previous;
}

// Drops one DC's hold on an object; a pending deletion happens when the last hold goes.
void SoftEngine::Release(HGDIOBJ object) {
  Object* record = objects_.Find(Key(object));
  if (record == nullptr) return;
  --record->selectionCount;
  if (record->selectionCount <= 0 && record->deletePending) objects_.Remove(Key(object));
}

HGDIOBJ SoftEngine::SelectObject(HDC hdc, HGDIOBJ object) {
  DcObject* dc = Dc(hdc);
  Object* record = objects_.Find(Key(object));
  if (dc == nullptr || record == nullptr || record->deletePending) return nullptr;
  DcAttributes& a = dc->attributes;
  switch (record->kind) {
    case ObjectKind::Pen: return SelectInto(*record, reinterpret_cast<HGDIOBJ&>(a.pen), object);
    case ObjectKind::Brush: return SelectInto(*record, reinterpret_cast<HGDIOBJ&>(a.brush), object);
    case ObjectKind::Font: return SelectInto(*record, reinterpret_cast<HGDIOBJ&>(a.font), object);
    case ObjectKind::Bitmap: {
      auto* bitmap = static_cast<BitmapObject*>(record);
      if (dc->dcKind != DcKind::Memory) return nullptr;
      if (a.bitmap == object) return object;
      // A bitmap lives in one DC at a time; the stock default bitmap may be in many.
      if (bitmap->selectedInto != nullptr && !bitmap->stock) return nullptr;
      if (BitmapObject* old = Bitmap(a.bitmap)) old->selectedInto = nullptr;
      if (!bitmap->stock) bitmap->selectedInto = hdc;
      dc->surface = bitmap->pixmap;
      return SelectInto(*record, reinterpret_cast<HGDIOBJ&>(a.bitmap), object);
    }
    default: return nullptr;  // palettes go through SelectPalette; DCs cannot be selected
  }
}

HPALETTE SoftEngine::SelectPalette(HDC hdc, HPALETTE palette, BOOL) {
  DcObject* dc = Dc(hdc);
  PaletteObject* record = Palette(palette);
  if (dc == nullptr || record == nullptr || record->deletePending) return nullptr;
  return static_cast<HPALETTE>(
      SelectInto(*record, reinterpret_cast<HGDIOBJ&>(dc->attributes.palette), palette));
}

BOOL SoftEngine::DeleteObject(HGDIOBJ object) {
  Object* record = objects_.Find(Key(object));
  if (record == nullptr) return FALSE;
  if (record->stock) return TRUE;
  switch (record->kind) {
    case ObjectKind::Dc: return DeleteDC(static_cast<HDC>(object));
    case ObjectKind::Icon:
    case ObjectKind::Window: return FALSE;
    default: break;
  }
  if (record->selectionCount > 0) {
    record->deletePending = true;
    return TRUE;
  }
  objects_.Remove(Key(object));
  return TRUE;
}

int SoftEngine::GetObjectA(HGDIOBJ object, int size, void* buffer) {
  Object* record = objects_.Find(Key(object));
  if (record == nullptr || size < 0) return 0;
  switch (record->kind) {
    case ObjectKind::Bitmap: {
      const auto* bitmap = static_cast<const BitmapObject*>(record);
      const Pixmap& pixels = *bitmap->pixmap;
      DIBSECTION section{};
      section.dsBm.bmType = 0;
      section.dsBm.bmWidth = pixels.Width();
      section.dsBm.bmHeight = pixels.Height();
      section.dsBm.bmPlanes = 1;
      section.dsBm.bmBitsPixel = static_cast<WORD>(pixels.BitsPerPixel());
      if (!bitmap->dibSection) {
        section.dsBm.bmWidthBytes = pixels.Stride();
        return CopyOut(section.dsBm, std::min(size, static_cast<int>(sizeof(BITMAP))), buffer);
      }
      section.dsBm.bmWidthBytes = pixels.Stride();
      section.dsBm.bmBits = const_cast<std::uint8_t*>(pixels.Bits());
      if (buffer == nullptr || size < static_cast<int>(sizeof(DIBSECTION))) {
        return CopyOut(section.dsBm, std::min(size, static_cast<int>(sizeof(BITMAP))), buffer);
      }
      BITMAPINFOHEADER& h = section.dsBmih;
      h.biSize = sizeof(BITMAPINFOHEADER);
      h.biWidth = pixels.Width();
      // GDI reports the height positive even for top-down sections.
      h.biHeight = pixels.Height();
      h.biPlanes = 1;
      h.biBitCount = static_cast<WORD>(pixels.BitsPerPixel());
      h.biCompression = BI_RGB;
      h.biSizeImage = static_cast<DWORD>(pixels.ByteSize());
      h.biClrUsed = static_cast<DWORD>(pixels.ColorTable().size());
      return CopyOut(section, size, buffer);
    }
    case ObjectKind::Pen: {
      const auto* pen = static_cast<const PenObject*>(record);
      const LOGPEN logPen{static_cast<UINT>(pen->style), POINT{pen->width, 0}, pen->color};
      return CopyOut(logPen, size, buffer);
    }
    case ObjectKind::Brush: {
      const auto* brush = static_cast<const BrushObject*>(record);
      const LOGBRUSH logBrush{brush->style, brush->color,
                              static_cast<std::uintptr_t>(brush->hatch)};
      return CopyOut(logBrush, size, buffer);
    }
    case ObjectKind::Font:
      return CopyOut(static_cast<const FontObject*>(record)->logFont, size, buffer);
    case ObjectKind::Palette: {
      const auto* palette = static_cast<const PaletteObject*>(record);
      const WORD count = static_cast<WORD>(palette->entries->size());
      return CopyOut(count, size, buffer);
    }
    default: return 0;
  }
}

DWORD SoftEngine::GetObjectType(HGDIOBJ object) {
  Object* record = objects_.Find(Key(object));
  if (record == nullptr) return 0;
  switch (record->kind) {
    case ObjectKind::Dc:
      return static_cast<DcObject*>(record)->dcKind == DcKind::Memory ? OBJ_MEMDC : OBJ_DC;
    case ObjectKind::Bitmap: return OBJ_BITMAP;
    case ObjectKind::Pen: return OBJ_PEN;
    case ObjectKind::Brush: return OBJ_BRUSH;
    case ObjectKind::Font: return OBJ_FONT;
    case ObjectKind::Palette: return OBJ_PAL;
    default: return 0;
  }
}

HGDIOBJ SoftEngine::GetCurrentObject(HDC hdc, UINT type) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return nullptr;
  switch (type) {
    case OBJ_PEN: return dc->attributes.pen;
    case OBJ_BRUSH: return dc->attributes.brush;
    case OBJ_FONT: return dc->attributes.font;
    case OBJ_PAL: return dc->attributes.palette;
    case OBJ_BITMAP: return dc->attributes.bitmap;
    default: return nullptr;
  }
}

HGDIOBJ SoftEngine::GetStockObject(int index) {
  if (index < 0 || index >= static_cast<int>(stockObjects_.size())) return nullptr;
  return stockObjects_[static_cast<std::size_t>(index)];
}

}  // namespace glyphon::win::soft
