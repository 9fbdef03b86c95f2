// Mouse, keyboard and access-key input: the visual state and the Click, MouseOver and MouseOut
// events. Input never throws; a failing step is skipped.
#include "control/ascii_case.h"
#include "control/glyphon.h"
#include "platform/ignore_errors.h"

namespace glyphon {

namespace {

constexpr std::int16_t kLeftButton = 1;
constexpr std::int16_t kSpaceKey = 32;
constexpr std::int16_t kEnterKey = 13;
// Long enough for the pressed look of an access-key press to be seen.
constexpr win::DWORD kAccessKeyPressMilliseconds = 60;

bool IsAboutRequest(std::string_view typed) { return EqualsIgnoringCase(typed, "about"); }

}  // namespace

// Inclusive on the far edges: a point one pixel past the right or bottom edge still counts.
bool Glyphon::Inside(float x, float y) const {
  return x >= 0 && x <= site_.ScaleWidth() && y >= 0 && y <= site_.ScaleHeight();
}

void Glyphon::SetDrawState(std::int32_t state) {
  drawState_ = state;
  Redraw(state);
}

void Glyphon::ChangeDrawState(std::int32_t state) {
  if (drawState_ != state) SetDrawState(state);
}

std::int32_t Glyphon::RestingState() const {
  return hasFocus_ && showFocus_ ? DrawStateHot : DrawStateUp;
}

void Glyphon::SetPointerCapture(bool capture) {
  if (capture) {
    win::SetCapture(site_.hWnd());
  } else {
    win::ReleaseCapture();
  }
}

// Handlers of these two events may set properties without repainting each time.
void Glyphon::RaiseMouseOver() {
  pointerInside_ = true;
  suppressRedraw_ = true;
  IgnoringErrors([&] { site_.Events().MouseOver(); });
  suppressRedraw_ = false;
}

void Glyphon::RaiseMouseOut() {
  suppressRedraw_ = true;
  IgnoringErrors([&] { site_.Events().MouseOut(); });
  suppressRedraw_ = false;
  pointerInside_ = false;
}

void Glyphon::FireClickAndTrack() {
  IgnoringErrors([&] { site_.Events().Click(); });
  IgnoringErrors([&] {
    win::POINT cursor{};
    win::RECT window{};
    win::GetCursorPos(&cursor);
    win::GetWindowRect(site_.hWnd(), &window);
    const bool over = window.left <= cursor.x && cursor.x <= window.right &&
                      window.top <= cursor.y && cursor.y <= window.bottom;
    if (over) {
      drawState_ = Enabled() ? DrawStateHot : DrawStateUp;
    } else {
      drawState_ = RestingState();
    }
  });
  Redraw(drawState_);
}

// A button that does not steal the focus hands it back once it has been clicked.
void Glyphon::RestorePreviousFocus() {
  if (previousFocusWindow_ == nullptr) return;
  IgnoringErrors([&] {
    if (UserMode() && !stealFocus_) win::SetFocus(previousFocusWindow_);
  });
  previousFocusWindow_ = nullptr;
}

void Glyphon::MouseDown(std::int16_t button, std::int16_t shift, float x, float y) {
  typedKeys_.clear();
  if (button == kLeftButton) {
    if (Inside(x, y)) {
      drawState_ = DrawStateDown;
      mouseIsDown_ = true;
      hasFocus_ = true;
      Redraw(DrawStateDown);
    } else {
      mouseIsDown_ = false;
    }
  }
  IgnoringErrors([&] { site_.Events().MouseDown(button, shift, x, y); });
}

void Glyphon::MouseMove(std::int16_t button, std::int16_t shift, float x, float y) {
  if (Inside(x, y)) {
    IgnoringErrors([&] { site_.Events().MouseMove(button, shift, x, y); });
    // Keep seeing the pointer after it leaves, to notice that it left.
    SetPointerCapture(true);
    ChangeDrawState(mouseIsDown_ || spaceIsDown_ ? DrawStateDown : DrawStateHot);
    if (!pointerInside_) RaiseMouseOver();
  } else if (spaceIsDown_) {
    // The key keeps the button pressed wherever the pointer is.
    ChangeDrawState(DrawStateDown);
  } else if (!mouseIsDown_) {
    SetPointerCapture(false);
    if (pointerInside_) RaiseMouseOut();
    ChangeDrawState(RestingState());
  } else {
    // Held and away: pops up until the pointer comes back.
    ChangeDrawState(DrawStateHot);
  }
}

void Glyphon::MouseUp(std::int16_t button, std::int16_t shift, float x, float y) {
  if (IsAboutRequest(typedKeys_)) About();
  mouseIsDown_ = false;
  if (!Inside(x, y)) {
    if (pointerInside_) RaiseMouseOut();
    if (!spaceIsDown_) SetDrawState(RestingState());
  } else if (button == kLeftButton && !spaceIsDown_ && hasFocus_) {
    // The press gave the focus, so a release inside is the click.
    SetDrawState(DrawStateHot);
    FireClickAndTrack();
  }
  lastMouseButton_ = button;
  IgnoringErrors([&] { site_.Events().MouseUp(button, shift, x, y); });
  RestorePreviousFocus();
}

// The second press of a double click shows pressed, so its release clicks again.
void Glyphon::DblClick() {
  if (Enabled() && lastMouseButton_ == kLeftButton) {
    mouseIsDown_ = true;
    SetDrawState(DrawStateDown);
  }
}

void Glyphon::KeyDown(std::int16_t keyCode, std::int16_t shift) {
  IgnoringErrors([&] { site_.Events().KeyDown(keyCode, shift); });
  if (keyCode == kSpaceKey && hasFocus_ && !spaceIsDown_) {
    spaceIsDown_ = true;
    SetDrawState(DrawStateDown);
  }
}

void Glyphon::KeyPress(std::int16_t keyAscii) {
  IgnoringErrors([&] { site_.Events().KeyPress(keyAscii); });
  if (keyAscii == kEnterKey && hasFocus_ && showFocus_) FireClickAndTrack();
  typedKeys_.push_back(static_cast<char>(keyAscii));
}

void Glyphon::KeyUp(std::int16_t keyCode, std::int16_t shift) {
  IgnoringErrors([&] { site_.Events().KeyUp(keyCode, shift); });
  spaceIsDown_ = false;
  if (keyCode == kSpaceKey && !mouseIsDown_) {
    drawState_ = RestingState();
    SetPointerCapture(false);
    Redraw(drawState_);
    FireClickAndTrack();
  }
}

void Glyphon::AccessKeyPress(std::int16_t /*keyAscii*/) {
  const std::int32_t remembered = drawState_;
  SetDrawState(DrawStateDown);
  win::Sleep(kAccessKeyPressMilliseconds);
  SetDrawState(DrawStateHot);
  drawState_ = remembered;
  FireClickAndTrack();
  RestorePreviousFocus();
}

void Glyphon::AmbientChanged(std::string_view name) {
  if (name != "DisplayAsDefault") return;
  IgnoringErrors([&] {
    if (Enabled()) {
      default_ = site_.Ambient().DisplayAsDefault();
    } else {
      default_ = false;
      if (Extender* extender = site_.GetExtender()) extender->SetDefault(false);
    }
  });
  Redraw(drawState_);
}

}  // namespace glyphon
