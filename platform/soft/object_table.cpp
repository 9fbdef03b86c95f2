#include "platform/soft/object_table.h"

namespace glyphon::win::soft {

std::uintptr_t ObjectTable::Encode(std::size_t index, const Slot& slot) {
  const auto kind = static_cast<std::uintptr_t>(slot.object->kind);
  return (kind << (kIndexBits + kGenerationBits)) |
         (std::uintptr_t{slot.generation} << kIndexBits) | (index + 1);
}

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

Object* ObjectTable::Find(std::uintptr_t handle) const {
  const std::size_t index = (handle & ((std::uintptr_t{1} << kIndexBits) - 1));
  if (index == 0 || index > slots_.size()) return nullptr;
  const Slot& slot = slots_[index - 1];
  if (!slot.object || Encode(index - 1, slot) != handle) return nullptr;
  return slot.object.get();
}

bool ObjectTable::Remove(std::uintptr_t handle) {
  Object* object = Find(handle);
  if (object == nullptr || object->stock) return false;
  const std::size_t index = (handle & ((std::uintptr_t{1} << kIndexBits) - 1)) - 1;
  Slot& slot = slots_[index];
  --counts_[static_cast<std::size_t>(object->kind)];
  slot.object.reset();
  slot.generation = static_cast<std::uint8_t>(slot.generation + 1);
  freeSlots_.push_back(static_cast<std::uint32_t>(index));
  return true;
}

}  // namespace glyphon::win::soft
