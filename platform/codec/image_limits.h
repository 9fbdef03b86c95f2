// Bounds that every decoder checks before it allocates pixels, so that a few bytes claiming a
// huge picture cost an error, not the host's memory. Compressed formats (RLE, PNG) can expand a
// tiny file to the full size, so the total is capped as well as each side.
#pragma once

#include <cstdint>
#include <string>

#include "platform/codec/picture_error.h"

namespace glyphon {

inline constexpr std::int64_t kMaxPictureSide = 16384;
inline constexpr std::int64_t kMaxPicturePixels = std::int64_t{1} << 24;

inline void CheckPictureSize(std::int64_t width, std::int64_t height) {
  if (width <= 0 || height <= 0) {
    throw DecodeError("invalid size " + std::to_string(width) + "x" + std::to_string(height));
  }
  if (width > kMaxPictureSide || height > kMaxPictureSide || width * height > kMaxPicturePixels) {
    throw DecodeError("picture too large: " + std::to_string(width) + "x" +
                      std::to_string(height));
  }
}

}  // namespace glyphon
