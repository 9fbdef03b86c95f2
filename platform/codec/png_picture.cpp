#include "platform/codec/png_picture.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/codec/byte_reader.h"
#include "platform/codec/image_limits.h"

namespace glyphon {

namespace {
constexpr std::array<std::uint8_t, 8> kSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

std::uint32_t BigEndian32(std::span<const std::uint8_t> b) {
  return (static_cast<std::uint32_t>(b[0]) << 24) | (static_cast<std::uint32_t>(b[1]) << 16) |
         (static_cast<std::uint32_t>(b[2]) << 8) | b[3];
}
}  // namespace

bool HasPngSignature(std::span<const std::uint8_t> data) {
  return data.size() >= kSignature.size() && std::equal(kSignature.begin(), kSignature.end(), data.begin());
}

Image DecodePngPicture(std::span<const std::uint8_t> data) {
  if (!HasPngSignature(data)) throw DecodeError("not a PNG file");
  // The first chunk must be the image header: length, "IHDR", width, height.
  ByteReader in(data);
  in.Skip(kSignature.size() + 8, "PNG header");
  const std::uint32_t width = BigEndian32(in.Bytes(4, "PNG header"));
  const std::uint32_t height = BigEndian32(in.Bytes(4, "PNG header"));
  CheckPictureSize(width, height);
  std::string message;
  std::optional<Image> image = DecodePng(data, &message);
  if (!image) throw DecodeError(message);
  return std::move(*image);
}

}  // namespace glyphon
