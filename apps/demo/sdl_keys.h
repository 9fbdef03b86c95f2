// SDL's key codes as the virtual keys the soft engine takes.
#pragma once

#include <SDL.h>

namespace glyphon::apps {

// 0 for a key the demo does not pass on.
int VirtualKeyOf(SDL_Keycode key);

}  // namespace glyphon::apps
