// A button loads any saved form's bags without crashing or leaking, and what it saves loads back
// to the same save.
#include <cstdlib>
#include <string_view>

#include "control/glyphon.h"
#include "control/host/memory_host.h"
#include "control/host/memory_property_bag.h"
#include "control/host/property_bag_file.h"
#include "control/host/saved_form_bags.h"
#include "platform/soft/soft_engine.h"

namespace {

using namespace glyphon;

void SaveAndCompare(Glyphon& button, const MemoryPropertyBag& expected) {
  MemoryPropertyBag again;
  button.WriteProperties(again);
  for (const std::string& key : expected.WrittenKeys()) {
    const PropertyValue* before = expected.Find(key);
    const PropertyValue* after = again.Find(key);
    if ((before == nullptr) != (after == nullptr)) std::abort();
    if (before != nullptr && !SameStoredValue(*before, *after)) std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const win::soft::LiveCounts before = win::soft::ThreadSoftEngine().LiveObjectCounts();
  {
    const SavedFormRead read =
        ReadSavedForm(std::string_view(reinterpret_cast<const char*>(data), size));
    MemoryHostOptions options;
    options.record = false;
    MemoryHost host(options);
    Glyphon button(host);
    host.Attach(&button);
    for (const SavedControl& control : read.form.controls) {
      MemoryPropertyBag bag = BagOfEntries(control.properties);
      button.ReadProperties(bag);
      MemoryPropertyBag saved;
      button.WriteProperties(saved);
      button.ReadProperties(saved);
      SaveAndCompare(button, saved);
    }
    host.Attach(nullptr);
  }
  if (win::soft::ThreadSoftEngine().LiveObjectCounts() != before) std::abort();
  return 0;
}
