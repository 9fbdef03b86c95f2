#include "platform/ole/std_picture.h"

#include <cstdint>

#include "platform/engine.h"

namespace glyphon {

using namespace win;

struct StdPicture::Object {
  UINT type = PICTYPE_NONE;
  HGDIOBJ handle = nullptr;
  HPALETTE palette = nullptr;
  bool own = false;
  LONG width = 0;
  LONG height = 0;
  Engine* engine = nullptr;

  Object() = default;
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;

  ~Object() {
    if (!own || handle == nullptr) return;
    if (type == PICTYPE_BITMAP) engine->DeleteObject(handle);
    if (type == PICTYPE_ICON) engine->DestroyIcon(static_cast<HICON>(handle));
  }
};

namespace {

struct PixelSize {
  int width = 0;
  int height = 0;
};

PixelSize BitmapSize(Engine& engine, HBITMAP bitmap) {
  BITMAP info{};
  if (bitmap == nullptr || engine.GetObjectA(bitmap, sizeof info, &info) == 0) return {};
  return {info.bmWidth, info.bmHeight};
}

// An icon measures as its colour bitmap; a monochrome icon's mask holds the AND and XOR halves.
PixelSize IconSize(Engine& engine, HICON icon) {
  ICONINFO info{};
  if (icon == nullptr || !engine.GetIconInfo(icon, &info)) return {};
  PixelSize size;
  if (info.hbmColor != nullptr) {
    size = BitmapSize(engine, info.hbmColor);
  } else {
    size = BitmapSize(engine, info.hbmMask);
    size.height /= 2;
  }
  // The bitmaps GetIconInfo hands out are copies that belong to the caller.
  if (info.hbmColor != nullptr) engine.DeleteObject(info.hbmColor);
  if (info.hbmMask != nullptr) engine.DeleteObject(info.hbmMask);
  return size;
}

}  // namespace

LONG StdPicture::PixelsToHiMetric(int pixels) {
  constexpr std::int64_t kHiMetricPerInch = 2540;
  constexpr std::int64_t kPixelsPerInch = 96;
  const std::int64_t product = std::int64_t{pixels} * kHiMetricPerInch;
  const std::int64_t magnitude = (product < 0 ? -product : product) + kPixelsPerInch / 2;
  const std::int64_t rounded = magnitude / kPixelsPerInch;
  return static_cast<LONG>(product < 0 ? -rounded : rounded);
}

StdPicture StdPicture::Empty() { return StdPicture(std::make_shared<const Object>()); }

StdPicture StdPicture::FromBitmap(HBITMAP bitmap, HPALETTE palette, bool own) {
  auto object = std::make_shared<Object>();
  object->engine = &CurrentEngine();
  object->type = PICTYPE_BITMAP;
  object->handle = bitmap;
  object->palette = palette;
  object->own = own;
  const PixelSize size = BitmapSize(*object->engine, bitmap);
  object->width = PixelsToHiMetric(size.width);
  object->height = PixelsToHiMetric(size.height);
  return StdPicture(std::move(object));
}

StdPicture StdPicture::FromIcon(HICON icon, bool own) {
  auto object = std::make_shared<Object>();
  object->engine = &CurrentEngine();
  object->type = PICTYPE_ICON;
  object->handle = icon;
  object->own = own;
  const PixelSize size = IconSize(*object->engine, icon);
  object->width = PixelsToHiMetric(size.width);
  object->height = PixelsToHiMetric(size.height);
  return StdPicture(std::move(object));
}

StdPicture StdPicture::FromDescription(const PICTDESC& description, bool own) {
  switch (description.picType) {
    case PICTYPE_NONE: return Empty();
    case PICTYPE_BITMAP: return FromBitmap(description.bmp.hbitmap, description.bmp.hpal, own);
    case PICTYPE_ICON: return FromIcon(description.icon.hicon, own);
    default: return {};
  }
}

StdPicture StdPicture::Metafile(UINT type, LONG widthHiMetric, LONG heightHiMetric) {
  if (type != PICTYPE_METAFILE && type != PICTYPE_ENHMETAFILE) return {};
  auto object = std::make_shared<Object>();
  object->type = type;
  object->width = widthHiMetric;
  object->height = heightHiMetric;
  return StdPicture(std::move(object));
}

UINT StdPicture::Type() const { return object_ ? object_->type : PICTYPE_NONE; }

HGDIOBJ StdPicture::Handle() const { return object_ ? object_->handle : nullptr; }

HBITMAP StdPicture::Bitmap() const {
  return Type() == PICTYPE_BITMAP ? static_cast<HBITMAP>(object_->handle) : nullptr;
}

HICON StdPicture::Icon() const {
  return Type() == PICTYPE_ICON ? static_cast<HICON>(object_->handle) : nullptr;
}

HPALETTE StdPicture::Palette() const { return object_ ? object_->palette : nullptr; }

bool StdPicture::OwnsHandle() const { return object_ && object_->own; }

LONG StdPicture::Width() const { return object_ ? object_->width : 0; }

LONG StdPicture::Height() const { return object_ ? object_->height : 0; }

}  // namespace glyphon
