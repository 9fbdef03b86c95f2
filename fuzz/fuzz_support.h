// What every picture fuzzer checks besides the sanitizers: the reader either fails with its
// own error or gives a picture that saves and reloads to the same pixels, and no platform
// object outlives the input.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/codec/ico_codec.h"
#include "platform/codec/picture_error.h"
#include "platform/codec/picture_objects.h"
#include "platform/soft/soft_engine.h"

namespace glyphon::fuzz {

template <class Decode>
void CheckReader(const std::uint8_t* data, std::size_t size, Decode&& decode) {
  const win::soft::LiveCounts before = win::soft::ThreadSoftEngine().LiveObjectCounts();
  try {
    decode(std::span<const std::uint8_t>(data, size));
  } catch (const DecodeError&) {
  }
  if (win::soft::ThreadSoftEngine().LiveObjectCounts() != before) std::abort();
}

// A decoded bitmap must come back unchanged (but for alpha) from its picture.
inline void CheckBitmapRoundTrip(Image image) {
  const StdPicture picture = MakeBitmapPicture(image);
  for (std::size_t i = 3; i < image.bgra.size(); i += 4) image.bgra[i] = 0;
  if (ReadBitmapPixels(picture.Bitmap()) != image) std::abort();
}

inline void CheckIconRoundTrip(const IconImage& icon) {
  const StdPicture picture = MakeIconPicture(icon);
  if (ReadIconPixels(picture.Icon()) != icon) std::abort();
}

}  // namespace glyphon::fuzz
