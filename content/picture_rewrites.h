// The per-pixel rewrites of the silhouette and blurred pictures, on 32-bit pixels 0x00RRGGBB in
// rows of `width`, top-down (as GetDIBits gives them for a top-down 32-bit request).
#pragma once

#include <cstdint>
#include <span>

namespace glyphon {

// Pixel values of COLORREFs (0x00BBGGRR) and back.
constexpr std::uint32_t PixelOf(std::uint32_t colorref) {
  return ((colorref & 0xFFu) << 16) | (colorref & 0xFF00u) | ((colorref >> 16) & 0xFFu);
}

// Every pixel other than mask (every pixel at all without useMask) becomes ink.
void MakeSilhouette(std::span<std::uint32_t> pixels, std::uint32_t mask, std::uint32_t ink,
                    bool useMask);

inline constexpr int kMaxBlurRadius = 32;

// The box-filter blur of PaintEffects::PaintBlurredStandardPic (see there) with a square window
// of side 2 x radius + 1; the radius is clamped to 0..kMaxBlurRadius. Pixels outside the picture
// count as missing, like mask pixels.
void BlurPixels(std::span<std::uint32_t> pixels, int width, int height, int radius,
                std::uint32_t mask, std::uint32_t shadow, bool useMask);

}  // namespace glyphon
