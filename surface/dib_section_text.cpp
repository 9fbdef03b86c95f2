// cDIBSection: fonts and text, as on Canvas.
#include "surface/dib_section.h"
#include "surface/surface_text.h"

namespace glyphon {

void cDIBSection::CreateFont(win::HDC basehDC) {
  const FontDescription description = DescribeFont(basehDC);
  ReleaseCurrentFont();
  AdoptFont(CreateFontFrom(description));
}

void cDIBSection::DrawTextOut(const std::string& text, int left, int top, int right, int bottom,
                              win::UINT options) {
  DrawMeasuredText(hdc_, text, left, top, right, bottom, options);
}

}  // namespace glyphon
