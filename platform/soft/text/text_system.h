// Fonts and text output of the soft engine: realises logical fonts through the font library,
// measures and lays out text as GDI and USER do, and paints it onto DC surfaces.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/soft/gdi_objects.h"
#include "platform/soft/soft_engine.h"
#include "platform/soft/text/text_layout.h"

namespace glyphon::win::soft {

class FontLibrary;
class SoftEngine;

class TextSystem {
 public:
  explicit TextSystem(SoftEngine& engine);
  ~TextSystem();
  TextSystem(const TextSystem&) = delete;
  TextSystem& operator=(const TextSystem&) = delete;

  // Test hook: face lookups see only these font files, so that rendered text does not depend on
  // what else is installed. An empty list brings back the system's fonts.
  void UseFontFiles(const std::vector<std::string>& files);

  // The realised form of the font selected into a DC.
  const RealizedFont& FontOf(const DcObject& dc);

  SIZE Extent(const DcObject& dc, const char* text, std::size_t size);
  void TextOut(DcObject& dc, int x, int y, const char* text, std::size_t size);
  // DrawTextA on a non-empty string; returns the height of the text.
  int DrawText(DcObject& dc, const char* text, std::size_t size, RECT& rect, UINT format);

 private:
  // What tells two logical fonts apart once realised.
  struct FontKey {
    LONG height;
    LONG width;
    bool bold;
    bool italic;
    bool underline;
    bool strikeOut;
    bool antialiased;
    BYTE charSet;
    BYTE pitchAndFamily;
    std::array<char, LF_FACESIZE> face;
    auto operator<=>(const FontKey&) const = default;
  };
  static FontKey KeyFor(const LOGFONTA& logFont);

  std::shared_ptr<const RealizedFont> Realize(const LOGFONTA& logFont);
  // Paints one line of chars_ with its top-left corner at (x, top). Glyphs and background are
  // clipped to clip; keyClip, when given, limits the access-key underline as USER does.
  void PaintLine(DcObject& dc, const RealizedFont& font, const LayoutLine& line, int x, int top,
                 const RECT& clip, const RECT* keyClip);

  SoftEngine& engine_;
  std::shared_ptr<FontLibrary> library_;
  std::map<FontKey, std::shared_ptr<const RealizedFont>> fonts_;
  // Scratch space kept between calls, so that drawing text again allocates nothing.
  std::vector<LayoutChar> chars_;
  std::vector<LayoutLine> lines_;
};

// The engine's text system, or null where the build has no glyph source.
std::unique_ptr<TextSystem, TextSystemDeleter> NewTextSystem(SoftEngine& engine);

}  // namespace glyphon::win::soft
