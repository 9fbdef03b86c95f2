#include "activex/container_dispatch.h"

#include "activex/ole_objects.h"
#include "activex/text.h"
#include "activex/variant.h"

namespace glyphon::activex {

namespace {

constexpr win::OLE_COLOR kButtonFace = 0x8000000F;

std::optional<bool> ReadBoolean(IDispatch* object, DISPID id) {
  Variant value;
  Variant converted;
  if (!GetDispatchProperty(object, id, value) || !ChangeVariantType(value, VT_BOOL, converted)) {
    return std::nullopt;
  }
  return converted.boolVal != VARIANT_FALSE;
}

// Colours are 32-bit patterns, whether they come signed or not.
std::optional<win::OLE_COLOR> ReadColor(const VARIANT& value) {
  Variant converted;
  if (value.vt == VT_UI4) return static_cast<win::OLE_COLOR>(value.ulVal);
  if (!ChangeVariantType(value, VT_I4, converted)) return std::nullopt;
  return static_cast<win::OLE_COLOR>(converted.lVal);
}

}  // namespace

bool AmbientDispatch::UserMode() const {
  return ReadBoolean(ambient_.Get(), DISPID_AMBIENT_USERMODE).value_or(true);
}

bool AmbientDispatch::DisplayAsDefault() const {
  return ReadBoolean(ambient_.Get(), DISPID_AMBIENT_DISPLAYASDEFAULT).value_or(false);
}

StdFont AmbientDispatch::Font() const {
  Variant value;
  if (GetDispatchProperty(ambient_.Get(), DISPID_AMBIENT_FONT, value) &&
      (value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN)) {
    if (auto font = FontFromObject(value.punkVal)) return *font;
  }
  return StdFont{};
}

win::OLE_COLOR AmbientDispatch::BackColor() const {
  Variant value;
  if (!GetDispatchProperty(ambient_.Get(), DISPID_AMBIENT_BACKCOLOR, value)) return kButtonFace;
  return ReadColor(value).value_or(kButtonFace);
}

std::optional<std::string> ExtenderDispatch::Text(const wchar_t* name) const {
  Variant value;
  Variant converted;
  if (!GetDispatchProperty(extender_.Get(), name, value) ||
      !ChangeVariantType(value, VT_BSTR, converted)) {
    return std::nullopt;
  }
  return FromBstr(converted.bstrVal);
}

bool ExtenderDispatch::PutBoolean(const wchar_t* name, bool value) {
  VARIANT argument;
  VariantInit(&argument);
  argument.vt = VT_BOOL;
  argument.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return PutDispatchProperty(extender_.Get(), name, argument);
}

std::optional<std::string> ExtenderDispatch::Name() const { return Text(L"Name"); }

bool ExtenderDispatch::SetTabStop(bool tabStop) { return PutBoolean(L"TabStop", tabStop); }

bool ExtenderDispatch::SetDefault(bool isDefault) { return PutBoolean(L"Default", isDefault); }

std::optional<std::string> ExtenderDispatch::ToolTipText() const { return Text(L"ToolTipText"); }

std::optional<win::OLE_COLOR> ExtenderDispatch::ContainerBackColor() const {
  Variant container;
  if (!GetDispatchProperty(extender_.Get(), L"Container", container) ||
      container.vt != VT_DISPATCH) {
    return std::nullopt;
  }
  Variant color;
  if (!GetDispatchProperty(container.pdispVal, L"BackColor", color)) return std::nullopt;
  return ReadColor(color);
}

}  // namespace glyphon::activex
