// Device contexts: creation, deletion, saved states and drawing attributes.
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

// Selects a stock object into a DC that is being set up.
void SoftEngine::SelectStock(HGDIOBJ& slot, HGDIOBJ object) {
  SelectInto(*objects_.Find(reinterpret_cast<std::uintptr_t>(object)), slot, object);
}

HDC SoftEngine::NewDc(DcKind kind, std::shared_ptr<Pixmap> surface, HWND window) {
  auto dc = std::make_unique<DcObject>();
  dc->dcKind = kind;
  dc->window = window;
  dc->surface = std::move(surface);
  DcObject* record = dc.get();
  HDC hdc = AddObject<HDC>(std::move(dc));
  if (hdc == nullptr) return nullptr;
  DcAttributes& a = record->attributes;
  SelectStock(reinterpret_cast<HGDIOBJ&>(a.pen), stockObjects_[BLACK_PEN]);
  SelectStock(reinterpret_cast<HGDIOBJ&>(a.brush), stockObjects_[WHITE_BRUSH]);
  SelectStock(reinterpret_cast<HGDIOBJ&>(a.font), stockObjects_[SYSTEM_FONT]);
  SelectStock(reinterpret_cast<HGDIOBJ&>(a.palette), stockObjects_[DEFAULT_PALETTE]);
  if (kind == DcKind::Memory) {
    // A new memory DC holds the 1x1 monochrome default bitmap, as in GDI.
    SelectStock(reinterpret_cast<HGDIOBJ&>(a.bitmap), defaultBitmap_);
    record->surface = Bitmap(defaultBitmap_)->pixmap;
  }
  return hdc;
}

HDC SoftEngine::CreateCompatibleDC(HDC hdc) {
  if (hdc != nullptr && Dc(hdc) == nullptr) return nullptr;
  return NewDc(DcKind::Memory, nullptr, nullptr);
}

void SoftEngine::ReleaseSelections(DcObject& dc) {
  auto release = [this](auto& handle) {
    Release(handle);
    handle = nullptr;
  };
  for (DcAttributes& saved : dc.saved) {
    release(saved.bitmap);
    release(saved.pen);
    release(saved.brush);
    release(saved.font);
    release(saved.palette);
  }
  dc.saved.clear();
  DcAttributes& a = dc.attributes;
  if (BitmapObject* bitmap = Bitmap(a.bitmap)) bitmap->selectedInto = nullptr;
  release(a.bitmap);
  release(a.pen);
  release(a.brush);
  release(a.font);
  release(a.palette);
}

BOOL SoftEngine::DeleteDC(HDC hdc) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return FALSE;
  ReleaseSelections(*dc);
  objects_.Remove(reinterpret_cast<std::uintptr_t>(hdc));
  return TRUE;
}

int SoftEngine::SaveDC(HDC hdc) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return 0;
  // The saved copy holds its own reference on every object it names.
  for (HGDIOBJ object : {static_cast<HGDIOBJ>(dc->attributes.bitmap),
                         static_cast<HGDIOBJ>(dc->attributes.pen),
                         static_cast<HGDIOBJ>(dc->attributes.brush),
                         static_cast<HGDIOBJ>(dc->attributes.font),
                         static_cast<HGDIOBJ>(dc->attributes.palette)}) {
    if (Object* record = objects_.Find(reinterpret_cast<std::uintptr_t>(object))) {
      ++record->selectionCount;
    }
  }
  dc->saved.push_back(dc->attributes);
  return static_cast<int>(dc->saved.size());
}

BOOL SoftEngine::RestoreDC(HDC hdc, int savedDc) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return FALSE;
  const int depth = static_cast<int>(dc->saved.size());
  const int target = savedDc < 0 ? depth + savedDc + 1 : savedDc;
  if (target < 1 || target > depth) return FALSE;
  DcAttributes restored = dc->saved[static_cast<std::size_t>(target - 1)];
  // Select the restored objects first, then drop the references of the discarded states.
  SelectObject(hdc, restored.pen);
  SelectObject(hdc, restored.brush);
  SelectObject(hdc, restored.font);
  SelectPalette(hdc, restored.palette, FALSE);
  if (dc->dcKind == DcKind::Memory) SelectObject(hdc, restored.bitmap);
  while (static_cast<int>(dc->saved.size()) >= target) {
    DcAttributes& dropped = dc->saved.back();
    for (HGDIOBJ object : {static_cast<HGDIOBJ>(dropped.bitmap),
                           static_cast<HGDIOBJ>(dropped.pen),
                           static_cast<HGDIOBJ>(dropped.brush),
                           static_cast<HGDIOBJ>(dropped.font),
                           static_cast<HGDIOBJ>(dropped.palette)}) {
      Release(object);
    }
    dc->saved.pop_back();
  }
  const DcAttributes selected = dc->attributes;
  dc->attributes = restored;
  dc->attributes.bitmap = selected.bitmap;
  dc->attributes.pen = selected.pen;
  dc->attributes.brush = selected.brush;
  dc->attributes.font = selected.font;
  dc->attributes.palette = selected.palette;
  return TRUE;
}

int SoftEngine::GetDeviceCaps(HDC hdc, int index) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return 0;
  switch (index) {
    case BITSPIXEL:
      // A memory DC reports the depth of the bitmap it holds, a screen or window DC the screen's.
      return dc->surface ? dc->surface->BitsPerPixel() : 32;
    case PLANES: return 1;
    case HORZRES: return screen_->Width();
    case VERTRES: return screen_->Height();
    case LOGPIXELSX:
    case LOGPIXELSY: return 96;
    case NUMCOLORS: return -1;
    case SIZEPALETTE: return 0;
    case RASTERCAPS: return 0;
    default: return 0;
  }
}

int SoftEngine::SetROP2(HDC hdc, int mode) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || mode < R2_BLACK || mode > R2_WHITE) return 0;
  const int previous = dc->attributes.rop2;
  dc->attributes.rop2 = mode;
  return previous;
}

int SoftEngine::GetROP2(HDC hdc) {
  DcObject* dc = Dc(hdc);
  return dc != nullptr ? dc->attributes.rop2 : 0;
}

COLORREF SoftEngine::SetBkColor(HDC hdc, COLORREF color) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return CLR_INVALID;
  const COLORREF previous = dc->attributes.backgroundColor;
  dc->attributes.backgroundColor = color;
  return previous;
}

COLORREF SoftEngine::GetBkColor(HDC hdc) {
  DcObject* dc = Dc(hdc);
  return dc != nullptr ? dc->attributes.backgroundColor : CLR_INVALID;
}

int SoftEngine::SetBkMode(HDC hdc, int mode) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || (mode != TRANSPARENT && mode != OPAQUE)) return 0;
  const int previous = dc->attributes.backgroundMode;
  dc->attributes.backgroundMode = mode;
  return previous;
}

int SoftEngine::GetBkMode(HDC hdc) {
  DcObject* dc = Dc(hdc);
  return dc != nullptr ? dc->attributes.backgroundMode : 0;
}

COLORREF SoftEngine::SetTextColor(HDC hdc, COLORREF color) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return CLR_INVALID;
  const COLORREF previous = dc->attributes.textColor;
  dc->attributes.textColor = color;
  return previous;
}

COLORREF SoftEngine::GetTextColor(HDC hdc) {
  DcObject* dc = Dc(hdc);
  return dc != nullptr ? dc->attributes.textColor : CLR_INVALID;
}

UINT SoftEngine::SetTextAlign(HDC hdc, UINT align) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return static_cast<UINT>(GDI_ERROR);
  const UINT previous = dc->attributes.textAlign;
  dc->attributes.textAlign = align;
  return previous;
}

UINT SoftEngine::GetTextAlign(HDC hdc) {
  DcObject* dc = Dc(hdc);
  return dc != nullptr ? dc->attributes.textAlign : static_cast<UINT>(GDI_ERROR);
}

int SoftEngine::SetStretchBltMode(HDC hdc, int mode) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || mode < BLACKONWHITE || mode > HALFTONE) return 0;
  const int previous = dc->attributes.stretchMode;
  dc->attributes.stretchMode = mode;
  return previous;
}

int SoftEngine::GetStretchBltMode(HDC hdc) {
  DcObject* dc = Dc(hdc);
  return dc != nullptr ? dc->attributes.stretchMode : 0;
}

BOOL SoftEngine::MoveToEx(HDC hdc, int x, int y, POINT* previous) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr) return FALSE;
  if (previous != nullptr) *previous = dc->attributes.position;
  dc->attributes.position = POINT{x, y};
  return TRUE;
}

BOOL SoftEngine::GetCurrentPositionEx(HDC hdc, POINT* position) {
  DcObject* dc = Dc(hdc);
  if (dc == nullptr || position == nullptr) return FALSE;
  *position = dc->attributes.position;
  return TRUE;
}

}  // namespace glyphon::win::soft
