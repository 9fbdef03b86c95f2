// One Glyphon button on a form of the form host, brought to a look as a user brings it there:
// the pointer moved over it, the left button held down on it, the focus given to it. Both the
// render and the gallery commands paint through it, so each look goes through the control's full
// redraw pipeline.
#pragma once

#include <optional>

#include "control/glyphon.h"
#include "control/host/form_host.h"
#include "platform/codec/png_codec.h"

namespace glyphon::apps {

enum class SceneState { Normal, Hot, Pressed };

struct SceneOptions {
  int width = 81;
  int height = 25;
  // False puts the form in design mode (ambient UserMode false).
  bool userMode = true;
  win::OLE_COLOR containerColor = 0x8000000F;
  // Read instead of initialising the button as new.
  PropertyBag* properties = nullptr;
};

class ButtonScene {
 public:
  explicit ButtonScene(const SceneOptions& options = {});
  ~ButtonScene();
  ButtonScene(const ButtonScene&) = delete;
  ButtonScene& operator=(const ButtonScene&) = delete;

  Glyphon& Button() { return button_; }
  FormSite& Site() { return site_; }

  // The form shows this button as its default button.
  void MakeDefault();
  void Focus();
  void Reach(SceneState state);
  // The button's client area as it is now.
  std::optional<Image> Capture() const;

 private:
  win::POINT ScreenPoint(int x, int y) const;

  FormHost form_;
  FormSite& site_;
  Glyphon button_;
  bool pressed_ = false;
};

}  // namespace glyphon::apps
