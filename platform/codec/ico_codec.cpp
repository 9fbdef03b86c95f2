#include "platform/codec/ico_codec.h"

#include <cstdlib>
#include <limits>

#include "platform/codec/byte_writer.h"
#include "platform/codec/dib_decoder.h"
#include "platform/codec/png_picture.h"
#include "platform/win32_types.h"

namespace glyphon {

namespace {

constexpr std::uint16_t kIconType = 1;
constexpr std::uint16_t kCursorType = 2;
constexpr std::uint32_t kDirectoryHeaderSize = 6;
constexpr std::uint32_t kDirectoryEntrySize = 16;
constexpr std::uint32_t kInfoHeaderSize = 40;

bool InsideData(std::span<const std::uint8_t> data, std::uint32_t offset, std::uint32_t size) {
  return offset <= data.size() && size <= data.size() - offset;
}

// The depth an image declares itself, for directories that leave it out (and for cursors,
// whose directory holds the hot spot there instead).
int DeclaredBitCount(std::span<const std::uint8_t> data, std::uint32_t offset, std::uint32_t size) {
  if (!InsideData(data, offset, size)) return 0;
  const std::span<const std::uint8_t> image = data.subspan(offset, size);
  if (HasPngSignature(image)) return 32;
  constexpr std::size_t kBitCountOffset = 14;
  if (image.size() < kBitCountOffset + 2) return 0;
  return image[kBitCountOffset] | (image[kBitCountOffset + 1] << 8);
}

std::vector<std::uint8_t> MaskFromAlpha(const Image& image) {
  std::vector<std::uint8_t> mask(static_cast<std::size_t>(image.width) * image.height);
  for (std::size_t i = 0; i < mask.size(); ++i) mask[i] = image.bgra[i * 4 + 3] == 0 ? 1 : 0;
  return mask;
}

IconImage DecodeDibIcon(std::span<const std::uint8_t> data) {
  ByteReader in(data);
  DibLayout format = ReadDibLayout(in);
  if (format.compression != win::BI_RGB && format.compression != win::BI_BITFIELDS) {
    throw DecodeError("icon images cannot be compressed");
  }
  // The stored height covers the colour bitmap and the mask below it.
  if (format.topDown || format.height % 2 != 0) {
    throw DecodeError("icon image height does not hold colours and a mask");
  }
  format.height /= 2;
  const std::span<const std::uint8_t> bits = data.subspan(in.Position());
  IconImage icon;
  icon.color = DecodeDibPixels(format, bits);

  const std::uint64_t colorBytes = DibStride(format.width, format.bitCount) * format.height;
  const std::uint64_t maskStride = DibStride(format.width, 1);
  if ((bits.size() - colorBytes) / maskStride < static_cast<std::uint64_t>(format.height)) {
    throw DecodeError("icon mask ends early");
  }
  icon.mask.resize(static_cast<std::size_t>(format.width) * format.height);
  for (int stored = 0; stored < format.height; ++stored) {
    const std::uint8_t* row = bits.data() + colorBytes + stored * maskStride;
    std::uint8_t* out = icon.mask.data() + static_cast<std::size_t>(format.height - 1 - stored) * format.width;
    for (int x = 0; x < format.width; ++x) out[x] = (row[x / 8] >> (7 - x % 8)) & 1;
  }
  return icon;
}

}  // namespace

std::vector<IconDirectoryEntry> ReadIconDirectory(std::span<const std::uint8_t> data) {
  ByteReader in(data);
  const std::uint16_t reserved = in.U16("icon directory");
  const std::uint16_t type = in.U16("icon directory");
  if (reserved != 0 || (type != kIconType && type != kCursorType)) throw DecodeError("not an ICO file");
  const std::uint16_t count = in.U16("icon directory");
  if (count == 0) throw DecodeError("icon file holds no images");
  if (in.Remaining() / kDirectoryEntrySize < count) throw DecodeError("icon directory ends early");
  std::vector<IconDirectoryEntry> entries(count);
  for (IconDirectoryEntry& entry : entries) {
    const std::uint8_t width = in.U8("icon directory");
    const std::uint8_t height = in.U8("icon directory");
    in.Skip(4, "icon directory");  // colour count, reserved, planes
    const std::uint16_t bitCount = in.U16("icon directory");
    entry.size = in.U32("icon directory");
    entry.offset = in.U32("icon directory");
    entry.width = width == 0 ? 256 : width;
    entry.height = height == 0 ? 256 : height;
    entry.bitCount = type == kIconType && bitCount != 0 ? bitCount
                                                        : DeclaredBitCount(data, entry.offset, entry.size);
  }
  return entries;
}

std::size_t ChooseIconEntry(const std::vector<IconDirectoryEntry>& entries, const IconRequest& request) {
  std::size_t best = 0;
  int bestSizeDiff = std::numeric_limits<int>::max();
  int bestDepthDiff = std::numeric_limits<int>::max();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const IconDirectoryEntry& e = entries[i];
    const int sizeDiff = std::abs(e.width - request.width) + std::abs(e.height - request.height);
    const int depthDiff = std::abs(e.bitCount - request.bitsPerPixel);
    if (sizeDiff < bestSizeDiff || (sizeDiff == bestSizeDiff && depthDiff < bestDepthDiff)) {
      best = i;
      bestSizeDiff = sizeDiff;
      bestDepthDiff = depthDiff;
    }
  }
  return best;
}

IconImage DecodeIconEntry(std::span<const std::uint8_t> data, const IconDirectoryEntry& entry) {
  if (!InsideData(data, entry.offset, entry.size)) throw DecodeError("icon image lies beyond the data");
  const std::span<const std::uint8_t> image = data.subspan(entry.offset, entry.size);
  if (!HasPngSignature(image)) return DecodeDibIcon(image);
  IconImage icon;
  icon.color = DecodePngPicture(image);
  icon.mask = MaskFromAlpha(icon.color);
  return icon;
}

IconImage DecodeIco(std::span<const std::uint8_t> data, const IconRequest& request) {
  const std::vector<IconDirectoryEntry> entries = ReadIconDirectory(data);
  return DecodeIconEntry(data, entries[ChooseIconEntry(entries, request)]);
}

std::vector<std::uint8_t> EncodeIco(const IconImage& icon) {
  const int width = icon.color.width;
  const int height = icon.color.height;
  const auto maskStride = static_cast<std::uint32_t>(DibStride(width, 1));
  const std::uint32_t bitsSize = (static_cast<std::uint32_t>(width) * 4 + maskStride) *
                                 static_cast<std::uint32_t>(height);
  // Sides of 256 and more are written as 0; readers take the size from the image header.
  const auto directorySide = [](int side) { return static_cast<std::uint8_t>(side >= 256 ? 0 : side); };

  ByteWriter out;
  out.U16(0);
  out.U16(kIconType);
  out.U16(1);
  out.U8(directorySide(width));
  out.U8(directorySide(height));
  out.U8(0);   // colour count
  out.U8(0);   // reserved
  out.U16(1);  // planes
  out.U16(32);
  out.U32(kInfoHeaderSize + bitsSize);
  out.U32(kDirectoryHeaderSize + kDirectoryEntrySize);
  WriteInfoHeader(out, width, height * 2, 32, bitsSize);
  for (int y = height - 1; y >= 0; --y) {
    out.Bytes({icon.color.Pixel(0, y), static_cast<std::size_t>(width) * 4});
  }
  std::vector<std::uint8_t> row(maskStride);
  for (int y = height - 1; y >= 0; --y) {
    std::fill(row.begin(), row.end(), 0);
    const std::uint8_t* mask = icon.mask.data() + static_cast<std::size_t>(y) * width;
    for (int x = 0; x < width; ++x) {
      if (mask[x] != 0) row[x / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
    }
    out.Bytes(row);
  }
  return out.Take();
}

}  // namespace glyphon
