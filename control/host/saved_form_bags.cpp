#include "control/host/saved_form_bags.h"

namespace glyphon {

MemoryPropertyBag BagOfEntries(const SavedEntries& entries) {
  MemoryPropertyBag bag;
  for (const SavedEntry& entry : entries) bag.Store(entry.key, entry.value);
  return bag;
}

SavedEntries EntriesOfBag(const MemoryPropertyBag& bag) {
  SavedEntries entries;
  for (const std::string& key : bag.WrittenKeys()) {
    if (const PropertyValue* value = bag.Find(key)) entries.push_back({key, *value});
  }
  return entries;
}

}  // namespace glyphon
