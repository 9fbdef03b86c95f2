#include "apps/demo/sdl_keys.h"

#include "platform/win32.h"

namespace glyphon::apps {

int VirtualKeyOf(SDL_Keycode key) {
  if (key >= SDLK_a && key <= SDLK_z) return 'A' + (key - SDLK_a);
  if (key >= SDLK_0 && key <= SDLK_9) return '0' + (key - SDLK_0);
  switch (key) {
    case SDLK_TAB: return win::VK_TAB;
    case SDLK_RETURN:
    case SDLK_KP_ENTER: return win::VK_RETURN;
    case SDLK_SPACE: return win::VK_SPACE;
    case SDLK_ESCAPE: return win::VK_ESCAPE;
    case SDLK_LSHIFT:
    case SDLK_RSHIFT: return win::VK_SHIFT;
    case SDLK_LCTRL:
    case SDLK_RCTRL: return win::VK_CONTROL;
    case SDLK_LALT:
    case SDLK_RALT: return win::VK_MENU;
    default: return 0;
  }
}

}  // namespace glyphon::apps
