#include "surface/surface_text.h"

#include <algorithm>
#include <climits>

namespace glyphon {

FontDescription DescribeFont(win::HDC hdc) {
  FontDescription description;
  win::GetTextMetricsA(hdc, &description.metrics);
  win::GetTextFaceA(hdc, static_cast<int>(sizeof description.face), description.face);
  return description;
}

win::HFONT CreateFontFrom(const FontDescription& description) {
  const win::TEXTMETRICA& tm = description.metrics;
  return win::CreateFontA(tm.tmHeight, tm.tmAveCharWidth, 0, 0, tm.tmWeight, tm.tmItalic,
                          tm.tmUnderlined, tm.tmStruckOut, tm.tmCharSet, win::OUT_DEFAULT_PRECIS,
                          win::CLIP_DEFAULT_PRECIS, win::ANTIALIASED_QUALITY, tm.tmPitchAndFamily,
                          description.face);
}

void DrawMeasuredText(win::HDC hdc, const std::string& text, int left, int top, int right,
                      int bottom, win::UINT options) {
  const int count = static_cast<int>(std::min<std::size_t>(text.size(), INT_MAX));
  win::RECT rect{left, top, right, bottom};
  win::DrawTextA(hdc, text.c_str(), count, &rect, options | win::DT_CALCRECT);
  win::DrawTextA(hdc, text.c_str(), count, &rect, options);
}

}  // namespace glyphon
