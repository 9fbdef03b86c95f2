// The saved-form reader: any input loads without crashing or leaking, and what it loads writes
// to a text that reads back to itself.
#include <cstdlib>
#include <string_view>

#include "control/host/property_bag_file.h"
#include "platform/soft/soft_engine.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const glyphon::win::soft::LiveCounts before =
      glyphon::win::soft::ThreadSoftEngine().LiveObjectCounts();
  {
    const glyphon::SavedFormRead read =
        glyphon::ReadSavedForm(std::string_view(reinterpret_cast<const char*>(data), size));
    std::vector<std::string> unsaved;
    const std::string text = glyphon::WriteSavedForm(read.form, &unsaved);
    const glyphon::SavedFormRead again = glyphon::ReadSavedForm(text);
    if (!unsaved.empty() || !again.skipped.empty()) std::abort();
    if (glyphon::WriteSavedForm(again.form) != text) std::abort();
  }
  if (glyphon::win::soft::ThreadSoftEngine().LiveObjectCounts() != before) std::abort();
  return 0;
}
