// The USER part of the soft engine: its entry points, window classes and host services.
#include "platform/soft/user/user_system.h"

#include <algorithm>
#include <cctype>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/tooltip.h"

namespace glyphon::win::soft {

namespace {

// What GetModuleHandleA answers: the program is one module, loaded where executables usually are.
const HMODULE kModule = reinterpret_cast<HMODULE>(std::uintptr_t{0x00400000});

bool IsAtom(LPCSTR name) { return reinterpret_cast<std::uintptr_t>(name) <= 0xFFFF; }

bool SameName(const std::string& a, LPCSTR b) {
  return std::equal(a.begin(), a.end(), b, b + std::char_traits<char>::length(b),
                    [](char x, char y) {
                      return std::tolower(static_cast<unsigned char>(x)) ==
                             std::tolower(static_cast<unsigned char>(y));
                    });
}

}  // namespace

#define GLYPHON_FORWARD_TO_USER(ret, name, params, args) \
  ret SoftEngine::name params { return user_->name args; }
GLYPHON_WIN32_USER_FUNCTIONS(GLYPHON_FORWARD_TO_USER)
#undef GLYPHON_FORWARD_TO_USER

UserSystem::UserSystem(SoftEngine& engine) : engine_(engine) {}

UserSystem::~UserSystem() = default;

WindowObject* UserSystem::Window(HWND hwnd) const {
  return engine_.Objects().Find<WindowObject>(reinterpret_cast<std::uintptr_t>(hwnd),
                                              ObjectKind::Window);
}

// ---- Classes ------------------------------------------------------------------------------

std::shared_ptr<WindowClass> UserSystem::FindClass(LPCSTR name) const {
  if (name == nullptr) return nullptr;
  for (const auto& windowClass : classes_) {
    if (IsAtom(name) ? windowClass->atom == reinterpret_cast<std::uintptr_t>(name)
                     : SameName(windowClass->name, name)) {
      return windowClass;
    }
  }
  return nullptr;
}

void UserSystem::AddClass(std::shared_ptr<WindowClass> windowClass) {
  windowClass->atom = nextAtom_++;
  classes_.push_back(std::move(windowClass));
}

ATOM UserSystem::RegisterClassA(const WNDCLASSA* windowClass) {
  if (windowClass == nullptr || windowClass->lpszClassName == nullptr ||
      IsAtom(windowClass->lpszClassName) || windowClass->cbWndExtra < 0 ||
      FindClass(windowClass->lpszClassName) != nullptr) {
    return 0;
  }
  auto record = std::make_shared<WindowClass>();
  record->name = windowClass->lpszClassName;
  record->style = windowClass->style;
  record->proc = windowClass->lpfnWndProc;
  record->windowExtra = windowClass->cbWndExtra;
  record->instance = windowClass->hInstance;
  record->background = windowClass->hbrBackground;
  AddClass(record);
  return record->atom;
}

BOOL UserSystem::UnregisterClassA(LPCSTR className, HINSTANCE instance) {
  const auto windowClass = FindClass(className);
  if (!windowClass || windowClass->instance != instance || windowClass->windowCount > 0) {
    return FALSE;
  }
  std::erase(classes_, windowClass);
  return TRUE;
}

void UserSystem::RegisterTooltipClass() {
  if (FindClass(TOOLTIPS_CLASSA)) return;
  auto record = std::make_shared<WindowClass>();
  record->name = TOOLTIPS_CLASSA;
  record->style = CS_DBLCLKS;
  record->proc = TooltipWindowProc;
  record->instance = kModule;
  record->transparentToHitTest = true;
  AddClass(std::move(record));
}

// The common controls register their classes; of them the system uses only the tooltip.
void UserSystem::InitCommonControls() { RegisterTooltipClass(); }

HMODULE UserSystem::GetModuleHandleA(LPCSTR) { return kModule; }

// ---- Built-in controls ----------------------------------------------------------------------

void UserSystem::SetControl(HWND hwnd, std::unique_ptr<ControlState> state) {
  if (WindowObject* window = Window(hwnd)) window->control = std::move(state);
}

std::optional<TooltipView> UserSystem::TooltipState(HWND hwnd) const {
  const auto* tooltip = Control<Tooltip>(hwnd);
  if (tooltip == nullptr) return std::nullopt;
  TooltipView view = tooltip->View();
  const WindowObject* window = Window(hwnd);
  const POINT origin = ClientOrigin(*window);
  view.rect = RECT{origin.x, origin.y, origin.x + window->Width(), origin.y + window->Height()};
  return view;
}

SIZE UserSystem::ScreenSize() const {
  const Pixmap& screen = *engine_.Screen();
  return SIZE{screen.Width(), screen.Height()};
}

// ---- Broadcasts and modes -----------------------------------------------------------------------

void UserSystem::BroadcastSystemColorChange() {
  for (HWND hwnd : AllWindows()) SendMessageA(hwnd, WM_SYSCOLORCHANGE, 0, 0);
}

void UserSystem::CancelMode(HWND hwnd) { SendMessageA(hwnd, WM_CANCELMODE, 0, 0); }

// ---- Host services ------------------------------------------------------------------------------

int HeadlessMessageBoxResult(UINT type) {
  switch (type & MB_TYPEMASK) {
    case MB_OK: return IDOK;
    case MB_OKCANCEL:
    case MB_YESNOCANCEL:
    case MB_RETRYCANCEL:
    case MB_CANCELTRYCONTINUE: return IDCANCEL;
    case MB_YESNO: return IDNO;
    case MB_ABORTRETRYIGNORE: return IDABORT;
    default: return 0;  // not a box Windows would show
  }
}

int UserSystem::MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
  // A message box is modal: its owner's top-level window is disabled while it is up, and whoever
  // holds the mouse is told to let go.
  HWND root = owner;
  while (const WindowObject* window = Window(root)) {
    if (!window->IsChild()) break;
    root = window->parent;
  }
  const bool disableRoot = Window(root) != nullptr && IsWindowEnabled(root);
  if (disableRoot) {
    EnableWindow(root, FALSE);
    if (HWND captured = GetCapture()) SendMessageA(captured, WM_CANCELMODE, 0, 0);
  }
  const int result = hooks_.messageBox ? hooks_.messageBox(owner, text, caption, type)
                                       : HeadlessMessageBoxResult(type);
  if (disableRoot) EnableWindow(root, TRUE);
  return result;
}

BOOL UserSystem::MessageBeep(UINT type) {
  if (hooks_.messageBeep) hooks_.messageBeep(type);
  return TRUE;
}

void UserSystem::Sleep(DWORD milliseconds) {
  if (hooks_.sleep) {
    hooks_.sleep(milliseconds);
  } else {
    clock_ += milliseconds;
  }
}

HINSTANCE UserSystem::ShellExecuteA(HWND owner, LPCSTR operation, LPCSTR file,
                                    LPCSTR parameters, LPCSTR directory, INT show) {
  auto text = [](LPCSTR s) { return s != nullptr ? std::string(s) : std::string(); };
  ShellRequest request{owner, text(operation), text(file), text(parameters), text(directory), show};
  shellRequests_.push_back(request);
  if (hooks_.shellExecute) return hooks_.shellExecute(request);
  return reinterpret_cast<HINSTANCE>(std::uintptr_t{42});  // above 32: success
}

}  // namespace glyphon::win::soft
