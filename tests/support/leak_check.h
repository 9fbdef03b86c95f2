// Asserts that a block of code leaves the soft engine's live-object counts as it found them.
#pragma once

#include "platform/soft/soft_engine.h"

namespace glyphon::testing {

class LeakCheck {
 public:
  LeakCheck();
  ~LeakCheck();
  LeakCheck(const LeakCheck&) = delete;
  LeakCheck& operator=(const LeakCheck&) = delete;

 private:
  win::soft::LiveCounts before_;
};

}  // namespace glyphon::testing
