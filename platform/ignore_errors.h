// Runs one step whose failure must not stop the steps after it (painting, input, tooltips).
#pragma once

#include <utility>

namespace glyphon {

template <class Step>
void IgnoringErrors(Step&& step) noexcept {
  try {
    std::forward<Step>(step)();
  } catch (...) {
  }
}

}  // namespace glyphon
