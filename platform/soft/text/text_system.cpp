#include "platform/soft/text/text_system.h"

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstring>

#include "platform/soft/soft_engine.h"
#include "platform/soft/text/font_library.h"
#include "platform/soft/text/glyph_painter.h"

namespace glyphon::win::soft {

namespace {

// Realised fonts nobody holds are dropped once the cache grows past this.
constexpr std::size_t kFontCacheLimit = 64;
// Stands for "no limit" wherever a rectangle does not clip.
constexpr RECT kUnclipped{INT_MIN / 2, INT_MIN / 2, INT_MAX / 2, INT_MAX / 2};

// How many lines DrawText lays out before it stops: the line that reaches the bottom is the last,
// and under DT_EDITCONTROL already the one after which no further whole line would fit.
int MaxLines(const RECT& rect, UINT format, int lineHeight) {
  if ((format & DT_NOCLIP) != 0) return INT_MAX;
  if (lineHeight <= 0) return 1;
  const long long reach = (format & DT_EDITCONTROL) != 0 ? 2LL * lineHeight - 1 : lineHeight;
  const long long room = static_cast<long long>(rect.bottom) - rect.top - reach;
  if (room < 0) return 1;
  return static_cast<int>(std::min<long long>(room / lineHeight + 2, INT_MAX));
}

int ToInt(long long value) {
  return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

// Positions far off any surface are pulled in to where adding a line's width cannot overflow.
int ToPosition(long long value) {
  constexpr long long kFar = 1LL << 29;
  return static_cast<int>(std::clamp(value, -kFar, kFar));
}

}  // namespace

TextSystem::TextSystem(SoftEngine& engine)
    : engine_(engine), library_(std::make_shared<FontLibrary>()) {}

TextSystem::~TextSystem() = default;

void TextSystemDeleter::operator()(TextSystem* text) const { delete text; }

std::unique_ptr<TextSystem, TextSystemDeleter> NewTextSystem(SoftEngine& engine) {
  return std::unique_ptr<TextSystem, TextSystemDeleter>(new TextSystem(engine));
}

void TextSystem::UseFontFiles(const std::vector<std::string>& files) {
  library_->UseFontFiles(files);
  fonts_.clear();
}

TextSystem::FontKey TextSystem::KeyFor(const LOGFONTA& logFont) {
  FontKey key{};
  key.height = logFont.lfHeight;
  key.width = logFont.lfWidth;
  key.bold = PicksBoldFace(logFont.lfWeight);
  key.italic = logFont.lfItalic != 0;
  key.underline = logFont.lfUnderline != 0;
  key.strikeOut = logFont.lfStrikeOut != 0;
  key.antialiased = SmoothsGlyphs(logFont.lfQuality);
  key.charSet = logFont.lfCharSet;
  key.pitchAndFamily = logFont.lfPitchAndFamily;
  for (int i = 0; i < LF_FACESIZE - 1 && logFont.lfFaceName[i] != '\0'; ++i) {
    key.face[static_cast<std::size_t>(i)] =
        static_cast<char>(std::tolower(static_cast<unsigned char>(logFont.lfFaceName[i])));
  }
  return key;
}

std::shared_ptr<const RealizedFont> TextSystem::Realize(const LOGFONTA& logFont) {
  const FontKey key = KeyFor(logFont);
  if (auto it = fonts_.find(key); it != fonts_.end()) return it->second;
  if (fonts_.size() >= kFontCacheLimit) {
    std::erase_if(fonts_, [](const auto& entry) { return entry.second.use_count() == 1; });
  }
  auto font = std::make_shared<const RealizedFont>(library_, logFont);
  fonts_.emplace(key, font);
  return font;
}

const RealizedFont& TextSystem::FontOf(const DcObject& dc) {
  FontObject* font = engine_.Font(dc.attributes.font);
  if (font == nullptr) font = engine_.Font(static_cast<HFONT>(engine_.GetStockObject(SYSTEM_FONT)));
  if (!font->realized || font->realized->Generation() != library_->Generation()) {
    font->realized = Realize(font->logFont);
  }
  return *font->realized;
}

SIZE TextSystem::Extent(const DcObject& dc, const char* text, std::size_t size) {
  const RealizedFont& font = FontOf(dc);
  ReadText(font, text, size, false, false, chars_);
  LONG width = 0;
  for (const LayoutChar& c : chars_) width += c.advance;
  return SIZE{width, font.Metrics().tmHeight};
}

void TextSystem::TextOut(DcObject& dc, int x, int y, const char* text, std::size_t size) {
  const RealizedFont& font = FontOf(dc);
  ReadText(font, text, size, false, false, chars_);
  LayoutLine line{0, static_cast<int>(chars_.size()), 0, -1};
  for (const LayoutChar& c : chars_) line.width += c.advance;

  DcAttributes& a = dc.attributes;
  const bool updateCurrentPosition = (a.textAlign & TA_UPDATECP) != 0;
  if (updateCurrentPosition) {
    x = a.position.x;
    y = a.position.y;
  }
  long long left = x;
  switch (a.textAlign & TA_CENTER) {
    case TA_CENTER: left -= line.width / 2; break;
    case TA_RIGHT: left -= line.width; break;
    default: break;
  }
  long long top = y;
  switch (a.textAlign & TA_BASELINE) {
    case TA_BASELINE: top -= font.Metrics().tmAscent; break;
    case TA_BOTTOM: top -= font.Metrics().tmHeight; break;
    default: break;
  }
  if (updateCurrentPosition) {
    if ((a.textAlign & TA_CENTER) == TA_LEFT) a.position.x = ToInt(1LL * x + line.width);
    if ((a.textAlign & TA_CENTER) == TA_RIGHT) a.position.x = ToInt(1LL * x - line.width);
  }
  if (dc.surface) PaintLine(dc, font, line, ToPosition(left), ToPosition(top), kUnclipped, nullptr);
}

int TextSystem::DrawText(DcObject& dc, const char* text, std::size_t size, RECT& rect,
                         UINT format) {
  const RealizedFont& font = FontOf(dc);
  const int lineHeight = font.Metrics().tmHeight;
  if (size == 0) {
    if ((format & DT_CALCRECT) != 0) {
      rect.right = rect.left;
      rect.bottom = rect.top + ((format & DT_SINGLELINE) != 0 ? lineHeight : 0);
    }
    return lineHeight;
  }
  if ((format & DT_SINGLELINE) != 0) format &= ~DT_WORDBREAK;
  if ((format & DT_CALCRECT) != 0) format |= DT_NOCLIP;
  const bool clipped = (format & DT_NOCLIP) == 0;

  ReadText(font, text, size, (format & DT_NOPREFIX) == 0, (format & DT_SINGLELINE) == 0, chars_);
  const long long left = rect.left, top = rect.top, right = rect.right, bottom = rect.bottom;
  BreakLines(chars_, ToInt(right - left), format, MaxLines(rect, format, lineHeight), lines_);

  long long y = top;
  int maxWidth = 0;
  for (const LayoutLine& line : lines_) {
    long long x = left;
    if ((format & DT_CENTER) != 0) {
      x = (left + right - line.width) / 2;
    } else if ((format & DT_RIGHT) != 0) {
      x = right - line.width;
    }
    if ((format & DT_SINGLELINE) != 0) {
      if ((format & DT_VCENTER) != 0) {
        y = top + (bottom - top) / 2 - lineHeight / 2;
      } else if ((format & DT_BOTTOM) != 0) {
        y = bottom - lineHeight;
      }
    }
    if ((format & DT_CALCRECT) != 0) {
      maxWidth = std::max(maxWidth, line.width);
    } else if (dc.surface) {
      PaintLine(dc, font, line, ToPosition(x), ToPosition(y), clipped ? rect : kUnclipped,
                clipped ? &rect : nullptr);
    }
    y += lineHeight;
  }
  if ((format & DT_CALCRECT) != 0) {
    rect.right = ToInt(left + maxWidth);
    rect.bottom = ToInt(y);
  }
  const long long height = y - top;
  return height != 0 ? ToInt(height) : 1;
}

void TextSystem::PaintLine(DcObject& dc, const RealizedFont& font, const LayoutLine& line, int x,
                           int top, const RECT& clip, const RECT* keyClip) {
  Pixmap& target = *dc.surface;
  const DcAttributes& a = dc.attributes;
  const TEXTMETRICA& tm = font.Metrics();
  GlyphPainter painter(target, clip, a.textColor, a.backgroundColor);
  if (a.backgroundMode == OPAQUE) painter.FillBackground(x, top, x + line.width, top + tm.tmHeight);
  const int baseline = top + tm.tmAscent;
  int penX = x;
  int keyX = x;
  int keyAdvance = 0;
  for (int i = line.begin; i < line.end; ++i) {
    const LayoutChar& c = chars_[static_cast<std::size_t>(i)];
    if (i == line.accessKey) {
      keyX = penX;
      keyAdvance = c.advance;
    }
    if (c.glyph != nullptr) painter.Draw(*c.glyph, penX, baseline);
    penX += c.advance;
  }
  for (const auto& [present, stroke] : {std::pair{font.Underlined(), font.Underline()},
                                        std::pair{font.StruckOut(), font.StrikeOut()}}) {
    if (present) {
      painter.FillText(x, baseline + stroke.offset, x + line.width,
                       baseline + stroke.offset + stroke.thickness);
    }
  }
  if (line.accessKey < 0) return;
  // USER underlines the access key with a one-pixel pen (so under the DC's ROP2) one row below
  // the ascent, from the character's left edge to one pixel short of its advance; only the text
  // rectangle limits it.
  int from = keyX;
  int to = keyX + keyAdvance - 1;
  const int keyY = baseline + 1;
  if (keyClip != nullptr) {
    if (from > keyClip->right || to < keyClip->left || keyY < keyClip->top ||
        keyY > keyClip->bottom) {
      return;
    }
    from = std::max<int>(from, keyClip->left);
    to = std::min<int>(to, keyClip->right);
  }
  GlyphPainter(target, kUnclipped, a.textColor, a.backgroundColor)
      .FillText(from, keyY, to, keyY + 1, a.rop2);
}

}  // namespace glyphon::win::soft
