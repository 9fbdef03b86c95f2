#include "content/picture_painter.h"

#include "content/paint_effects.h"
#include "content/picture_choice.h"
#include "content/pixel_effects.h"
#include "control/glyphon_constants.h"
#include "control/ignore_errors.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

constexpr int kEffectStrength = 50;

// Draws one picture at offsets from the box with one PaintEffects object, each step on its own.
class PicturePass {
 public:
  PicturePass(Canvas& canvas, const ButtonView& button, const PictureBox& box,
              const StdPicture& picture)
      : canvas_(canvas), button_(button), box_(box), picture_(picture) {}

  // Keyed on the mask colour when the button asks for it, else plain.
  void CopyAt(int dx, int dy) const {
    IgnoringErrors([&] {
      if (button_.UseMaskColor()) {
        effects_.PaintTransparentStdPic(canvas_.hdc(), box_.x + dx, box_.y + dy, box_.width,
                                        box_.height, picture_, 0, 0, button_.MaskColor(),
                                        canvas_.hPal());
      } else {
        effects_.PaintNormalStdPic(canvas_.hdc(), box_.x + dx, box_.y + dy, box_.width,
                                   box_.height, picture_, 0, 0, canvas_.hPal());
      }
    });
  }

  void SilhouetteAt(int dx, int dy, win::OLE_COLOR color) const {
    IgnoringErrors([&] {
      effects_.PaintMonoStandardPic(picture_, canvas_, box_.x + dx, box_.y + dy, box_.width,
                                    box_.height, button_.MaskColor(), color, canvas_.hPal(),
                                    button_.UseMaskColor());
    });
  }

  void Faded() const {
    IgnoringErrors([&] {
      PaintFadedPicture(picture_, canvas_.hdc(), box_.x, box_.y, box_.width, box_.height,
                        kEffectStrength, button_.UseMaskColor() ? button_.MaskColor() : kNoColor);
    });
  }

  void Greyed() const {
    IgnoringErrors([&] {
      PaintGreyedPicture(picture_, canvas_.hdc(), box_.x, box_.y, box_.width, box_.height,
                         kEffectStrength, kPlainGrey, button_.MaskColor());
    });
  }

 private:
  Canvas& canvas_;
  const ButtonView& button_;
  const PictureBox& box_;
  const StdPicture& picture_;
  PaintEffects effects_;
};

bool IsXpStyle(std::int32_t style) {
  return style == zonStyleWinXPBlue || style == zonStyleWinXPOliveGreen ||
         style == zonStyleWinXPSilver;
}

void PaintDisabled(const PicturePass& pass, const ButtonView& button) {
  if (HasPicture(button.PictureDisabled())) {
    pass.CopyAt(0, 0);  // the button's own disabled picture needs no look of ours
    return;
  }
  if (button.PushLook() != 1) {
    pass.SilhouetteAt(0, 0, button.DisabledColor());
    return;
  }
  if (IsXpStyle(button.Style())) {
    pass.Greyed();
    return;
  }
  pass.SilhouetteAt(1, 1, button.HighlightColor());
  pass.SilhouetteAt(0, 0, PictureShadowColor(button));
}

// The active picture shows in full unless it idles in a running form; a default button that
// shows its default look counts as active.
bool ActiveInFull(const ButtonView& button, std::int32_t drawState) {
  return drawState == DrawStateHot || drawState == DrawStateDown ||
         (drawState == DrawStateUp && !button.UserMode()) || HasDefaultLook(button);
}

void PaintDropShadow(const PicturePass& pass, const ButtonView& button, std::int32_t drawState) {
  const std::int32_t style = button.PictureStyle();
  if (style == zonPicStylePopup) {
    pass.SilhouetteAt(0, 0, PictureShadowColor(button));  // where the picture rests
    return;
  }
  if (style == zonPicStyleActive && drawState == DrawStateUp && button.UserMode()) return;
  pass.SilhouetteAt(2, 2, PictureShadowColor(button));
}

void PaintStyled(const PicturePass& pass, const ButtonView& button, std::int32_t drawState) {
  switch (button.PictureStyle()) {
    case zonPicStyleMono: {
      const bool sunkenDown = button.PushLook() != 1 && drawState == DrawStateDown;
      pass.SilhouetteAt(0, 0, sunkenDown ? button.BackColor() : button.ForeColor());
      return;
    }
    case zonPicStylePopup:
      if (drawState == DrawStateHot) {
        // A masked picture rises one pixel, an unmasked one two; both looks are kept.
        const int rise = button.UseMaskColor() ? 1 : 2;
        pass.CopyAt(-rise, -rise);
        return;
      }
      pass.CopyAt(0, 0);
      return;
    case zonPicStyleStatic: {
      // Cancels the pressed shift, so the picture stays put while the caption moves.
      const int offset = drawState == DrawStateDown ? -1 : 0;
      pass.CopyAt(offset, offset);
      return;
    }
    case zonPicStyleActive:
      if (ActiveInFull(button, drawState)) {
        pass.CopyAt(0, 0);
      } else {
        pass.Faded();
      }
      return;
    default: pass.CopyAt(0, 0); return;
  }
}

}  // namespace

win::OLE_COLOR PictureShadowColor(const ButtonView& button) {
  switch (button.Style()) {
    case zonStyleWinXPBlue:
    case zonStyleWinXPOliveGreen: return win::RGB(172, 168, 153);
    case zonStyleWinXPSilver: return win::RGB(157, 157, 161);
    case zonStyleMac8x: return win::RGB(189, 189, 189);
    default: return button.ShadowColor();
  }
}

void PaintButtonPicture(Canvas& canvas, const ButtonView& button, const PictureBox& box,
                        const StdPicture& picture, std::int32_t drawState) {
  if (!HasPicture(picture)) return;
  IgnoringErrors([&] {
    const PicturePass pass(canvas, button, box, picture);
    if (!button.Enabled()) {
      PaintDisabled(pass, button);
      return;
    }
    if (button.DropShadow()) PaintDropShadow(pass, button, drawState);
    PaintStyled(pass, button, drawState);
  });
}

}  // namespace glyphon
