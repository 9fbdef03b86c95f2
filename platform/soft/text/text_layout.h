// Turns a string into measured characters and the characters into lines, as USER's DrawText does:
// access-key prefixes, hard breaks at CR and LF, breaks at spaces, and edit-control breaks inside
// words that are wider than the line.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/soft/text/realized_font.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

struct LayoutChar {
  const Glyph* glyph = nullptr;  // null for hard breaks
  char32_t character = 0;
  int advance = 0;
  bool hardBreak = false;  // a CR or LF that ends a line
  bool accessKey = false;  // followed a single '&'
};

struct LayoutLine {
  int begin = 0;  // characters [begin, end)
  int end = 0;
  int width = 0;
  int accessKey = -1;  // the first access-key character on the line, or -1
};

// Decodes text (UTF-8, see utf8.h) into characters with their advances. With prefixes a single
// '&' is dropped and marks the next character, "&&" stands for one '&', and a '&' that ends the
// text stays as it is. With hard breaks CR and LF end lines instead of being drawn.
void ReadText(const RealizedFont& font, const char* text, std::size_t size, bool prefixes,
              bool hardBreaks, std::vector<LayoutChar>& out);

// Splits the characters into at most maxLines lines. Lines are broken only at hard breaks unless
// format has DT_WORDBREAK, which keeps them within width (DT_EDITCONTROL also inside words).
void BreakLines(const std::vector<LayoutChar>& chars, int width, UINT format, int maxLines,
                std::vector<LayoutLine>& lines);

}  // namespace glyphon::win::soft
