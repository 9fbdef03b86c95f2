// Fonts and text output of the soft engine.
#pragma once

namespace glyphon::win::soft {

class SoftEngine;

class TextSystem {
 public:
  explicit TextSystem(SoftEngine& engine) : engine_(engine) {}

 private:
  [[maybe_unused]] SoftEngine& engine_;
};

}  // namespace glyphon::win::soft
