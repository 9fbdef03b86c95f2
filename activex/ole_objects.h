// The control's font and picture values as the system's font and picture objects, and back.
// Pictures are copied both ways: the object a client hands in may be released (with its handle)
// while the control still shows it, and the object handed out owns its own copy.
#pragma once

#include <optional>

#include "activex/windows_api.h"

namespace glyphon::activex {

ComPtr<IFontDisp> MakeFontObject(const StdFont& font);
// Null when the object is no font.
std::optional<StdFont> FontFromObject(IUnknown* object);

// No object gives null; an empty picture gives a picture object of type none.
ComPtr<IPictureDisp> MakePictureObject(const StdPicture& picture);
// Null gives no object; metafiles keep their type (without a handle) so the control can refuse
// them; an object that is no picture gives nullopt.
std::optional<StdPicture> PictureFromObject(IUnknown* object);

}  // namespace glyphon::activex
