#include "activex/control_window.h"

#include "activex/com_error.h"
#include "activex/module.h"

namespace glyphon::activex {

namespace {

constexpr const char* kControlClass = "zonGlyphonControl";
constexpr const char* kParkingClass = "zonGlyphonParking";

// The parking window of each thread, and how many control windows it holds.
struct Parking {
  HWND window = nullptr;
  int controls = 0;
};
thread_local Parking parking;

LRESULT CALLBACK ControlWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* handler = reinterpret_cast<ControlWindowHandler*>(GetWindowLongPtrA(window, 0));
  if (handler != nullptr) return handler->OnWindowMessage(window, message, wParam, lParam);
  return DefWindowProcA(window, message, wParam, lParam);
}

void RegisterClassOnce(const char* name, WNDPROC procedure, UINT style, int extraBytes) {
  WNDCLASSA windowClass{};
  if (GetClassInfoA(ModuleInstance(), name, &windowClass) != FALSE) return;
  windowClass.style = style;
  windowClass.lpfnWndProc = procedure;
  windowClass.cbWndExtra = extraBytes;
  windowClass.hInstance = ModuleInstance();
  windowClass.hCursor = LoadCursor(nullptr, IDC_ARROW);
  windowClass.lpszClassName = name;
  if (RegisterClassA(&windowClass) == 0) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
}

void RegisterClasses() {
  RegisterClassOnce(kControlClass, &ControlWindowProc, CS_OWNDC | CS_DBLCLKS,
                    sizeof(ControlWindowHandler*));
  RegisterClassOnce(kParkingClass, &DefWindowProcA, 0, 0);
}

HWND ParkingWindow() {
  if (parking.window == nullptr) {
    parking.window = CreateWindowExA(0, kParkingClass, nullptr, WS_POPUP, 0, 0, 0, 0, nullptr,
                                     nullptr, ModuleInstance(), nullptr);
    if (parking.window == nullptr) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
  }
  return parking.window;
}

}  // namespace

HWND CreateControlWindow(ControlWindowHandler& handler) {
  RegisterClasses();
  HWND window = CreateWindowExA(0, kControlClass, nullptr,
                                WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP, 0, 0, 0, 0,
                                ParkingWindow(), nullptr, ModuleInstance(), nullptr);
  if (window == nullptr) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
  SetWindowLongPtrA(window, 0, reinterpret_cast<LONG_PTR>(&handler));
  ++parking.controls;
  return window;
}

void DestroyControlWindow(HWND window) {
  SetWindowLongPtrA(window, 0, 0);
  DestroyWindow(window);
  if (--parking.controls == 0 && parking.window != nullptr) {
    DestroyWindow(parking.window);
    parking.window = nullptr;
  }
}

void ParkControlWindow(HWND window) {
  ShowWindow(window, SW_HIDE);
  SetParent(window, ParkingWindow());
}

void UnregisterControlWindowClasses() {
  UnregisterClassA(kControlClass, ModuleInstance());
  UnregisterClassA(kParkingClass, ModuleInstance());
}

}  // namespace glyphon::activex
