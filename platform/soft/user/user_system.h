// Windows, messages, input, timers and host services of the soft engine.
#pragma once

namespace glyphon::win::soft {

class SoftEngine;

class UserSystem {
 public:
  explicit UserSystem(SoftEngine& engine) : engine_(engine) {}

  // Sends WM_SYSCOLORCHANGE to every window.
  void BroadcastSystemColorChange() {}

 private:
  [[maybe_unused]] SoftEngine& engine_;
};

}  // namespace glyphon::win::soft
