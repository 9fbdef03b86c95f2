// Platform functions the soft engine does not serve yet: each fails as GDI fails on a bad handle.
// Entries leave this file as their real implementations land.
#include "platform/soft/soft_engine.h"

namespace glyphon::win::soft {

ATOM SoftEngine::RegisterClassA(const WNDCLASSA*) { return {}; }
BOOL SoftEngine::UnregisterClassA(LPCSTR, HINSTANCE) { return {}; }
HWND SoftEngine::CreateWindowExA(DWORD, LPCSTR, LPCSTR, DWORD, int, int, int, int, HWND, HMENU, HINSTANCE, void*) { return {}; }
BOOL SoftEngine::DestroyWindow(HWND) { return {}; }
BOOL SoftEngine::IsWindow(HWND) { return {}; }
HWND SoftEngine::GetParent(HWND) { return {}; }
LONG_PTR SoftEngine::GetWindowLongPtrA(HWND, int) { return {}; }
LONG_PTR SoftEngine::SetWindowLongPtrA(HWND, int, LONG_PTR) { return {}; }
LRESULT SoftEngine::CallWindowProcA(WNDPROC, HWND, UINT, WPARAM, LPARAM) { return {}; }
LRESULT SoftEngine::DefWindowProcA(HWND, UINT, WPARAM, LPARAM) { return {}; }
LRESULT SoftEngine::SendMessageA(HWND, UINT, WPARAM, LPARAM) { return {}; }
BOOL SoftEngine::PostMessageA(HWND, UINT, WPARAM, LPARAM) { return {}; }
BOOL SoftEngine::PeekMessageA(MSG *, HWND, UINT, UINT, UINT) { return {}; }
LRESULT SoftEngine::DispatchMessageA(const MSG*) { return {}; }
void SoftEngine::PostQuitMessage(int) {}
HDC SoftEngine::GetDC(HWND) { return {}; }
int SoftEngine::ReleaseDC(HWND, HDC) { return {}; }
BOOL SoftEngine::GetClientRect(HWND, RECT*) { return {}; }
BOOL SoftEngine::GetWindowRect(HWND, RECT*) { return {}; }
BOOL SoftEngine::MoveWindow(HWND, int, int, int, int, BOOL) { return {}; }
BOOL SoftEngine::ShowWindow(HWND, int) { return {}; }
BOOL SoftEngine::IsWindowVisible(HWND) { return {}; }
BOOL SoftEngine::InvalidateRect(HWND, const RECT*, BOOL) { return {}; }
BOOL SoftEngine::UpdateWindow(HWND) { return {}; }
HDC SoftEngine::BeginPaint(HWND, PAINTSTRUCT*) { return {}; }
BOOL SoftEngine::EndPaint(HWND, const PAINTSTRUCT*) { return {}; }
HWND SoftEngine::SetCapture(HWND) { return {}; }
BOOL SoftEngine::ReleaseCapture() { return {}; }
HWND SoftEngine::GetCapture() { return {}; }
HWND SoftEngine::SetFocus(HWND) { return {}; }
HWND SoftEngine::GetFocus() { return {}; }
BOOL SoftEngine::EnableWindow(HWND, BOOL) { return {}; }
BOOL SoftEngine::IsWindowEnabled(HWND) { return {}; }
BOOL SoftEngine::GetCursorPos(POINT *) { return {}; }
BOOL SoftEngine::SetCursorPos(int, int) { return {}; }
BOOL SoftEngine::ClientToScreen(HWND, POINT*) { return {}; }
BOOL SoftEngine::ScreenToClient(HWND, POINT*) { return {}; }
HWND SoftEngine::WindowFromPoint(POINT) { return {}; }
SHORT SoftEngine::GetKeyState(int) { return {}; }
UINT_PTR SoftEngine::SetTimer(HWND, UINT_PTR, UINT, TIMERPROC) { return {}; }
BOOL SoftEngine::KillTimer(HWND, UINT_PTR) { return {}; }
DWORD SoftEngine::GetTickCount() { return {}; }
BOOL SoftEngine::SetWindowTextA(HWND, LPCSTR) { return {}; }
int SoftEngine::GetWindowTextA(HWND, LPSTR, int) { return {}; }
void SoftEngine::InitCommonControls() {}
HMODULE SoftEngine::GetModuleHandleA(LPCSTR) { return {}; }
int SoftEngine::MessageBoxA(HWND, LPCSTR, LPCSTR, UINT) { return {}; }
BOOL SoftEngine::MessageBeep(UINT) { return {}; }
void SoftEngine::Sleep(DWORD) {}
HINSTANCE SoftEngine::ShellExecuteA(HWND, LPCSTR, LPCSTR, LPCSTR, LPCSTR, INT) { return {}; }

}  // namespace glyphon::win::soft
