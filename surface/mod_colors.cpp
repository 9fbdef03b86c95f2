#include "surface/mod_colors.h"

#include <cmath>

#include "platform/win32.h"
#include "surface/rounding.h"

namespace glyphon::modColors {

namespace {

constexpr float kScale = 240.0f;

// One channel of a colour as a 0-1 fraction.
float Channel(std::int32_t value) { return static_cast<float>(value & 255) / 255.0f; }

// floor(255 x) as a colour component.
int ToComponent(float fraction) { return static_cast<int>(std::floor(255.0f * fraction)); }

// Luminance and saturation are chosen as 16-bit integers, halves to even.
float RoundToWhole(float value) { return static_cast<float>(RoundHalfEven(value)); }

}  // namespace

bool IsSystemColor(win::OLE_COLOR color) { return (color & 0xFF000000u) == 0x80000000u; }

void SplitRGB(std::int32_t color, std::int32_t& red, std::int32_t& green, std::int32_t& blue) {
  red = color % 256;
  green = (color / 256) % 256;
  blue = (color / 65536) % 256;
}

float MaxSingle(float a, float b) { return a >= b ? a : b; }

float MinSingle(float a, float b) { return a >= b ? b : a; }

void RGBToHLS(std::int32_t rgb, float& h, float& s, float& l) {
  const float r = Channel(rgb);
  const float g = Channel(rgb / 256);
  const float b = Channel(rgb / 65536);
  const float max = MaxSingle(r, MaxSingle(g, b));
  const float min = MinSingle(r, MinSingle(g, b));
  l = (max + min) / 2.0f;
  if (max == min) {
    h = 0.0f;
    s = 0.0f;
    l = l * kScale;
    return;
  }
  const float delta = max - min;
  s = l >= 0.5f ? delta / (2.0f - max - min) : delta / (max + min);
  if (!(s >= 0.0f)) s = 0.0f;
  if (r == max) {
    h = (g - b) / delta;
  } else if (g == max) {
    h = 2.0f + (b - r) / delta;
  } else {
    h = 4.0f + (r - g) / delta;
  }
  h = h * 40.0f;
  if (h < 0.0f) h = h + kScale;
  s = s * kScale;
  l = l * kScale;
}

float HueToRGB(float& p, float& q, float& t) {
  if (t < 0.0f) t = t + 1.0f;
  if (t > 1.0f) t = t - 1.0f;
  if (6.0f * t < 1.0f) return p + (q - p) * 6.0f * t;
  if (2.0f * t < 1.0f) return q;
  if (3.0f * t >= 2.0f) return p;
  return p + (q - p) * (4.0f - 6.0f * t);
}

win::COLORREF HLSToRGB(float h, float s, float l) {
  const float hue = h / kScale;
  const float saturation = s / kScale;
  float luminance = l / kScale;
  if (saturation == 0.0f) {
    const int grey = ToComponent(luminance);
    return win::RGB(grey, grey, grey);
  }
  float q = luminance < 0.5f ? luminance * (1.0f + saturation)
                             : luminance + saturation - luminance * saturation;
  float p = 2.0f * luminance - q;
  float redT = hue + 1.0f / 3.0f;
  float greenT = hue;
  float blueT = hue - 1.0f / 3.0f;
  const int red = ToComponent(HueToRGB(p, q, redT));
  const int green = ToComponent(HueToRGB(p, q, greenT));
  const int blue = ToComponent(HueToRGB(p, q, blueT));
  return win::RGB(red, green, blue);
}

void DeriveButtonColors(win::OLE_COLOR color, win::COLORREF& shadow, win::COLORREF& border,
                        win::COLORREF& highlight) {
  win::COLORREF rgb = 0;
  win::OleTranslateColor(color, nullptr, &rgb);
  float h = 0.0f;
  float s = 0.0f;
  float l = 0.0f;
  RGBToHLS(static_cast<std::int32_t>(rgb), h, s, l);
  const float hue = RoundToWhole(h);
  const float saturation = RoundToWhole(s);
  highlight = HLSToRGB(hue, saturation, RoundToWhole(l / 2.0f + 120.0f));
  border = 0;
  shadow = HLSToRGB(hue, saturation, RoundToWhole(l * 2.0f / 3.0f));
}

}  // namespace glyphon::modColors
