// Logical palettes. On the engine's true-colour devices they change no pixel: they exist so that
// code written for palette devices runs unchanged, and for the lookups GDI offers.
#include <algorithm>
#include <limits>

#include "platform/soft/gdi/default_color_tables.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {

using Entries = std::vector<PALETTEENTRY>;

// The halftone palette of a true-colour screen, made once and shared by every halftone palette.
const std::shared_ptr<const Entries>& HalftoneEntries() {
  static const std::shared_ptr<const Entries> entries = [] {
    auto table = std::make_shared<Entries>();
    for (const RGBQUAD& q : DefaultColorTable(8)) {
      table->push_back(PALETTEENTRY{q.rgbRed, q.rgbGreen, q.rgbBlue, 0});
    }
    return table;
  }();
  return entries;
}

}  // namespace

HPALETTE SoftEngine::CreateHalftonePalette(HDC) {
  auto palette = std::make_unique<PaletteObject>();
  palette->entries = HalftoneEntries();
  return AddObject<HPALETTE>(std::move(palette));
}

HPALETTE SoftEngine::CreatePalette(const LOGPALETTE* logPalette) {
  if (logPalette == nullptr) return nullptr;
  auto palette = std::make_unique<PaletteObject>();
  palette->entries = std::make_shared<const Entries>(
      logPalette->palPalEntry, logPalette->palPalEntry + logPalette->palNumEntries);
  return AddObject<HPALETTE>(std::move(palette));
}

UINT SoftEngine::RealizePalette(HDC) {
  // A true-colour device maps no palette entries.
  return 0;
}

UINT SoftEngine::GetPaletteEntries(HPALETTE handle, UINT start, UINT count, PALETTEENTRY* entries) {
  const PaletteObject* palette = Palette(handle);
  if (palette == nullptr || !palette->entries) return 0;
  const Entries& all = *palette->entries;
  const auto size = static_cast<UINT>(all.size());
  if (count == 0) return size;  // asks for the palette's size
  if (start >= size) return 0;
  count = std::min(count, size - start);
  if (entries != nullptr) std::copy_n(all.begin() + start, count, entries);
  return count;
}

UINT SoftEngine::GetNearestPaletteIndex(HPALETTE handle, COLORREF color) {
  const PaletteObject* palette = Palette(handle);
  if (palette == nullptr || !palette->entries) return 0;
  UINT best = 0;
  int bestDistance = std::numeric_limits<int>::max();
  const Entries& all = *palette->entries;
  for (std::size_t i = 0; i < all.size() && bestDistance != 0; ++i) {
    const int dr = all[i].peRed - GetRValue(color);
    const int dg = all[i].peGreen - GetGValue(color);
    const int db = all[i].peBlue - GetBValue(color);
    const int distance = dr * dr + dg * dg + db * db;
    if (distance < bestDistance) {
      bestDistance = distance;
      best = static_cast<UINT>(i);
    }
  }
  return best;
}

}  // namespace glyphon::win::soft
