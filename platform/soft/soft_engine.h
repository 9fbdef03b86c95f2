// The portable engine: GDI, USER and the OLE colour bits implemented in software, pixel-exact to
// GDI for everything but glyph shapes. One instance serves one thread.
#pragma once

#include <array>
#include <memory>

#include "platform/engine.h"
#include "platform/soft/gdi_objects.h"
#include "platform/soft/object_table.h"

namespace glyphon::win::soft {

class TextSystem;
class UserSystem;

// Owns the engine's text system, which lives only in builds that have a glyph source.
struct TextSystemDeleter {
  void operator()(TextSystem* text) const;
};

using SystemColors = std::array<COLORREF, SYSTEM_COLOR_COUNT>;

// The classic scheme the engine starts with.
const SystemColors& ClassicSystemColors();

class SoftEngine final : public Engine {
 public:
  SoftEngine();
  ~SoftEngine() override;

#define GLYPHON_DECLARE_OVERRIDE(ret, name, params, args) ret name params override;
  GLYPHON_WIN32_FUNCTIONS(GLYPHON_DECLARE_OVERRIDE)
#undef GLYPHON_DECLARE_OVERRIDE

  // ---- Services beyond Win32, for hosts and tests ----

  // Live objects by kind, stock objects excluded.
  const LiveCounts& LiveObjectCounts() const { return objects_.Counts(); }

  // Replaces the system colour table; every window is sent WM_SYSCOLORCHANGE.
  void SetSystemColors(const SystemColors& colors);

  // The virtual screen that GetDC(0) draws on.
  void SetScreenSize(int width, int height);
  const std::shared_ptr<Pixmap>& Screen() const { return screen_; }

  // ---- Internals shared by the engine's parts ----

  ObjectTable& Objects() { return objects_; }
  // Inline: every platform call looks up one or more of its handles.
  DcObject* Dc(HDC hdc) const { return Typed<DcObject>(hdc, ObjectKind::Dc); }
  BitmapObject* Bitmap(HBITMAP bitmap) const {
    return Typed<BitmapObject>(bitmap, ObjectKind::Bitmap);
  }
  PenObject* Pen(HPEN pen) const { return Typed<PenObject>(pen, ObjectKind::Pen); }
  BrushObject* Brush(HBRUSH brush) const { return Typed<BrushObject>(brush, ObjectKind::Brush); }
  FontObject* Font(HFONT font) const { return Typed<FontObject>(font, ObjectKind::Font); }
  PaletteObject* Palette(HPALETTE palette) const {
    return Typed<PaletteObject>(palette, ObjectKind::Palette);
  }
  IconObject* Icon(HICON icon) const { return Typed<IconObject>(icon, ObjectKind::Icon); }

  // Adds a record to the handle table and returns its handle (null when the table is full).
  template <class Handle>
  Handle AddObject(std::unique_ptr<Object> object) {
    return reinterpret_cast<Handle>(objects_.Add(std::move(object)));
  }

  // A new DC of the given kind with the stock objects selected and drawing onto surface.
  HDC NewDc(DcKind kind, std::shared_ptr<Pixmap> surface, HWND window);
  HBITMAP DefaultBitmap() const { return defaultBitmap_; }
  // A DIB section of the given size in the format (depth, row order, colours) of another.
  HBITMAP CreateMatchingDibSection(HDC hdc, const Pixmap& format, int cx, int cy);

  // Null in builds without a glyph source (Windows, where text goes through the native engine).
  TextSystem* Text() { return text_.get(); }
  UserSystem& User() { return *user_; }

 private:
  template <class T>
  T* Typed(const void* handle, ObjectKind kind) const {
    return objects_.Find<T>(reinterpret_cast<std::uintptr_t>(handle), kind);
  }

  void CreateStockObjects();
  HGDIOBJ SelectInto(Object& record, HGDIOBJ& slot, HGDIOBJ object);
  void SelectStock(HGDIOBJ& slot, HGDIOBJ object);
  void Release(HGDIOBJ object);
  void ReleaseSelections(DcObject& dc);

  ObjectTable objects_;
  SystemColors systemColors_;
  std::array<HGDIOBJ, DC_PEN + 1> stockObjects_{};
  std::array<HBRUSH, SYSTEM_COLOR_COUNT> systemColorBrushes_{};
  HBITMAP defaultBitmap_ = nullptr;
  std::shared_ptr<Pixmap> screen_;
  std::unique_ptr<TextSystem, TextSystemDeleter> text_;
  std::unique_ptr<UserSystem> user_;
};

// The calling thread's soft engine, created on first use.
SoftEngine& ThreadSoftEngine();

}  // namespace glyphon::win::soft
