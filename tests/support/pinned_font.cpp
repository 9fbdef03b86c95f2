#include "tests/support/pinned_font.h"

#include "platform/soft/soft_engine.h"
#include "platform/soft/text/text_system.h"

namespace glyphon::testing {

PinnedFont::PinnedFont(const std::vector<std::string>& files) {
  win::soft::ThreadSoftEngine().Text()->UseFontFiles(files);
}

PinnedFont::~PinnedFont() { win::soft::ThreadSoftEngine().Text()->UseFontFiles({}); }

}  // namespace glyphon::testing
