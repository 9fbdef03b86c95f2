// Records behind the soft engine's GDI handles.
#pragma once

#include <memory>
#include <vector>

#include "platform/soft/object_table.h"
#include "platform/soft/pixmap.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

struct BitmapObject final : Object {
  BitmapObject() : Object(ObjectKind::Bitmap) {}
  std::shared_ptr<Pixmap> pixmap;
  bool dibSection = false;
  HDC selectedInto = nullptr;  // a bitmap lives in at most one memory DC
};

struct PenObject final : Object {
  PenObject() : Object(ObjectKind::Pen) {}
  int style = PS_SOLID;
  int width = 1;
  COLORREF color = 0;
};

struct BrushObject final : Object {
  BrushObject() : Object(ObjectKind::Brush) {}
  UINT style = BS_SOLID;
  COLORREF color = 0;
  int hatch = 0;
  std::shared_ptr<const Pixmap> pattern;  // BS_PATTERN
};

// Filled in by the text engine on first use of the font.
struct RealizedFont;

struct FontObject final : Object {
  FontObject() : Object(ObjectKind::Font) {}
  LOGFONTA logFont{};
  std::shared_ptr<const RealizedFont> realized;
};

struct PaletteObject final : Object {
  PaletteObject() : Object(ObjectKind::Palette) {}
  std::shared_ptr<const std::vector<PALETTEENTRY>> entries;
};

struct IconObject final : Object {
  IconObject() : Object(ObjectKind::Icon) {}
  bool isIcon = true;
  POINT hotspot{};
  std::shared_ptr<Pixmap> color;  // 32 bits per pixel, may carry alpha in the top byte
  std::shared_ptr<Pixmap> mask;   // 1 bit per pixel AND mask, null for colour-only icons
};

enum class DcKind { Memory, Screen, Window };

// The drawing attributes a DC carries, saved and restored as one by SaveDC/RestoreDC.
struct DcAttributes {
  HBITMAP bitmap = nullptr;
  HPEN pen = nullptr;
  HBRUSH brush = nullptr;
  HFONT font = nullptr;
  HPALETTE palette = nullptr;
  int rop2 = R2_COPYPEN;
  COLORREF backgroundColor = RGB(255, 255, 255);
  int backgroundMode = OPAQUE;
  COLORREF textColor = RGB(0, 0, 0);
  UINT textAlign = TA_LEFT | TA_TOP | TA_NOUPDATECP;
  int stretchMode = BLACKONWHITE;
  POINT position{};
};

struct DcObject final : Object {
  DcObject() : Object(ObjectKind::Dc) {}
  DcKind dcKind = DcKind::Memory;
  HWND window = nullptr;
  std::shared_ptr<Pixmap> surface;  // what drawing reaches: selected bitmap, window or screen
  DcAttributes attributes;
  std::vector<DcAttributes> saved;
};

}  // namespace glyphon::win::soft
