#include "tests/support/leak_check.h"

#include <gtest/gtest.h>

namespace glyphon::testing {

namespace {
const char* KindName(std::size_t kind) {
  static const char* const names[] = {"none", "DC",      "bitmap", "pen",   "brush",
                                      "font", "palette", "icon",   "window"};
  return kind < std::size(names) ? names[kind] : "?";
}
}  // namespace

LeakCheck::LeakCheck() : before_(win::soft::ThreadSoftEngine().LiveObjectCounts()) {}

LeakCheck::~LeakCheck() {
  const auto& after = win::soft::ThreadSoftEngine().LiveObjectCounts();
  for (std::size_t kind = 0; kind < after.size(); ++kind) {
    EXPECT_EQ(after[kind], before_[kind]) << "live " << KindName(kind) << " objects changed";
  }
}

}  // namespace glyphon::testing
