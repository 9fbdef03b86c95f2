#include "control/about_box.h"

#include <algorithm>
#include <string>

#include "control/glyphon_version.h"

namespace glyphon {

namespace {

constexpr win::LPCSTR kClassName = "GlyphonAboutBox";
constexpr int kWidth = 260;
constexpr int kHeight = 110;
constexpr int kLineHeight = 20;
constexpr win::COLORREF kLinkColor = win::RGB(0, 0, 255);

// The three lines of the box, top to bottom; the last one is the link.
win::RECT LineRect(win::HWND hwnd, int line) {
  win::RECT client{};
  win::GetClientRect(hwnd, &client);
  const int top = 15 + line * kLineHeight;
  return win::RECT{client.left, top, client.right, top + kLineHeight};
}

bool InLink(win::HWND hwnd, win::LPARAM lParam) {
  const win::RECT link = LineRect(hwnd, 2);
  const int x = win::GET_X_LPARAM(lParam);
  const int y = win::GET_Y_LPARAM(lParam);
  return x >= link.left && x < link.right && y >= link.top && y < link.bottom;
}

void DrawLine(win::HDC hdc, win::HWND hwnd, int line, const std::string& text) {
  win::RECT rect = LineRect(hwnd, line);
  win::DrawTextA(hdc, text.c_str(), static_cast<int>(text.size()), &rect,
                 win::DT_CENTER | win::DT_SINGLELINE | win::DT_NOPREFIX);
}

void PaintAbout(win::HWND hwnd) {
  win::PAINTSTRUCT paint{};
  const win::HDC hdc = win::BeginPaint(hwnd, &paint);
  win::RECT client{};
  win::GetClientRect(hwnd, &client);
  win::FillRect(hdc, &client, win::GetSysColorBrush(win::COLOR_BTNFACE));
  const win::HGDIOBJ oldFont = win::SelectObject(hdc, win::GetStockObject(win::DEFAULT_GUI_FONT));
  win::SetBkMode(hdc, win::TRANSPARENT);
  win::SetTextColor(hdc, win::GetSysColor(win::COLOR_BTNTEXT));
  DrawLine(hdc, hwnd, 0, kProductName);
  DrawLine(hdc, hwnd, 1, std::string("Version ") + kProductVersion);
  win::SetTextColor(hdc, kLinkColor);
  DrawLine(hdc, hwnd, 2, kProjectWebPage);
  win::SelectObject(hdc, oldFont);
  win::EndPaint(hwnd, &paint);
}

win::LRESULT GLYPHON_CALLBACK AboutWindowProc(win::HWND hwnd, win::UINT message,
                                              win::WPARAM wParam, win::LPARAM lParam) {
  switch (message) {
    case win::WM_PAINT:
      PaintAbout(hwnd);
      return 0;
    case win::WM_LBUTTONDOWN:
      win::SetFocus(hwnd);  // so that Escape and Enter reach it
      return 0;
    case win::WM_LBUTTONUP:
      if (InLink(hwnd, lParam)) {
        win::ShellExecuteA(hwnd, "open", kProjectWebPage, nullptr, nullptr, win::SW_SHOWNORMAL);
      }
      return 0;
    case win::WM_KEYDOWN:
      if (wParam == win::VK_ESCAPE || wParam == win::VK_RETURN) win::DestroyWindow(hwnd);
      return 0;
    case win::WM_CLOSE:
      win::DestroyWindow(hwnd);
      return 0;
    default:
      return win::DefWindowProcA(hwnd, message, wParam, lParam);
  }
}

// Registered on first use by each engine; a second registration fails harmlessly.
void RegisterAboutClass() {
  win::WNDCLASSA windowClass{};
  windowClass.lpfnWndProc = &AboutWindowProc;
  windowClass.hInstance = win::GetModuleHandleA(nullptr);
  windowClass.lpszClassName = kClassName;
  win::RegisterClassA(&windowClass);
}

}  // namespace

win::HWND ShowAboutBox(win::HWND owner) {
  RegisterAboutClass();
  win::RECT ownerRect{};
  win::GetWindowRect(owner, &ownerRect);
  // Centred over the button, but never off the top or left of the screen.
  const int x = std::max(0, ownerRect.left + (ownerRect.right - ownerRect.left - kWidth) / 2);
  const int y = std::max(0, ownerRect.top + (ownerRect.bottom - ownerRect.top - kHeight) / 2);
  const std::string title = std::string("About ") + kProductName;
  const win::HWND hwnd =
      win::CreateWindowExA(win::WS_EX_TOPMOST, kClassName, title.c_str(), win::WS_POPUP, x, y,
                           kWidth, kHeight, nullptr, nullptr, win::GetModuleHandleA(nullptr), nullptr);
  if (hwnd == nullptr) return nullptr;
  // Shown without taking the focus: it may open in the middle of the button's own input.
  win::ShowWindow(hwnd, win::SW_SHOWNOACTIVATE);
  win::UpdateWindow(hwnd);
  return hwnd;
}

}  // namespace glyphon
