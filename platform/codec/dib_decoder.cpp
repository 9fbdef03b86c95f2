#include "platform/codec/dib_decoder.h"

#include <bit>
#include <string>

#include "platform/codec/image_limits.h"
#include "platform/win32_types.h"

namespace glyphon {

namespace {

using win::BI_BITFIELDS;
using win::BI_RGB;
using win::BI_RLE4;
using win::BI_RLE8;

constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kMasksHeaderSize = 52;       // info header with colour masks
constexpr std::uint32_t kAlphaMaskHeaderSize = 56;   // ... and an alpha mask
constexpr std::uint32_t kV4HeaderSize = 108;
constexpr std::uint32_t kV5HeaderSize = 124;

bool ValidDepth(int bitCount, std::uint32_t compression, bool core) {
  if (core) return compression == BI_RGB && (bitCount == 1 || bitCount == 4 || bitCount == 8 || bitCount == 24);
  switch (compression) {
    case BI_RGB:
      return bitCount == 1 || bitCount == 4 || bitCount == 8 || bitCount == 16 || bitCount == 24 ||
             bitCount == 32;
    case BI_RLE8: return bitCount == 8;
    case BI_RLE4: return bitCount == 4;
    case BI_BITFIELDS: return bitCount == 16 || bitCount == 32;
    default: return false;
  }
}

void ReadColorTable(ByteReader& in, DibLayout& format, std::uint32_t colorsUsed, bool core) {
  if (format.bitCount > 8) {
    // Deeper formats may carry an optional table for palette devices; it is not used.
    in.Skip(std::uint64_t{colorsUsed} * 4, "colour table");
    return;
  }
  const std::uint32_t capacity = 1u << format.bitCount;
  const std::uint32_t count = core || colorsUsed == 0 ? capacity : colorsUsed;
  if (count > capacity) {
    throw DecodeError("colour table of " + std::to_string(count) + " entries for " +
                      std::to_string(format.bitCount) + " bits per pixel");
  }
  const std::span<const std::uint8_t> table = in.Bytes(std::uint64_t{count} * (core ? 3 : 4), "colour table");
  format.colors.resize(count);
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint8_t* entry = table.data() + i * (core ? 3 : 4);
    format.colors[i] = {entry[0], entry[1], entry[2], 0};
  }
}

// One colour channel described by a mask, widened to 8 bits by repeating its top bits, as GDI
// widens 5-bit channels (0x1F becomes 0xFF, not 0xF8).
class Channel {
 public:
  explicit Channel(std::uint32_t mask)
      : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)),
        bits_(mask == 0 ? 0 : std::bit_width(mask) - shift_) {}

  std::uint8_t Extract(std::uint32_t pixel) const {
    if (bits_ == 0) return 0;
    const std::uint32_t value = (pixel & mask_) >> shift_;
    if (bits_ >= 8) return static_cast<std::uint8_t>(value >> (bits_ - 8));
    std::uint32_t wide = value << (8 - bits_);
    for (int filled = bits_; filled < 8; filled *= 2) wide |= wide >> filled;
    return static_cast<std::uint8_t>(wide);
  }

 private:
  std::uint32_t mask_;
  int shift_;
  int bits_;
};

struct MaskedChannels {
  explicit MaskedChannels(const DibLayout& f)
      : red(f.redMask), green(f.greenMask), blue(f.blueMask), alpha(f.alphaMask) {}
  void Store(std::uint32_t pixel, std::uint8_t* out) const {
    out[0] = blue.Extract(pixel);
    out[1] = green.Extract(pixel);
    out[2] = red.Extract(pixel);
    out[3] = alpha.Extract(pixel);
  }
  Channel red, green, blue, alpha;
};

void StoreIndex(const DibLayout& format, unsigned index, std::uint8_t* out) {
  // Indices beyond the table read as black, as GDI reads them.
  if (index >= format.colors.size()) return;
  const auto& color = format.colors[index];
  out[0] = color[0];
  out[1] = color[1];
  out[2] = color[2];
}

void DecodeRow(const DibLayout& format, const MaskedChannels& masks, const std::uint8_t* row,
               std::uint8_t* out) {
  for (int x = 0; x < format.width; ++x, out += 4) {
    switch (format.bitCount) {
      case 1: StoreIndex(format, (row[x / 8] >> (7 - x % 8)) & 1u, out); break;
      case 4: StoreIndex(format, (row[x / 2] >> (x % 2 == 0 ? 4 : 0)) & 0xFu, out); break;
      case 8: StoreIndex(format, row[x], out); break;
      case 16: masks.Store(static_cast<std::uint32_t>(row[2 * x] | (row[2 * x + 1] << 8)), out); break;
      case 24:
        out[0] = row[3 * x];
        out[1] = row[3 * x + 1];
        out[2] = row[3 * x + 2];
        break;
      default: {
        const std::uint8_t* p = row + 4 * x;
        masks.Store(static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
                        (static_cast<std::uint32_t>(p[2]) << 16) |
                        (static_cast<std::uint32_t>(p[3]) << 24),
                    out);
      }
    }
  }
}

void DecodeUncompressed(const DibLayout& format, std::span<const std::uint8_t> bits, Image& image) {
  const std::uint64_t stride = DibStride(format.width, format.bitCount);
  if (bits.size() / stride < static_cast<std::uint64_t>(format.height)) {
    throw DecodeError("pixel data ends early");
  }
  const MaskedChannels masks(format);
  for (int stored = 0; stored < format.height; ++stored) {
    const int y = format.topDown ? stored : format.height - 1 - stored;
    DecodeRow(format, masks, bits.data() + stored * stride, image.Pixel(0, y));
  }
}

// RLE streams: runs of one index, absolute runs padded to 16 bits, and escapes for end of line,
// end of bitmap and a jump ahead. Lines count from the bottom, as the stream stores them.
void DecodeRle(const DibLayout& format, std::span<const std::uint8_t> bits, Image& image) {
  const bool fourBits = format.compression == BI_RLE4;
  ByteReader in(bits);
  int x = 0;
  int line = 0;
  const auto checkRun = [&](int count) {
    if (line >= format.height || count > format.width - x) {
      throw DecodeError("RLE run passes the edge of the bitmap");
    }
  };
  const auto put = [&](unsigned index) {
    StoreIndex(format, index, image.Pixel(x, format.height - 1 - line));
    ++x;
  };
  const auto nibble = [](std::uint8_t byte, int i) { return i % 2 == 0 ? byte >> 4 : byte & 0xFu; };
  for (;;) {
    const std::uint8_t count = in.U8("RLE data");
    const std::uint8_t value = in.U8("RLE data");
    if (count > 0) {
      checkRun(count);
      for (int i = 0; i < count; ++i) put(fourBits ? nibble(value, i) : value);
      continue;
    }
    switch (value) {
      case 0:  // end of line
        x = 0;
        if (++line > format.height) throw DecodeError("RLE data runs past the last row");
        break;
      case 1: return;  // end of bitmap
      case 2: {        // delta
        x += in.U8("RLE delta");
        line += in.U8("RLE delta");
        if (x > format.width || line > format.height) {
          throw DecodeError("RLE delta moves outside the bitmap");
        }
        break;
      }
      default: {  // absolute run
        checkRun(value);
        const std::size_t bytes = fourBits ? (value + 1u) / 2 : value;
        const std::span<const std::uint8_t> run = in.Bytes(bytes, "RLE data");
        for (int i = 0; i < value; ++i) put(fourBits ? nibble(run[i / 2], i) : run[i]);
        if (bytes % 2 != 0) in.Skip(1, "RLE data");
      }
    }
  }
}

}  // namespace

std::uint64_t DibStride(int width, int bitCount) {
  return (static_cast<std::uint64_t>(width) * bitCount + 31) / 32 * 4;
}

DibLayout ReadDibLayout(ByteReader& in) {
  const std::size_t start = in.Position();
  const std::uint32_t headerSize = in.U32("bitmap header");
  const bool core = headerSize == kCoreHeaderSize;
  if (!core && headerSize != kInfoHeaderSize && headerSize != kMasksHeaderSize &&
      headerSize != kAlphaMaskHeaderSize && headerSize != kV4HeaderSize &&
      headerSize != kV5HeaderSize) {
    throw DecodeError("unsupported bitmap header size " + std::to_string(headerSize));
  }
  DibLayout format;
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::uint32_t colorsUsed = 0;
  if (core) {
    width = in.U16("bitmap header");
    height = in.U16("bitmap header");
    in.U16("bitmap header");  // planes
    format.bitCount = in.U16("bitmap header");
  } else {
    width = in.I32("bitmap header");
    height = in.I32("bitmap header");
    in.U16("bitmap header");  // planes
    format.bitCount = in.U16("bitmap header");
    format.compression = in.U32("bitmap header");
    format.sizeImage = in.U32("bitmap header");
    in.Skip(8, "bitmap header");  // resolution
    colorsUsed = in.U32("bitmap header");
    in.U32("bitmap header");  // important colours
    if (headerSize >= kMasksHeaderSize) {
      format.redMask = in.U32("bitmap header");
      format.greenMask = in.U32("bitmap header");
      format.blueMask = in.U32("bitmap header");
    }
    if (headerSize >= kAlphaMaskHeaderSize) format.alphaMask = in.U32("bitmap header");
    in.Seek(start + headerSize, "bitmap header");
  }
  if (!ValidDepth(format.bitCount, format.compression, core)) {
    throw DecodeError("unsupported bitmap format: " + std::to_string(format.bitCount) +
                      " bits per pixel, compression " + std::to_string(format.compression));
  }
  format.topDown = height < 0;
  if (format.topDown) height = -height;
  CheckPictureSize(width, height);
  format.width = static_cast<int>(width);
  format.height = static_cast<int>(height);
  if (format.topDown && format.compression != BI_RGB && format.compression != BI_BITFIELDS) {
    throw DecodeError("compressed bitmaps cannot be top-down");
  }

  if (format.compression == BI_BITFIELDS) {
    if (headerSize == kInfoHeaderSize) {
      format.redMask = in.U32("colour masks");
      format.greenMask = in.U32("colour masks");
      format.blueMask = in.U32("colour masks");
    }
  } else if (format.bitCount == 16) {
    format.redMask = 0x7C00;
    format.greenMask = 0x03E0;
    format.blueMask = 0x001F;
    format.alphaMask = 0;
  } else if (format.bitCount == 32) {
    format.redMask = 0x00FF0000;
    format.greenMask = 0x0000FF00;
    format.blueMask = 0x000000FF;
    format.alphaMask = 0xFF000000;
  }
  ReadColorTable(in, format, colorsUsed, core);
  return format;
}

Image DecodeDibPixels(const DibLayout& format, std::span<const std::uint8_t> bits) {
  CheckPictureSize(format.width, format.height);
  Image image;
  image.width = format.width;
  image.height = format.height;
  image.bgra.assign(static_cast<std::size_t>(format.width) * format.height * 4, 0);
  if (format.compression == BI_RLE4 || format.compression == BI_RLE8) {
    DecodeRle(format, bits, image);
  } else {
    DecodeUncompressed(format, bits, image);
  }
  return image;
}

}  // namespace glyphon
