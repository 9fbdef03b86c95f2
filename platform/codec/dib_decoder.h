// Device-independent bitmaps as stored in BMP files and icon resources: the header (core or info
// header, with or without colour masks), the colour table, and the pixels in every depth and
// compression GDI accepts for them (1, 4, 8, 16, 24, 32 bits; RGB, RLE4, RLE8, bit fields).
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "platform/codec/byte_reader.h"
#include "platform/codec/png_codec.h"

namespace glyphon {

struct DibLayout {
  int width = 0;
  int height = 0;  // always positive; topDown tells the row order
  bool topDown = false;
  int bitCount = 0;
  std::uint32_t compression = 0;
  std::uint32_t sizeImage = 0;
  // Channel masks for 16 and 32 bits per pixel; alpha is 0 when the format has none.
  std::uint32_t redMask = 0, greenMask = 0, blueMask = 0, alphaMask = 0;
  // Colour table, one B, G, R, 0 quadruple per entry; empty above 8 bits per pixel.
  std::vector<std::array<std::uint8_t, 4>> colors;
};

// Reads the header, any masks that follow it and the colour table; leaves the reader just after
// them. Checks the header's values (depth, compression, size limits), not the pixel data.
DibLayout ReadDibLayout(ByteReader& in);

// Bytes one row of uncompressed pixels takes (rows are padded to 32 bits).
std::uint64_t DibStride(int width, int bitCount);

// Decodes the pixels into a top-down image. Colours come from the table or the masks; the alpha
// byte is the one a 32-bit format stores (its fourth byte, or the alpha mask's bits) and 0 for
// every other format. Pixels an RLE stream skips stay black with alpha 0.
Image DecodeDibPixels(const DibLayout& format, std::span<const std::uint8_t> bits);

}  // namespace glyphon
