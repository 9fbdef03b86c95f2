// Window DCs, invalid areas and WM_PAINT, and the composition of windows onto the screen.
#include <algorithm>
#include <cstring>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/rects.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

HDC UserSystem::GetDC(HWND hwnd) {
  if (hwnd == nullptr) return engine_.NewDc(DcKind::Screen, engine_.Screen(), nullptr);
  const WindowObject* window = Window(hwnd);
  if (window == nullptr) return nullptr;
  return engine_.NewDc(DcKind::Window, window->pixels, hwnd);
}

int UserSystem::ReleaseDC(HWND, HDC hdc) {
  const DcObject* dc = engine_.Dc(hdc);
  if (dc == nullptr || dc->dcKind == DcKind::Memory) return 0;
  return engine_.DeleteDC(hdc) ? 1 : 0;
}

std::shared_ptr<Pixmap> UserSystem::WindowPixels(HWND hwnd) const {
  const WindowObject* window = Window(hwnd);
  return window != nullptr ? window->pixels : nullptr;
}

// Adds area (client coordinates) to the window's invalid area and, unless the window clips its
// children, to that of the visible children it covers.
void UserSystem::Invalidate(HWND hwnd, RECT area, bool erase) {
  WindowObject* window = Window(hwnd);
  area = Intersect(area, RECT{0, 0, window->Width(), window->Height()});
  if (IsEmpty(area)) return;
  window->updateRect = window->needsPaint ? Bounds(window->updateRect, area) : area;
  window->needsPaint = true;
  window->needsErase = window->needsErase || erase;
  if ((window->style & WS_CLIPCHILDREN) != 0) return;
  for (HWND child : window->children) {
    const WindowObject* c = Window(child);
    if ((c->style & WS_VISIBLE) == 0) continue;
    Invalidate(child, Offset(area, -c->rect.left, -c->rect.top), erase);
  }
}

// A window that appears needs painting whole, with all its visible descendants.
void UserSystem::InvalidateTree(HWND hwnd) {
  WindowObject* window = Window(hwnd);
  if ((window->style & WS_VISIBLE) == 0) return;
  if (Visible(hwnd)) Invalidate(hwnd, RECT{0, 0, window->Width(), window->Height()}, true);
  for (HWND child : window->children) InvalidateTree(child);
}

BOOL UserSystem::InvalidateRect(HWND hwnd, const RECT* rect, BOOL erase) {
  if (hwnd == nullptr) {
    // No window: the whole screen, every window.
    for (HWND h : AllWindows()) {
      const WindowObject* window = Window(h);
      if (Visible(h)) Invalidate(h, RECT{0, 0, window->Width(), window->Height()}, true);
    }
    return TRUE;
  }
  const WindowObject* window = Window(hwnd);
  if (window == nullptr) return FALSE;
  // Hidden windows collect no invalid area; they are painted whole when they appear.
  if (!Visible(hwnd)) return TRUE;
  Invalidate(hwnd, rect != nullptr ? *rect : RECT{0, 0, window->Width(), window->Height()},
             erase != FALSE);
  return TRUE;
}

void UserSystem::UpdateTree(HWND hwnd) {
  if (!Visible(hwnd)) return;
  if (Window(hwnd)->needsPaint) SendMessageA(hwnd, WM_PAINT, 0, 0);
  const WindowObject* window = Window(hwnd);
  if (window == nullptr) return;
  const std::vector<HWND> children = window->children;
  for (HWND child : children) {
    if (IsWindow(child)) UpdateTree(child);
  }
}

BOOL UserSystem::UpdateWindow(HWND hwnd) {
  if (!IsWindow(hwnd)) return FALSE;
  UpdateTree(hwnd);
  return TRUE;
}

HWND UserSystem::WindowToPaint(const MessageFilter& filter) const {
  for (HWND hwnd : AllWindows()) {
    if (Window(hwnd)->needsPaint && filter.Accepts(hwnd, WM_PAINT) && Visible(hwnd)) {
      return hwnd;
    }
  }
  return nullptr;
}

HDC UserSystem::BeginPaint(HWND hwnd, PAINTSTRUCT* paint) {
  WindowObject* window = Window(hwnd);
  if (window == nullptr || paint == nullptr) return nullptr;
  *paint = PAINTSTRUCT{};
  paint->rcPaint = window->needsPaint ? window->updateRect : RECT{};
  const bool erase = window->needsErase;
  window->needsPaint = false;
  window->needsErase = false;
  paint->hdc = GetDC(hwnd);
  if (paint->hdc == nullptr) return nullptr;
  // fErase tells the procedure that the background is still to be erased.
  if (erase) {
    paint->fErase =
        SendMessageA(hwnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc), 0) == 0 ? TRUE
                                                                                         : FALSE;
  }
  return paint->hdc;
}

BOOL UserSystem::EndPaint(HWND hwnd, const PAINTSTRUCT* paint) {
  if (paint == nullptr) return FALSE;
  ReleaseDC(hwnd, paint->hdc);
  return TRUE;
}

// ---- Screen composition -----------------------------------------------------------------------

void UserSystem::ComposeWindow(const WindowObject& window, POINT origin, RECT clip,
                               Pixmap& screen) const {
  if ((window.style & WS_VISIBLE) == 0) return;
  const Pixmap& pixels = *window.pixels;
  const RECT area = Intersect(
      clip, RECT{origin.x, origin.y, origin.x + std::min(window.Width(), pixels.Width()),
                 origin.y + std::min(window.Height(), pixels.Height())});
  if (IsEmpty(area)) return;
  const auto bytes = static_cast<std::size_t>(area.right - area.left) * 4;
  for (int y = area.top; y < area.bottom; ++y) {
    std::memcpy(screen.Row(y) + static_cast<std::size_t>(area.left) * 4,
                pixels.Row(y - origin.y) + static_cast<std::size_t>(area.left - origin.x) * 4,
                bytes);
  }
  // Children are drawn bottom first and never outside their parent.
  for (auto it = window.children.rbegin(); it != window.children.rend(); ++it) {
    const WindowObject& child = *Window(*it);
    ComposeWindow(child, POINT{origin.x + child.rect.left, origin.y + child.rect.top}, area,
                  screen);
  }
}

void UserSystem::ComposeScreen() {
  Pixmap& screen = *engine_.Screen();
  const PixelValue desktop = RgbToPixel32(engine_.GetSysColor(COLOR_BACKGROUND));
  for (int x = 0; x < screen.Width(); ++x) screen.SetPixel(x, 0, desktop);
  for (int y = 1; y < screen.Height(); ++y) {
    std::memcpy(screen.Row(y), screen.Row(0), static_cast<std::size_t>(screen.Width()) * 4);
  }
  const RECT bounds{0, 0, screen.Width(), screen.Height()};
  for (auto it = topLevel_.rbegin(); it != topLevel_.rend(); ++it) {
    const WindowObject& window = *Window(*it);
    ComposeWindow(window, POINT{window.rect.left, window.rect.top}, bounds, screen);
  }
}

}  // namespace glyphon::win::soft
