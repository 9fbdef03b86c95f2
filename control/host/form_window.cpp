#include "control/host/form_window.h"

namespace glyphon {

FormWindow::FormWindow(const char* caption, int width, int height, win::OLE_COLOR backColor)
    : backColor_(backColor) {
  window_ = CreateFormWindow(caption, width, height, *this);
}

FormWindow::~FormWindow() { DestroyHostWindow(window_); }

void FormWindow::SetBackColor(win::OLE_COLOR backColor) {
  backColor_ = backColor;
  win::InvalidateRect(window_, nullptr, win::TRUE);
}

bool FormWindow::HandleWindowMessage(win::HWND, win::UINT message, win::WPARAM wParam,
                                     win::LPARAM) {
  switch (message) {
    case win::WM_PAINT: {
      win::PAINTSTRUCT paint{};
      win::HDC hdc = win::BeginPaint(window_, &paint);
      win::COLORREF color = 0;
      if (win::OleTranslateColor(backColor_, nullptr, &color) == win::S_OK) {
        win::RECT client{};
        win::GetClientRect(window_, &client);
        win::HBRUSH brush = win::CreateSolidBrush(color);
        win::FillRect(hdc, &client, brush);
        win::DeleteObject(brush);
      }
      win::EndPaint(window_, &paint);
      return true;
    }
    case win::WM_KEYDOWN:
    case win::WM_CHAR:
    case win::WM_SYSCHAR:
      return keyHandler_ && keyHandler_(message, wParam);
    default:
      return false;
  }
}

}  // namespace glyphon
