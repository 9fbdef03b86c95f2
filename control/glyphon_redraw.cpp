// Construction, the one road to the screen, and the end of the control.
#include <limits>

#include "content/paint_content.h"
#include "control/about_box.h"
#include "control/glyphon.h"
#include "platform/ignore_errors.h"
#include "control/tooltip.h"
#include "styles/style_painters.h"
#include "surface/canvas.h"
#include "surface/rounding.h"

namespace glyphon {

namespace {

// The container reports its client size as real numbers; pixels are the nearest whole number,
// halves to even.
// A size that is not a number or does not fit gives 0.
std::int32_t ToPixels(double size) {
  if (!(size > std::numeric_limits<std::int32_t>::min() &&
        size < std::numeric_limits<std::int32_t>::max())) {
    return 0;
  }
  return RoundHalfEven(size);
}

}  // namespace

Glyphon::Glyphon(ControlSite& site) : site_(site) {
  suppressRedraw_ = true;
  drawState_ = DrawStateUp;
  StartSubclass();
}

Glyphon::~Glyphon() { Terminate(); }

void Glyphon::Terminate() {
  if (terminated_) return;
  terminated_ = true;
  StopSubclass();
  IgnoringErrors([&] { UnregisterTooltip(site_.hWnd(), tooltipRegistrations_); });
  tooltipRegistrations_ = 0;
  picture_ = StdPicture{};
  pictureDown_ = StdPicture{};
  pictureOver_ = StdPicture{};
  if (win::HWND about = AboutWindow()) win::DestroyWindow(about);
  aboutWindow_ = nullptr;
}

void Glyphon::Paint() { Redraw(drawState_); }

void Glyphon::Resize() { Redraw(drawState_); }

// Builds the whole button off-screen and shows it with one block transfer, so it never flickers.
// Every step is on its own: a failing painter leaves what it drew and the others still run.
void Glyphon::Redraw(std::int32_t state) {
  if (suppressRedraw_) return;
  IgnoringErrors([&] {
    Canvas canvas;
    IgnoringErrors([&] { canvas.CreatehDC(); });
    IgnoringErrors([&] {
      canvas.CreateBitmap(site_.hDC(), ToPixels(site_.ScaleWidth()), ToPixels(site_.ScaleHeight()));
    });
    IgnoringErrors([&] { canvas.InitProperties(); });
    IgnoringErrors([&] { PaintBackground(canvas, *this, state); });
    IgnoringErrors([&] { PaintContent(canvas, *this, state); });
    IgnoringErrors([&] { PaintFrame(canvas, *this, state); });
    BlitToControl(canvas);
  });
  IgnoringErrors([&] { site_.Repainted(state); });
}

void Glyphon::BlitToControl(Canvas& canvas) {
  IgnoringErrors([&] {
    win::BitBlt(site_.hDC(), 0, 0, ToPixels(site_.ScaleWidth()), ToPixels(site_.ScaleHeight()),
                canvas.hdc(), 0, 0, win::SRCCOPY);
  });
}

void Glyphon::Refresh() {
  const bool suppressed = suppressRedraw_;
  suppressRedraw_ = false;
  Redraw(drawState_);
  suppressRedraw_ = suppressed;
}

void Glyphon::About() {
  if (win::HWND open = AboutWindow()) {
    win::ShowWindow(open, win::SW_SHOW);
    return;
  }
  aboutWindow_ = ShowAboutBox(site_.hWnd());
}

win::HWND Glyphon::AboutWindow() const {
  return aboutWindow_ != nullptr && win::IsWindow(aboutWindow_) ? aboutWindow_ : nullptr;
}

}  // namespace glyphon
