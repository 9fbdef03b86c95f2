#include "content/picture_rewrites.h"

#include <algorithm>
#include <array>
#include <vector>

namespace glyphon {

namespace {

constexpr std::uint32_t kColorBits = 0x00FFFFFFu;

// Channel sums of the picture pixels in a window, and how many there were.
struct WindowSum {
  std::array<std::uint32_t, 3> channel{};  // blue, green, red
  std::uint32_t count = 0;

  void Add(const WindowSum& other) {
    for (std::size_t c = 0; c < channel.size(); ++c) channel[c] += other.channel[c];
    count += other.count;
  }
  void Subtract(const WindowSum& other) {
    for (std::size_t c = 0; c < channel.size(); ++c) channel[c] -= other.channel[c];
    count -= other.count;
  }
};

WindowSum Contribution(std::uint32_t pixel, std::uint32_t mask, bool useMask) {
  WindowSum sum;
  if (useMask && (pixel & kColorBits) == mask) return sum;
  for (std::size_t c = 0; c < sum.channel.size(); ++c) sum.channel[c] = (pixel >> (8 * c)) & 0xFFu;
  sum.count = 1;
  return sum;
}

// Sliding sums along one line of `length` cells at `stride` apart, over a window of radius r.
void SlideWindow(const WindowSum* in, WindowSum* out, int length, int stride, int r) {
  WindowSum running;
  for (int i = 0; i <= std::min(r, length - 1); ++i) running.Add(in[i * stride]);
  for (int i = 0; i < length; ++i) {
    out[i * stride] = running;
    if (i + r + 1 < length) running.Add(in[(i + r + 1) * stride]);
    if (i - r >= 0) running.Subtract(in[(i - r) * stride]);
  }
}

}  // namespace

void MakeSilhouette(std::span<std::uint32_t> pixels, std::uint32_t mask, std::uint32_t ink,
                    bool useMask) {
  for (std::uint32_t& pixel : pixels) {
    if (!useMask || (pixel & kColorBits) != mask) pixel = ink;
  }
}

void BlurPixels(std::span<std::uint32_t> pixels, int width, int height, int radius,
                std::uint32_t mask, std::uint32_t shadow, bool useMask) {
  if (width <= 0 || height <= 0) return;
  const int r = std::clamp(radius, 0, kMaxBlurRadius);
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  std::vector<WindowSum> cells(count);
  std::vector<WindowSum> rows(count);
  for (std::size_t i = 0; i < count; ++i) cells[i] = Contribution(pixels[i], mask, useMask);
  for (int y = 0; y < height; ++y) {
    const std::size_t start = static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    SlideWindow(&cells[start], &rows[start], width, 1, r);
  }
  for (int x = 0; x < width; ++x) SlideWindow(&rows[x], &cells[x], height, width, r);

  const std::uint32_t window = static_cast<std::uint32_t>((2 * r + 1) * (2 * r + 1));
  for (std::size_t i = 0; i < count; ++i) {
    const WindowSum& sum = cells[i];
    if (sum.count == 0) {
      pixels[i] = mask;
      continue;
    }
    // The missing part of the window is filled with the shadow colour; round to nearest.
    std::uint32_t pixel = 0;
    for (std::size_t c = 0; c < sum.channel.size(); ++c) {
      const std::uint32_t shadowLevel = (shadow >> (8 * c)) & 0xFFu;
      const std::uint32_t total = sum.channel[c] + shadowLevel * (window - sum.count);
      pixel |= ((total + window / 2) / window) << (8 * c);
    }
    pixels[i] = pixel;
  }
}

}  // namespace glyphon
