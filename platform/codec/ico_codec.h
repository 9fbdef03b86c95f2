// ICO (and CUR) files: a directory of images of several sizes and depths, each a device-
// independent bitmap with an AND mask, or a PNG.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/codec/png_codec.h"

namespace glyphon {

// One icon image: colours and the AND mask, both top-down.
struct IconImage {
  // Alpha as stored: a 32-bit or PNG image keeps its own, every other depth has 0 (no alpha, the
  // mask decides what shows).
  Image color;
  // One byte per pixel, 1 where the AND mask is set (the background shows or is inverted).
  std::vector<std::uint8_t> mask;

  friend bool operator==(const IconImage&, const IconImage&) = default;
};

// The image wanted from a file with several: the size it will be drawn at and the display depth.
struct IconRequest {
  int width = 32;
  int height = 32;
  int bitsPerPixel = 32;
};

struct IconDirectoryEntry {
  int width = 0;
  int height = 0;
  int bitCount = 0;  // 0 when neither the directory nor the image tells
  std::uint32_t size = 0;
  std::uint32_t offset = 0;
};

// The directory of an ICO or CUR file. Throws DecodeError.
std::vector<IconDirectoryEntry> ReadIconDirectory(std::span<const std::uint8_t> data);

// The entry the system would pick: the nearest size (sum of the width and height differences),
// then the depth nearest the display's, then the first in the file.
std::size_t ChooseIconEntry(const std::vector<IconDirectoryEntry>& entries, const IconRequest& request);

// Decodes one entry. Throws DecodeError.
IconImage DecodeIconEntry(std::span<const std::uint8_t> data, const IconDirectoryEntry& entry);

// The chosen image of an ICO or CUR file. Throws DecodeError.
IconImage DecodeIco(std::span<const std::uint8_t> data, const IconRequest& request = {});

// An ICO file with one 32-bit image (colours, alpha as stored, AND mask), so that decoding it
// gives the same IconImage back.
std::vector<std::uint8_t> EncodeIco(const IconImage& icon);

}  // namespace glyphon
