#include "platform/soft/text/realized_font.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace glyphon::win::soft {

namespace {

// Sizes past this are refused by the rasteriser's budget rather than by memory.
constexpr long long kMaxPixelsPerEm = 1024;
// Synthesised slant, the one FreeType's oblique style uses (about 12 degrees).
constexpr FT_Fixed kObliqueShear = 0x0366A;

// a * b / c rounded to nearest with halves away from zero, as GDI's MulDiv.
long long MulDivRound(long long a, long long b, long long c) {
  if (c == 0) return 0;
  long long product = a * b;
  const bool negative = (product < 0) != (c < 0);
  product = std::llabs(product);
  c = std::llabs(c);
  const long long quotient = (product + c / 2) / c;
  return negative ? -quotient : quotient;
}

int ToInt(long long value) {
  return static_cast<int>(std::clamp<long long>(value, -0x7FFFFFFF, 0x7FFFFFFF));
}

// The face's vertical and horizontal design metrics in font units, from the tables GDI reads.
struct DesignMetrics {
  long long unitsPerEm = 2048;
  long long winAscent = 0;
  long long winDescent = 0;
  long long lineGap = 0;
  long long hheaAscender = 0;
  long long hheaDescender = 0;
  long long averageWidth = 0;
  long long boundingWidth = 0;
  long long underlinePosition = 0;
  long long underlineThickness = 0;
  long long strikeOutPosition = 0;
  long long strikeOutSize = 0;
  LONG weight = FW_NORMAL;
  bool fixedPitch = false;
  bool serif = false;
  bool trueType = false;
};

DesignMetrics ReadDesignMetrics(FT_Face face) {
  DesignMetrics m;
  const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
  const auto* hhea = static_cast<const TT_HoriHeader*>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
  const auto* post = static_cast<const TT_Postscript*>(FT_Get_Sfnt_Table(face, FT_SFNT_POST));
  if (os2 != nullptr && os2->version == 0xFFFF) os2 = nullptr;
  m.unitsPerEm = face->units_per_EM > 0 ? face->units_per_EM : 2048;
  m.hheaAscender = hhea != nullptr ? hhea->Ascender : face->ascender;
  m.hheaDescender = hhea != nullptr ? hhea->Descender : face->descender;
  m.lineGap = hhea != nullptr ? hhea->Line_Gap : face->height - (m.hheaAscender - m.hheaDescender);
  if (os2 != nullptr) {
    m.winAscent = os2->usWinAscent;
    // Some fonts store a signed descent in this unsigned field.
    m.winDescent = std::abs(static_cast<FT_Short>(os2->usWinDescent));
  }
  if (m.winAscent + m.winDescent == 0) {
    m.winAscent = m.hheaAscender;
    m.winDescent = -m.hheaDescender;
  }
  if (m.winAscent + m.winDescent <= 0) {
    m.winAscent = m.unitsPerEm * 4 / 5;
    m.winDescent = m.unitsPerEm / 5;
  }
  m.averageWidth = os2 != nullptr && os2->xAvgCharWidth > 0 ? os2->xAvgCharWidth : m.unitsPerEm / 2;
  m.boundingWidth = face->bbox.xMax - face->bbox.xMin;
  m.underlinePosition = post != nullptr ? post->underlinePosition : face->underline_position;
  m.underlineThickness = post != nullptr ? post->underlineThickness : face->underline_thickness;
  if (os2 != nullptr && os2->yStrikeoutSize > 0) {
    m.strikeOutPosition = os2->yStrikeoutPosition;
    m.strikeOutSize = os2->yStrikeoutSize;
  } else {
    m.strikeOutPosition = m.unitsPerEm / 4;
    m.strikeOutSize = m.underlineThickness;
  }
  if (os2 != nullptr && os2->usWeightClass > 0) {
    m.weight = os2->usWeightClass;
  } else {
    m.weight = (face->style_flags & FT_STYLE_FLAG_BOLD) != 0 ? FW_BOLD : FW_NORMAL;
  }
  m.fixedPitch = FT_IS_FIXED_WIDTH(face);
  // PANOSE: Latin text (2) with a serif style of cove through triangle (2..10) has serifs.
  m.serif = os2 != nullptr && os2->panose[0] == 2 && os2->panose[1] >= 2 && os2->panose[1] <= 10;
  m.trueType = FT_IS_SFNT(face);
  return m;
}

// Pixels per em for a logical height: a negative height is the em itself, a positive one the
// cell (ascent plus descent), for which the nearest em whose cell comes out exact is taken.
int PixelsPerEm(LONG requested, const DesignMetrics& m) {
  long long height = requested == 0 ? 16 : requested;
  long long ppem = 0;
  if (height < 0) {
    ppem = -height;
  } else {
    const long long cellUnits = m.winAscent + m.winDescent;
    const long long estimate = MulDivRound(height, m.unitsPerEm, cellUnits);
    ppem = estimate;
    for (long long candidate : {estimate, estimate - 1, estimate + 1}) {
      const long long cell = MulDivRound(m.winAscent, candidate, m.unitsPerEm) +
                             MulDivRound(m.winDescent, candidate, m.unitsPerEm);
      if (candidate >= 1 && cell == height) {
        ppem = candidate;
        break;
      }
    }
  }
  return static_cast<int>(std::clamp<long long>(ppem, 1, kMaxPixelsPerEm));
}

BYTE FamilyBits(const LOGFONTA& logFont, const DesignMetrics& m) {
  if ((logFont.lfPitchAndFamily & 0xF0) != 0) return logFont.lfPitchAndFamily & 0xF0;
  if (m.fixedPitch) return FF_MODERN;
  return m.serif ? FF_ROMAN : FF_SWISS;
}

GenericFamily GenericFor(const LOGFONTA& logFont) {
  const BYTE family = logFont.lfPitchAndFamily & 0xF0;
  if (family == FF_ROMAN) return GenericFamily::Serif;
  if (family == FF_MODERN || (logFont.lfPitchAndFamily & 0x03) == FIXED_PITCH) {
    return GenericFamily::Mono;
  }
  return GenericFamily::Sans;
}

// A line of the font centred on its design position, kept inside the character cell.
FontStroke Stroke(long long position, long long thickness, const DesignMetrics& m, int ppem,
                  int descent) {
  FontStroke stroke;
  stroke.thickness = std::max(1, ToInt(MulDivRound(thickness, ppem, m.unitsPerEm)));
  stroke.offset = -ToInt(MulDivRound(position, ppem, m.unitsPerEm)) - stroke.thickness / 2;
  stroke.offset = std::min(stroke.offset, std::max(0, descent - stroke.thickness));
  return stroke;
}

bool HasOwnGlyph(char32_t character) {
  return character >= 0x20 && !(character >= 0x7F && character < 0xA0);
}

// Copies a rendered bitmap into 8-bit coverage, whatever FreeType's pixel mode.
void CopyCoverage(const FT_Bitmap& bitmap, std::uint8_t* out) {
  const int width = static_cast<int>(bitmap.width);
  const int rows = static_cast<int>(bitmap.rows);
  const unsigned char* top =
      bitmap.pitch < 0 ? bitmap.buffer - static_cast<long>(rows - 1) * bitmap.pitch : bitmap.buffer;
  const int grays = bitmap.num_grays > 1 ? bitmap.num_grays - 1 : 255;
  for (int y = 0; y < rows; ++y) {
    const unsigned char* row = top + static_cast<long>(y) * bitmap.pitch;
    std::uint8_t* dst = out + static_cast<long>(y) * width;
    for (int x = 0; x < width; ++x) {
      switch (bitmap.pixel_mode) {
        case FT_PIXEL_MODE_MONO: dst[x] = (row[x / 8] & (0x80 >> (x % 8))) != 0 ? 255 : 0; break;
        case FT_PIXEL_MODE_BGRA: dst[x] = row[x * 4 + 3]; break;
        case FT_PIXEL_MODE_GRAY:
          dst[x] = grays == 255 ? row[x] : static_cast<std::uint8_t>(row[x] * 255 / grays);
          break;
        default: dst[x] = 0; break;
      }
    }
  }
}

}  // namespace

RealizedFont::RealizedFont(std::shared_ptr<FontLibrary> library, const LOGFONTA& logFont)
    : library_(std::move(library)), generation_(library_->Generation()) {
  const bool bold = PicksBoldFace(logFont.lfWeight);
  const bool italic = logFont.lfItalic != 0;
  antialiased_ = SmoothsGlyphs(logFont.lfQuality);
  const std::string name(logFont.lfFaceName, strnlen(logFont.lfFaceName, LF_FACESIZE));
  const ResolvedFace& resolved = library_->Resolve(name, GenericFor(logFont), bold, italic);
  face_ = resolved.face != nullptr && FT_IS_SCALABLE(resolved.face) ? resolved.face : nullptr;
  faceName_ = face_ != nullptr ? resolved.family : name;
  syntheticBold_ = bold && !resolved.bold;
  syntheticItalic_ = italic && !resolved.italic;
  if (face_ != nullptr) {
    ComputeMetrics(logFont, resolved.italic);
  } else {
    ComputeMetricsWithoutFace(logFont);
  }
}

void RealizedFont::ComputeMetrics(const LOGFONTA& logFont, bool italicFace) {
  const DesignMetrics m = ReadDesignMetrics(face_);
  ppem_ = PixelsPerEm(logFont.lfHeight, m);
  const int ascent = ToInt(MulDivRound(m.winAscent, ppem_, m.unitsPerEm));
  const int descent = ToInt(MulDivRound(m.winDescent, ppem_, m.unitsPerEm));
  const int naturalWidth = std::max(1, ToInt(MulDivRound(m.averageWidth, ppem_, m.unitsPerEm)));
  // A requested average width scales the glyphs horizontally against the reported natural
  // width, so that feeding a font's own metrics back gives the same font.
  const long long requestedWidth = std::llabs(static_cast<long long>(logFont.lfWidth));
  const bool widthApplies = requestedWidth > 0 && requestedWidth <= 100LL * ppem_;
  xScale_ = widthApplies ? static_cast<double>(requestedWidth) / naturalWidth : 1.0;
  emboldenPixels_ = syntheticBold_ ? std::max(1, (ppem_ + 12) / 24) : 0;

  TEXTMETRICA& tm = metrics_;
  tm.tmAscent = ascent;
  tm.tmDescent = descent;
  tm.tmHeight = ascent + descent;
  tm.tmInternalLeading = std::max(0, tm.tmHeight - ppem_);
  const long long cellUnits = m.winAscent + m.winDescent;
  tm.tmExternalLeading =
      std::max(0, ToInt(MulDivRound(m.lineGap - (cellUnits - (m.hheaAscender - m.hheaDescender)),
                                    ppem_, m.unitsPerEm)));
  tm.tmAveCharWidth = widthApplies ? ToInt(requestedWidth) : naturalWidth;
  tm.tmMaxCharWidth = std::max(1, ToInt(std::llround(static_cast<double>(m.boundingWidth) * ppem_ *
                                                     xScale_ / static_cast<double>(m.unitsPerEm))));
  tm.tmWeight = syntheticBold_ ? FW_BOLD : m.weight;
  tm.tmOverhang = 0;
  tm.tmDigitizedAspectX = 96;
  tm.tmDigitizedAspectY = 96;
  tm.tmFirstChar = 0x1E;
  tm.tmLastChar = 0xFF;
  tm.tmDefaultChar = 0x1F;
  tm.tmBreakChar = 0x20;
  tm.tmItalic = logFont.lfItalic != 0 || italicFace ? 255 : 0;
  tm.tmUnderlined = logFont.lfUnderline != 0 ? 255 : 0;
  tm.tmStruckOut = logFont.lfStrikeOut != 0 ? 255 : 0;
  // TMPF_FIXED_PITCH set means variable pitch, as GDI has it.
  tm.tmPitchAndFamily =
      static_cast<BYTE>(FamilyBits(logFont, m) | (m.fixedPitch ? 0 : TMPF_FIXED_PITCH) |
                        TMPF_VECTOR | (m.trueType ? TMPF_TRUETYPE : 0));
  tm.tmCharSet = logFont.lfCharSet == DEFAULT_CHARSET ? ANSI_CHARSET : logFont.lfCharSet;

  underline_ = Stroke(m.underlinePosition, m.underlineThickness, m, ppem_, descent);
  strikeOut_ = Stroke(m.strikeOutPosition, m.strikeOutSize, m, ppem_, descent);
}

// Without any installed font text still measures plausibly; nothing is drawn.
void RealizedFont::ComputeMetricsWithoutFace(const LOGFONTA& logFont) {
  const long long height = logFont.lfHeight == 0 ? 16 : std::llabs(logFont.lfHeight);
  ppem_ = static_cast<int>(std::clamp<long long>(height, 1, kMaxPixelsPerEm));
  TEXTMETRICA& tm = metrics_;
  tm.tmAscent = ppem_ * 4 / 5;
  tm.tmDescent = ppem_ - tm.tmAscent;
  tm.tmHeight = ppem_;
  tm.tmAveCharWidth = std::max(1, ppem_ / 2);
  tm.tmMaxCharWidth = ppem_;
  tm.tmWeight = PicksBoldFace(logFont.lfWeight) ? FW_BOLD : FW_NORMAL;
  tm.tmDigitizedAspectX = 96;
  tm.tmDigitizedAspectY = 96;
  tm.tmItalic = logFont.lfItalic != 0 ? 255 : 0;
  tm.tmUnderlined = logFont.lfUnderline != 0 ? 255 : 0;
  tm.tmStruckOut = logFont.lfStrikeOut != 0 ? 255 : 0;
  tm.tmPitchAndFamily = static_cast<BYTE>((logFont.lfPitchAndFamily & 0xF0) | TMPF_FIXED_PITCH);
  tm.tmCharSet = logFont.lfCharSet == DEFAULT_CHARSET ? ANSI_CHARSET : logFont.lfCharSet;
  underline_ = FontStroke{std::min(1, tm.tmDescent - 1), 1};
  strikeOut_ = FontStroke{-tm.tmAscent / 3, 1};
}

const Glyph& RealizedFont::OtherGlyph(char32_t character) const {
  if (auto it = others_.find(character); it != others_.end()) return it->second;
  return others_.emplace(character, Rasterize(character)).first->second;
}

Glyph RealizedFont::Rasterize(char32_t character) const {
  Glyph glyph;
  FT_Face face = face_;
  if (face == nullptr) {
    glyph.advance = metrics_.tmAveCharWidth;
    return glyph;
  }
  FT_UInt index = FT_Get_Char_Index(face, character);
  if (index == 0 && HasOwnGlyph(character)) {
    if (FaceHandle fallback = library_->FallbackFor(character)) {
      face = fallback;
      index = FT_Get_Char_Index(face, character);
    }
  }
  if (FT_Set_Char_Size(face, 0, static_cast<FT_F26Dot6>(ppem_) * 64, 72, 72) != 0) {
    glyph.advance = metrics_.tmAveCharWidth;
    return glyph;
  }
  FT_Matrix matrix{static_cast<FT_Fixed>(std::lround(xScale_ * 0x10000)),
                   syntheticItalic_ ? kObliqueShear : 0, 0, 0x10000};
  FT_Set_Transform(face, &matrix, nullptr);
  FT_Error error =
      FT_Load_Glyph(face, index, antialiased_ ? FT_LOAD_TARGET_NORMAL : FT_LOAD_TARGET_MONO);
  FT_GlyphSlot slot = face->glyph;
  if (error == 0 && syntheticBold_ && slot->format == FT_GLYPH_FORMAT_OUTLINE) {
    // Widen to the right only, as GDI's emboldening smears the glyph rightwards.
    const FT_Pos strength = static_cast<FT_Pos>(emboldenPixels_) * 64;
    FT_Outline_EmboldenXY(&slot->outline, strength, 0);
    FT_Outline_Translate(&slot->outline, strength / 2, 0);
  }
  if (error == 0) {
    error = FT_Render_Glyph(slot, antialiased_ ? FT_RENDER_MODE_NORMAL : FT_RENDER_MODE_MONO);
  }
  FT_Set_Transform(face, nullptr, nullptr);
  if (error != 0) {
    glyph.advance = metrics_.tmAveCharWidth;
    return glyph;
  }
  glyph.advance = static_cast<int>((slot->advance.x + 32) >> 6) + emboldenPixels_;
  glyph.left = slot->bitmap_left;
  glyph.top = slot->bitmap_top;
  glyph.width = static_cast<int>(slot->bitmap.width);
  glyph.height = static_cast<int>(slot->bitmap.rows);
  if (glyph.width > 0 && glyph.height > 0) {
    auto coverage = std::make_unique<std::uint8_t[]>(static_cast<std::size_t>(glyph.width) *
                                                     static_cast<std::size_t>(glyph.height));
    CopyCoverage(slot->bitmap, coverage.get());
    glyph.coverage = coverage.get();
    bitmaps_.push_back(std::move(coverage));
  } else {
    glyph.width = glyph.height = 0;
  }
  return glyph;
}

}  // namespace glyphon::win::soft
