// The host's picture object as a portable value type: a picture type, a bitmap or icon handle and
// a size in HiMetric units (hundredths of a millimetre), shared by every copy.
//
// Three kinds of value exist, as with the host's picture references:
//   - no object (default-constructed): the reference is unset. A picture property that holds
//     nothing returns this, and so do getters documented to return "no object".
//   - an empty picture (Empty()): a real object of type PICTYPE_NONE without a handle, what
//     loading from an empty source gives. A picture property given one stores no object.
//   - a picture of type bitmap, icon, metafile or enhanced metafile.
// Queries on no object answer as an empty picture does (type PICTYPE_NONE, null handle, size 0);
// IsNothing() tells the two apart.
//
// Copies share one underlying object: the handle is released when the last copy goes, and only
// if the picture owns it. The release goes through the engine that served the thread when the
// picture was made, so a picture may outlive an EngineScope that is not the one that made it.
#pragma once

#include <memory>

#include "platform/win32.h"

namespace glyphon {

class StdPicture {
 public:
  // No object.
  StdPicture() = default;

  // An object of type PICTYPE_NONE.
  static StdPicture Empty();

  // A bitmap picture. With own, the picture deletes the bitmap when the last copy goes; the
  // palette is always borrowed (its owner keeps deleting it, as with the host's picture object).
  static StdPicture FromBitmap(win::HBITMAP bitmap, win::HPALETTE palette, bool own);
  static StdPicture FromBitmap(win::HBITMAP bitmap, bool own) {
    return FromBitmap(bitmap, nullptr, own);
  }

  // An icon picture; with own, the icon is destroyed when the last copy goes.
  static StdPicture FromIcon(win::HICON icon, bool own);

  // The picture a description asks for, as the host's indirect creation makes it: bitmap and
  // icon descriptions as above, PICTYPE_NONE an empty picture. Any other type gives no object.
  static StdPicture FromDescription(const win::PICTDESC& description, bool own);

  // A picture of type PICTYPE_METAFILE or PICTYPE_ENHMETAFILE without a handle, so that code
  // which must refuse metafiles can be exercised. Other types give no object.
  static StdPicture Metafile(win::UINT type, win::LONG widthHiMetric, win::LONG heightHiMetric);

  bool IsNothing() const { return !object_; }
  explicit operator bool() const { return !IsNothing(); }

  win::UINT Type() const;
  // The HBITMAP or HICON, as the host's generic picture handle.
  win::HGDIOBJ Handle() const;
  // Typed views of Handle(): null unless the picture is of that type.
  win::HBITMAP Bitmap() const;
  win::HICON Icon() const;
  win::HPALETTE Palette() const;
  bool OwnsHandle() const;

  // Size in HiMetric, fixed when the picture is made.
  win::LONG Width() const;
  win::LONG Height() const;

  // Identity, as reference comparison: true for copies of one object and for two no-objects.
  friend bool operator==(const StdPicture& a, const StdPicture& b) {
    return a.object_ == b.object_;
  }

  // Pixels at the 96 pixels per inch of the reference device to HiMetric, rounded to nearest
  // with halves away from zero (as the platform's multiply-divide rounds).
  static win::LONG PixelsToHiMetric(int pixels);

 private:
  struct Object;
  explicit StdPicture(std::shared_ptr<const Object> object) : object_(std::move(object)) {}

  std::shared_ptr<const Object> object_;
};

}  // namespace glyphon
