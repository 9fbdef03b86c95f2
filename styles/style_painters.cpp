#include "styles/style_painters.h"

namespace glyphon {

// The looks land style by style; until then a pass leaves the canvas as it is.
void PaintBackground(Canvas&, const ButtonView&, std::int32_t) {}
void PaintFrame(Canvas&, const ButtonView&, std::int32_t) {}

}  // namespace glyphon
