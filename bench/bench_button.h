// A new button on an in-memory host that records nothing (81 x 25, run mode): what the repaint
// and input benchmarks time.
#pragma once

#include "control/glyphon.h"
#include "control/host/memory_host.h"

namespace glyphon {

struct BenchButton {
  BenchButton() : host(Unrecorded()), button(host) {
    host.Attach(&button);
    button.InitProperties();
  }
  ~BenchButton() { host.Attach(nullptr); }
  BenchButton(const BenchButton&) = delete;
  BenchButton& operator=(const BenchButton&) = delete;

  static MemoryHostOptions Unrecorded() {
    MemoryHostOptions options;
    options.record = false;
    return options;
  }

  MemoryHost host;
  Glyphon button;
};

}  // namespace glyphon
