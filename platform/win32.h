// The Win32 subset the system is written against: everything above platform/ includes this header
// and calls these functions, whichever engine serves the calling thread.
#pragma once

#include "platform/win32_functions.h"
#include "platform/win32_types.h"

namespace glyphon::win {

#define GLYPHON_DECLARE_FUNCTION(ret, name, params, args) ret name params;
GLYPHON_WIN32_FUNCTIONS(GLYPHON_DECLARE_FUNCTION)
#undef GLYPHON_DECLARE_FUNCTION

// Convenience forms that Win32 also has.
inline BOOL SetRect(RECT* rect, int left, int top, int right, int bottom) {
  if (rect == nullptr) return FALSE;
  *rect = RECT{left, top, right, bottom};
  return TRUE;
}
inline BOOL FloodFill(HDC hdc, int x, int y, COLORREF border) {
  return ExtFloodFill(hdc, x, y, border, FLOODFILLBORDER);
}
inline BOOL DrawIcon(HDC hdc, int x, int y, HICON icon) {
  return DrawIconEx(hdc, x, y, icon, 0, 0, 0, nullptr, DI_NORMAL);
}

}  // namespace glyphon::win
