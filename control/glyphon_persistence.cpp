// New instances, loading and saving through the container's property bag.
#include "control/bag_io.h"
#include "control/glyphon.h"
#include "platform/ignore_errors.h"
#include "control/value_coercion.h"
#include "surface/mod_colors.h"

namespace glyphon {

namespace {

constexpr win::OLE_COLOR kDefaultBackColor = 0x8000000F;
constexpr win::OLE_COLOR kDefaultForeColor = 0x80000012;
constexpr win::OLE_COLOR kDefaultHighlightColor = 0x80000014;
constexpr win::OLE_COLOR kDefaultShadowColor = 0x80000010;
constexpr win::OLE_COLOR kDefaultBorderColor = 0x80000015;
constexpr win::OLE_COLOR kDefaultDisabledColor = 0x80000011;
constexpr win::OLE_COLOR kDefaultMaskColor = 0x00FFFF00;
constexpr std::int16_t kDefaultPictureSpacing = 5;
// Deliberately not the pointer a new instance gets (0): a saved 0 is stored explicitly and a
// missing key loads as 1.
constexpr std::int16_t kStoredMousePointerDefault = 1;

}  // namespace

void Glyphon::InitProperties() {
  suppressRedraw_ = true;
  pushLook_ = 1;
  IgnoringErrors([&] { ApplyCaption(InstanceName()); });
  IgnoringErrors([&] { site_.SetEnabled(true); });
  IgnoringErrors([&] { SetFont(site_.Ambient().Font()); });

  toolTipText_.clear();
  stealFocus_ = true;
  backColor_ = kDefaultBackColor;
  foreColor_ = kDefaultForeColor;
  highlightColor_ = kDefaultHighlightColor;
  shadowColor_ = kDefaultShadowColor;
  borderColor_ = kDefaultBorderColor;
  disabledColor_ = kDefaultDisabledColor;
  maskColor_ = kDefaultMaskColor;
  useMaskColor_ = true;

  picture_ = StdPicture{};
  pictureDown_ = StdPicture{};
  pictureOver_ = StdPicture{};
  pictureDisabled_ = StdPicture{};

  pictureAlignment_ = zonPicAlignLeft;
  pictureStyle_ = zonPicStyleNormal;
  pictureSpacing_ = kDefaultPictureSpacing;
  dropShadow_ = false;
  borderStyle_ = zonBorderNone;
  showFocus_ = true;
  showDefault_ = true;
  style_ = zonStyleWin9x;
  alignment_ = zonAlignCenter;
  // A new instance gets no tooltip: the host's first paint request draws it.
  suppressRedraw_ = false;
}

void Glyphon::ReadProperties(PropertyBag& bag) {
  suppressRedraw_ = true;
  const std::string instanceName = InstanceName();

  caption_ = ReadText(bag, "Caption", instanceName);
  alignment_ = ReadInt32(bag, "Alignment", zonAlignCenter);
  default_ = ReadBool(bag, "Default", false);
  IgnoringErrors([&] { ApplyCaption(caption_); });
  toolTipText_ = ReadText(bag, "ToolTipText", "");
  stealFocus_ = ReadBool(bag, "StealFocus", true);
  IgnoringErrors([&] {
    const StdFont ambientFont = site_.Ambient().Font();
    SetFont(ReadFont(bag, "Font", ambientFont));
  });
  const bool enabled = ReadBool(bag, "Enabled", true);
  IgnoringErrors([&] { site_.SetEnabled(enabled); });

  pushLook_ = 1;
  backColor_ = ReadColor(bag, "BackColor", kDefaultBackColor);
  foreColor_ = ReadColor(bag, "ForeColor", kDefaultForeColor);
  ReadColors(bag);

  maskColor_ = ReadColor(bag, "MaskColor", kDefaultMaskColor);
  useMaskColor_ = ReadBool(bag, "UseMaskColor", true);
  // Pictures are taken as stored, without the setters' type check.
  picture_ = ReadPicture(bag, "Picture");
  pictureDown_ = ReadPicture(bag, "PictureDown");
  pictureOver_ = ReadPicture(bag, "PictureOver");
  pictureDisabled_ = ReadPicture(bag, "PictureDisabled");
  pictureAlignment_ = ReadInt32(bag, "PictureAlignment", zonPicAlignLeft);
  pictureStyle_ = ReadInt32(bag, "PictureStyle", zonPicStyleNormal);
  pictureSpacing_ = ReadInt32WithShortDefault(bag, "PictureSpacing", kDefaultPictureSpacing);
  style_ = ReadInt32(bag, "Style", zonStyleWin9x);
  dropShadow_ = ReadBool(bag, "DropShadow", false);
  const StdPicture mouseIcon = ReadPicture(bag, "MouseIcon");
  IgnoringErrors([&] { site_.SetMouseIcon(mouseIcon); });
  const std::int16_t mousePointer = ReadInt16(bag, "MousePointer", kStoredMousePointerDefault);
  IgnoringErrors([&] { site_.SetMousePointer(mousePointer); });
  const bool rightToLeft = ReadBool(bag, "RightToLeft", false);
  IgnoringErrors([&] { site_.SetRightToLeft(rightToLeft); });
  ReadStyleDependent(bag);

  RegisterTooltip();
  suppressRedraw_ = false;
}

// With a system back colour the dependent colours follow the system scheme, so stored values of
// them are ignored.
void Glyphon::ReadColors(PropertyBag& bag) {
  if (modColors::IsSystemColor(backColor_)) {
    IgnoringErrors([&] { DeriveColorsFromBackColor(); });
    return;
  }
  shadowColor_ = ReadColor(bag, "ShadowColor", kDefaultShadowColor);
  borderColor_ = ReadColor(bag, "BorderColor", kDefaultBorderColor);
  highlightColor_ = ReadColor(bag, "HighlightColor", kDefaultHighlightColor);
  disabledColor_ = ReadColor(bag, "DisabledColor", kDefaultDisabledColor);
}

// Each look has fixed values for the settings it does not offer.
void Glyphon::ReadStyleDependent(PropertyBag& bag) {
  switch (style_) {
    case zonStyleWin9x:
      showFocus_ = ReadBool(bag, "ShowFocus", true);
      showDefault_ = ReadBool(bag, "ShowDefault", true);
      borderStyle_ = zonBorderNone;
      break;
    case zonStyleWin3x:
      showFocus_ = ReadBool(bag, "ShowFocus", true);
      showDefault_ = ReadBool(bag, "ShowDefault", true);
      borderStyle_ = ReadInt32(bag, "BorderStyle", zonBorderNone);
      break;
    case zonStyleMac8x:
      showFocus_ = false;
      showDefault_ = ReadBool(bag, "ShowDefault", true);
      borderStyle_ = zonBorderSingle;
      break;
    default:
      showFocus_ = ReadBool(bag, "ShowFocus", true);
      showDefault_ = true;
      borderStyle_ = zonBorderSingle;
      break;
  }
}

void Glyphon::WriteProperties(PropertyBag& bag) {
  bag.WriteProperty("Caption", caption_, InstanceName());
  bag.WriteProperty("Alignment", alignment_, std::int32_t{zonAlignCenter});
  bag.WriteProperty("Default", default_, false);
  bag.WriteProperty("Enabled", Enabled(), true);
  bag.WriteProperty("Font", Font(), site_.Ambient().Font());
  bag.WriteProperty("ToolTipText", toolTipText_, std::string());
  bag.WriteProperty("StealFocus", stealFocus_, true);
  WriteColor(bag, "BackColor", backColor_, kDefaultBackColor);
  WriteColor(bag, "ForeColor", foreColor_, kDefaultForeColor);
  WriteColor(bag, "HighlightColor", highlightColor_, kDefaultHighlightColor);
  WriteColor(bag, "ShadowColor", shadowColor_, kDefaultShadowColor);
  WriteColor(bag, "BorderColor", borderColor_, kDefaultBorderColor);
  WriteColor(bag, "DisabledColor", disabledColor_, kDefaultDisabledColor);
  WriteColor(bag, "MaskColor", maskColor_, kDefaultMaskColor);
  bag.WriteProperty("UseMaskColor", useMaskColor_, true);
  WritePicture(bag, "Picture", picture_);
  WritePicture(bag, "PictureDown", pictureDown_);
  WritePicture(bag, "PictureOver", pictureOver_);
  WritePicture(bag, "PictureDisabled", pictureDisabled_);
  bag.WriteProperty("PictureAlignment", pictureAlignment_, std::int32_t{zonPicAlignLeft});
  bag.WriteProperty("PictureSpacing", pictureSpacing_, kDefaultPictureSpacing);
  bag.WriteProperty("PictureStyle", pictureStyle_, std::int32_t{zonPicStyleNormal});
  bag.WriteProperty("ShowFocus", showFocus_, true);
  bag.WriteProperty("ShowDefault", showDefault_, true);
  bag.WriteProperty("BorderStyle", borderStyle_, std::int32_t{zonBorderNone});
  bag.WriteProperty("DropShadow", dropShadow_, false);
  bag.WriteProperty("Style", style_, std::int32_t{zonStyleWin9x});
  WritePicture(bag, "MouseIcon", MouseIcon());
  bag.WriteProperty("MousePointer", site_.MousePointer(), kStoredMousePointerDefault);
  bag.WriteProperty("RightToLeft", RightToLeft(), false);
}

}  // namespace glyphon
