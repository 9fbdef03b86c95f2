#include "content/content_layout.h"

#include "control/glyphon_constants.h"
#include "surface/rounding.h"

namespace glyphon {

namespace {

std::int32_t KnownAlignment(std::int32_t alignment) {
  return alignment == zonAlignLeft || alignment == zonAlignRight ? alignment : zonAlignCenter;
}

std::int32_t KnownPictureAlignment(std::int32_t alignment) {
  return alignment >= zonPicAlignLeft && alignment <= zonPicAlignBottom ? alignment
                                                                         : zonPicAlignLeft;
}

struct TextSize {
  int width = 0;
  int height = 0;
};

// Measuring rectangles start one pixel high at the top; DT_CALCRECT grows them to the text.
win::RECT MeasureAt(const CaptionMeasurer& measurer, int left, int right, win::UINT flags) {
  return measurer.Measure(win::RECT{left, 0, right, 1}, flags | kCaptionFlags | win::DT_CALCRECT);
}

TextSize SizeOf(const win::RECT& measured) {
  return {measured.right - measured.left, measured.bottom - measured.top};
}

// Left of a block of this width by Alignment; halves truncate.
int BlockLeft(const ContentFrame& frame, int blockWidth) {
  switch (KnownAlignment(frame.alignment)) {
    case zonAlignLeft: return frame.margins.left;
    case zonAlignRight: return frame.clientWidth - frame.margins.right - blockWidth;
    default: return frame.clientWidth / 2 - blockWidth / 2;
  }
}

int CentredTop(const ContentFrame& frame, int blockHeight) {
  return frame.clientHeight / 2 - blockHeight / 2;
}

}  // namespace

win::UINT CaptionDrawFlags(std::int32_t alignment) {
  return KnownAlignment(alignment) == zonAlignCenter ? kCaptionFlags | win::DT_CENTER
                                                            : kCaptionFlags;
}

CaptionRect LayOutCaption(const ContentFrame& frame, const CaptionMeasurer& measurer) {
  const SideMargins& m = frame.margins;
  // The right member is given the available width rather than a coordinate, so the text wraps
  // a left margin early. Buttons have always wrapped there.
  const TextSize text = SizeOf(MeasureAt(measurer, m.left, frame.clientWidth - m.left - m.right,
                                         CaptionDrawFlags(frame.alignment) & win::DT_CENTER));
  const int left = BlockLeft(frame, text.width);
  return {left, CentredTop(frame, text.height), left + text.width, text.height};
}

PicturePosition LayOutPicture(const ContentFrame& frame, int width, int height) {
  return {BlockLeft(frame, width), CentredTop(frame, height)};
}

CaptionAndPicture LayOutCaptionAndPicture(const ContentFrame& frame, int width, int height,
                                          const CaptionMeasurer& measurer) {
  const int sw = frame.clientWidth;
  const int sh = frame.clientHeight;
  const int lm = frame.margins.left;
  const int rm = frame.margins.right;
  const int sp = frame.spacing;
  const std::int32_t alignment = KnownAlignment(frame.alignment);
  const std::int32_t pictureAlignment = KnownPictureAlignment(frame.pictureAlignment);

  const bool stacked =
      pictureAlignment == zonPicAlignTop || pictureAlignment == zonPicAlignBottom;
  int measureLeft = lm + width + sp;
  int measureRight = sw - rm;
  if (pictureAlignment == zonPicAlignCenter) measureLeft = lm + sp;
  if (stacked) {
    measureLeft = lm;
    measureRight = sw - lm - rm;  // a width, as in the caption-only layout
  }
  const TextSize text = SizeOf(MeasureAt(measurer, measureLeft, measureRight, 0));
  const int tw = text.width;
  const int blockWidth = width + sp + tw;
  const int blockHeight = height + sp + text.height;

  int x = sw / 2 - width / 2;
  int textLeft = 0;
  switch (pictureAlignment) {
    case zonPicAlignLeft:
      x = alignment == zonAlignLeft ? lm : BlockLeft(frame, blockWidth);
      textLeft = x + width + sp;
      break;
    case zonPicAlignRight:
      if (alignment == zonAlignRight) {
        x = sw - rm - width;
        textLeft = x - sp - tw;
      } else {
        textLeft = BlockLeft(frame, blockWidth);
        x = textLeft + tw + sp;
      }
      break;
    case zonPicAlignCenter:
      textLeft = BlockLeft(frame, tw);
      if (alignment == zonAlignLeft) x = tw / 2 - width / 2 + lm;
      // Off the text's middle by the difference of the margins; the look buttons have had.
      if (alignment == zonAlignRight) x = tw / 2 - width / 2 + textLeft + lm - rm;
      break;
    default:  // Top, Bottom
      textLeft = BlockLeft(frame, tw);
      x = BlockLeft(frame, width);
      break;
  }

  const win::RECT final = MeasureAt(measurer, textLeft, textLeft + tw, 0);
  CaptionAndPicture placed;
  placed.caption = {final.left, 0, final.right, final.bottom - final.top};
  const int stackedTop = RoundHalfEven(sh / 2.0 - blockHeight / 2.0);
  switch (pictureAlignment) {
    case zonPicAlignTop:
      placed.picture = {x, stackedTop};
      placed.caption.top = stackedTop + height + sp;
      break;
    case zonPicAlignBottom:
      placed.caption.top = stackedTop;
      placed.picture = {x, stackedTop + text.height + sp};
      break;
    default:
      placed.picture = {x, CentredTop(frame, height)};
      placed.caption.top = CentredTop(frame, text.height);
      break;
  }
  return placed;
}

}  // namespace glyphon
