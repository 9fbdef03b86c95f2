// Properties the container keeps for the control, and what the control reads of its container.
#include <limits>
#include <string>

#include "control/glyphon.h"
#include "control/glyphon_errors.h"

namespace glyphon {

bool Glyphon::Enabled() const { return site_.Enabled(); }

void Glyphon::SetEnabled(bool enabled) {
  site_.SetEnabled(enabled);
  if (!enabled) {
    mouseIsDown_ = false;
    spaceIsDown_ = false;
    pointerInside_ = false;
    default_ = false;
  }
  Redraw(drawState_);
  Changed("Enabled");
}

StdFont Glyphon::Font() const {
  if (auto font = site_.Font()) return *font;
  return site_.Ambient().Font();
}

// The caller's font is copied, never kept, so later changes to it do not reach the button. The
// attribute order matters: weight comes last and wins over bold.
void Glyphon::SetFont(const StdFont& font) {
  StdFont target = site_.Font().value_or(StdFont{});
  target.Bold(font.Bold());
  target.Charset(font.Charset());
  target.Italic(font.Italic());
  target.Name(font.Name());
  target.Size(font.Size());
  target.Strikethrough(font.Strikethrough());
  target.Underline(font.Underline());
  target.Weight(font.Weight());
  site_.SetFont(target);
  Redraw(drawState_);
  Changed("Font");
}

win::HWND Glyphon::hWnd() const { return site_.hWnd(); }

StdPicture Glyphon::MouseIcon() const { return site_.MouseIcon(); }

void Glyphon::SetMouseIcon(const StdPicture& icon) {
  site_.SetMouseIcon(icon);
  Changed("MouseIcon");
}

std::int32_t Glyphon::MousePointer() const { return site_.MousePointer(); }

// The container keeps the pointer as a 16-bit value.
void Glyphon::SetMousePointer(std::int32_t pointer) {
  if (pointer < std::numeric_limits<std::int16_t>::min() ||
      pointer > std::numeric_limits<std::int16_t>::max()) {
    RaiseError(kOverflowNumber, "MousePointer", kOverflowMessage);
  }
  site_.SetMousePointer(static_cast<std::int16_t>(pointer));
  Changed("MousePointer");
}

bool Glyphon::RightToLeft() const { return site_.RightToLeft(); }

void Glyphon::SetRightToLeft(bool rightToLeft) {
  site_.SetRightToLeft(rightToLeft);
  Changed("RightToLeft");
}

std::string Glyphon::Tag() const { return site_.Tag(); }

void Glyphon::SetTag(std::string_view tag) { site_.SetTag(tag); }

bool Glyphon::UserMode() const { return site_.Ambient().UserMode(); }

win::OLE_COLOR Glyphon::ContainerBackColor() const {
  const Extender* extender = site_.GetExtender();
  const auto color = extender != nullptr ? extender->ContainerBackColor() : std::nullopt;
  if (!color) RaiseError(kNoSuchMemberNumber, "Glyphon", kNoSuchMemberMessage);
  return *color;
}

// The caption a new or loaded instance starts from: the name the container gave it.
std::string Glyphon::InstanceName() const {
  try {
    const Extender* extender = site_.GetExtender();
    if (extender == nullptr) return "Glyphon";
    return extender->Name().value_or("Glyphon");
  } catch (...) {
    return "Glyphon";
  }
}

}  // namespace glyphon
