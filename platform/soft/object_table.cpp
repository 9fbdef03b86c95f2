#include "platform/soft/object_table.h"

namespace glyphon::win::soft {

std::uintptr_t ObjectTable::Add(std::unique_ptr<Object> object) {
  std::size_t index;
  if (!freeSlots_.empty()) {
    index = freeSlots_.back();
    freeSlots_.pop_back();
  } else {
    if (slots_.size() >= kMaxSlots) return 0;
    index = slots_.size();
    slots_.emplace_back();
  }
  Slot& slot = slots_[index];
  if (!object->stock) ++counts_[static_cast<std::size_t>(object->kind)];
  slot.object = std::move(object);
  return Encode(index, slot);
}

bool ObjectTable::Remove(std::uintptr_t handle) {
  Object* object = Find(handle);
  if (object == nullptr || object->stock) return false;
  const std::size_t index = (handle & kIndexMask) - 1;
  Slot& slot = slots_[index];
  const auto kind = static_cast<std::size_t>(object->kind);
  --counts_[kind];
  if ((object->kind == ObjectKind::Pen || object->kind == ObjectKind::Brush) &&
      spares_[kind].size() < kMaxSpares) {
    spares_[kind].push_back(std::move(slot.object));
  }
  slot.object.reset();
  slot.generation = (slot.generation + 1) & kGenerationMask;
  freeSlots_.push_back(static_cast<std::uint32_t>(index));
  return true;
}

}  // namespace glyphon::win::soft
