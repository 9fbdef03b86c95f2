#include "platform/native/native_engine.h"

#include <bit>
#include <cstddef>
#include <type_traits>

// windows.h comes after our own headers: its macros (TRUE, RGB, PS_SOLID, ...) would otherwise
// rewrite our declarations of the same names. Below this point those names expand to Windows'
// values, which are the same.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// clang-format off
#include <commctrl.h>
#include <ole2.h>
#include <olectl.h>
#include <shellapi.h>
// clang-format on

// A macro for the tool record's other name; ours has only this one.
#undef TOOLINFOA

#ifndef _WIN64
// 32-bit Windows has no pointer-sized window longs: the names are macros for the 32-bit calls,
// which would also rename our engine's members.
#undef GetWindowLongPtrA
#undef SetWindowLongPtrA
static LONG_PTR WINAPI GetWindowLongPtrA(HWND hwnd, int index) {
  return GetWindowLongA(hwnd, index);
}
static LONG_PTR WINAPI SetWindowLongPtrA(HWND hwnd, int index, LONG_PTR value) {
  return SetWindowLongA(hwnd, index, static_cast<LONG>(value));
}
#endif

namespace glyphon::win::native {

namespace {

// ---- Layouts: every record we hand to Windows must be the one Windows expects. ---------------

#define GLYPHON_SAME_RECORD(ours, theirs)                                                         \
  static_assert(sizeof(win::ours) == sizeof(::theirs) && alignof(win::ours) == alignof(::theirs), \
                #ours " differs from Windows")
#define GLYPHON_SAME_FIELD(ours, theirs, field) \
  static_assert(offsetof(win::ours, field) == offsetof(::theirs, field), #ours "." #field)

GLYPHON_SAME_RECORD(POINT, POINT);
GLYPHON_SAME_RECORD(SIZE, SIZE);
GLYPHON_SAME_RECORD(RECT, RECT);
GLYPHON_SAME_RECORD(BITMAP, BITMAP);
GLYPHON_SAME_FIELD(BITMAP, BITMAP, bmBits);
GLYPHON_SAME_RECORD(RGBQUAD, RGBQUAD);
GLYPHON_SAME_RECORD(BITMAPINFOHEADER, BITMAPINFOHEADER);
GLYPHON_SAME_RECORD(BITMAPINFO, BITMAPINFO);
GLYPHON_SAME_FIELD(BITMAPINFO, BITMAPINFO, bmiColors);
GLYPHON_SAME_RECORD(DIBSECTION, DIBSECTION);
GLYPHON_SAME_FIELD(DIBSECTION, DIBSECTION, dsBmih);
GLYPHON_SAME_FIELD(DIBSECTION, DIBSECTION, dsBitfields);
GLYPHON_SAME_FIELD(DIBSECTION, DIBSECTION, dshSection);
GLYPHON_SAME_FIELD(DIBSECTION, DIBSECTION, dsOffset);
GLYPHON_SAME_RECORD(LOGPEN, LOGPEN);
GLYPHON_SAME_FIELD(LOGPEN, LOGPEN, lopnColor);
GLYPHON_SAME_RECORD(LOGBRUSH, LOGBRUSH);
GLYPHON_SAME_FIELD(LOGBRUSH, LOGBRUSH, lbHatch);
GLYPHON_SAME_RECORD(LOGFONTA, LOGFONTA);
GLYPHON_SAME_FIELD(LOGFONTA, LOGFONTA, lfItalic);
GLYPHON_SAME_FIELD(LOGFONTA, LOGFONTA, lfFaceName);
GLYPHON_SAME_RECORD(TEXTMETRICA, TEXTMETRICA);
GLYPHON_SAME_FIELD(TEXTMETRICA, TEXTMETRICA, tmFirstChar);
GLYPHON_SAME_FIELD(TEXTMETRICA, TEXTMETRICA, tmCharSet);
GLYPHON_SAME_RECORD(PALETTEENTRY, PALETTEENTRY);
GLYPHON_SAME_RECORD(LOGPALETTE, LOGPALETTE);
GLYPHON_SAME_FIELD(LOGPALETTE, LOGPALETTE, palPalEntry);
GLYPHON_SAME_RECORD(ICONINFO, ICONINFO);
GLYPHON_SAME_FIELD(ICONINFO, ICONINFO, hbmMask);
GLYPHON_SAME_FIELD(ICONINFO, ICONINFO, hbmColor);
GLYPHON_SAME_RECORD(MSG, MSG);
GLYPHON_SAME_FIELD(MSG, MSG, wParam);
GLYPHON_SAME_FIELD(MSG, MSG, time);
GLYPHON_SAME_FIELD(MSG, MSG, pt);
GLYPHON_SAME_RECORD(WNDCLASSA, WNDCLASSA);
GLYPHON_SAME_FIELD(WNDCLASSA, WNDCLASSA, lpfnWndProc);
GLYPHON_SAME_FIELD(WNDCLASSA, WNDCLASSA, hbrBackground);
GLYPHON_SAME_FIELD(WNDCLASSA, WNDCLASSA, lpszClassName);
GLYPHON_SAME_RECORD(CREATESTRUCTA, CREATESTRUCTA);
GLYPHON_SAME_FIELD(CREATESTRUCTA, CREATESTRUCTA, cy);
GLYPHON_SAME_FIELD(CREATESTRUCTA, CREATESTRUCTA, x);
GLYPHON_SAME_FIELD(CREATESTRUCTA, CREATESTRUCTA, style);
GLYPHON_SAME_FIELD(CREATESTRUCTA, CREATESTRUCTA, dwExStyle);
GLYPHON_SAME_RECORD(PAINTSTRUCT, PAINTSTRUCT);
GLYPHON_SAME_FIELD(PAINTSTRUCT, PAINTSTRUCT, rcPaint);
GLYPHON_SAME_RECORD(NMHDR, NMHDR);
GLYPHON_SAME_FIELD(NMHDR, NMHDR, code);
GLYPHON_SAME_RECORD(TOOLINFOA, TTTOOLINFOA);
GLYPHON_SAME_FIELD(TOOLINFOA, TTTOOLINFOA, uId);
GLYPHON_SAME_FIELD(TOOLINFOA, TTTOOLINFOA, hinst);
GLYPHON_SAME_FIELD(TOOLINFOA, TTTOOLINFOA, lpszText);
GLYPHON_SAME_FIELD(TOOLINFOA, TTTOOLINFOA, lpReserved);
GLYPHON_SAME_RECORD(NMTTDISPINFOA, NMTTDISPINFOA);
GLYPHON_SAME_FIELD(NMTTDISPINFOA, NMTTDISPINFOA, lpszText);
GLYPHON_SAME_FIELD(NMTTDISPINFOA, NMTTDISPINFOA, hinst);
GLYPHON_SAME_FIELD(NMTTDISPINFOA, NMTTDISPINFOA, lParam);
GLYPHON_SAME_RECORD(PICTDESC, PICTDESC);
GLYPHON_SAME_FIELD(PICTDESC, PICTDESC, bmp.hpal);
GLYPHON_SAME_FIELD(PICTDESC, PICTDESC, icon.hicon);

#undef GLYPHON_SAME_FIELD
#undef GLYPHON_SAME_RECORD

// ---- Forwarding -------------------------------------------------------------------------------

template <class T, class = void>
struct IsComplete : std::false_type {};
template <class T>
struct IsComplete<T, std::void_t<decltype(sizeof(T))>> : std::true_type {};

// A pointer may be reinterpreted only between objects of one size and alignment; handles (opaque
// on our side) and functions carry no layout to compare.
template <class To, class From>
constexpr void CheckPointees() {
  using T = std::remove_cv_t<To>;
  using F = std::remove_cv_t<From>;
  if constexpr (!std::is_void_v<T> && !std::is_void_v<F> && !std::is_function_v<T> &&
                IsComplete<F>::value && IsComplete<T>::value) {
    static_assert(sizeof(T) == sizeof(F) && alignof(T) == alignof(F));
  }
}

// One value of our API as the type Windows declares, or back.
template <class To, class From>
To Convert(From value) {
  if constexpr (std::is_same_v<To, From>) {
    return value;
  } else if constexpr (std::is_pointer_v<To> && std::is_pointer_v<From>) {
    CheckPointees<std::remove_pointer_t<To>, std::remove_pointer_t<From>>();
    return reinterpret_cast<To>(value);
  } else if constexpr (std::is_class_v<To>) {
    return std::bit_cast<To>(value);
  } else {
    static_assert(std::is_arithmetic_v<To> && std::is_arithmetic_v<From>);
    static_assert(sizeof(To) >= sizeof(From) || std::is_same_v<To, BYTE>,
                  "a value would be cut short");
    return static_cast<To>(value);
  }
}

// Calls a Windows function with our arguments converted to its parameter types, and converts its
// result to ours.
template <class Ours, class Theirs, class... Params>
struct Forwarder {
  Theirs(WINAPI* function)(Params...);

  template <class... Args>
  Ours operator()(Args... args) const {
    static_assert(sizeof...(Args) == sizeof...(Params));
    if constexpr (std::is_void_v<Ours>) {
      function(Convert<Params>(args)...);
    } else {
      return Convert<Ours>(function(Convert<Params>(args)...));
    }
  }
};

template <class Ours, class Theirs, class... Params>
Forwarder<Ours, Theirs, Params...> ForwardTo(Theirs(WINAPI* function)(Params...)) {
  return {function};
}

}  // namespace

#define GLYPHON_FORWARD(ret, name, params, args) \
  ret NativeEngine::name params { return ForwardTo<ret>(&::name) args; }
GLYPHON_WIN32_FUNCTIONS(GLYPHON_FORWARD)
#undef GLYPHON_FORWARD

NativeEngine& TheNativeEngine() {
  static NativeEngine engine;
  return engine;
}

}  // namespace glyphon::win::native
