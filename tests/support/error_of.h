// The error a call raises, for the tests of errors and their texts.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "platform/automation_error.h"

namespace glyphon::testing {

// Runs the call and returns the error it raised; fails the test when it raised none.
inline AutomationError ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const AutomationError& error) {
    return error;
  }
  ADD_FAILURE() << "no error raised";
  return AutomationError(0, "", "");
}

}  // namespace glyphon::testing
