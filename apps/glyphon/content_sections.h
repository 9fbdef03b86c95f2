// The gallery's sections for the content of a button: caption and picture placement, picture
// styles and effects in every state, disabled pictures per style, wrapped captions and access keys.
#pragma once

#include <vector>

#include "apps/glyphon/gallery_sheet.h"

namespace glyphon::apps {

std::vector<GallerySection> ContentSections();

}  // namespace glyphon::apps
