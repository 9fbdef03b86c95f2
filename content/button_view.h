// What the painters may read of a button: its properties, its input state and its container.
// The control implements it; painters take it by const reference and never change the button.
#pragma once

#include <cstdint>
#include <string>

#include "platform/ole/std_font.h"
#include "platform/ole/std_picture.h"
#include "platform/win32_types.h"

namespace glyphon {

class ButtonView {
 public:
  virtual ~ButtonView() = default;

  // Properties.
  virtual std::int32_t Style() const = 0;
  virtual std::int32_t BorderStyle() const = 0;
  virtual std::int32_t Alignment() const = 0;
  virtual std::int32_t PictureAlignment() const = 0;
  virtual std::int32_t PictureSpacing() const = 0;
  virtual std::int32_t PictureStyle() const = 0;
  virtual win::OLE_COLOR BackColor() const = 0;
  virtual win::OLE_COLOR ForeColor() const = 0;
  virtual win::OLE_COLOR HighlightColor() const = 0;
  virtual win::OLE_COLOR ShadowColor() const = 0;
  virtual win::OLE_COLOR BorderColor() const = 0;
  virtual win::OLE_COLOR DisabledColor() const = 0;
  virtual win::OLE_COLOR MaskColor() const = 0;
  virtual bool Enabled() const = 0;
  virtual bool Default() const = 0;
  virtual bool ShowDefault() const = 0;
  virtual bool ShowFocus() const = 0;
  virtual bool UseMaskColor() const = 0;
  virtual bool DropShadow() const = 0;
  virtual const std::string& Caption() const = 0;
  // The caption without its access-key "&".
  virtual const std::string& DisplayCaption() const = 0;
  virtual StdFont Font() const = 0;
  virtual const StdPicture& Picture() const = 0;
  virtual const StdPicture& PictureOver() const = 0;
  virtual const StdPicture& PictureDown() const = 0;
  virtual const StdPicture& PictureDisabled() const = 0;

  // Input and repaint state.
  virtual bool HasFocus() const = 0;
  virtual bool SuppressRedraw() const = 0;
  virtual std::int32_t PushLook() const = 0;

  // Container: ambient run mode, and the container's back colour read afresh on every call
  // (it throws AutomationError when the container has none).
  virtual bool UserMode() const = 0;
  virtual win::OLE_COLOR ContainerBackColor() const = 0;
};

// The default ring shows for a default button that asks for it, at design time even when disabled.
inline bool HasDefaultLook(const ButtonView& button) {
  return (!button.UserMode() || button.Enabled()) && button.Default() && button.ShowDefault();
}

}  // namespace glyphon
