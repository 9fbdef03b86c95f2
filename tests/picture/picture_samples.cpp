#include "tests/picture/picture_samples.h"

#include "platform/codec/byte_writer.h"

namespace glyphon::testing {

namespace {
std::uint32_t HeaderSize(DibHeader header) {
  switch (header) {
    case DibHeader::Core: return 12;
    case DibHeader::Info: return 40;
    default: return 124;
  }
}
}  // namespace

Bytes DibSample::Dib() const {
  ByteWriter out;
  out.U32(HeaderSize(header));
  if (header == DibHeader::Core) {
    out.U16(static_cast<std::uint16_t>(width));
    out.U16(static_cast<std::uint16_t>(height));
    out.U16(1);
    out.U16(static_cast<std::uint16_t>(bitCount));
  } else {
    out.U32(static_cast<std::uint32_t>(width));
    out.U32(static_cast<std::uint32_t>(height));
    out.U16(1);
    out.U16(static_cast<std::uint16_t>(bitCount));
    out.U32(compression);
    out.U32(static_cast<std::uint32_t>(bits.size()));
    out.Zeros(8);
    out.U32(colorsUsed);
    out.U32(0);
    if (header == DibHeader::V5) {
      for (std::uint32_t mask : masks) out.U32(mask);
      out.Zeros(124 - 56);
    } else if (compression == win::BI_BITFIELDS) {
      for (int i = 0; i < 3; ++i) out.U32(masks[i]);
    }
  }
  for (std::uint32_t color : colors) {
    out.U8(static_cast<std::uint8_t>(color));
    out.U8(static_cast<std::uint8_t>(color >> 8));
    out.U8(static_cast<std::uint8_t>(color >> 16));
    if (header != DibHeader::Core) out.U8(0);
  }
  out.Bytes(bits);
  return out.Take();
}

Bytes DibSample::BmpFile() const {
  const Bytes dib = Dib();
  const auto offset = static_cast<std::uint32_t>(14 + dib.size() - bits.size());
  ByteWriter out;
  out.U16(0x4D42);
  out.U32(static_cast<std::uint32_t>(14 + dib.size()));
  out.U32(0);
  out.U32(offset);
  out.Bytes(dib);
  return out.Take();
}

Bytes PackRows(int bitCount, int width, const std::vector<std::uint32_t>& values) {
  const std::size_t stride = (static_cast<std::size_t>(width) * bitCount + 31) / 32 * 4;
  const std::size_t rows = values.size() / static_cast<std::size_t>(width);
  Bytes out(stride * rows, 0);
  for (std::size_t r = 0; r < rows; ++r) {
    std::uint8_t* row = out.data() + r * stride;
    for (int x = 0; x < width; ++x) {
      const std::uint32_t v = values[r * static_cast<std::size_t>(width) + x];
      if (bitCount < 8) {
        const int bit = x * bitCount;
        row[bit / 8] |= static_cast<std::uint8_t>(v << (8 - bitCount - bit % 8));
      } else {
        for (int b = 0; b < bitCount / 8; ++b) row[x * bitCount / 8 + b] = static_cast<std::uint8_t>(v >> (8 * b));
      }
    }
  }
  return out;
}

Bytes PackMask(int width, const std::vector<std::uint8_t>& topDownMask) {
  const std::size_t rows = topDownMask.size() / static_cast<std::size_t>(width);
  std::vector<std::uint32_t> bottomUp;
  for (std::size_t r = rows; r-- > 0;) {
    for (int x = 0; x < width; ++x) bottomUp.push_back(topDownMask[r * width + x]);
  }
  return PackRows(1, width, bottomUp);
}

Bytes IconDib(int width, int height, int bitCount, const std::vector<std::uint32_t>& colors,
              const std::vector<std::uint32_t>& topDownValues, const std::vector<std::uint8_t>& topDownMask) {
  DibSample sample(width, height * 2, bitCount);
  sample.colorsUsed = static_cast<std::uint32_t>(colors.size());
  sample.colors = colors;
  std::vector<std::uint32_t> bottomUp;
  for (int y = height; y-- > 0;) {
    for (int x = 0; x < width; ++x) bottomUp.push_back(topDownValues[static_cast<std::size_t>(y * width + x)]);
  }
  sample.bits = PackRows(bitCount, width, bottomUp);
  const Bytes mask = PackMask(width, topDownMask);
  sample.bits.insert(sample.bits.end(), mask.begin(), mask.end());
  return sample.Dib();
}

Bytes IcoFile(const std::vector<IcoSample>& entries) {
  ByteWriter out;
  out.U16(0);
  out.U16(1);
  out.U16(static_cast<std::uint16_t>(entries.size()));
  auto offset = static_cast<std::uint32_t>(6 + 16 * entries.size());
  for (const IcoSample& e : entries) {
    out.U8(static_cast<std::uint8_t>(e.width));
    out.U8(static_cast<std::uint8_t>(e.height));
    out.U8(0);
    out.U8(0);
    out.U16(1);
    out.U16(static_cast<std::uint16_t>(e.bitCount));
    out.U32(static_cast<std::uint32_t>(e.image.size()));
    out.U32(offset);
    offset += static_cast<std::uint32_t>(e.image.size());
  }
  for (const IcoSample& e : entries) out.Bytes(e.image);
  return out.Take();
}

std::uint32_t PixelAt(const Image& image, int x, int y) {
  const std::uint8_t* p = image.Pixel(x, y);
  return static_cast<std::uint32_t>(p[0]) | (static_cast<std::uint32_t>(p[1]) << 8) |
         (static_cast<std::uint32_t>(p[2]) << 16) | (static_cast<std::uint32_t>(p[3]) << 24);
}

std::uint32_t PaletteColor(unsigned index) {
  // Red climbs, green falls, blue alternates: no two of the first 256 entries are equal.
  return ((index * 37u) & 0xFF) << 16 | ((255u - index) & 0xFF) << 8 | (index % 2 ? 0xC0u : 0x30u);
}

}  // namespace glyphon::testing
