#include "platform/soft/user/tooltip.h"

#include <algorithm>
#include <cstddef>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/rects.h"

namespace glyphon::win::soft {

namespace {

constexpr UINT_PTR kShowTimer = 1;
constexpr UINT_PTR kPopTimer = 2;
// While the pointer is on a tool this watches for it leaving without a relayed move.
constexpr UINT_PTR kLeaveTimer = 3;
constexpr int kBorder = 1;
constexpr int kMargin = 2;
constexpr int kCursorHeight = 20;  // the tip goes below the arrow
constexpr std::size_t kMaxText = 1023;

bool IsResourceId(LPCSTR text) { return reinterpret_cast<std::uintptr_t>(text) <= 0xFFFF; }

// Tip texts are cut at the length the common controls keep.
std::string TipText(LPCSTR text) {
  const char* end = text;
  while (static_cast<std::size_t>(end - text) < kMaxText && *end != '\0') ++end;
  return std::string(text, end);
}

}  // namespace

LRESULT GLYPHON_CALLBACK TooltipWindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  // Window procedures run with their window's engine installed (CallWindowProcA sees to it).
  auto* engine = dynamic_cast<SoftEngine*>(&CurrentEngine());
  if (engine == nullptr) return 0;
  UserSystem& user = engine->User();
  if (message == WM_NCCREATE) user.SetControl(hwnd, std::make_unique<Tooltip>(user, hwnd));
  Tooltip* tooltip = user.Control<Tooltip>(hwnd);
  if (tooltip == nullptr) return DefWindowProcA(hwnd, message, wParam, lParam);
  return tooltip->Handle(message, wParam, lParam);
}

LRESULT Tooltip::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case TTM_ACTIVATE: Activate(wParam != 0); return 0;
    case TTM_ADDTOOLA: return AddTool(reinterpret_cast<const TOOLINFOA*>(lParam));
    case TTM_DELTOOLA: DeleteTool(reinterpret_cast<const TOOLINFOA*>(lParam)); return 0;
    case TTM_RELAYEVENT: Relay(reinterpret_cast<const MSG*>(lParam)); return 0;
    case WM_TIMER: OnTimer(wParam); return 0;
    case WM_PAINT: Paint(); return 0;
    case WM_ERASEBKGND: return 1;  // WM_PAINT fills everything
    default: return DefWindowProcA(self_, message, wParam, lParam);
  }
}

// ---- Tools --------------------------------------------------------------------------------------

const Tooltip::Tool* Tooltip::FindTool(std::uint64_t serial) const {
  auto it = std::find_if(tools_.begin(), tools_.end(),
                         [serial](const Tool& t) { return t.serial == serial; });
  return it != tools_.end() ? &*it : nullptr;
}

// Tools with a rectangle come before tools that are whole windows.
std::uint64_t Tooltip::ToolAt(HWND hwnd, POINT point) const {
  for (const Tool& tool : tools_) {
    if ((tool.flags & TTF_IDISHWND) == 0 && tool.hwnd == hwnd && Contains(tool.rect, point)) {
      return tool.serial;
    }
  }
  for (const Tool& tool : tools_) {
    RECT client;
    if ((tool.flags & TTF_IDISHWND) != 0 && reinterpret_cast<HWND>(tool.id) == hwnd &&
        GetClientRect(hwnd, &client) && Contains(client, point)) {
      return tool.serial;
    }
  }
  return 0;
}

std::uint64_t Tooltip::ToolUnderCursor() const {
  POINT point;
  GetCursorPos(&point);
  HWND hwnd = WindowFromPoint(point);
  if (hwnd == nullptr) return 0;
  ScreenToClient(hwnd, &point);
  return ToolAt(hwnd, point);
}

LRESULT Tooltip::AddTool(const TOOLINFOA* info) {
  if (info == nullptr) return FALSE;
  Tool tool{nextSerial_++, info->uFlags, info->hwnd, info->uId, info->rect, false, {}, 0};
  if (info->lpszText == GLYPHON_LPSTR_TEXTCALLBACKA) {
    tool.callback = true;
  } else if (!IsResourceId(info->lpszText)) {
    tool.text = TipText(info->lpszText);
  }  // a string resource id reads as empty: there are no string resources
  // Records older than the lParam member leave it out.
  if (info->cbSize >= offsetof(TOOLINFOA, lpReserved)) tool.lParam = info->lParam;
  tools_.push_back(std::move(tool));
  return TRUE;
}

void Tooltip::DeleteTool(const TOOLINFOA* info) {
  if (info == nullptr) return;
  auto matches = [info](const Tool& t) {
    return t.id == info->uId && ((t.flags & TTF_IDISHWND) != 0 || t.hwnd == info->hwnd);
  };
  auto it = std::find_if(tools_.begin(), tools_.end(), matches);
  if (it == tools_.end()) return;
  const std::uint64_t serial = it->serial;
  const HWND self = self_;
  if (hover_ == serial) Leave();
  if (!IsWindow(self)) return;
  std::erase_if(tools_, [serial](const Tool& t) { return t.serial == serial; });
}

void Tooltip::Activate(bool active) {
  active_ = active;
  if (!active) Leave();
}

// ---- Pointer tracking ---------------------------------------------------------------------------

void Tooltip::Relay(const MSG* msg) {
  if (msg == nullptr) return;
  switch (msg->message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
      KillTimer(self_, kShowTimer);
      suppressed_ = hover_ != 0;
      Hide();
      return;
    case WM_MOUSEMOVE: {
      const POINT point{GET_X_LPARAM(msg->lParam), GET_Y_LPARAM(msg->lParam)};
      const std::uint64_t tool = ToolAt(msg->hwnd, point);
      if (tool != hover_) {
        // Passing straight from one tip to the next tool shows the next tip sooner.
        const bool wasShown = shown_ != 0;
        const HWND self = self_;
        Leave();
        if (!IsWindow(self) || tool == 0) return;
        hover_ = tool;
        lastPoint_ = point;
        SetTimer(self_, kLeaveTimer, kReshowDelay, nullptr);
        if (active_) SetTimer(self_, kShowTimer, wasShown ? kReshowDelay : kInitialDelay, nullptr);
      } else if (hover_ != 0 && shown_ == 0 && !suppressed_ && active_ &&
                 (point.x != lastPoint_.x || point.y != lastPoint_.y)) {
        // The delay counts from when the pointer comes to rest.
        lastPoint_ = point;
        SetTimer(self_, kShowTimer, kInitialDelay, nullptr);
      }
      return;
    }
    default: return;
  }
}

// The pointer is off the tool: everything starts again with the next tool it enters.
void Tooltip::Leave() {
  hover_ = 0;
  suppressed_ = false;
  KillTimer(self_, kShowTimer);
  KillTimer(self_, kLeaveTimer);
  Hide();
}

void Tooltip::OnTimer(UINT_PTR id) {
  switch (id) {
    case kShowTimer:
      KillTimer(self_, kShowTimer);
      if (hover_ == 0 || shown_ != 0 || suppressed_ || !active_) return;
      if (ToolUnderCursor() == hover_) {
        Show();
      } else {
        Leave();  // the pointer left without a relayed move
      }
      return;
    case kPopTimer:
      suppressed_ = true;
      Hide();
      return;
    case kLeaveTimer:
      if (ToolUnderCursor() != hover_) Leave();
      return;
    default: return;
  }
}

// ---- The tip ------------------------------------------------------------------------------------

void Tooltip::Notify(const Tool& tool, UINT code) const {
  NMHDR header{self_, tool.id, code};
  SendMessageA(tool.hwnd, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&header));
}

std::string Tooltip::RequestText(const Tool& tool) const {
  if (!tool.callback) return tool.text;
  NMTTDISPINFOA info{};
  info.hdr = NMHDR{self_, tool.id, TTN_NEEDTEXTA};
  info.lpszText = info.szText;
  info.uFlags = tool.flags;
  info.lParam = tool.lParam;
  SendMessageA(tool.hwnd, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&info));
  // The answer is a pointer (szText by default), or a string resource id, of which there are none.
  if (IsResourceId(info.lpszText) || info.lpszText == GLYPHON_LPSTR_TEXTCALLBACKA) return {};
  return TipText(info.lpszText);
}

SIZE Tooltip::Measure() const {
  HDC dc = GetDC(self_);
  HGDIOBJ previous = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
  RECT text{0, 0, 0, 0};
  DrawTextA(dc, text_.c_str(), -1, &text, DT_CALCRECT);
  SelectObject(dc, previous);
  ReleaseDC(self_, dc);
  const int frame = 2 * (kBorder + kMargin);
  return SIZE{text.right - text.left + frame, text.bottom - text.top + frame};
}

void Tooltip::Show() {
  const Tool* found = FindTool(hover_);
  if (found == nullptr) return;
  const Tool tool = *found;
  const HWND self = self_;
  std::string text = RequestText(tool);
  if (!IsWindow(self) || text.empty()) return;
  text_ = std::move(text);
  Notify(tool, TTN_SHOW);
  if (!IsWindow(self)) return;
  shown_ = tool.serial;

  // Below the cursor, kept on the screen; above the cursor when there is no room below.
  const SIZE size = Measure();
  const SIZE screen = user_.ScreenSize();
  POINT cursor;
  GetCursorPos(&cursor);
  const int left = std::max(0, std::min<int>(cursor.x, screen.cx - size.cx));
  int top = cursor.y + kCursorHeight;
  if (top + size.cy > screen.cy) top = std::max(0, cursor.y - size.cy);
  MoveWindow(self, left, top, size.cx, size.cy, FALSE);
  user_.BringToFront(self);
  ShowWindow(self, SW_SHOWNOACTIVATE);
  UpdateWindow(self);
  SetTimer(self, kPopTimer, kAutoPopDelay, nullptr);
}

void Tooltip::Hide() {
  if (shown_ == 0) return;
  const HWND self = self_;
  KillTimer(self, kPopTimer);
  const Tool* tool = FindTool(shown_);
  shown_ = 0;
  if (tool != nullptr) {
    Notify(*tool, TTN_POP);
    if (!IsWindow(self)) return;
  }
  ShowWindow(self, SW_HIDE);
}

// Tip colours, a one-pixel frame and the text inside a small margin.
void Tooltip::Paint() {
  PAINTSTRUCT paint;
  HDC dc = BeginPaint(self_, &paint);
  RECT client;
  GetClientRect(self_, &client);
  FillRect(dc, &client, GetSysColorBrush(COLOR_INFOBK));
  FrameRect(dc, &client, GetSysColorBrush(COLOR_WINDOWFRAME));
  HGDIOBJ previous = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, GetSysColor(COLOR_INFOTEXT));
  RECT text{client.left + kBorder + kMargin, client.top + kBorder + kMargin,
            client.right - kBorder - kMargin, client.bottom - kBorder - kMargin};
  DrawTextA(dc, text_.c_str(), -1, &text, 0);
  SelectObject(dc, previous);
  EndPaint(self_, &paint);
}

}  // namespace glyphon::win::soft
