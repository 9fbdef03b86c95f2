// Colour values: their meaning in a DC, and OLE colours.
#include "platform/soft/gdi/colors.h"

#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {
constexpr DWORD kPaletteIndexFlag = 0x01000000u;
constexpr DWORD kSystemColorFlag = 0x80000000u;
constexpr DWORD kPaletteRgbFlag = 0x02000000u;
}  // namespace

COLORREF ResolveDcColor(const SoftEngine& engine, const DcObject& dc, COLORREF color) {
  if ((color & kPaletteIndexFlag) == 0) return color & 0x00FFFFFFu;
  const PaletteObject* palette = engine.Palette(dc.attributes.palette);
  if (palette == nullptr || !palette->entries || palette->entries->empty()) return 0;
  const auto& entries = *palette->entries;
  const std::size_t index = LOWORD(color) < entries.size() ? LOWORD(color) : 0;
  return RGB(entries[index].peRed, entries[index].peGreen, entries[index].peBlue);
}

HRESULT SoftEngine::OleTranslateColor(OLE_COLOR color, HPALETTE palette, COLORREF* result) {
  COLORREF translated;
  switch (color >> 24) {
    case 0x00:
      // With a palette an RGB value becomes palette-relative, as OLE hands it to GDI.
      translated = palette != nullptr ? (color | kPaletteRgbFlag) : color;
      break;
    case 0x01: {
      // A palette index is checked against the palette when there is one, and kept as it is.
      PALETTEENTRY entry;
      if (palette != nullptr && GetPaletteEntries(palette, LOWORD(color), 1, &entry) == 0) {
        return E_INVALIDARG;
      }
      translated = color;
      break;
    }
    case 0x02: translated = color; break;
    case kSystemColorFlag >> 24: {
      // Only the low byte selects the system colour.
      const int index = static_cast<int>(color & 0xFFu);
      if (index >= SYSTEM_COLOR_COUNT) return E_INVALIDARG;
      translated = GetSysColor(index);
      break;
    }
    default: return E_INVALIDARG;
  }
  if (result != nullptr) *result = translated;
  return S_OK;
}

}  // namespace glyphon::win::soft
