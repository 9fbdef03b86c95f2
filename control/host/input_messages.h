// A form host's translation of its control window's messages into the control's notifications:
// mouse (with the button and shift values the events carry), keys, focus and paint. Clicking
// with the left button gives the window the focus first, as a form does. The in-memory host and
// the ActiveX adapter share it.
#pragma once

#include "control/host/hosted_control.h"
#include "platform/win32.h"

namespace glyphon {

// False for a message that is not one of these; the caller passes it on.
bool DeliverControlMessage(HostedControl& control, win::HWND window, win::UINT message,
                           win::WPARAM wParam, win::LPARAM lParam);

}  // namespace glyphon
