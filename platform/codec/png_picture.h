// PNG data as a picture source: the size limits of the other picture formats are checked on the
// header before the decoder allocates anything.
#pragma once

#include <cstdint>
#include <span>

#include "platform/codec/png_codec.h"

namespace glyphon {

bool HasPngSignature(std::span<const std::uint8_t> data);

// Straight-alpha top-down pixels. Throws DecodeError.
Image DecodePngPicture(std::span<const std::uint8_t> data);

}  // namespace glyphon
