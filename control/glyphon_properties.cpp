// The button's own properties: store, repaint, tell the host.
#include "control/glyphon.h"
#include "control/access_key.h"
#include "control/glyphon_errors.h"
#include "surface/mod_colors.h"

namespace glyphon {

void Glyphon::Changed(std::string_view name) { site_.PropertyChanged(name); }

template <class T>
void Glyphon::StoreAndRepaint(T& field, T value, std::string_view name) {
  field = value;
  Redraw(drawState_);
  Changed(name);
}

void Glyphon::SetAlignment(std::int32_t alignment) {
  StoreAndRepaint(alignment_, alignment, "Alignment");
}

void Glyphon::SetBackColor(win::OLE_COLOR color) {
  // The new colour stays even when the derivation fails; the failure reaches the caller and the
  // repaint and notification are skipped.
  backColor_ = color;
  DeriveColorsFromBackColor();
  Redraw(drawState_);
  Changed("BackColor");
}

void Glyphon::DeriveColorsFromBackColor() {
  win::COLORREF shadow = 0;
  win::COLORREF border = 0;
  win::COLORREF highlight = 0;
  modColors::DeriveButtonColors(backColor_, shadow, border, highlight);
  shadowColor_ = shadow;
  borderColor_ = border;
  highlightColor_ = highlight;
  disabledColor_ = shadowColor_;
}

void Glyphon::SetBorderColor(win::OLE_COLOR color) {
  StoreAndRepaint(borderColor_, color, "BorderColor");
}

void Glyphon::SetBorderStyle(std::int32_t borderStyle) {
  if (style_ != zonStyleWin3x) RaiseError(kControlErrorNumber, "BorderStyle", kBorderStyleMessage);
  StoreAndRepaint(borderStyle_, borderStyle, "BorderStyle");
}

void Glyphon::SetCaption(std::string_view caption) {
  ApplyCaption(caption);
  Redraw(drawState_);
  Changed("Caption");
}

void Glyphon::ApplyCaption(std::string_view caption) {
  caption_ = std::string(caption);
  AccessKeyParse parsed = ParseAccessKey(caption_);
  displayCaption_ = std::move(parsed.displayCaption);
  accessKeyPosition_ = parsed.position;
  if (parsed.keys) site_.SetAccessKeys(*parsed.keys);
}

void Glyphon::SetDefault(bool isDefault) { StoreAndRepaint(default_, isDefault, "Default"); }

void Glyphon::SetDisabledColor(win::OLE_COLOR color) {
  StoreAndRepaint(disabledColor_, color, "DisabledColor");
}

void Glyphon::SetDropShadow(bool dropShadow) {
  StoreAndRepaint(dropShadow_, dropShadow, "DropShadow");
}

void Glyphon::SetForeColor(win::OLE_COLOR color) {
  StoreAndRepaint(foreColor_, color, "ForeColor");
}

void Glyphon::SetHighlightColor(win::OLE_COLOR color) {
  StoreAndRepaint(highlightColor_, color, "HighlightColor");
}

void Glyphon::SetMaskColor(win::OLE_COLOR color) {
  StoreAndRepaint(maskColor_, color, "MaskColor");
}

void Glyphon::SetPictureField(StdPicture& field, const StdPicture& picture, std::string_view name,
                              std::string_view errorSource) {
  switch (picture.Type()) {  // no object answers as an empty picture
    case win::PICTYPE_NONE:
      field = StdPicture{};
      break;
    case win::PICTYPE_BITMAP:
    case win::PICTYPE_ICON:
      field = picture;
      break;
    default:
      RaiseError(kControlErrorNumber, errorSource, kPictureTypeMessage);
  }
  Redraw(drawState_);
  Changed(name);
}

void Glyphon::SetPicture(const StdPicture& picture) {
  SetPictureField(picture_, picture, "Picture", "Picture");
}

void Glyphon::SetPictureDisabled(const StdPicture& picture) {
  SetPictureField(pictureDisabled_, picture, "PictureDisabled", "PictureDisabled");
}

void Glyphon::SetPictureDown(const StdPicture& picture) {
  SetPictureField(pictureDown_, picture, "PictureDown", "PictureDown");
}

// Reports its errors under "Picture", as clients of the control have always seen them.
void Glyphon::SetPictureOver(const StdPicture& picture) {
  SetPictureField(pictureOver_, picture, "PictureOver", "Picture");
}

void Glyphon::SetPictureAlignment(std::int32_t alignment) {
  StoreAndRepaint(pictureAlignment_, alignment, "PictureAlignment");
}

void Glyphon::SetPictureSpacing(std::int32_t spacing) {
  StoreAndRepaint(pictureSpacing_, spacing, "PictureSpacing");
}

void Glyphon::SetPictureStyle(std::int32_t pictureStyle) {
  StoreAndRepaint(pictureStyle_, pictureStyle, "PictureStyle");
}

void Glyphon::SetShadowColor(win::OLE_COLOR color) {
  StoreAndRepaint(shadowColor_, color, "ShadowColor");
}

// The Mac look has no focus rectangle, so the setting is ignored there.
void Glyphon::SetShowFocus(bool showFocus) {
  if (style_ == zonStyleMac8x) return;
  StoreAndRepaint(showFocus_, showFocus, "ShowFocus");
}

void Glyphon::SetStealFocus(bool stealFocus) {
  stealFocus_ = stealFocus;
  if (Extender* extender = site_.GetExtender()) extender->SetTabStop(stealFocus);
  // A button that never takes the focus cannot be the default button either.
  if (!stealFocus) SetDefault(false);
  Changed("StealFocus");
}

void Glyphon::SetStyle(std::int32_t style) {
  style_ = style;
  if (style == zonStyleWin9x) borderStyle_ = zonBorderNone;
  if (style == zonStyleWin3x) borderStyle_ = zonBorderSingle;
  if (style == zonStyleWin9x || style == zonStyleWin3x) {
    showFocus_ = true;
    showDefault_ = true;
  }
  Redraw(drawState_);
  Changed("Style");
}

void Glyphon::SetToolTipText(std::string_view text) {
  toolTipText_ = std::string(text);
  toolTipChanged_ = true;
  Changed("ToolTipText");
}

void Glyphon::SetUseMaskColor(bool useMaskColor) {
  StoreAndRepaint(useMaskColor_, useMaskColor, "UseMaskColor");
}

}  // namespace glyphon
