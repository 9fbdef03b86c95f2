// The platform's message boxes as SDL message boxes over the demo's window.
#pragma once

#include <SDL.h>

#include "platform/win32.h"

namespace glyphon::apps {

// Asks the user; returns the Win32 answer (IDOK, IDYES, IDNO, ...). Yes/No, OK/Cancel and OK
// boxes are shown as such; Escape gives the safe answer.
int ShowSdlMessageBox(SDL_Window* window, win::LPCSTR text, win::LPCSTR caption, win::UINT type);

}  // namespace glyphon::apps
