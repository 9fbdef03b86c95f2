// Canvas: fonts and text.
#include <algorithm>
#include <climits>

#include "surface/canvas.h"
#include "surface/surface_text.h"

namespace glyphon {

namespace {
// SetFont's weight for bold: just past the 550 at which the platform picks a bold face.
constexpr win::LONG kSetFontBold = 551;
}  // namespace

void Canvas::CreateFont(win::HDC basehDC) {
  const FontDescription description = DescribeFont(basehDC);
  ReleaseCurrentFont();
  AdoptFont(CreateFontFrom(description));
}

void Canvas::SetFont(bool bold, bool italic, bool underline) {
  FontDescription description = DescribeFont(hdc_);
  description.metrics.tmWeight = bold ? kSetFontBold : win::FW_DONTCARE;
  description.metrics.tmItalic = italic ? 1 : 0;
  description.metrics.tmUnderlined = underline ? 1 : 0;
  ReleaseCurrentFont();
  AdoptFont(CreateFontFrom(description));
}

void Canvas::PrintText(const std::string& text, int left, int top) {
  const int count = static_cast<int>(std::min<std::size_t>(text.size(), INT_MAX));
  win::TextOutA(hdc_, left != 0 ? left : currentX_, top != 0 ? top : currentY_, text.c_str(),
                count);
}

void Canvas::DrawTextOut(const std::string& text, int left, int top, int right, int bottom,
                         win::UINT options) {
  DrawMeasuredText(hdc_, text, left, top, right, bottom, options);
}

}  // namespace glyphon
