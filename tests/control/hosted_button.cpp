#include "tests/control/hosted_button.h"

namespace glyphon::testing {

HostedButton::HostedButton(const MemoryHostOptions& options, bool initialize)
    : host(options), button(host) {
  host.Attach(&button);
  if (initialize) button.InitProperties();
  // The pointer starts on the form, away from the button, wherever an earlier test left it.
  User().MouseMove(win::POINT{300, 250});
  host.ClearLog();
}

HostedButton::~HostedButton() { host.Attach(nullptr); }

win::soft::UserSystem& HostedButton::User() { return win::soft::ThreadSoftEngine().User(); }

win::POINT HostedButton::Screen(int x, int y) const {
  win::POINT point{x, y};
  win::ClientToScreen(host.hWnd(), &point);
  return point;
}

void HostedButton::MoveTo(int x, int y) { User().MouseMove(Screen(x, y)); }

void HostedButton::Press(int x, int y, win::soft::MouseButton mouseButton) {
  User().MouseDown(mouseButton, Screen(x, y));
}

void HostedButton::Release(int x, int y, win::soft::MouseButton mouseButton) {
  User().MouseUp(mouseButton, Screen(x, y));
}

void HostedButton::Click(int x, int y) {
  Press(x, y);
  Release(x, y);
}

void HostedButton::Pause() { User().AdvanceClock(win::soft::UserSystem::kDoubleClickTime + 1); }

void HostedButton::Type(std::string_view text) {
  for (const char character : text) User().Char(character);
}

void HostedButton::TapKey(int virtualKey) {
  User().KeyDown(virtualKey);
  User().KeyUp(virtualKey);
}

std::vector<std::string> Only(const std::vector<std::string>& log, std::string_view prefix) {
  std::vector<std::string> kept;
  for (const std::string& entry : log) {
    if (entry.starts_with(prefix)) kept.push_back(entry);
  }
  return kept;
}

}  // namespace glyphon::testing
