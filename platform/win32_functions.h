// The one list of platform functions. Each entry is X(return type, name, (parameters), (arguments)).
// The list declares the free functions of glyphon::win, the pure virtual members of Engine and the
// members of every engine, so a signature is written exactly once.
#pragma once

// GDI: device contexts, objects, raster drawing, bitmaps, palettes, colours, icons.
#define GLYPHON_WIN32_GDI_FUNCTIONS(X)                                                                \
  X(HDC, CreateCompatibleDC, (HDC hdc), (hdc))                                                        \
  X(BOOL, DeleteDC, (HDC hdc), (hdc))                                                                 \
  X(int, SaveDC, (HDC hdc), (hdc))                                                                    \
  X(BOOL, RestoreDC, (HDC hdc, int savedDc), (hdc, savedDc))                                          \
  X(int, GetDeviceCaps, (HDC hdc, int index), (hdc, index))                                           \
  X(HBITMAP, CreateCompatibleBitmap, (HDC hdc, int cx, int cy), (hdc, cx, cy))                        \
  X(HBITMAP, CreateBitmap, (int width, int height, UINT planes, UINT bitCount, const void* bits),     \
    (width, height, planes, bitCount, bits))                                                          \
  X(HBITMAP, CreateDIBSection,                                                                        \
    (HDC hdc, const BITMAPINFO* info, UINT usage, void** bits, void* section, DWORD offset),          \
    (hdc, info, usage, bits, section, offset))                                                        \
  X(UINT, SetDIBColorTable, (HDC hdc, UINT start, UINT count, const RGBQUAD* colors),                 \
    (hdc, start, count, colors))                                                                      \
  X(UINT, GetDIBColorTable, (HDC hdc, UINT start, UINT count, RGBQUAD* colors),                       \
    (hdc, start, count, colors))                                                                      \
  X(int, GetDIBits,                                                                                   \
    (HDC hdc, HBITMAP bitmap, UINT start, UINT lines, void* bits, BITMAPINFO* info, UINT usage),      \
    (hdc, bitmap, start, lines, bits, info, usage))                                                   \
  X(int, SetDIBits,                                                                                   \
    (HDC hdc, HBITMAP bitmap, UINT start, UINT lines, const void* bits, const BITMAPINFO* info,       \
     UINT usage),                                                                                     \
    (hdc, bitmap, start, lines, bits, info, usage))                                                   \
  X(LONG, GetBitmapBits, (HBITMAP bitmap, LONG size, void* bits), (bitmap, size, bits))              \
  X(LONG, SetBitmapBits, (HBITMAP bitmap, DWORD size, const void* bits), (bitmap, size, bits))        \
  X(int, GetObjectA, (HGDIOBJ object, int size, void* buffer), (object, size, buffer))                \
  X(DWORD, GetObjectType, (HGDIOBJ object), (object))                                                 \
  X(HGDIOBJ, GetCurrentObject, (HDC hdc, UINT type), (hdc, type))                                     \
  X(HGDIOBJ, GetStockObject, (int index), (index))                                                    \
  X(HGDIOBJ, SelectObject, (HDC hdc, HGDIOBJ object), (hdc, object))                                  \
  X(BOOL, DeleteObject, (HGDIOBJ object), (object))                                                   \
  X(HPEN, CreatePen, (int style, int width, COLORREF color), (style, width, color))                   \
  X(HBRUSH, CreateSolidBrush, (COLORREF color), (color))                                              \
  X(HBRUSH, CreateHatchBrush, (int hatch, COLORREF color), (hatch, color))                            \
  X(HBRUSH, CreateBrushIndirect, (const LOGBRUSH* logBrush), (logBrush))                              \
  X(HBRUSH, CreatePatternBrush, (HBITMAP bitmap), (bitmap))                                           \
  X(HBRUSH, GetSysColorBrush, (int index), (index))                                                   \
  X(int, SetROP2, (HDC hdc, int mode), (hdc, mode))                                                   \
  X(int, GetROP2, (HDC hdc), (hdc))                                                                   \
  X(COLORREF, SetBkColor, (HDC hdc, COLORREF color), (hdc, color))                                    \
  X(COLORREF, GetBkColor, (HDC hdc), (hdc))                                                           \
  X(int, SetBkMode, (HDC hdc, int mode), (hdc, mode))                                                 \
  X(int, GetBkMode, (HDC hdc), (hdc))                                                                 \
  X(COLORREF, SetTextColor, (HDC hdc, COLORREF color), (hdc, color))                                  \
  X(COLORREF, GetTextColor, (HDC hdc), (hdc))                                                         \
  X(UINT, SetTextAlign, (HDC hdc, UINT align), (hdc, align))                                          \
  X(UINT, GetTextAlign, (HDC hdc), (hdc))                                                             \
  X(int, SetStretchBltMode, (HDC hdc, int mode), (hdc, mode))                                         \
  X(int, GetStretchBltMode, (HDC hdc), (hdc))                                                         \
  X(BOOL, MoveToEx, (HDC hdc, int x, int y, POINT* previous), (hdc, x, y, previous))                  \
  X(BOOL, GetCurrentPositionEx, (HDC hdc, POINT* position), (hdc, position))                          \
  X(BOOL, LineTo, (HDC hdc, int x, int y), (hdc, x, y))                                               \
  X(BOOL, Rectangle, (HDC hdc, int left, int top, int right, int bottom),                             \
    (hdc, left, top, right, bottom))                                                                  \
  X(BOOL, RoundRect,                                                                                  \
    (HDC hdc, int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight),         \
    (hdc, left, top, right, bottom, ellipseWidth, ellipseHeight))                                     \
  X(BOOL, Ellipse, (HDC hdc, int left, int top, int right, int bottom),                               \
    (hdc, left, top, right, bottom))                                                                  \
  X(int, FillRect, (HDC hdc, const RECT* rect, HBRUSH brush), (hdc, rect, brush))                     \
  X(int, FrameRect, (HDC hdc, const RECT* rect, HBRUSH brush), (hdc, rect, brush))                    \
  X(COLORREF, SetPixel, (HDC hdc, int x, int y, COLORREF color), (hdc, x, y, color))                  \
  X(BOOL, SetPixelV, (HDC hdc, int x, int y, COLORREF color), (hdc, x, y, color))                     \
  X(COLORREF, GetPixel, (HDC hdc, int x, int y), (hdc, x, y))                                         \
  X(BOOL, ExtFloodFill, (HDC hdc, int x, int y, COLORREF color, UINT type),                           \
    (hdc, x, y, color, type))                                                                         \
  X(BOOL, DrawFocusRect, (HDC hdc, const RECT* rect), (hdc, rect))                                    \
  X(BOOL, PatBlt, (HDC hdc, int x, int y, int width, int height, DWORD rop),                          \
    (hdc, x, y, width, height, rop))                                                                  \
  X(BOOL, BitBlt,                                                                                     \
    (HDC hdc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY, DWORD rop),  \
    (hdc, x, y, width, height, source, sourceX, sourceY, rop))                                        \
  X(BOOL, StretchBlt,                                                                                 \
    (HDC hdc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,              \
     int sourceWidth, int sourceHeight, DWORD rop),                                                   \
    (hdc, x, y, width, height, source, sourceX, sourceY, sourceWidth, sourceHeight, rop))             \
  X(HPALETTE, CreateHalftonePalette, (HDC hdc), (hdc))                                                \
  X(HPALETTE, CreatePalette, (const LOGPALETTE* logPalette), (logPalette))                            \
  X(HPALETTE, SelectPalette, (HDC hdc, HPALETTE palette, BOOL forceBackground),                       \
    (hdc, palette, forceBackground))                                                                  \
  X(UINT, RealizePalette, (HDC hdc), (hdc))                                                           \
  X(UINT, GetPaletteEntries, (HPALETTE palette, UINT start, UINT count, PALETTEENTRY* entries),       \
    (palette, start, count, entries))                                                                 \
  X(UINT, GetNearestPaletteIndex, (HPALETTE palette, COLORREF color), (palette, color))               \
  X(DWORD, GetSysColor, (int index), (index))                                                         \
  X(HRESULT, OleTranslateColor, (OLE_COLOR color, HPALETTE palette, COLORREF* result),                \
    (color, palette, result))                                                                         \
  X(HICON, CreateIconIndirect, (ICONINFO * info), (info))                                             \
  X(BOOL, GetIconInfo, (HICON icon, ICONINFO* info), (icon, info))                                   \
  X(BOOL, DestroyIcon, (HICON icon), (icon))                                                          \
  X(BOOL, DrawIconEx,                                                                                 \
    (HDC hdc, int x, int y, HICON icon, int width, int height, UINT step, HBRUSH flickerFreeBrush,    \
     UINT flags),                                                                                     \
    (hdc, x, y, icon, width, height, step, flickerFreeBrush, flags))

// Text: logical fonts, metrics and output.
#define GLYPHON_WIN32_TEXT_FUNCTIONS(X)                                                               \
  X(HFONT, CreateFontA,                                                                               \
    (int height, int width, int escapement, int orientation, int weight, DWORD italic,                \
     DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,        \
     DWORD quality, DWORD pitchAndFamily, LPCSTR faceName),                                           \
    (height, width, escapement, orientation, weight, italic, underline, strikeOut, charSet,           \
     outPrecision, clipPrecision, quality, pitchAndFamily, faceName))                                 \
  X(HFONT, CreateFontIndirectA, (const LOGFONTA* logFont), (logFont))                                 \
  X(BOOL, GetTextMetricsA, (HDC hdc, TEXTMETRICA* metrics), (hdc, metrics))                           \
  X(int, GetTextFaceA, (HDC hdc, int count, LPSTR faceName), (hdc, count, faceName))                  \
  X(BOOL, GetTextExtentPoint32A, (HDC hdc, LPCSTR text, int count, SIZE* size),                       \
    (hdc, text, count, size))                                                                         \
  X(BOOL, TextOutA, (HDC hdc, int x, int y, LPCSTR text, int count), (hdc, x, y, text, count))        \
  X(int, DrawTextA, (HDC hdc, LPCSTR text, int count, RECT* rect, UINT format),                       \
    (hdc, text, count, rect, format))

// USER and shell: windows, messages, input, timers, common controls, host services.
#define GLYPHON_WIN32_USER_FUNCTIONS(X)                                                               \
  X(ATOM, RegisterClassA, (const WNDCLASSA* windowClass), (windowClass))                              \
  X(BOOL, UnregisterClassA, (LPCSTR className, HINSTANCE instance), (className, instance))            \
  X(HWND, CreateWindowExA,                                                                            \
    (DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,        \
     int height, HWND parent, HMENU menu, HINSTANCE instance, void* param),                           \
    (exStyle, className, windowName, style, x, y, width, height, parent, menu, instance, param))      \
  X(BOOL, DestroyWindow, (HWND hwnd), (hwnd))                                                         \
  X(BOOL, IsWindow, (HWND hwnd), (hwnd))                                                              \
  X(HWND, GetParent, (HWND hwnd), (hwnd))                                                             \
  X(LONG_PTR, GetWindowLongPtrA, (HWND hwnd, int index), (hwnd, index))                               \
  X(LONG_PTR, SetWindowLongPtrA, (HWND hwnd, int index, LONG_PTR value), (hwnd, index, value))        \
  X(LRESULT, CallWindowProcA, (WNDPROC proc, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam),  \
    (proc, hwnd, message, wParam, lParam))                                                            \
  X(LRESULT, DefWindowProcA, (HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam),                 \
    (hwnd, message, wParam, lParam))                                                                  \
  X(LRESULT, SendMessageA, (HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam),                   \
    (hwnd, message, wParam, lParam))                                                                  \
  X(BOOL, PostMessageA, (HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam),                      \
    (hwnd, message, wParam, lParam))                                                                  \
  X(BOOL, PeekMessageA, (MSG * msg, HWND hwnd, UINT filterMin, UINT filterMax, UINT remove),          \
    (msg, hwnd, filterMin, filterMax, remove))                                                        \
  X(LRESULT, DispatchMessageA, (const MSG* msg), (msg))                                               \
  X(void, PostQuitMessage, (int exitCode), (exitCode))                                                \
  X(HDC, GetDC, (HWND hwnd), (hwnd))                                                                  \
  X(int, ReleaseDC, (HWND hwnd, HDC hdc), (hwnd, hdc))                                                \
  X(BOOL, GetClientRect, (HWND hwnd, RECT* rect), (hwnd, rect))                                       \
  X(BOOL, GetWindowRect, (HWND hwnd, RECT* rect), (hwnd, rect))                                       \
  X(BOOL, MoveWindow, (HWND hwnd, int x, int y, int width, int height, BOOL repaint),                 \
    (hwnd, x, y, width, height, repaint))                                                             \
  X(BOOL, ShowWindow, (HWND hwnd, int command), (hwnd, command))                                      \
  X(BOOL, IsWindowVisible, (HWND hwnd), (hwnd))                                                       \
  X(BOOL, InvalidateRect, (HWND hwnd, const RECT* rect, BOOL erase), (hwnd, rect, erase))             \
  X(BOOL, UpdateWindow, (HWND hwnd), (hwnd))                                                          \
  X(HDC, BeginPaint, (HWND hwnd, PAINTSTRUCT* paint), (hwnd, paint))                                  \
  X(BOOL, EndPaint, (HWND hwnd, const PAINTSTRUCT* paint), (hwnd, paint))                             \
  X(HWND, SetCapture, (HWND hwnd), (hwnd))                                                            \
  X(BOOL, ReleaseCapture, (), ())                                                                     \
  X(HWND, GetCapture, (), ())                                                                         \
  X(HWND, SetFocus, (HWND hwnd), (hwnd))                                                              \
  X(HWND, GetFocus, (), ())                                                                           \
  X(BOOL, EnableWindow, (HWND hwnd, BOOL enable), (hwnd, enable))                                     \
  X(BOOL, IsWindowEnabled, (HWND hwnd), (hwnd))                                                       \
  X(BOOL, GetCursorPos, (POINT * point), (point))                                                     \
  X(BOOL, SetCursorPos, (int x, int y), (x, y))                                                       \
  X(BOOL, ClientToScreen, (HWND hwnd, POINT* point), (hwnd, point))                                   \
  X(BOOL, ScreenToClient, (HWND hwnd, POINT* point), (hwnd, point))                                   \
  X(HWND, WindowFromPoint, (POINT point), (point))                                                    \
  X(SHORT, GetKeyState, (int virtualKey), (virtualKey))                                               \
  X(UINT_PTR, SetTimer, (HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc),                        \
    (hwnd, id, elapse, proc))                                                                         \
  X(BOOL, KillTimer, (HWND hwnd, UINT_PTR id), (hwnd, id))                                            \
  X(DWORD, GetTickCount, (), ())                                                                      \
  X(BOOL, SetWindowTextA, (HWND hwnd, LPCSTR text), (hwnd, text))                                     \
  X(int, GetWindowTextA, (HWND hwnd, LPSTR buffer, int size), (hwnd, buffer, size))                   \
  X(void, InitCommonControls, (), ())                                                                 \
  X(HMODULE, GetModuleHandleA, (LPCSTR moduleName), (moduleName))                                     \
  X(int, MessageBoxA, (HWND owner, LPCSTR text, LPCSTR caption, UINT type),                           \
    (owner, text, caption, type))                                                                     \
  X(BOOL, MessageBeep, (UINT type), (type))                                                           \
  X(void, Sleep, (DWORD milliseconds), (milliseconds))                                                \
  X(HINSTANCE, ShellExecuteA,                                                                         \
    (HWND owner, LPCSTR operation, LPCSTR file, LPCSTR parameters, LPCSTR directory, INT show),       \
    (owner, operation, file, parameters, directory, show))

#define GLYPHON_WIN32_FUNCTIONS(X) \
  GLYPHON_WIN32_GDI_FUNCTIONS(X)   \
  GLYPHON_WIN32_TEXT_FUNCTIONS(X)  \
  GLYPHON_WIN32_USER_FUNCTIONS(X)
