// Handle table of the soft engine. A handle encodes the object's kind, a slot and the slot's
// generation, so deleted, foreign and wrongly-typed handles are recognised and ignored instead of
// reaching freed memory. Live objects are counted by kind so tests can prove nothing leaks.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <new>
#include <vector>

namespace glyphon::win::soft {

enum class ObjectKind : std::uint8_t {
  None = 0,
  Dc,
  Bitmap,
  Pen,
  Brush,
  Font,
  Palette,
  Icon,
  Window,
  Count
};

struct Object {
  explicit Object(ObjectKind k) : kind(k) {}
  virtual ~Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  const ObjectKind kind;
  bool stock = false;          // never deleted, not counted
  int selectionCount = 0;      // device contexts it is selected into
  bool deletePending = false;  // deleted while selected: freed when the last DC lets go
};

using LiveCounts = std::array<int, static_cast<std::size_t>(ObjectKind::Count)>;

class ObjectTable {
 public:
  ObjectTable() = default;
  ObjectTable(const ObjectTable&) = delete;
  ObjectTable& operator=(const ObjectTable&) = delete;

  // Takes ownership and returns the handle value, or 0 when the table is full.
  std::uintptr_t Add(std::unique_ptr<Object> object);

  // The live object behind a handle value, or null when it is not one of ours. Inline: every
  // platform call makes one or more lookups.
  Object* Find(std::uintptr_t handle) const {
    const std::size_t index = handle & kIndexMask;
    if (index == 0 || index > slots_.size()) return nullptr;
    const Slot& slot = slots_[index - 1];
    if (!slot.object || Encode(index - 1, slot) != handle) return nullptr;
    return slot.object.get();
  }

  template <class T>
  T* Find(std::uintptr_t handle, ObjectKind kind) const {
    Object* object = Find(handle);
    return object != nullptr && object->kind == kind ? static_cast<T*>(object) : nullptr;
  }

  // Frees the object; false for unknown handles and stock objects.
  bool Remove(std::uintptr_t handle);

  // A fresh record of type T, reusing the storage of one removed earlier when there is one:
  // a repaint creates and deletes dozens of pens and brushes, and the heap need not see them.
  template <class T>
  std::unique_ptr<T> New(ObjectKind kind) {
    auto& spares = spares_[static_cast<std::size_t>(kind)];
    if (spares.empty()) return std::make_unique<T>();
    Object* storage = spares.back().release();
    spares.pop_back();
    storage->~Object();
    return std::unique_ptr<T>(new (storage) T());
  }

  const LiveCounts& Counts() const { return counts_; }

  // Calls f(handle, object) for each live object (used to broadcast to windows).
  template <class F>
  void ForEach(ObjectKind kind, F&& f) const {
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      const Slot& slot = slots_[i];
      if (slot.object && slot.object->kind == kind) f(Encode(i, slot), slot.object.get());
    }
  }

 private:
  struct Slot {
    std::unique_ptr<Object> object;
    std::uint32_t generation = 0;
  };
  static constexpr unsigned kIndexBits = 20;
  // Wide generations where handles have room for them, so a stale handle that is deleted again
  // (some callers do) cannot come to name a newer object in its slot.
  static constexpr unsigned kGenerationBits = sizeof(std::uintptr_t) >= 8 ? 32 : 8;
  static constexpr std::uint32_t kGenerationMask =
      kGenerationBits >= 32 ? 0xFFFFFFFFu : (1u << kGenerationBits) - 1;
  static constexpr std::size_t kMaxSlots = (std::size_t{1} << kIndexBits) - 1;

  static constexpr std::size_t kMaxSpares = 32;
  static constexpr std::uintptr_t kIndexMask = (std::uintptr_t{1} << kIndexBits) - 1;

  static std::uintptr_t Encode(std::size_t index, const Slot& slot) {
    const auto kind = static_cast<std::uintptr_t>(slot.object->kind);
    return (kind << (kIndexBits + kGenerationBits)) |
           (std::uintptr_t{slot.generation} << kIndexBits) | (index + 1);
  }

  std::vector<Slot> slots_;
  std::vector<std::uint32_t> freeSlots_;
  LiveCounts counts_{};
  std::array<std::vector<std::unique_ptr<Object>>, static_cast<std::size_t>(ObjectKind::Count)>
      spares_;
};

}  // namespace glyphon::win::soft
