#include "platform/ole/std_font.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace glyphon {

namespace {

// Pixels per inch of the reference device and points per inch.
constexpr std::int64_t kPixelsPerInch = 96;
constexpr std::int64_t kPointsPerInch = 72;

// a * b / c rounded to nearest with halves away from zero, as the platform's multiply-divide.
std::int64_t MulDiv(std::int64_t a, std::int64_t b, std::int64_t c) {
  const std::int64_t product = a * b;
  const std::int64_t half = c / 2;
  return product >= 0 ? (product + half) / c : -((-product + half) / c);
}

}  // namespace

void StdFont::Size(double points) {
  const double scaled = std::nearbyint(points * kSizeScale);  // ties to even by default
  // The currency type's range; a value outside it (or not a number) leaves the size alone.
  constexpr double kLimit = 9.2233720368547e18;
  if (!(std::fabs(scaled) < kLimit)) return;
  size_ = static_cast<std::int64_t>(scaled);
}

win::LOGFONTA StdFont::ToLogFont() const {
  win::LOGFONTA logFont{};
  // In ten-thousandths of a pixel; a size below zero counts as none.
  const std::int64_t size = std::clamp<std::int64_t>(size_, 0, std::int64_t{1} << 40);
  const std::int64_t height = MulDiv(size, kPixelsPerInch, kPointsPerInch);
  const std::int64_t pixels = height / 10000 + (height % 10000 > 5000 ? 1 : 0);
  logFont.lfHeight = static_cast<win::LONG>(
      -std::min<std::int64_t>(pixels, std::numeric_limits<win::LONG>::max()));
  logFont.lfWeight = weight_;
  logFont.lfItalic = italic_ ? 1 : 0;
  logFont.lfUnderline = underline_ ? 1 : 0;
  logFont.lfStrikeOut = strikethrough_ ? 1 : 0;
  logFont.lfCharSet = static_cast<win::BYTE>(charset_);
  logFont.lfOutPrecision = win::OUT_DEFAULT_PRECIS;
  logFont.lfClipPrecision = win::CLIP_DEFAULT_PRECIS;
  logFont.lfQuality = win::DEFAULT_QUALITY;
  logFont.lfPitchAndFamily = win::DEFAULT_PITCH;
  std::strncpy(logFont.lfFaceName, name_.c_str(), win::LF_FACESIZE - 1);
  return logFont;
}

win::HFONT StdFont::CreateHandle() const {
  const win::LOGFONTA logFont = ToLogFont();
  return win::CreateFontIndirectA(&logFont);
}

}  // namespace glyphon
