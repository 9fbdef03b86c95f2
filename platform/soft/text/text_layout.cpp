#include "platform/soft/text/text_layout.h"

#include <algorithm>

#include "platform/soft/text/utf8.h"

namespace glyphon::win::soft {

namespace {

bool IsSpace(const LayoutChar& c) { return c.character == U' '; }

int WidthOf(const std::vector<LayoutChar>& chars, int begin, int end) {
  int width = 0;
  for (int i = begin; i < end; ++i) width += chars[static_cast<std::size_t>(i)].advance;
  return width;
}

int FirstAccessKey(const std::vector<LayoutChar>& chars, int begin, int end) {
  for (int i = begin; i < end; ++i) {
    if (chars[static_cast<std::size_t>(i)].accessKey) return i;
  }
  return -1;
}

// Steps over one line break: CR, LF, or a CR LF or LF CR pair.
int SkipBreak(const std::vector<LayoutChar>& chars, int pos) {
  const int size = static_cast<int>(chars.size());
  if (pos >= size || !chars[static_cast<std::size_t>(pos)].hardBreak) return pos;
  ++pos;
  if (pos < size && chars[static_cast<std::size_t>(pos)].hardBreak &&
      chars[static_cast<std::size_t>(pos)].character !=
          chars[static_cast<std::size_t>(pos - 1)].character) {
    ++pos;
  }
  return pos;
}

// Where to end a line whose first `fit` characters fit and the next does not, and where the next
// line starts. Works back to a space; left-aligned lines keep the spaces that fit, centred and
// right-aligned ones drop one of them, and one space at the break is swallowed. A word with no
// space before it is broken after what fits under DT_EDITCONTROL, else kept whole.
void BreakSegment(const std::vector<LayoutChar>& chars, int pos, int segmentEnd, int fit,
                  UINT format, int& lineEnd, int& next) {
  auto at = [&chars](int i) -> const LayoutChar& { return chars[static_cast<std::size_t>(i)]; };
  if (fit > 0) {
    int p = pos + fit;
    bool found = true;
    if (IsSpace(at(p))) {
      --p;
    } else {
      while (p > pos && !IsSpace(at(--p))) {
      }
      found = p != pos || IsSpace(at(p));
    }
    if (found) {
      if ((format & (DT_CENTER | DT_RIGHT)) == 0 || !IsSpace(at(p))) ++p;
      lineEnd = p;
      next = p < segmentEnd && IsSpace(at(p)) ? p + 1 : p;
      return;
    }
  }
  if ((format & DT_EDITCONTROL) != 0) {
    lineEnd = next = pos + std::max(fit, 1);
    return;
  }
  int p = pos + fit;
  while (p < segmentEnd && !IsSpace(at(p))) ++p;
  lineEnd = p;
  next = p < segmentEnd ? p + 1 : p;
}

}  // namespace

void ReadText(const RealizedFont& font, const char* text, std::size_t size, bool prefixes,
              bool hardBreaks, std::vector<LayoutChar>& out) {
  out.clear();
  bool accessKey = false;
  std::size_t pos = 0;
  while (pos < size) {
    const char32_t character = DecodeNext(text, size, pos);
    if (prefixes && character == U'&' && pos < size) {
      if (text[pos] != '&') {
        accessKey = true;
        continue;
      }
      ++pos;  // "&&": the second one is drawn
    }
    LayoutChar c;
    c.character = character;
    c.accessKey = accessKey;
    accessKey = false;
    if (hardBreaks && (character == U'\r' || character == U'\n')) {
      c.hardBreak = true;
    } else {
      c.glyph = &font.GlyphFor(character);
      c.advance = c.glyph->advance;
    }
    out.push_back(c);
  }
}

void BreakLines(const std::vector<LayoutChar>& chars, int width, UINT format, int maxLines,
                std::vector<LayoutLine>& lines) {
  lines.clear();
  const int size = static_cast<int>(chars.size());
  int pos = 0;
  do {
    int segmentEnd = pos;
    while (segmentEnd < size && !chars[static_cast<std::size_t>(segmentEnd)].hardBreak) {
      ++segmentEnd;
    }
    int fit = 0;
    int fitWidth = 0;
    while (pos + fit < segmentEnd &&
           fitWidth + chars[static_cast<std::size_t>(pos + fit)].advance <= width) {
      fitWidth += chars[static_cast<std::size_t>(pos + fit)].advance;
      ++fit;
    }
    int lineEnd = segmentEnd;
    int next = segmentEnd;
    if (pos + fit < segmentEnd && (format & DT_WORDBREAK) != 0) {
      BreakSegment(chars, pos, segmentEnd, fit, format, lineEnd, next);
    }
    lines.push_back(LayoutLine{pos, lineEnd, WidthOf(chars, pos, lineEnd),
                               FirstAccessKey(chars, pos, lineEnd)});
    // When a word break uses up the segment, its CR or LF ends this line, not an empty one.
    pos = SkipBreak(chars, next);
  } while (pos < size && static_cast<int>(lines.size()) < maxLines);
}

}  // namespace glyphon::win::soft
