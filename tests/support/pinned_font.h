// Pins the soft engine's fonts to installed font files for a scope, so that text metrics and
// rendered images do not depend on what else the machine has installed.
#pragma once

#include <string>
#include <vector>

namespace glyphon::testing {

// The face text tests measure and render with (Debian's fonts-dejavu-core).
inline constexpr const char* kPinnedFontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

class PinnedFont {
 public:
  PinnedFont() : PinnedFont(std::vector<std::string>{kPinnedFontFile}) {}
  explicit PinnedFont(const std::vector<std::string>& files);
  ~PinnedFont();  // back to the system's fonts
  PinnedFont(const PinnedFont&) = delete;
  PinnedFont& operator=(const PinnedFont&) = delete;
};

}  // namespace glyphon::testing
