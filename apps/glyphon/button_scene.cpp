#include "apps/glyphon/button_scene.h"

#include <algorithm>

#include "platform/codec/bitmap_png.h"
#include "platform/soft/soft_engine.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::apps {

namespace {

constexpr int kMargin = 16;

win::soft::UserSystem& User() { return win::soft::ThreadSoftEngine().User(); }

FormOptions FormFor(const SceneOptions& options) {
  FormOptions form;
  form.width = std::max(options.width, 0) + 2 * kMargin;
  form.height = std::max(options.height, 0) + 2 * kMargin;
  form.userMode = options.userMode;
  form.backColor = options.containerColor;
  form.record = false;
  return form;
}

}  // namespace

ButtonScene::ButtonScene(const SceneOptions& options)
    : form_(FormFor(options)),
      site_(form_.AddSite("Glyphon1", SiteRect{kMargin, kMargin, static_cast<double>(options.width),
                                               static_cast<double>(options.height)})),
      button_(site_) {
  site_.Attach(&button_);
  if (options.properties != nullptr) {
    button_.ReadProperties(*options.properties);
  } else {
    button_.InitProperties();
  }
  // The pointer rests on the form's corner, off the button, wherever it was before.
  User().MouseMove(ScreenPoint(-kMargin, -kMargin));
  User().DispatchPendingMessages();
}

ButtonScene::~ButtonScene() {
  // Let go away from the button, so the next scene starts with no button held and no click here.
  if (pressed_) User().MouseUp(win::soft::MouseButton::Left, ScreenPoint(-kMargin, -kMargin));
  site_.Attach(nullptr);
}

win::POINT ButtonScene::ScreenPoint(int x, int y) const {
  win::POINT point{x, y};
  win::ClientToScreen(site_.hWnd(), &point);
  return point;
}

void ButtonScene::MakeDefault() { form_.SetDefaultSite(&site_); }

void ButtonScene::Focus() { win::SetFocus(site_.hWnd()); }

void ButtonScene::Reach(SceneState state) {
  if (state == SceneState::Normal) return;
  const win::POINT centre = ScreenPoint(static_cast<int>(site_.ScaleWidth()) / 2,
                                        static_cast<int>(site_.ScaleHeight()) / 2);
  User().MouseMove(centre);
  if (state == SceneState::Pressed) {
    User().MouseDown(win::soft::MouseButton::Left, centre);
    pressed_ = true;
  }
  User().DispatchPendingMessages();
}

std::optional<Image> ButtonScene::Capture() const {
  const win::RECT client{0, 0, static_cast<int>(site_.ScaleWidth()),
                         static_cast<int>(site_.ScaleHeight())};
  return CaptureDc(site_.hDC(), client);
}

}  // namespace glyphon::apps
