// Text steps both drawing surfaces share: describing the font of a device context, making a font
// after such a description, and drawing text into the rectangle it measures.
#pragma once

#include <string>

#include "platform/win32.h"

namespace glyphon {

// The font selected in a context as its metrics and face name tell it. A context that cannot be
// read leaves everything zero, which describes the platform's default font.
struct FontDescription {
  win::TEXTMETRICA metrics{};
  char face[81]{};  // 80 characters and the terminator
};
FontDescription DescribeFont(win::HDC hdc);

// A new font after the description at antialiased quality (height, average width, weight,
// italic, underline, strike-out, character set, pitch and family, face). The caller owns it.
win::HFONT CreateFontFrom(const FontDescription& description);

// Measures text from (left, top, right, bottom) with options plus DT_CALCRECT, then draws it with
// options into the measured rectangle, so alignment acts within what the text needs.
void DrawMeasuredText(win::HDC hdc, const std::string& text, int left, int top, int right,
                      int bottom, win::UINT options);

}  // namespace glyphon
