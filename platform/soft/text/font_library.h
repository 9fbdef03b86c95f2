// FreeType faces found by name through fontconfig, shared by every font one engine realises. The
// library outlives the engine's handle table when fonts still hold it, so faces stay valid for
// as long as a realised font can reach them.
#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

struct FT_FaceRec_;
struct FT_LibraryRec_;
struct _FcConfig;

namespace glyphon::win::soft {

using FaceHandle = FT_FaceRec_*;

// Where a name that matches no installed face falls back to.
enum class GenericFamily { Sans, Serif, Mono };

// The face chosen for a logical font and the styles it has by itself.
struct ResolvedFace {
  FaceHandle face = nullptr;  // null only when no font is installed at all
  std::string family;         // as the font spells it
  bool bold = false;
  bool italic = false;
};

class FontLibrary {
 public:
  FontLibrary();
  ~FontLibrary();
  FontLibrary(const FontLibrary&) = delete;
  FontLibrary& operator=(const FontLibrary&) = delete;

  // Limits every lookup to these font files; an empty list brings back the system's fonts.
  void UseFontFiles(const std::vector<std::string>& files);

  // Changes whenever the set of fonts does, so realised fonts can tell they are stale.
  unsigned Generation() const { return generation_; }

  // The best face for a logical font's face name, weight and slant.
  const ResolvedFace& Resolve(const std::string& name, GenericFamily generic, bool bold,
                              bool italic);

  // A face that has a glyph for the character, or null when no font has one.
  FaceHandle FallbackFor(char32_t character);

 private:
  _FcConfig* Config();
  FaceHandle LoadFace(const std::string& file, int index);
  ResolvedFace Find(const std::string& name, GenericFamily generic, bool bold, bool italic);

  FT_LibraryRec_* library_ = nullptr;
  _FcConfig* config_ = nullptr;
  bool configLoaded_ = false;
  std::vector<std::string> pinnedFiles_;
  unsigned generation_ = 1;
  std::map<std::pair<std::string, int>, FaceHandle> faces_;
  std::map<std::string, ResolvedFace> resolved_;
  std::unordered_map<char32_t, FaceHandle> fallbacks_;
};

}  // namespace glyphon::win::soft
