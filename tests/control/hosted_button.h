// A button on the in-memory host, with input injected through the soft engine as a user would
// give it: screen points, buttons and keys.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "control/glyphon.h"
#include "control/host/memory_host.h"
#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {

struct HostedButton {
  // With initialize, the button gets InitProperties and the log starts empty afterwards.
  explicit HostedButton(const MemoryHostOptions& options = {}, bool initialize = true);
  ~HostedButton();
  HostedButton(const HostedButton&) = delete;
  HostedButton& operator=(const HostedButton&) = delete;

  static win::soft::UserSystem& User();

  win::POINT Screen(int x, int y) const;
  void MoveTo(int x, int y);
  void Press(int x, int y, win::soft::MouseButton button = win::soft::MouseButton::Left);
  void Release(int x, int y, win::soft::MouseButton button = win::soft::MouseButton::Left);
  void Click(int x, int y);
  // Lets the double-click time pass, so that the next press is a press of its own.
  void Pause();
  void Type(std::string_view text);
  void TapKey(int virtualKey);

  MemoryHost host;
  Glyphon button;
};

// A test with one initialised button; the leak check comes first, so it checks what is left once
// the button is gone.
class HostedButtonTest : public ::testing::Test {
 protected:
  LeakCheck leaks_;
  HostedButton hosted_;
  Glyphon& button_ = hosted_.button;
  MemoryHost& host_ = hosted_.host;
};

// How many entries of the log equal entry.
inline std::ptrdiff_t CountOf(const std::vector<std::string>& log, std::string_view entry) {
  return std::count(log.begin(), log.end(), entry);
}

// The entries of the log that start with prefix ("paint", "changed", an event name).
std::vector<std::string> Only(const std::vector<std::string>& log, std::string_view prefix);

}  // namespace glyphon::testing
