#include "activex/parking_window.h"

#include "activex/com_error.h"
#include "activex/module.h"

namespace glyphon::activex {

namespace {

constexpr const char* kParkingClass = "zonGlyphonParking";

struct Parking {
  HWND window = nullptr;
  int leases = 0;
};
thread_local Parking parking;

HWND CreateParkingWindow() {
  WNDCLASSA windowClass{};
  if (GetClassInfoA(ModuleInstance(), kParkingClass, &windowClass) == FALSE) {
    windowClass.lpfnWndProc = &DefWindowProcA;
    windowClass.hInstance = ModuleInstance();
    windowClass.lpszClassName = kParkingClass;
    if (RegisterClassA(&windowClass) == 0) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
  }
  HWND window = CreateWindowExA(0, kParkingClass, nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                ModuleInstance(), nullptr);
  if (window == nullptr) throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
  return window;
}

}  // namespace

ParkingLease::ParkingLease() {
  if (parking.window == nullptr) parking.window = CreateParkingWindow();
  ++parking.leases;
  window_ = parking.window;
}

ParkingLease::~ParkingLease() {
  if (--parking.leases == 0) {
    DestroyWindow(parking.window);
    parking.window = nullptr;
  }
}

void ParkingLease::Park(HWND window) const {
  ShowWindow(window, SW_HIDE);
  SetParent(window, window_);
}

void UnregisterParkingWindowClass() { UnregisterClassA(kParkingClass, ModuleInstance()); }

}  // namespace glyphon::activex
