// Its own test program, because it replaces the global allocator to count heap allocations.
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "tests/platform/text_canvas.h"
#include "tests/support/leak_check.h"
#include "tests/support/pinned_font.h"

namespace {
long allocations = 0;

void* TryAllocate(std::size_t size) noexcept {
  ++allocations;
  return std::malloc(size != 0 ? size : 1);
}

void* Allocate(std::size_t size) {
  if (void* memory = TryAllocate(size)) return memory;
  throw std::bad_alloc();
}
}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return TryAllocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return TryAllocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace glyphon::win {
namespace {

TEST(TextAllocation, DrawingTheSameCaptionAgainAllocatesNothing) {
  testing::LeakCheck leaks;
  testing::PinnedFont pinned;
  testing::TextCanvas canvas(120, 60);
  const HDC dc = canvas.Dc();
  auto draw = [dc] {
    const char* caption = "&Caption in two lines";
    const UINT flags = DT_WORDBREAK | DT_EDITCONTROL | DT_CENTER;
    RECT rect{0, 0, 90, 1};
    DrawTextA(dc, caption, -1, &rect, flags | DT_CALCRECT);
    DrawTextA(dc, caption, -1, &rect, flags);
    TextOutA(dc, 0, 40, "Caption", 7);
    SIZE size{};
    GetTextExtentPoint32A(dc, "Caption", 7, &size);
    TEXTMETRICA tm{};
    GetTextMetricsA(dc, &tm);
  };
  auto makeFont = [] { return CreateFontA(-11, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 4, 0, "Tahoma"); };
  {
    testing::ScopedFont font(dc, makeFont());
    draw();
    const long before = allocations;
    draw();
    EXPECT_EQ(allocations - before, 0);
  }
  // A new handle for the same description finds the font already realised.
  testing::ScopedFont font(dc, makeFont());
  const long before = allocations;
  draw();
  EXPECT_EQ(allocations - before, 0);
}

}  // namespace
}  // namespace glyphon::win
