// A logical font made concrete: one face at a pixel size with any synthesised bold or slant, its
// metrics as GDI reports them at 96 DPI, and a cache of rasterised glyphs so that drawing the same
// text again allocates nothing.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/soft/text/font_library.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

// Weights above 550 pick (or synthesise) a bold face, as GDI's font mapper does.
constexpr bool PicksBoldFace(LONG weight) { return weight > 550; }

// Quality 4 and the two ClearType qualities smooth glyphs; every other quality draws them one-bit.
constexpr bool SmoothsGlyphs(BYTE quality) {
  return quality == ANTIALIASED_QUALITY || quality == 5 || quality == 6;
}

struct Glyph {
  int advance = 0;
  int left = 0;  // from the pen position to the first column
  int top = 0;   // from the baseline up to the first row
  int width = 0;
  int height = 0;
  const std::uint8_t* coverage = nullptr;  // width * height values, 255 = fully covered
};

// A horizontal line of the font (underline, strike-out): its first row counted from the row just
// below the baseline, and its thickness in rows.
struct FontStroke {
  int offset = 0;
  int thickness = 1;
};

struct RealizedFont {
 public:
  RealizedFont(std::shared_ptr<FontLibrary> library, const LOGFONTA& logFont);
  RealizedFont(const RealizedFont&) = delete;
  RealizedFont& operator=(const RealizedFont&) = delete;

  const TEXTMETRICA& Metrics() const { return metrics_; }
  const std::string& FaceName() const { return faceName_; }
  bool Antialiased() const { return antialiased_; }
  bool Underlined() const { return metrics_.tmUnderlined != 0; }
  bool StruckOut() const { return metrics_.tmStruckOut != 0; }
  const FontStroke& Underline() const { return underline_; }
  const FontStroke& StrikeOut() const { return strikeOut_; }
  unsigned Generation() const { return generation_; }

  // The glyph for a character, rasterised on first use.
  const Glyph& GlyphFor(char32_t character) const {
    if (character < latin_.size()) {
      if (!latinLoaded_[character]) {
        latin_[character] = Rasterize(character);
        latinLoaded_[character] = true;
      }
      return latin_[character];
    }
    return OtherGlyph(character);
  }

 private:
  void ComputeMetrics(const LOGFONTA& logFont, bool italicFace);
  void ComputeMetricsWithoutFace(const LOGFONTA& logFont);
  const Glyph& OtherGlyph(char32_t character) const;
  Glyph Rasterize(char32_t character) const;

  std::shared_ptr<FontLibrary> library_;
  unsigned generation_;
  FaceHandle face_ = nullptr;
  std::string faceName_;
  int ppem_ = 0;
  double xScale_ = 1.0;
  bool antialiased_ = false;
  bool syntheticBold_ = false;
  bool syntheticItalic_ = false;
  int emboldenPixels_ = 0;
  TEXTMETRICA metrics_{};
  FontStroke underline_;
  FontStroke strikeOut_;

  // Glyph cache: Latin-1 by index, the rest by map; map nodes keep their addresses.
  mutable std::array<Glyph, 256> latin_{};
  mutable std::bitset<256> latinLoaded_;
  mutable std::unordered_map<char32_t, Glyph> others_;
  mutable std::vector<std::unique_ptr<std::uint8_t[]>> bitmaps_;
};

}  // namespace glyphon::win::soft
