// Builders for the picture files the tests feed to the readers: every header form, depth and
// compression, written field by field so that a test can also write lies into them.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "platform/codec/png_codec.h"
#include "platform/win32_types.h"

namespace glyphon::testing {

using Bytes = std::vector<std::uint8_t>;

enum class DibHeader { Core, Info, V5 };

struct DibSample {
  DibSample(int w, int h, int depth, std::uint32_t compressionType = win::BI_RGB,
            DibHeader headerForm = DibHeader::Info)
      : width(w), height(h), bitCount(depth), compression(compressionType), header(headerForm) {}

  int width = 0;
  int height = 0;  // negative for top-down rows, as stored
  int bitCount = 24;
  std::uint32_t compression = win::BI_RGB;
  DibHeader header = DibHeader::Info;
  std::vector<std::uint32_t> colors;  // 0x00RRGGBB, written as the colour table
  std::uint32_t colorsUsed = 0;       // as written in the header
  std::array<std::uint32_t, 4> masks{};  // red, green, blue, alpha
  Bytes bits;

  // Header, masks, colour table and bits, as in an icon resource.
  Bytes Dib() const;
  // The same behind a BMP file header whose offset points just after the colour table.
  Bytes BmpFile() const;
};

// Raw pixel values (indices or packed colours), row after row in stored order, packed at a
// depth with every row padded to 32 bits.
Bytes PackRows(int bitCount, int width, const std::vector<std::uint32_t>& values);

// Top-down AND mask rows (1 = set), packed as an icon stores them (bottom-up, 32-bit padded).
Bytes PackMask(int width, const std::vector<std::uint8_t>& topDownMask);

// An icon image: colour values (top-down; indices below 16 bits) and the AND mask.
Bytes IconDib(int width, int height, int bitCount, const std::vector<std::uint32_t>& colors,
              const std::vector<std::uint32_t>& topDownValues, const std::vector<std::uint8_t>& topDownMask);

struct IcoSample {
  int width = 0;  // as written in the directory (256 is written as 0)
  int height = 0;
  int bitCount = 0;
  Bytes image;
};
Bytes IcoFile(const std::vector<IcoSample>& entries);

// The pixel at (x, y) as 0xAARRGGBB.
std::uint32_t PixelAt(const Image& image, int x, int y);

// Colours of the sample palette: distinct, easy to recognise in a failure message.
std::uint32_t PaletteColor(unsigned index);

}  // namespace glyphon::testing
