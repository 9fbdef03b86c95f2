// DIB sections and the transfer of pixels between bitmaps and caller memory in DIB layout.
#include <algorithm>
#include <cstring>

#include "platform/soft/gdi/default_color_tables.h"
#include "platform/soft/gdi/dib_format.h"
#include "platform/soft/gdi/pixel_conversion.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

namespace {

std::span<const PALETTEENTRY> PaletteEntriesOf(const SoftEngine& engine, HDC hdc) {
  const DcObject* dc = engine.Dc(hdc);
  const PaletteObject* palette = dc != nullptr ? engine.Palette(dc->attributes.palette) : nullptr;
  if (palette == nullptr || !palette->entries) return {};
  return *palette->entries;
}

// The table of a DIB section's bitmap, reached through the DC it is selected into.
std::vector<RGBQUAD>* SelectedDibColorTable(const SoftEngine& engine, HDC hdc) {
  const DcObject* dc = engine.Dc(hdc);
  BitmapObject* bitmap = dc != nullptr ? engine.Bitmap(dc->attributes.bitmap) : nullptr;
  if (bitmap == nullptr || !bitmap->dibSection) return nullptr;
  return &bitmap->pixmap->ColorTable();
}

// The header GetDIBits fills in when asked only for the bitmap's format.
void DescribeBitmap(BITMAPINFOHEADER& header, const Pixmap& pixels) {
  const DWORD size = header.biSize;
  header = BITMAPINFOHEADER{};
  header.biSize = size;
  header.biWidth = pixels.Width();
  header.biHeight = pixels.Height();
  header.biPlanes = 1;
  header.biBitCount = static_cast<WORD>(pixels.BitsPerPixel());
  header.biCompression = pixels.BitsPerPixel() == 32 ? BI_BITFIELDS : BI_RGB;
  header.biSizeImage = static_cast<DWORD>(
      Pixmap::StrideFor(pixels.Width(), pixels.BitsPerPixel(), Pixmap::RowAlignment::DoubleWord) *
      pixels.Height());
}

// Which scan lines a GetDIBits or SetDIBits call moves: `count` DIB rows from `dibRow` (counted
// from the top) pair with bitmap rows from `bitmapRow`. Scan numbers count from the DIB's bottom
// row whatever its memory order, so a top-down DIB's first scan is its last row.
struct ScanRange {
  int dibRow = 0;
  int bitmapRow = 0;
  int count = 0;
};

ScanRange MapScans(int dibRows, bool topDown, long long start, long long lines, int bitmapRows) {
  long long offset;  // bitmap row = DIB row + offset
  long long first;
  long long last;
  if (topDown) {
    offset = dibRows - lines - start;
    first = 0;
    last = std::min<long long>(lines, dibRows);
  } else {
    offset = -start;
    first = dibRows - std::min<long long>(lines, dibRows - start);
    last = dibRows;
  }
  first = std::max(first, -offset);
  last = std::min(last, bitmapRows - offset);
  if (last <= first) return {};
  return ScanRange{static_cast<int>(first), static_cast<int>(first + offset),
                   static_cast<int>(last - first)};
}

// The colour table GetDIBits hands out with bits of the requested depth.
std::vector<RGBQUAD> OutputColorTable(const Pixmap& source, int bitsPerPixel, UINT usage,
                                      std::span<const PALETTEENTRY> palette) {
  if (usage == DIB_RGB_COLORS && bitsPerPixel == source.BitsPerPixel()) return source.ColorTable();
  std::vector<RGBQUAD> table;
  if (usage == DIB_PAL_COLORS) {
    table.assign(std::size_t{1} << bitsPerPixel, RGBQUAD{0, 0, 0, 0});
    const std::size_t n = std::min(table.size(), palette.size());
    for (std::size_t i = 0; i < n; ++i) {
      table[i] = RGBQUAD{palette[i].peBlue, palette[i].peGreen, palette[i].peRed, 0};
    }
    return table;
  }
  const auto defaults = DefaultColorTable(bitsPerPixel);
  return std::vector<RGBQUAD>(defaults.begin(), defaults.end());
}

void WriteColorTable(BITMAPINFO& info, const std::vector<RGBQUAD>& table, UINT usage) {
  BYTE* out = ColorTableOf(info);
  if (usage == DIB_RGB_COLORS) {
    std::memcpy(out, table.data(), table.size() * sizeof(RGBQUAD));
    return;
  }
  // With palette colours the table is the identity into the DC's palette.
  for (std::size_t i = 0; i < table.size(); ++i) {
    const auto index = static_cast<WORD>(i);
    std::memcpy(out + i * sizeof(WORD), &index, sizeof index);
  }
}

}  // namespace

HBITMAP SoftEngine::CreateDIBSection(HDC hdc, const BITMAPINFO* info, UINT usage, void** bits,
                                     void* section, DWORD) {
  if (bits != nullptr) *bits = nullptr;
  // The soft engine keeps all pixels in its own memory; file mappings have no meaning here.
  if (section != nullptr) return nullptr;
  const std::optional<DibFormat> format = ReadDibFormat(info, usage, PaletteEntriesOf(*this, hdc));
  if (!format) return nullptr;
  auto bitmap = std::make_unique<BitmapObject>();
  bitmap->pixmap = format->NewPixmap(format->height);
  if (!bitmap->pixmap) return nullptr;
  bitmap->dibSection = true;
  std::uint8_t* memory = bitmap->pixmap->Bits();
  HBITMAP handle = AddObject<HBITMAP>(std::move(bitmap));
  if (handle != nullptr && bits != nullptr) *bits = memory;
  return handle;
}

UINT SoftEngine::SetDIBColorTable(HDC hdc, UINT start, UINT count, const RGBQUAD* colors) {
  std::vector<RGBQUAD>* table = SelectedDibColorTable(*this, hdc);
  if (table == nullptr || colors == nullptr || start >= table->size()) return 0;
  const UINT n = std::min<UINT>(count, static_cast<UINT>(table->size()) - start);
  for (UINT i = 0; i < n; ++i) {
    (*table)[start + i] = RGBQUAD{colors[i].rgbBlue, colors[i].rgbGreen, colors[i].rgbRed, 0};
  }
  return n;
}

UINT SoftEngine::GetDIBColorTable(HDC hdc, UINT start, UINT count, RGBQUAD* colors) {
  const std::vector<RGBQUAD>* table = SelectedDibColorTable(*this, hdc);
  if (table == nullptr || colors == nullptr || start >= table->size()) return 0;
  const UINT n = std::min<UINT>(count, static_cast<UINT>(table->size()) - start);
  std::copy_n(table->begin() + start, n, colors);
  return n;
}

int SoftEngine::GetDIBits(HDC hdc, HBITMAP handle, UINT start, UINT lines, void* bits,
                          BITMAPINFO* info, UINT usage) {
  if (info == nullptr || info->bmiHeader.biSize < sizeof(BITMAPINFOHEADER) ||
      usage > DIB_PAL_COLORS) {
    return 0;
  }
  const BitmapObject* bitmap = Bitmap(handle);
  if (Dc(hdc) == nullptr || bitmap == nullptr) return 0;
  const Pixmap& source = *bitmap->pixmap;
  BITMAPINFOHEADER& header = info->bmiHeader;
  const long long dibRows =
      header.biHeight < 0 ? -static_cast<long long>(header.biHeight) : header.biHeight;
  if (lines == 0 || start >= dibRows) bits = nullptr;
  // A top-down request for more scans than there are above start is cut to those.
  const long long scans = header.biHeight < 0 ? std::min<long long>(lines, dibRows - start) : lines;
  if (bits == nullptr && header.biBitCount == 0) {
    DescribeBitmap(header, source);
    return source.Height();
  }
  if (header.biWidth <= 0 || header.biHeight == 0 || dibRows > Pixmap::kMaxSide ||
      (lines != 0 && header.biPlanes == 0) || !IsSupportedDibLayout(*info)) {
    return 0;
  }
  DibFormat format;
  format.width = header.biWidth;
  format.height = static_cast<int>(dibRows);
  format.topDown = header.biHeight < 0;
  format.bitsPerPixel = header.biBitCount;
  const auto palette = PaletteEntriesOf(*this, hdc);
  if (format.bitsPerPixel <= 8) {
    if (usage == DIB_PAL_COLORS && palette.empty()) return 0;
    format.colorTable = OutputColorTable(source, format.bitsPerPixel, usage, palette);
  }

  int result = 1;
  if (bits != nullptr) {
    const ScanRange range = MapScans(format.height, format.topDown, start, scans, source.Height());
    if (range.count == 0) return 0;
    const std::size_t stride = static_cast<std::size_t>(format.Stride());
    auto rows = format.NewPixmap(range.count);
    if (!rows) return 0;
    ConvertBlock(source, 0, range.bitmapRow, *rows, 0, 0, std::min(format.width, source.Width()),
                 range.count, PixelConversion::Nearest(source, *rows));
    // Rows of the requested range that the bitmap does not cover come out zeroed.
    auto* out = static_cast<std::uint8_t*>(bits);
    if (format.topDown) {
      std::memset(out + range.count * stride, 0,
                  static_cast<std::size_t>(scans - range.count) * stride);
    } else {
      const std::size_t pad = static_cast<std::size_t>(format.height - range.dibRow - range.count);
      std::memset(out, 0, pad * stride);
      out += pad * stride;
    }
    std::memcpy(out, rows->Bits(), rows->ByteSize());
    result = range.count;
  }
  if (format.bitsPerPixel <= 8) WriteColorTable(*info, format.colorTable, usage);
  header.biClrUsed = 0;
  header.biSizeImage =
      static_cast<DWORD>(static_cast<std::size_t>(format.Stride()) * format.height);
  return result;
}

int SoftEngine::SetDIBits(HDC hdc, HBITMAP handle, UINT start, UINT lines, const void* bits,
                          const BITMAPINFO* info, UINT usage) {
  const std::optional<DibFormat> format = ReadDibFormat(info, usage, PaletteEntriesOf(*this, hdc));
  BitmapObject* bitmap = Bitmap(handle);
  if (!format || bitmap == nullptr || bits == nullptr || bitmap->stock) return 0;
  if (start >= static_cast<UINT>(format->height)) return 0;
  // A bottom-up DIB never supplies more scans than it has above start; a top-down one is taken
  // at its word, but only its own rows are read.
  const long long scans =
      format->topDown ? lines : std::min<long long>(lines, format->height - start);
  const int available = static_cast<int>(std::min<long long>(scans, format->height));
  if (available <= 0) return 0;
  Pixmap& target = *bitmap->pixmap;
  const ScanRange range = MapScans(format->height, format->topDown, start, scans, target.Height());
  if (range.count > 0) {
    auto rows = format->NewPixmap(available);
    if (!rows) return 0;
    std::memcpy(rows->Bits(), bits, rows->ByteSize());
    // The supplied rows are the DIB's last `available` rows when bottom-up, its first otherwise.
    const int firstSupplied = format->topDown ? 0 : format->height - available;
    ConvertBlock(*rows, 0, range.dibRow - firstSupplied, target, 0, range.bitmapRow,
                 std::min(format->width, target.Width()), range.count,
                 PixelConversion::Nearest(*rows, target));
  }
  return static_cast<int>(scans);
}

}  // namespace glyphon::win::soft
