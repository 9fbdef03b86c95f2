// Between a saved form's entries and the property bags controls read and write.
#pragma once

#include "control/host/memory_property_bag.h"
#include "control/host/property_bag_file.h"

namespace glyphon {

// A bag holding the entries as they were saved.
MemoryPropertyBag BagOfEntries(const SavedEntries& entries);
// What a bag keeps, in the order it was written (values equal to their default are not kept).
SavedEntries EntriesOfBag(const MemoryPropertyBag& bag);

}  // namespace glyphon
