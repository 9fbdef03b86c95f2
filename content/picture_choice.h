// Which of the button's pictures shows in a draw state.
#pragma once

#include <cstdint>

#include "content/button_view.h"

namespace glyphon {

// A picture to draw: neither no object nor an empty one.
inline bool HasPicture(const StdPicture& picture) { return picture.Type() != win::PICTYPE_NONE; }

// Down falls back to PictureOver and then Picture, hot to Picture; any unknown state shows no
// picture. A disabled button with PictureDisabled shows that one whatever the state.
StdPicture ChoosePicture(const ButtonView& button, std::int32_t drawState);

}  // namespace glyphon
