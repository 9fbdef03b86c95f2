#include "samples/sample_pictures.h"

#include <array>
#include <cstdint>

#include "platform/codec/picture_objects.h"
#include "samples/shape_painter.h"

namespace glyphon::samples {

namespace {

using win::RGB;

constexpr win::COLORREF kOutline = RGB(32, 32, 48);

constexpr std::array<SampleInfo, 8> kSamples{{
    {SamplePicture::Check16, "check16", 16, 16, false},
    {SamplePicture::Folder16, "folder16", 16, 16, false},
    {SamplePicture::Arrow15x13, "arrow15x13", 15, 13, false},
    {SamplePicture::Swatches32, "swatches32", 32, 32, false},
    {SamplePicture::Landscape256, "landscape256", 256, 256, false},
    {SamplePicture::Stop16Icon, "stop16icon", 16, 16, true},
    {SamplePicture::Globe32Icon, "globe32icon", 32, 32, true},
    {SamplePicture::Gem48AlphaIcon, "gem48alphaicon", 48, 48, true},
}};

void DrawCheck(ShapePainter& paint) {
  constexpr Point kCorner{6.5, 12};
  paint.Stroke({2, 7.5}, kCorner, 4.5, kOutline);
  paint.Stroke(kCorner, {14.5, 2}, 4.5, kOutline);
  paint.Stroke({2.8, 8.3}, kCorner, 2.5, RGB(40, 176, 64));
  paint.Stroke({6.2, 11}, {13.8, 2.8}, 2.5, RGB(40, 176, 64));
}

void DrawFolder(ShapePainter& paint) {
  paint.Rect(1, 3, 7, 5, kOutline);
  paint.Rect(1, 4, 15, 14, kOutline);
  paint.Rect(2, 5, 14, 13, RGB(240, 200, 72));
  paint.Rect(2, 5, 14, 6, RGB(255, 236, 150));
}

void DrawArrow(ShapePainter& paint) {
  paint.Rect(0, 4, 9, 9, RGB(0, 0, 128));
  paint.Polygon({{8, 0}, {15, 6.5}, {8, 13}}, RGB(0, 0, 128));
  paint.Rect(1, 5, 10, 8, RGB(64, 128, 255));
  paint.Polygon({{9, 2.3}, {13.5, 6.5}, {9, 10.7}}, RGB(64, 128, 255));
}

void DrawSwatches(ShapePainter& paint) {
  constexpr std::array<win::COLORREF, 16> kColors{
      RGB(255, 0, 0),     RGB(0, 255, 0),     RGB(0, 0, 255),   RGB(255, 255, 0),
      RGB(255, 0, 255),   RGB(0, 0, 0),       RGB(255, 255, 255), RGB(128, 128, 128),
      RGB(0, 254, 255),   RGB(192, 64, 0),    RGB(0, 128, 128), RGB(64, 0, 128),
      RGB(250, 128, 114), RGB(34, 139, 34),   RGB(70, 130, 180), RGB(210, 180, 140)};
  for (int i = 0; i < 16; ++i) {
    const int left = (i % 4) * 8;
    const int top = (i / 4) * 8;
    paint.Rect(left, top, left + 8, top + 8, kColors[static_cast<std::size_t>(i)]);
  }
  // A hole and two corners of the mask colour; the near-cyan swatch beside it is not keyed.
  paint.Rect(12, 12, 20, 20, kSampleMaskColor);
  paint.Rect(0, 0, 3, 3, kSampleMaskColor);
  paint.Rect(29, 29, 32, 32, kSampleMaskColor);
}

void DrawLandscape(Image& image) {
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      std::uint8_t* pixel = image.Pixel(x, y);
      pixel[0] = static_cast<std::uint8_t>(255 - y / 4);
      pixel[1] = static_cast<std::uint8_t>(150 + y / 3);
      pixel[2] = static_cast<std::uint8_t>(60 + (x + y) / 8);
      pixel[3] = 0;
    }
  }
  ShapePainter paint(image, true, false);
  paint.Disc({190, 60}, 28, RGB(255, 220, 80));
  paint.Disc({60, 300}, 150, RGB(60, 140, 50));
  paint.Disc({220, 330}, 140, RGB(40, 110, 40));
  paint.Polygon({{120, 256}, {150, 200}, {160, 256}}, RGB(120, 80, 40));
}

// An icon without alpha: whatever keeps the background colour is masked out (and black).
IconImage MaskedIcon(int size, void (*draw)(ShapePainter&, int)) {
  IconImage icon;
  icon.color = Image::Blank(size, size);
  constexpr win::COLORREF kBackground = RGB(255, 0, 255);
  ShapePainter paint(icon.color, false, false);
  paint.Fill(kBackground);
  draw(paint, size);
  icon.mask.resize(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      std::uint8_t* pixel = icon.color.Pixel(x, y);
      const bool background = pixel[0] == 255 && pixel[1] == 0 && pixel[2] == 255;
      icon.mask[static_cast<std::size_t>(y * size + x)] = background ? 1 : 0;
      if (background) pixel[0] = pixel[1] = pixel[2] = 0;
    }
  }
  return icon;
}

void DrawStop(ShapePainter& paint, int) {
  paint.Polygon({{5, 0}, {11, 0}, {16, 5}, {16, 11}, {11, 16}, {5, 16}, {0, 11}, {0, 5}},
                RGB(128, 0, 0));
  paint.Polygon({{5.5, 1}, {10.5, 1}, {15, 5.5}, {15, 10.5}, {10.5, 15}, {5.5, 15}, {1, 10.5},
                 {1, 5.5}},
                RGB(224, 32, 32));
  paint.Rect(3, 7, 13, 9, RGB(255, 255, 255));
}

void DrawGlobe(ShapePainter& paint, int size) {
  const double c = size / 2.0;
  paint.Disc({c, c}, c - 0.5, RGB(0, 48, 128));
  paint.Disc({c, c}, c - 2, RGB(40, 120, 220));
  paint.Polygon({{8, 7}, {15, 5}, {17, 12}, {12, 17}, {7, 13}}, RGB(60, 170, 70));
  paint.Polygon({{18, 17}, {25, 15}, {27, 22}, {20, 27}}, RGB(60, 170, 70));
  paint.Disc({11, 10}, 2.5, RGB(200, 230, 255));
}

IconImage AlphaGem() {
  IconImage icon;
  icon.color = Image::Blank(48, 48);
  ShapePainter paint(icon.color, true, true);
  paint.Fill(RGB(0, 0, 0), 0);
  // A soft shadow: stacked, growing, faint copies of the outline.
  for (int step = 0; step < 4; ++step) {
    const double grow = step * 1.2;
    paint.Polygon({{24 + 3, 4 + 4 - grow}, {44 + 3 + grow, 20 + 4}, {24 + 3, 44 + 4 + grow},
                   {4 + 3 - grow, 20 + 4}},
                  RGB(0, 0, 0), 40);
  }
  paint.Polygon({{24, 4}, {44, 20}, {24, 44}, {4, 20}}, RGB(20, 90, 160));
  paint.Polygon({{24, 7}, {40, 20}, {24, 20}}, RGB(90, 180, 240));
  paint.Polygon({{24, 7}, {24, 20}, {8, 20}}, RGB(60, 150, 220));
  paint.Polygon({{8, 20}, {24, 20}, {24, 40}}, RGB(30, 110, 190));
  paint.Disc({20, 13}, 2.5, RGB(255, 255, 255), 200);
  icon.mask.resize(48 * 48);
  for (int y = 0; y < 48; ++y) {
    for (int x = 0; x < 48; ++x) {
      icon.mask[static_cast<std::size_t>(y * 48 + x)] = icon.color.Pixel(x, y)[3] == 0 ? 1 : 0;
    }
  }
  return icon;
}

Image MaskedBitmap(int width, int height, void (*draw)(ShapePainter&)) {
  Image image = Image::Blank(width, height);
  ShapePainter paint(image, false, false);
  paint.Fill(kSampleMaskColor);
  draw(paint);
  return image;
}

}  // namespace

std::span<const SampleInfo> AllSamplePictures() { return kSamples; }

const SampleInfo& InfoOf(SamplePicture which) {
  return kSamples[static_cast<std::size_t>(which)];
}

StdPicture MakeSamplePicture(SamplePicture which) {
  switch (which) {
    case SamplePicture::Check16: return MakeBitmapPicture(MaskedBitmap(16, 16, DrawCheck));
    case SamplePicture::Folder16: return MakeBitmapPicture(MaskedBitmap(16, 16, DrawFolder));
    case SamplePicture::Arrow15x13: return MakeBitmapPicture(MaskedBitmap(15, 13, DrawArrow));
    case SamplePicture::Swatches32:
      return MakeBitmapPicture(MaskedBitmap(32, 32, DrawSwatches));
    case SamplePicture::Landscape256: {
      Image image = Image::Blank(256, 256);
      DrawLandscape(image);
      return MakeBitmapPicture(image);
    }
    case SamplePicture::Stop16Icon: return MakeIconPicture(MaskedIcon(16, DrawStop));
    case SamplePicture::Globe32Icon: return MakeIconPicture(MaskedIcon(32, DrawGlobe));
    case SamplePicture::Gem48AlphaIcon: return MakeIconPicture(AlphaGem());
  }
  return {};
}

}  // namespace glyphon::samples
