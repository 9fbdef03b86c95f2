#include "content/picture_choice.h"

#include "control/glyphon_constants.h"

namespace glyphon {

namespace {

const StdPicture& FirstSet(const StdPicture& first, const StdPicture& fallback) {
  return HasPicture(first) ? first : fallback;
}

}  // namespace

StdPicture ChoosePicture(const ButtonView& button, std::int32_t drawState) {
  if (!button.Enabled() && HasPicture(button.PictureDisabled())) return button.PictureDisabled();
  switch (drawState) {
    case DrawStateDown:
      return FirstSet(button.PictureDown(), FirstSet(button.PictureOver(), button.Picture()));
    case DrawStateHot: return FirstSet(button.PictureOver(), button.Picture());
    case DrawStateUp: return button.Picture();
    default: return {};
  }
}

}  // namespace glyphon
