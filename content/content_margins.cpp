#include "content/content_margins.h"

#include "control/glyphon_constants.h"

namespace glyphon {

SideMargins ContentMargins(std::int32_t style, bool showFocus) {
  switch (style) {
    // The focus cue of the 9x frame sits inside the bevel and takes a pixel more on the right.
    case zonStyleWin9x: return showFocus ? SideMargins{6, 4, 4, 7} : SideMargins{5, 4, 4, 5};
    case zonStyleMac8x: return {8, 10, 8, 8};
    default: return {6, 6, 6, 6};
  }
}

}  // namespace glyphon
