// The caption: its colour, its font, the text itself in the enabled and disabled looks, and the
// measuring the layout does with the same font and context.
#pragma once

#include <cstdint>
#include <string>

#include "content/button_view.h"
#include "content/content_layout.h"

namespace glyphon {

class Canvas;

// Gives the canvas a copy of the button's font.
void SelectCaptionFont(Canvas& canvas, const StdFont& font);

// The text colour for the caption in this state (nothing for an empty caption).
void ChooseCaptionColor(Canvas& canvas, const ButtonView& button, std::int32_t drawState);

// The caption at rect: one pass when enabled; when disabled a highlight copy one pixel down and
// right under a shadow-coloured copy (Win9x, Win3x), under a flat grey one (Mac8x), or a flat grey
// copy alone (the XP styles).
void DrawCaption(Canvas& canvas, const ButtonView& button, const CaptionRect& rect,
                 win::UINT flags);

// Measures with the platform's text call on a context, with the font selected there.
class ContextCaptionMeasurer final : public CaptionMeasurer {
 public:
  ContextCaptionMeasurer(win::HDC hdc, const std::string& caption)
      : hdc_(hdc), caption_(caption) {}
  win::RECT Measure(win::RECT rect, win::UINT flags) const override;

 private:
  win::HDC hdc_;
  const std::string& caption_;
};

}  // namespace glyphon
