// PNG reading and writing for 32-bit images with straight (non-premultiplied) alpha.
// Readers of outside data: every size is checked before anything is allocated, and bad data
// ends in an error message, never in a crash or an unbounded allocation.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace glyphon {

// Pixels are 4 bytes in the order blue, green, red, alpha (the memory order of a 32-bit DIB),
// rows top-down and packed (4 x width bytes each).
struct Image {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> bgra;

  // The largest side and byte size the decoder accepts.
  static constexpr int kMaxSide = 16384;
  static constexpr std::size_t kMaxBytes = std::size_t{256} << 20;

  // A fully transparent black image, or an empty one when the size is not acceptable.
  static Image Blank(int width, int height);

  bool Empty() const { return width <= 0 || height <= 0; }
  std::uint8_t* Pixel(int x, int y) {
    return bgra.data() + (static_cast<std::size_t>(y) * width + x) * 4;
  }
  const std::uint8_t* Pixel(int x, int y) const {
    return bgra.data() + (static_cast<std::size_t>(y) * width + x) * 4;
  }
  friend bool operator==(const Image&, const Image&) = default;
};

// Decoding: the image, or nothing with a message in *error (when error is not null).
// Every PNG colour type and bit depth is accepted; 16-bit channels are reduced to 8 bits, palette
// and grey images are expanded, and images without alpha come out opaque.
std::optional<Image> DecodePng(std::span<const std::uint8_t> data, std::string* error = nullptr);
std::optional<Image> ReadPngFile(const std::filesystem::path& path, std::string* error = nullptr);

// Encoding as 8-bit RGBA: the PNG bytes, or nothing with a message.
std::optional<std::vector<std::uint8_t>> EncodePng(const Image& image,
                                                   std::string* error = nullptr);
bool WritePngFile(const Image& image, const std::filesystem::path& path,
                  std::string* error = nullptr);

}  // namespace glyphon
