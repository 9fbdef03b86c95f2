#include "content/paint_content.h"

#include "content/caption_painter.h"
#include "content/content_layout.h"
#include "content/hi_metric.h"
#include "content/picture_choice.h"
#include "content/picture_painter.h"
#include "control/glyphon_constants.h"
#include "surface/canvas.h"

namespace glyphon {

namespace {

struct PlacedContent {
  CaptionRect caption;
  PicturePosition picture;
  int pictureWidth = 0;
  int pictureHeight = 0;
};

PlacedContent PlaceContent(const Canvas& canvas, const ButtonView& button,
                           const StdPicture& picture) {
  const ContentFrame frame{canvas.Width(),           canvas.Height(),
                           button.Alignment(),       button.PictureAlignment(),
                           button.PictureSpacing(),  ContentMargins(button.Style(),
                                                                    button.ShowFocus())};
  const ContextCaptionMeasurer measurer(canvas.hdc(), button.Caption());
  PlacedContent placed;
  if (!HasPicture(picture)) {
    placed.caption = LayOutCaption(frame, measurer);
    return placed;
  }
  placed.pictureWidth = HiMetricToPixels(canvas.hdc(), win::LOGPIXELSX, picture.Width());
  placed.pictureHeight = HiMetricToPixels(canvas.hdc(), win::LOGPIXELSY, picture.Height());
  if (button.DisplayCaption().empty()) {
    placed.picture = LayOutPicture(frame, placed.pictureWidth, placed.pictureHeight);
  } else {
    const CaptionAndPicture both =
        LayOutCaptionAndPicture(frame, placed.pictureWidth, placed.pictureHeight, measurer);
    placed.caption = both.caption;
    placed.picture = both.picture;
  }
  return placed;
}

// The pressed look moves the content one pixel right and down.
void ShiftPressed(PlacedContent& placed) {
  ++placed.caption.left;
  ++placed.caption.top;
  ++placed.caption.right;
  ++placed.picture.x;
  ++placed.picture.y;
}

// The 3.x frame has no focus cue of its own: the dotted rectangle hugs the caption, or the
// picture when there is no caption.
void DrawWin3xFocus(Canvas& canvas, const ButtonView& button, const PlacedContent& placed,
                    bool hasPicture) {
  if (!button.Enabled() || !button.ShowFocus() || !button.HasFocus() ||
      button.Style() != zonStyleWin3x) {
    return;
  }
  if (!button.DisplayCaption().empty()) {
    const CaptionRect& c = placed.caption;
    canvas.ForeColor(button.ForeColor());
    canvas.DrawFocusRect(c.left - 1, c.top - 1, c.right + 1, c.top + c.height + 1);
  } else if (hasPicture) {
    const PicturePosition& p = placed.picture;
    canvas.ForeColor(button.ForeColor());
    canvas.DrawFocusRect(p.x - 2, p.y - 2, p.x + placed.pictureWidth + 2,
                         p.y + placed.pictureHeight + 2);
  }
}

}  // namespace

void PaintContent(Canvas& canvas, const ButtonView& button, std::int32_t drawState) {
  const StdPicture picture = ChoosePicture(button, drawState);
  SelectCaptionFont(canvas, button.Font());
  PlacedContent placed = PlaceContent(canvas, button, picture);
  if (drawState == DrawStateDown && button.PushLook() == 1) ShiftPressed(placed);
  PaintButtonPicture(canvas, button, {placed.picture.x, placed.picture.y, placed.pictureWidth,
                                      placed.pictureHeight},
                     picture, drawState);
  ChooseCaptionColor(canvas, button, drawState);
  DrawCaption(canvas, button, placed.caption, CaptionDrawFlags(button.Alignment()));
  DrawWin3xFocus(canvas, button, placed, HasPicture(picture));
}

}  // namespace glyphon
