// Shared fixture of the USER tests: window classes whose procedures log every message they get.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/soft/soft_engine.h"
#include "platform/soft/user/tooltip.h"
#include "platform/soft/user/user_system.h"
#include "platform/win32.h"
#include "tests/support/leak_check.h"

namespace glyphon::win::testing_user {

struct Received {
  HWND hwnd;
  UINT message;
  WPARAM wParam;
  LPARAM lParam;
};

inline std::vector<Received>& Log() {
  static std::vector<Received> log;
  return log;
}

// The creation parameter WM_CREATE carried last (the record itself dies with the call).
inline void*& LastCreateParam() {
  static void* param = nullptr;
  return param;
}

inline LRESULT GLYPHON_CALLBACK RecordingProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  Log().push_back(Received{hwnd, message, wParam, lParam});
  if (message == WM_CREATE) {
    LastCreateParam() = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams;
  }
  return DefWindowProcA(hwnd, message, wParam, lParam);
}

inline constexpr LPCSTR kRecorder = "Recorder";            // CS_DBLCLKS
inline constexpr LPCSTR kPlainRecorder = "PlainRecorder";  // no double clicks

class UserTest : public ::testing::Test {
 protected:
  void SetUp() override {
    User().DispatchPendingMessages();  // input an earlier test left queued
    Log().clear();
    WNDCLASSA windowClass{};
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = RecordingProc;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = kRecorder;
    ASSERT_NE(RegisterClassA(&windowClass), 0);
    windowClass.style = 0;
    windowClass.lpszClassName = kPlainRecorder;
    ASSERT_NE(RegisterClassA(&windowClass), 0);
    // Leave the double-click interval of any earlier test behind.
    User().AdvanceClock(1000);
  }
  void TearDown() override {
    EXPECT_TRUE(UnregisterClassA(kRecorder, GetModuleHandleA(nullptr)));
    EXPECT_TRUE(UnregisterClassA(kPlainRecorder, GetModuleHandleA(nullptr)));
  }

  static soft::UserSystem& User() { return soft::ThreadSoftEngine().User(); }

  static HWND TopLevel(RECT r, DWORD style = WS_POPUP | WS_VISIBLE, LPCSTR cls = kRecorder) {
    return CreateWindowExA(0, cls, "top", style, r.left, r.top, r.right - r.left,
                           r.bottom - r.top, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
  }
  static HWND Child(HWND parent, RECT r, DWORD style = WS_VISIBLE, LPCSTR cls = kRecorder) {
    return CreateWindowExA(0, cls, "child", WS_CHILD | style, r.left, r.top, r.right - r.left,
                           r.bottom - r.top, parent, nullptr, GetModuleHandleA(nullptr), nullptr);
  }

  // The logged messages of one window among the given kinds, in order.
  static std::vector<Received> Of(HWND hwnd, std::initializer_list<UINT> kinds) {
    std::vector<Received> out;
    for (const Received& r : Log()) {
      if (r.hwnd == hwnd && std::find(kinds.begin(), kinds.end(), r.message) != kinds.end()) {
        out.push_back(r);
      }
    }
    return out;
  }
  static std::vector<UINT> Kinds(const std::vector<Received>& received) {
    std::vector<UINT> out;
    for (const Received& r : received) out.push_back(r.message);
    return out;
  }
  // The logged messages of the given kinds, of any window, in order.
  using Trail = std::vector<std::pair<HWND, UINT>>;
  static Trail TrailOf(std::initializer_list<UINT> kinds) {
    Trail out;
    for (const Received& r : Log()) {
      if (std::find(kinds.begin(), kinds.end(), r.message) != kinds.end()) {
        out.emplace_back(r.hwnd, r.message);
      }
    }
    return out;
  }

  glyphon::testing::LeakCheck leaks_;
};

}  // namespace glyphon::win::testing_user
