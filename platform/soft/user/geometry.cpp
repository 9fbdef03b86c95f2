// The virtual screen: window placement, visibility, coordinate mapping and hit testing.
#include <algorithm>
#include <cstring>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/rects.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

POINT UserSystem::ClientOrigin(const WindowObject& window) const {
  POINT origin{window.rect.left, window.rect.top};
  for (const WindowObject* w = &window; w->IsChild();) {
    w = Window(w->parent);
    origin.x += w->rect.left;
    origin.y += w->rect.top;
  }
  return origin;
}

BOOL UserSystem::GetClientRect(HWND hwnd, RECT* rect) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr || rect == nullptr) return FALSE;
  *rect = RECT{0, 0, window->Width(), window->Height()};
  return TRUE;
}

BOOL UserSystem::GetWindowRect(HWND hwnd, RECT* rect) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr || rect == nullptr) return FALSE;
  const POINT origin = ClientOrigin(*window);
  *rect = RECT{origin.x, origin.y, origin.x + window->Width(), origin.y + window->Height()};
  return TRUE;
}

BOOL UserSystem::ClientToScreen(HWND hwnd, POINT* point) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr || point == nullptr) return FALSE;
  const POINT origin = ClientOrigin(*window);
  point->x += origin.x;
  point->y += origin.y;
  return TRUE;
}

BOOL UserSystem::ScreenToClient(HWND hwnd, POINT* point) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr || point == nullptr) return FALSE;
  const POINT origin = ClientOrigin(*window);
  point->x -= origin.x;
  point->y -= origin.y;
  return TRUE;
}

// The backing store follows the client size; what still fits is kept, as the screen keeps it.
void UserSystem::Resize(HWND hwnd, int width, int height) {
  WindowObject* window = Window(hwnd);
  auto pixels = Pixmap::Create(std::max(width, 1), std::max(height, 1), 32, true,
                               Pixmap::RowAlignment::DoubleWord);
  if (!pixels) return;
  const Pixmap& old = *window->pixels;
  const int rows = std::min(old.Height(), pixels->Height());
  const auto bytes = static_cast<std::size_t>(std::min(old.Width(), pixels->Width())) * 4;
  for (int y = 0; y < rows; ++y) std::memcpy(pixels->Row(y), old.Row(y), bytes);
  window->pixels = pixels;
  // DCs already handed out draw on the new store from now on.
  engine_.Objects().ForEach(ObjectKind::Dc, [&](std::uintptr_t, Object* object) {
    auto* dc = static_cast<DcObject*>(object);
    if (dc->window == hwnd) dc->surface = pixels;
  });
}

BOOL UserSystem::MoveWindow(HWND hwnd, int x, int y, int width, int height, BOOL repaint) {
  WindowObject* window = Window(hwnd);
  if (window == nullptr) return FALSE;
  width = std::max(width, 0);
  height = std::max(height, 0);
  const RECT old = window->rect;
  const bool moved = old.left != x || old.top != y;
  const int oldWidth = window->Width();
  const int oldHeight = window->Height();
  const bool resized = oldWidth != width || oldHeight != height;
  window->rect = RECT{x, y, x + width, y + height};
  if (resized) {
    Resize(hwnd, width, height);
    window->updateRect = Intersect(window->updateRect, RECT{0, 0, width, height});
    window->needsPaint = window->needsPaint && !IsEmpty(window->updateRect);
  }
  if (repaint && resized) {
    // Newly exposed parts need painting; the whole window when its class redraws on resizing.
    const UINT classStyle = window->windowClass->style;
    const bool whole = ((classStyle & CS_HREDRAW) != 0 && width != oldWidth) ||
                       ((classStyle & CS_VREDRAW) != 0 && height != oldHeight);
    RECT exposed{0, 0, width, height};
    if (!whole) {
      if (width <= oldWidth) exposed.top = std::min(oldHeight, height);
      if (height <= oldHeight) exposed.left = std::min(oldWidth, width);
    }
    Invalidate(hwnd, exposed, true);
  }
  if (moved) SendMessageA(hwnd, WM_MOVE, 0, MAKELPARAM(x, y));
  if (resized) SendMessageA(hwnd, WM_SIZE, SIZE_RESTORED, MAKELPARAM(width, height));
  return TRUE;
}

BOOL UserSystem::ShowWindow(HWND hwnd, int command) {
  WindowObject* window = Window(hwnd);
  if (window == nullptr) return FALSE;
  const bool wasVisible = (window->style & WS_VISIBLE) != 0;
  const bool show = command != SW_HIDE;
  if (show == wasVisible) return wasVisible ? TRUE : FALSE;
  SendMessageA(hwnd, WM_SHOWWINDOW, show ? TRUE : FALSE, 0);
  window = Window(hwnd);
  if (window == nullptr) return wasVisible ? TRUE : FALSE;
  if (show) {
    window->style |= WS_VISIBLE;
    InvalidateTree(hwnd);
  } else {
    window->style &= ~WS_VISIBLE;
    // A hidden window cannot keep the focus: it goes back to the parent (none for top-level).
    if (focus_ != nullptr && (focus_ == hwnd || IsDescendant(hwnd, focus_))) {
      SetFocus(window->IsChild() ? window->parent : nullptr);
    }
  }
  return wasVisible ? TRUE : FALSE;
}

// Visible: WS_VISIBLE on the window and on every parent.
bool UserSystem::Visible(HWND hwnd) const {
  for (const WindowObject* window = Window(hwnd); window != nullptr;
       window = Window(window->parent)) {
    if ((window->style & WS_VISIBLE) == 0) return false;
    if (!window->IsChild()) return true;
  }
  return false;
}

BOOL UserSystem::IsWindowVisible(HWND hwnd) { return Visible(hwnd) ? TRUE : FALSE; }

// The deepest window under a point given in the coordinates of hwnd's parent (the screen for
// top-level windows). Hidden windows and disabled child windows are passed over; the inside of a
// disabled window is not searched.
HWND UserSystem::HitTest(HWND hwnd, POINT point) const {
  const WindowObject* window = Window(hwnd);
  if ((window->style & WS_VISIBLE) == 0 || !Contains(window->rect, point)) return nullptr;
  const bool disabled = (window->style & WS_DISABLED) != 0;
  if (disabled && window->IsChild()) return nullptr;
  if (!disabled) {
    const POINT local{point.x - window->rect.left, point.y - window->rect.top};
    for (HWND child : window->children) {
      if (HWND found = HitTest(child, local)) return found;
    }
  }
  return window->windowClass->transparentToHitTest ? nullptr : hwnd;
}

HWND UserSystem::WindowFromPoint(POINT point) {
  for (HWND hwnd : topLevel_) {
    if (HWND found = HitTest(hwnd, point)) return found;
  }
  return nullptr;
}

}  // namespace glyphon::win::soft
