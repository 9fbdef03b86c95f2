// Records behind the soft engine's window classes and window handles.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/soft/object_table.h"
#include "platform/soft/pixmap.h"
#include "platform/win32_types.h"

namespace glyphon::win::soft {

struct WindowClass {
  std::string name;
  ATOM atom = 0;
  UINT style = 0;
  WNDPROC proc = nullptr;
  int windowExtra = 0;
  HINSTANCE instance = nullptr;
  HBRUSH background = nullptr;
  // Stands in for a class whose windows answer WM_NCHITTEST with HTTRANSPARENT (tooltips).
  bool transparentToHitTest = false;
  int windowCount = 0;
};

// Private state of a window of a built-in class, owned by the window.
struct ControlState {
  virtual ~ControlState() = default;
};

struct WindowObject final : Object {
  WindowObject() : Object(ObjectKind::Window) {}

  std::shared_ptr<WindowClass> windowClass;
  WNDPROC proc = nullptr;
  DWORD style = 0;
  DWORD exStyle = 0;
  HWND parent = nullptr;  // WS_CHILD windows only
  HWND owner = nullptr;   // top-level windows only
  std::vector<HWND> children;  // z-order, topmost first
  LONG_PTR id = 0;
  LONG_PTR userData = 0;
  HINSTANCE instance = nullptr;
  std::vector<std::uint8_t> extraBytes;
  std::string text;

  // Position in the parent's client coordinates (the screen for top-level windows). Windows have
  // no non-client area here, so the window and client rectangles coincide.
  RECT rect{};
  std::shared_ptr<Pixmap> pixels;  // client-area backing store, at least 1x1

  bool needsPaint = false;
  bool needsErase = false;
  RECT updateRect{};  // bounding box of the invalid area, client coordinates

  bool destroying = false;
  std::unique_ptr<ControlState> control;

  bool IsChild() const { return (style & WS_CHILD) != 0; }
  int Width() const { return rect.right - rect.left; }
  int Height() const { return rect.bottom - rect.top; }
};

}  // namespace glyphon::win::soft
