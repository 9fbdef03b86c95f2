// The side margins of the content by style. All four members exist; the layout applies only left
// and right, because vertical placement always centres on the whole client height.
#pragma once

#include <cstdint>

namespace glyphon {

struct SideMargins {
  int left = 0;
  int top = 0;
  int bottom = 0;
  int right = 0;
};

SideMargins ContentMargins(std::int32_t style, bool showFocus);

}  // namespace glyphon
