#include "platform/soft/text/font_library.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H

#include <algorithm>
#include <cctype>
#include <memory>
#include <string_view>

namespace glyphon::win::soft {

namespace {

std::string ToLower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return lower;
}

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
           return std::tolower(x) == std::tolower(y);
         });
}

// Installed families that stand in for the classic faces, best first, then fontconfig's alias.
constexpr std::string_view kSansFaces[] = {"Liberation Sans", "Arimo", "DejaVu Sans", "sans-serif"};
constexpr std::string_view kSerifFaces[] = {"Liberation Serif", "Tinos", "DejaVu Serif", "serif"};
constexpr std::string_view kMonoFaces[] = {"Liberation Mono", "Cousine", "DejaVu Sans Mono",
                                           "monospace"};

struct ClassicName {
  std::string_view name;
  GenericFamily family;
};
constexpr ClassicName kClassicNames[] = {
    {"ms sans serif", GenericFamily::Sans}, {"microsoft sans serif", GenericFamily::Sans},
    {"ms shell dlg", GenericFamily::Sans},  {"ms shell dlg 2", GenericFamily::Sans},
    {"tahoma", GenericFamily::Sans},        {"arial", GenericFamily::Sans},
    {"helvetica", GenericFamily::Sans},     {"chicago", GenericFamily::Sans},
    {"charcoal", GenericFamily::Sans},      {"system", GenericFamily::Sans},
    {"ms serif", GenericFamily::Serif},     {"times new roman", GenericFamily::Serif},
    {"times", GenericFamily::Serif},        {"courier", GenericFamily::Mono},
    {"courier new", GenericFamily::Mono},   {"fixedsys", GenericFamily::Mono},
    {"terminal", GenericFamily::Mono},      {"lucida console", GenericFamily::Mono},
};

const std::string_view* FacesFor(GenericFamily family, std::size_t& count) {
  switch (family) {
    case GenericFamily::Serif: count = std::size(kSerifFaces); return kSerifFaces;
    case GenericFamily::Mono: count = std::size(kMonoFaces); return kMonoFaces;
    case GenericFamily::Sans: break;
  }
  count = std::size(kSansFaces);
  return kSansFaces;
}

bool IsGenericAlias(std::string_view name) {
  return name == "sans-serif" || name == "serif" || name == "monospace";
}

struct PatternDeleter {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

struct FontSetDeleter {
  void operator()(FcFontSet* set) const { FcFontSetDestroy(set); }
};

// The pattern fontconfig matches against, with the config's and the default substitutions done.
Pattern RequestFor(FcConfig* config, const std::string& family, bool bold, bool italic) {
  Pattern pattern(FcPatternCreate());
  if (!pattern) return nullptr;
  FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.c_str()));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
  FcPatternAddInteger(pattern.get(), FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
  FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
  FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
  FcDefaultSubstitute(pattern.get());
  return pattern;
}

// The family value of a match that equals the requested name, as the font spells it.
const char* MatchingFamily(FcPattern* match, std::string_view name) {
  FcChar8* value = nullptr;
  for (int i = 0; FcPatternGetString(match, FC_FAMILY, i, &value) == FcResultMatch; ++i) {
    const char* family = reinterpret_cast<const char*>(value);
    if (SameName(family, name)) return family;
  }
  return nullptr;
}

}  // namespace

FontLibrary::FontLibrary() {
  if (FT_Init_FreeType(&library_) != 0) library_ = nullptr;
}

FontLibrary::~FontLibrary() {
  for (auto& [key, face] : faces_) FT_Done_Face(face);
  if (library_ != nullptr) FT_Done_FreeType(library_);
  if (config_ != nullptr) FcConfigDestroy(config_);
}

void FontLibrary::UseFontFiles(const std::vector<std::string>& files) {
  pinnedFiles_ = files;
  if (config_ != nullptr) FcConfigDestroy(config_);
  config_ = nullptr;
  configLoaded_ = false;
  resolved_.clear();
  fallbacks_.clear();
  ++generation_;
}

FcConfig* FontLibrary::Config() {
  if (configLoaded_) return config_;
  configLoaded_ = true;
  if (pinnedFiles_.empty()) {
    config_ = FcInitLoadConfigAndFonts();
    return config_;
  }
  // A configuration without rules or directories: exactly the given files, nothing aliased.
  config_ = FcConfigCreate();
  if (config_ == nullptr) return nullptr;
  for (const std::string& file : pinnedFiles_) {
    FcConfigAppFontAddFile(config_, reinterpret_cast<const FcChar8*>(file.c_str()));
  }
  return config_;
}

FaceHandle FontLibrary::LoadFace(const std::string& file, int index) {
  const auto key = std::make_pair(file, index);
  if (auto it = faces_.find(key); it != faces_.end()) return it->second;
  if (library_ == nullptr) return nullptr;
  FT_Face face = nullptr;
  if (FT_New_Face(library_, file.c_str(), index, &face) != 0) return nullptr;
  faces_.emplace(key, face);
  return face;
}

const ResolvedFace& FontLibrary::Resolve(const std::string& name, GenericFamily generic, bool bold,
                                         bool italic) {
  std::string key = ToLower(name);
  key += static_cast<char>('0' + static_cast<int>(generic));
  key += bold ? 'b' : '-';
  key += italic ? 'i' : '-';
  if (auto it = resolved_.find(key); it != resolved_.end()) return it->second;
  return resolved_.emplace(key, Find(name, generic, bold, italic)).first->second;
}

ResolvedFace FontLibrary::Find(const std::string& name, GenericFamily generic, bool bold,
                               bool italic) {
  FcConfig* config = Config();
  if (config == nullptr) return {};

  // Candidates: a classic name goes straight to its stand-ins, any other name is tried as given.
  std::vector<std::string> candidates;
  const std::string lower = ToLower(name);
  const auto classic = std::find_if(std::begin(kClassicNames), std::end(kClassicNames),
                                    [&](const ClassicName& c) { return c.name == lower; });
  if (classic != std::end(kClassicNames)) {
    generic = classic->family;
  } else if (!name.empty()) {
    candidates.push_back(name);
  }
  std::size_t count = 0;
  const std::string_view* faces = FacesFor(generic, count);
  for (std::size_t i = 0; i < count; ++i) candidates.emplace_back(faces[i]);

  for (const std::string& candidate : candidates) {
    Pattern request = RequestFor(config, candidate, bold, italic);
    if (!request) continue;
    FcResult result = FcResultNoMatch;
    Pattern match(FcFontMatch(config, request.get(), &result));
    if (!match) continue;
    const char* family = MatchingFamily(match.get(), candidate);
    FcChar8* firstFamily = nullptr;
    if (family == nullptr && IsGenericAlias(candidate) &&
        FcPatternGetString(match.get(), FC_FAMILY, 0, &firstFamily) == FcResultMatch) {
      family = reinterpret_cast<const char*>(firstFamily);
    }
    FcChar8* file = nullptr;
    if (family == nullptr || FcPatternGetString(match.get(), FC_FILE, 0, &file) != FcResultMatch) {
      continue;
    }
    int index = 0;
    FcPatternGetInteger(match.get(), FC_INDEX, 0, &index);
    FaceHandle face = LoadFace(reinterpret_cast<const char*>(file), index);
    if (face == nullptr) continue;
    int weight = FC_WEIGHT_REGULAR;
    int slant = FC_SLANT_ROMAN;
    FcPatternGetInteger(match.get(), FC_WEIGHT, 0, &weight);
    FcPatternGetInteger(match.get(), FC_SLANT, 0, &slant);
    return ResolvedFace{face, family, weight >= FC_WEIGHT_DEMIBOLD, slant != FC_SLANT_ROMAN};
  }
  return {};
}

FaceHandle FontLibrary::FallbackFor(char32_t character) {
  if (auto it = fallbacks_.find(character); it != fallbacks_.end()) return it->second;
  FaceHandle found = nullptr;
  FcConfig* config = Config();
  FcCharSet* wanted = config != nullptr ? FcCharSetCreate() : nullptr;
  if (wanted != nullptr) {
    FcCharSetAddChar(wanted, character);
    Pattern request(FcPatternCreate());
    if (request) {
      FcPatternAddString(request.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>("sans-serif"));
      FcPatternAddCharSet(request.get(), FC_CHARSET, wanted);
      FcPatternAddBool(request.get(), FC_SCALABLE, FcTrue);
      FcConfigSubstitute(config, request.get(), FcMatchPattern);
      FcDefaultSubstitute(request.get());
      FcResult result = FcResultNoMatch;
      std::unique_ptr<FcFontSet, FontSetDeleter> sorted(
          FcFontSort(config, request.get(), FcTrue, nullptr, &result));
      for (int i = 0; sorted && i < sorted->nfont && found == nullptr; ++i) {
        FcPattern* font = sorted->fonts[i];
        FcCharSet* coverage = nullptr;
        FcChar8* file = nullptr;
        int index = 0;
        if (FcPatternGetCharSet(font, FC_CHARSET, 0, &coverage) != FcResultMatch ||
            !FcCharSetHasChar(coverage, character) ||
            FcPatternGetString(font, FC_FILE, 0, &file) != FcResultMatch) {
          continue;
        }
        FcPatternGetInteger(font, FC_INDEX, 0, &index);
        FaceHandle face = LoadFace(reinterpret_cast<const char*>(file), index);
        if (face != nullptr && FT_Get_Char_Index(face, character) != 0) found = face;
      }
    }
    FcCharSetDestroy(wanted);
  }
  fallbacks_.emplace(character, found);
  return found;
}

}  // namespace glyphon::win::soft
