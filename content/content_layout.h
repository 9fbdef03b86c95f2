// Placement of the caption and the picture inside the button, by Alignment (where the content
// block stands) and PictureAlignment (where the picture stands beside the caption). Halving for
// centring truncates toward zero; the vertical block of a Top or Bottom picture is centred to the
// nearest pixel, halves to even. Nothing is clipped: content may lie partly outside the client.
#pragma once

#include <cstdint>

#include "content/content_margins.h"
#include "platform/win32.h"

namespace glyphon {

// Left, top and right of the caption, and its height in place of a bottom: the caption is drawn
// by a call that measures first, so only the first three need to be right.
struct CaptionRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int height = 0;
  friend bool operator==(const CaptionRect&, const CaptionRect&) = default;
};

struct PicturePosition {
  int x = 0;
  int y = 0;
  friend bool operator==(const PicturePosition&, const PicturePosition&) = default;
};

// What the layout reads of the button. Values outside the enumerations are placed as Center
// (Alignment) and as Left (PictureAlignment).
struct ContentFrame {
  int clientWidth = 0;
  int clientHeight = 0;
  std::int32_t alignment = 0;
  std::int32_t pictureAlignment = 0;
  int spacing = 0;
  SideMargins margins;
};

// Measures the caption the way the text call does with DT_CALCRECT: the rectangle it is given,
// with right and bottom moved to fit the wrapped text.
class CaptionMeasurer {
 public:
  virtual ~CaptionMeasurer() = default;
  virtual win::RECT Measure(win::RECT rect, win::UINT flags) const = 0;
};

// Word break with the edit control's breaking of over-long words: the base of every caption call.
inline constexpr win::UINT kCaptionFlags = win::DT_WORDBREAK | win::DT_EDITCONTROL;

// The caption's own flags: centred lines for a centred button.
win::UINT CaptionDrawFlags(std::int32_t alignment);

// A caption alone.
CaptionRect LayOutCaption(const ContentFrame& frame, const CaptionMeasurer& measurer);

struct CaptionAndPicture {
  CaptionRect caption;
  PicturePosition picture;
};
// A caption with a width x height picture beside, over or under it.
CaptionAndPicture LayOutCaptionAndPicture(const ContentFrame& frame, int width, int height,
                                          const CaptionMeasurer& measurer);

// A picture alone; PictureAlignment plays no part.
PicturePosition LayOutPicture(const ContentFrame& frame, int width, int height);

}  // namespace glyphon
