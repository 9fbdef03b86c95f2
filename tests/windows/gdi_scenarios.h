// Small building blocks that the parity scenarios paint with, each through the current engine.
#pragma once

#include "platform/win32.h"

namespace glyphon::testing {

// Selects a new object into a DC for the scope, then puts the old one back and deletes it.
class Selected {
 public:
  Selected(win::HDC dc, win::HGDIOBJ object)
      : dc_(dc), object_(object), previous_(win::SelectObject(dc, object)) {}
  ~Selected() {
    win::SelectObject(dc_, previous_);
    win::DeleteObject(object_);
  }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  win::HDC dc_;
  win::HGDIOBJ object_;
  win::HGDIOBJ previous_;
};

// A memory DC with its own bitmap (32-bit screen-compatible, or monochrome), for block-transfer
// sources.
class SourceDc {
 public:
  SourceDc(int width, int height, bool monochrome = false);
  ~SourceDc();
  SourceDc(const SourceDc&) = delete;
  SourceDc& operator=(const SourceDc&) = delete;
  win::HDC dc() const { return dc_; }
  win::HBITMAP bitmap() const { return bitmap_; }

 private:
  win::HDC dc_;
  win::HBITMAP bitmap_;
  win::HGDIOBJ original_;
};

void FillSolid(win::HDC dc, int left, int top, int right, int bottom, win::COLORREF color);
// Vertical bands of four colours over the area, so that every mix has something to work on.
void PaintBands(win::HDC dc, int width, int height);
// Diagonal colour checks, different from the bands in every pixel pair.
void PaintChecks(win::HDC dc, int width, int height);

}  // namespace glyphon::testing
