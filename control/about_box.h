// The About box: product name, version and a link to the project's web page. It is modeless:
// the host's message loop runs it, and closing it (Escape, Enter or a close request) destroys it.
#pragma once

#include "platform/win32.h"

namespace glyphon {

// Opens a new About box over owner and returns its window (null if it could not be created).
win::HWND ShowAboutBox(win::HWND owner);

}  // namespace glyphon
