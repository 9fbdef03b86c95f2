// Pens and brushes, and the system colours they are often made of.
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

// GDI accepts hatch indices past the six real ones up to this bound and paints them solid.
constexpr int kHatchApiMax = 12;

HPEN SoftEngine::CreatePen(int style, int width, COLORREF color) {
  if (style < PS_SOLID || style > PS_INSIDEFRAME) return nullptr;
  auto pen = objects_.New<PenObject>(ObjectKind::Pen);
  pen->style = style;
  pen->width = width < 0 ? -width : width;
  pen->color = color;
  return AddObject<HPEN>(std::move(pen));
}

HBRUSH SoftEngine::CreateSolidBrush(COLORREF color) {
  const LOGBRUSH logBrush{BS_SOLID, color, 0};
  return CreateBrushIndirect(&logBrush);
}

HBRUSH SoftEngine::CreateHatchBrush(int hatch, COLORREF color) {
  const LOGBRUSH logBrush{BS_HATCHED, color, static_cast<std::uintptr_t>(hatch)};
  return CreateBrushIndirect(&logBrush);
}

HBRUSH SoftEngine::CreateBrushIndirect(const LOGBRUSH* logBrush) {
  if (logBrush == nullptr) return nullptr;
  auto brush = objects_.New<BrushObject>(ObjectKind::Brush);
  brush->style = logBrush->lbStyle;
  brush->color = logBrush->lbColor;
  switch (logBrush->lbStyle) {
    case BS_SOLID:
    case BS_NULL: break;
    case BS_HATCHED: {
      const auto hatch = static_cast<std::intptr_t>(logBrush->lbHatch);
      if (hatch < 0 || hatch >= kHatchApiMax) return nullptr;
      if (hatch > HS_DIAGCROSS) {
        brush->style = BS_SOLID;
      } else {
        brush->hatch = static_cast<int>(hatch);
      }
      break;
    }
    case BS_PATTERN: {
      BitmapObject* bitmap = Bitmap(reinterpret_cast<HBITMAP>(logBrush->lbHatch));
      if (bitmap == nullptr) return nullptr;
      brush->pattern = bitmap->pixmap;
      brush->color = 0;
      break;
    }
    default: return nullptr;
  }
  return AddObject<HBRUSH>(std::move(brush));
}

HBRUSH SoftEngine::CreatePatternBrush(HBITMAP bitmap) {
  const LOGBRUSH logBrush{BS_PATTERN, 0, reinterpret_cast<std::uintptr_t>(bitmap)};
  return CreateBrushIndirect(&logBrush);
}

HBRUSH SoftEngine::GetSysColorBrush(int index) {
  if (index < 0 || index >= SYSTEM_COLOR_COUNT) return nullptr;
  return systemColorBrushes_[static_cast<std::size_t>(index)];
}

DWORD SoftEngine::GetSysColor(int index) {
  if (index < 0 || index >= SYSTEM_COLOR_COUNT) return 0;
  return systemColors_[static_cast<std::size_t>(index)];
}

}  // namespace glyphon::win::soft
