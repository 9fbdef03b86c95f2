// The working rectangle of a painter: four margins stepped inwards from the canvas's edges.
#pragma once

#include <cstdint>

namespace glyphon {

// Adds amount to each margin, so a positive amount moves every edge of the working rectangle
// inwards by that many pixels. The margins may be of any integer width.
template <class Margin>
void ShrinkMargins(std::int16_t amount, Margin& top, Margin& left, Margin& right, Margin& bottom) {
  top = static_cast<Margin>(top + amount);
  left = static_cast<Margin>(left + amount);
  right = static_cast<Margin>(right + amount);
  bottom = static_cast<Margin>(bottom + amount);
}

// The canvas size, read once when the painter starts, and the margins inside it. The rectangle
// runs from (L, T) to (R, B) = (width - right, height - bottom).
template <class Margin>
struct WorkingRect {
  WorkingRect(int canvasWidth, int canvasHeight) : width(canvasWidth), height(canvasHeight) {}

  int L() const { return left; }
  int T() const { return top; }
  int R() const { return width - right; }
  int B() const { return height - bottom; }
  void Shrink(std::int16_t amount) { ShrinkMargins(amount, top, left, right, bottom); }

  int width;
  int height;
  Margin left = 0;
  Margin top = 0;
  Margin right = 0;
  Margin bottom = 0;
};

// Background painters keep 32-bit margins, frame painters 16-bit ones.
using BackgroundRect = WorkingRect<std::int32_t>;
using FrameRect = WorkingRect<std::int16_t>;

}  // namespace glyphon
