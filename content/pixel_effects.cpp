// The faded and greyed pictures: loading the picture and the background into DIB sections,
// the effect, and the masked copy back.
#include "content/pixel_effects.h"

#include <optional>

#include "content/hi_metric.h"
#include "content/scratch_surface.h"
#include "platform/automation_error.h"

namespace glyphon {

namespace {

bool PaintEffect(win::HDC hdcSrc, int xSrc, int ySrc, int srcWidth, int srcHeight,
                 win::HDC hdcDest, int xDest, int yDest, int width, int height, int strength,
                 std::optional<win::COLORREF> tint, win::OLE_COLOR maskColor) {
  if (width == -1) width = srcWidth;
  if (height == -1) height = srcHeight;
  if (srcWidth <= 0 || srcHeight <= 0 || width <= 0 || height <= 0) return false;
  win::COLORREF maskRgb = kNoColor;
  if (maskColor != kNoColor) win::OleTranslateColor(maskColor, nullptr, &maskRgb);

  cDIBSection effect;
  effect.Create(srcWidth, srcHeight);
  effect.LoadPictureBlt(hdcSrc, xSrc, ySrc, srcWidth, srcHeight, win::SRCCOPY);
  cDIBSection background;
  background.Create(width, height);
  background.LoadPictureBlt(hdcDest, xDest, yDest, width, height, win::SRCCOPY);

  if (tint) TurnGrey(effect, *tint, maskRgb);
  if (srcWidth == width && srcHeight == height) {
    MixInto(background, effect, strength, maskRgb);
  } else {
    cDIBSection resized;
    resized.Create(width, height);
    ResizeBilinear(effect, resized);
    MixInto(background, resized, strength, maskRgb);
  }
  // The mix went into the background's own bytes: it is the result.
  background.PaintPicture(hdcDest, maskColor, xDest, yDest, width, height, 0, 0, win::SRCCOPY);
  return true;
}

// The picture's pixels at its own size. An icon has no bitmap to load, so it is drawn over the
// mask colour, or over the destination's pixels when nothing is keyed out.
bool LoadPicture(cDIBSection& dib, const StdPicture& picture, win::HDC hdcDest, int xDest,
                 int yDest, win::OLE_COLOR maskColor) {
  if (picture.Type() == win::PICTYPE_BITMAP) {
    dib.CreateFromPicture(picture);
    return dib.DIBSectionBitsPtr() != nullptr;
  }
  if (picture.Type() != win::PICTYPE_ICON) return false;
  const ScreenDc screen;
  const int width = HiMetricToPixels(screen.Get(), win::LOGPIXELSX, picture.Width());
  const int height = HiMetricToPixels(screen.Get(), win::LOGPIXELSY, picture.Height());
  if (width <= 0 || height <= 0) return false;
  dib.Create(width, height);
  if (maskColor != kNoColor) {
    dib.BackColor(maskColor);
    dib.Cls();
  } else {
    dib.LoadPictureBlt(hdcDest, xDest, yDest, width, height, win::SRCCOPY);
  }
  win::DrawIconEx(dib.hdc(), 0, 0, picture.Icon(), width, height, 0, nullptr, win::DI_NORMAL);
  return true;
}

bool PaintPictureEffect(const StdPicture& picture, win::HDC hdcDest, int xDest, int yDest,
                        int width, int height, int strength, std::optional<win::COLORREF> tint,
                        win::OLE_COLOR maskColor) {
  try {
    cDIBSection source;
    if (!LoadPicture(source, picture, hdcDest, xDest, yDest, maskColor)) return false;
    return PaintEffect(source.hdc(), 0, 0, source.Width(), source.Height(), hdcDest, xDest, yDest,
                       width, height, strength, tint, maskColor);
  } catch (const AutomationError&) {
    return false;  // a bitmap the platform cannot hold as a DIB section
  }
}

}  // namespace

bool PaintFadedPicture(const StdPicture& picture, win::HDC hdcDest, int xDest, int yDest,
                       int width, int height, int strength, win::OLE_COLOR maskColor) {
  return PaintPictureEffect(picture, hdcDest, xDest, yDest, width, height, strength,
                            std::nullopt, maskColor);
}

bool PaintGreyedPicture(const StdPicture& picture, win::HDC hdcDest, int xDest, int yDest,
                        int width, int height, int strength, win::COLORREF tint,
                        win::OLE_COLOR maskColor) {
  return PaintPictureEffect(picture, hdcDest, xDest, yDest, width, height, strength, tint,
                            maskColor);
}

bool PaintFadedDC(win::HDC hdcSrc, int xSrc, int ySrc, int srcWidth, int srcHeight,
                  win::HDC hdcDest, int xDest, int yDest, int width, int height, int strength,
                  win::OLE_COLOR maskColor) {
  return PaintEffect(hdcSrc, xSrc, ySrc, srcWidth, srcHeight, hdcDest, xDest, yDest, width,
                     height, strength, std::nullopt, maskColor);
}

bool PaintGreyedDC(win::HDC hdcSrc, int xSrc, int ySrc, int srcWidth, int srcHeight,
                   win::HDC hdcDest, int xDest, int yDest, int width, int height, int strength,
                   win::COLORREF tint, win::OLE_COLOR maskColor) {
  return PaintEffect(hdcSrc, xSrc, ySrc, srcWidth, srcHeight, hdcDest, xDest, yDest, width,
                     height, strength, tint, maskColor);
}

}  // namespace glyphon
