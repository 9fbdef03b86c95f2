// Window creation, destruction, the window tree and the window longs.
#include <algorithm>
#include <cstring>
#include <iterator>
#include <type_traits>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::win::soft {

namespace {

std::shared_ptr<Pixmap> NewBackingStore(int width, int height) {
  return Pixmap::Create(std::max(width, 1), std::max(height, 1), 32, true,
                        Pixmap::RowAlignment::DoubleWord);
}

// CW_USEDEFAULT: child and pop-up windows start empty at the origin; overlapped windows take the
// top-left corner and three quarters of the screen.
void ResolveDefaultPlacement(DWORD style, SIZE screen, int& x, int& y, int& width, int& height) {
  if ((style & (WS_CHILD | WS_POPUP)) != 0) {
    if (x == CW_USEDEFAULT) x = y = 0;
    if (width == CW_USEDEFAULT) width = height = 0;
    return;
  }
  if (x == CW_USEDEFAULT) x = y = 0;
  if (width == CW_USEDEFAULT) {
    width = screen.cx * 3 / 4 - x;
    height = screen.cy * 3 / 4 - y;
  } else if (height == CW_USEDEFAULT) {
    height = screen.cy * 3 / 4 - y;
  }
}

}  // namespace

void UserSystem::Link(HWND hwnd, WindowObject& window) {
  if (WindowObject* parent = Window(window.parent)) {
    // New children go to the bottom of their siblings, so creation order is z-order from the top.
    parent->children.push_back(hwnd);
    return;
  }
  // New top-level windows go to the front of their band.
  const bool topmost = (window.exStyle & WS_EX_TOPMOST) != 0;
  auto position = topmost ? topLevel_.begin()
                          : std::find_if(topLevel_.begin(), topLevel_.end(), [this](HWND h) {
                              return (Window(h)->exStyle & WS_EX_TOPMOST) == 0;
                            });
  topLevel_.insert(position, hwnd);
}

void UserSystem::Unlink(HWND hwnd, const WindowObject& window) {
  if (WindowObject* parent = Window(window.parent)) {
    std::erase(parent->children, hwnd);
  } else {
    std::erase(topLevel_, hwnd);
  }
}

void UserSystem::BringToFront(HWND hwnd) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr || window->IsChild()) return;
  std::erase(topLevel_, hwnd);
  Link(hwnd, *Window(hwnd));
}

HWND UserSystem::CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style,
                                 int x, int y, int width, int height, HWND parent, HMENU menu,
                                 HINSTANCE instance, void* param) {
  auto windowClass = FindClass(className);
  if (!windowClass) return nullptr;
  const bool child = (style & WS_CHILD) != 0;
  if (child ? Window(parent) == nullptr : parent != nullptr && Window(parent) == nullptr) {
    return nullptr;
  }
  ResolveDefaultPlacement(style, ScreenSize(), x, y, width, height);
  width = std::max(width, 0);
  height = std::max(height, 0);

  auto record = std::make_unique<WindowObject>();
  WindowObject& window = *record;
  window.windowClass = windowClass;
  window.proc = windowClass->proc;
  // The window becomes visible only after WM_CREATE, through ShowWindow.
  window.style = style & ~WS_VISIBLE;
  window.exStyle = exStyle;
  if (child) {
    window.parent = parent;
    window.id = reinterpret_cast<LONG_PTR>(menu);
  } else if (parent != nullptr) {
    // The owner of a top-level window is always a top-level window.
    HWND owner = parent;
    while (Window(owner)->IsChild()) owner = Window(owner)->parent;
    window.owner = owner;
  }
  window.instance = instance;
  window.extraBytes.assign(static_cast<std::size_t>(windowClass->windowExtra), 0);
  window.rect = RECT{x, y, x + width, y + height};
  window.pixels = NewBackingStore(width, height);
  if (!window.pixels) return nullptr;
  HWND hwnd = engine_.AddObject<HWND>(std::move(record));
  if (hwnd == nullptr) return nullptr;
  Link(hwnd, window);
  ++windowClass->windowCount;

  CREATESTRUCTA create{.lpCreateParams = param,
                       .hInstance = instance,
                       .hMenu = menu,
                       .hwndParent = parent,
                       .cy = height,
                       .cx = width,
                       .y = y,
                       .x = x,
                       .style = static_cast<LONG>(style),
                       .lpszName = windowName,
                       .lpszClass = className,
                       .dwExStyle = exStyle};
  if (SendMessageA(hwnd, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)) == 0 ||
      SendMessageA(hwnd, WM_CREATE, 0, reinterpret_cast<LPARAM>(&create)) == -1) {
    if (IsWindow(hwnd)) Free(hwnd);
    return nullptr;
  }
  if (!IsWindow(hwnd)) return nullptr;
  SendMessageA(hwnd, WM_SIZE, SIZE_RESTORED, MAKELPARAM(width, height));
  SendMessageA(hwnd, WM_MOVE, 0, MAKELPARAM(x, y));
  if ((style & WS_VISIBLE) != 0) ShowWindow(hwnd, SW_SHOW);
  return IsWindow(hwnd) ? hwnd : nullptr;
}

BOOL UserSystem::DestroyWindow(HWND hwnd) {
  WindowObject* window = Window(hwnd);
  if (window == nullptr || window->destroying) return FALSE;
  window->destroying = true;
  // Hiding first hands the focus back to the parent when it was inside the window.
  if ((window->style & WS_VISIBLE) != 0) ShowWindow(hwnd, SW_HIDE);
  std::vector<HWND> owned;
  std::copy_if(topLevel_.begin(), topLevel_.end(), std::back_inserter(owned),
               [&](HWND h) { return Window(h)->owner == hwnd; });
  for (HWND h : owned) DestroyWindow(h);
  if (!IsWindow(hwnd)) return TRUE;
  SendDestroy(hwnd);
  if (IsWindow(hwnd)) Free(hwnd);
  return TRUE;
}

// WM_DESTROY goes to the window first, then down through its children.
void UserSystem::SendDestroy(HWND hwnd) {
  SendMessageA(hwnd, WM_DESTROY, 0, 0);
  const WindowObject* window = Window(hwnd);
  if (window == nullptr) return;
  const std::vector<HWND> children = window->children;
  for (HWND child : children) {
    if (IsWindow(child)) SendDestroy(child);
  }
}

// WM_NCDESTROY goes to the children first; then the window and what it holds are released.
void UserSystem::Free(HWND hwnd) {
  WindowObject* window = Window(hwnd);
  window->destroying = true;
  const std::vector<HWND> children = window->children;
  for (HWND child : children) {
    if (IsWindow(child)) Free(child);
  }
  SendMessageA(hwnd, WM_NCDESTROY, 0, 0);
  if (!IsWindow(hwnd)) return;
  ReleaseResources(hwnd);
  window = Window(hwnd);
  Unlink(hwnd, *window);
  --window->windowClass->windowCount;
  engine_.Objects().Remove(reinterpret_cast<std::uintptr_t>(hwnd));
}

// Focus, capture, timers and queued messages die with the window without further messages.
void UserSystem::ReleaseResources(HWND hwnd) {
  if (focus_ == hwnd) focus_ = nullptr;
  if (capture_ == hwnd) capture_ = nullptr;
  if (lastClick_.hwnd == hwnd) lastClick_ = Click{};
  timers_.KillAll(hwnd);
  std::erase_if(posted_, [hwnd](const MSG& msg) { return msg.hwnd == hwnd; });
  std::vector<HDC> dcs;
  engine_.Objects().ForEach(ObjectKind::Dc, [&](std::uintptr_t handle, Object* object) {
    if (static_cast<DcObject*>(object)->window == hwnd) {
      dcs.push_back(reinterpret_cast<HDC>(handle));
    }
  });
  for (HDC dc : dcs) engine_.DeleteDC(dc);
}

BOOL UserSystem::IsWindow(HWND hwnd) { return Window(hwnd) != nullptr; }

HWND UserSystem::GetParent(HWND hwnd) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr) return nullptr;
  if (window->IsChild()) return window->parent;
  return (window->style & WS_POPUP) != 0 ? window->owner : nullptr;
}

bool UserSystem::IsDescendant(HWND ancestor, HWND hwnd) const {
  for (const WindowObject* window = Window(hwnd); window != nullptr && window->IsChild();
       window = Window(window->parent)) {
    if (window->parent == ancestor) return true;
  }
  return false;
}

void UserSystem::CollectTree(HWND hwnd, std::vector<HWND>& out) const {
  out.push_back(hwnd);
  for (HWND child : Window(hwnd)->children) CollectTree(child, out);
}

std::vector<HWND> UserSystem::AllWindows() const {
  std::vector<HWND> all;
  for (HWND hwnd : topLevel_) CollectTree(hwnd, all);
  return all;
}

// ---- Window longs and text ---------------------------------------------------------------

namespace {

bool ExtraSlotFits(const WindowObject& window, int index) {
  return index >= 0 &&
         static_cast<std::size_t>(index) + sizeof(LONG_PTR) <= window.extraBytes.size();
}

}  // namespace

LONG_PTR UserSystem::GetWindowLongPtrA(HWND hwnd, int index) {
  const WindowObject* window = Window(hwnd);
  if (window == nullptr) return 0;
  switch (index) {
    case GWLP_WNDPROC: return reinterpret_cast<LONG_PTR>(window->proc);
    case GWLP_HINSTANCE: return reinterpret_cast<LONG_PTR>(window->instance);
    case GWLP_ID: return window->id;
    case GWL_STYLE: return static_cast<LONG>(window->style);
    case GWL_EXSTYLE: return static_cast<LONG>(window->exStyle);
    case GWLP_USERDATA: return window->userData;
    default: break;
  }
  if (!ExtraSlotFits(*window, index)) return 0;
  LONG_PTR value;
  std::memcpy(&value, window->extraBytes.data() + index, sizeof value);
  return value;
}

LONG_PTR UserSystem::SetWindowLongPtrA(HWND hwnd, int index, LONG_PTR value) {
  WindowObject* window = Window(hwnd);
  if (window == nullptr) return 0;
  auto swap = [value](auto& field) {
    const auto previous = field;
    field = static_cast<std::remove_reference_t<decltype(field)>>(value);
    return static_cast<LONG_PTR>(previous);
  };
  switch (index) {
    case GWLP_WNDPROC: {
      const WNDPROC previous = window->proc;
      // A null procedure is refused; the old one stays.
      if (value != 0) window->proc = reinterpret_cast<WNDPROC>(value);
      return reinterpret_cast<LONG_PTR>(previous);
    }
    case GWLP_HINSTANCE: {
      const HINSTANCE previous = window->instance;
      window->instance = reinterpret_cast<HINSTANCE>(value);
      return reinterpret_cast<LONG_PTR>(previous);
    }
    case GWLP_ID: return swap(window->id);
    case GWL_STYLE: return static_cast<LONG>(swap(window->style));
    case GWL_EXSTYLE: return static_cast<LONG>(swap(window->exStyle));
    case GWLP_USERDATA: return swap(window->userData);
    default: break;
  }
  if (!ExtraSlotFits(*window, index)) return 0;
  LONG_PTR previous;
  std::memcpy(&previous, window->extraBytes.data() + index, sizeof previous);
  std::memcpy(window->extraBytes.data() + index, &value, sizeof value);
  return previous;
}

BOOL UserSystem::SetWindowTextA(HWND hwnd, LPCSTR text) {
  return SendMessageA(hwnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0 ? TRUE : FALSE;
}

int UserSystem::GetWindowTextA(HWND hwnd, LPSTR buffer, int size) {
  if (buffer == nullptr || size <= 0) return 0;
  buffer[0] = '\0';
  return static_cast<int>(SendMessageA(hwnd, WM_GETTEXT, static_cast<WPARAM>(size),
                                       reinterpret_cast<LPARAM>(buffer)));
}

}  // namespace glyphon::win::soft
