// Scope guards for platform objects in tests: a handle freed, or a selection undone, on exit.
// Declare the owner before the selection, so that the object is deselected before it goes.
#pragma once

#include "platform/win32.h"

namespace glyphon::testing {

inline void Release(win::HDC dc) { win::DeleteDC(dc); }
inline void Release(win::HICON icon) { win::DestroyIcon(icon); }
template <class Handle>
void Release(Handle object) {
  win::DeleteObject(object);
}

template <class Handle>
class Owned {
 public:
  explicit Owned(Handle handle) : handle_(handle) {}
  ~Owned() {
    if (handle_ != nullptr) Release(handle_);
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  operator Handle() const { return handle_; }

 private:
  Handle handle_;
};

class Selected {
 public:
  Selected(win::HDC dc, win::HGDIOBJ object) : dc_(dc), previous_(win::SelectObject(dc, object)) {}
  ~Selected() { win::SelectObject(dc_, previous_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  win::HDC dc_;
  win::HGDIOBJ previous_;
};

}  // namespace glyphon::testing
