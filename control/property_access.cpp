#include "control/property_access.h"

#include <array>
#include <optional>
#include <string>
#include <type_traits>

#include "control/ascii_case.h"
#include "control/glyphon_errors.h"
#include "control/glyphon_metadata.h"
#include "control/value_coercion.h"

namespace glyphon {

namespace {

PropertyValue ToValue(std::int32_t value) { return value; }
PropertyValue ToValue(win::OLE_COLOR value) { return static_cast<std::int32_t>(value); }
PropertyValue ToValue(bool value) { return value; }
PropertyValue ToValue(const std::string& value) { return value; }
PropertyValue ToValue(const StdFont& value) { return value; }
PropertyValue ToValue(const StdPicture& value) { return PictureValue(value); }
// Handles travel as 32-bit values, as automation clients see them.
PropertyValue ToValue(win::HWND value) {
  return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(value));
}

template <class T>
std::optional<T> ConvertTo(const PropertyValue& value);
template <>
std::optional<std::int32_t> ConvertTo(const PropertyValue& value) { return ToInt32(value); }
template <>
std::optional<win::OLE_COLOR> ConvertTo(const PropertyValue& value) { return ToColor(value); }
template <>
std::optional<bool> ConvertTo(const PropertyValue& value) { return ToBool(value); }
template <>
std::optional<std::string> ConvertTo(const PropertyValue& value) { return ToText(value); }
template <>
std::optional<StdFont> ConvertTo(const PropertyValue& value) { return ToFont(value); }
template <>
std::optional<StdPicture> ConvertTo(const PropertyValue& value) { return ToPicture(value); }

template <class Setter>
struct SetterArgument;
template <class Arg>
struct SetterArgument<void (Glyphon::*)(Arg)> {
  using type = std::conditional_t<std::is_same_v<Arg, std::string_view>, std::string,
                                  std::remove_cvref_t<Arg>>;
};

template <auto Getter>
PropertyValue Get(const Glyphon& button) {
  return ToValue((button.*Getter)());
}

template <auto Setter>
void Set(Glyphon& button, const PropertyValue& value, std::string_view name) {
  using Value = typename SetterArgument<decltype(Setter)>::type;
  std::optional<Value> converted = ConvertTo<Value>(value);
  if (!converted) RaiseError(kTypeMismatchNumber, name, kTypeMismatchMessage);
  (button.*Setter)(*converted);
}

struct Accessor {
  std::string_view name;
  PropertyValue (*get)(const Glyphon&);
  void (*set)(Glyphon&, const PropertyValue&, std::string_view);  // null when read-only
};

constexpr std::array kAccessors{
    Accessor{"Alignment", Get<&Glyphon::Alignment>, Set<&Glyphon::SetAlignment>},
    Accessor{"BackColor", Get<&Glyphon::BackColor>, Set<&Glyphon::SetBackColor>},
    Accessor{"BorderColor", Get<&Glyphon::BorderColor>, Set<&Glyphon::SetBorderColor>},
    Accessor{"BorderStyle", Get<&Glyphon::BorderStyle>, Set<&Glyphon::SetBorderStyle>},
    Accessor{"Caption", Get<&Glyphon::Caption>, Set<&Glyphon::SetCaption>},
    Accessor{"Default", Get<&Glyphon::Default>, Set<&Glyphon::SetDefault>},
    Accessor{"DisabledColor", Get<&Glyphon::DisabledColor>, Set<&Glyphon::SetDisabledColor>},
    Accessor{"DropShadow", Get<&Glyphon::DropShadow>, Set<&Glyphon::SetDropShadow>},
    Accessor{"Enabled", Get<&Glyphon::Enabled>, Set<&Glyphon::SetEnabled>},
    Accessor{"Font", Get<&Glyphon::Font>, Set<&Glyphon::SetFont>},
    Accessor{"ForeColor", Get<&Glyphon::ForeColor>, Set<&Glyphon::SetForeColor>},
    Accessor{"HighlightColor", Get<&Glyphon::HighlightColor>, Set<&Glyphon::SetHighlightColor>},
    Accessor{"hWnd", Get<&Glyphon::hWnd>, nullptr},
    Accessor{"MaskColor", Get<&Glyphon::MaskColor>, Set<&Glyphon::SetMaskColor>},
    Accessor{"MouseIcon", Get<&Glyphon::MouseIcon>, Set<&Glyphon::SetMouseIcon>},
    Accessor{"MousePointer", Get<&Glyphon::MousePointer>, Set<&Glyphon::SetMousePointer>},
    Accessor{"Picture", Get<&Glyphon::Picture>, Set<&Glyphon::SetPicture>},
    Accessor{"PictureAlignment", Get<&Glyphon::PictureAlignment>,
             Set<&Glyphon::SetPictureAlignment>},
    Accessor{"PictureDisabled", Get<&Glyphon::PictureDisabled>,
             Set<&Glyphon::SetPictureDisabled>},
    Accessor{"PictureDown", Get<&Glyphon::PictureDown>, Set<&Glyphon::SetPictureDown>},
    Accessor{"PictureOver", Get<&Glyphon::PictureOver>, Set<&Glyphon::SetPictureOver>},
    Accessor{"PictureSpacing", Get<&Glyphon::PictureSpacing>, Set<&Glyphon::SetPictureSpacing>},
    Accessor{"PictureStyle", Get<&Glyphon::PictureStyle>, Set<&Glyphon::SetPictureStyle>},
    Accessor{"RightToLeft", Get<&Glyphon::RightToLeft>, Set<&Glyphon::SetRightToLeft>},
    Accessor{"ShadowColor", Get<&Glyphon::ShadowColor>, Set<&Glyphon::SetShadowColor>},
    Accessor{"ShowDefault", Get<&Glyphon::ShowDefault>, nullptr},
    Accessor{"ShowFocus", Get<&Glyphon::ShowFocus>, Set<&Glyphon::SetShowFocus>},
    Accessor{"StealFocus", Get<&Glyphon::StealFocus>, Set<&Glyphon::SetStealFocus>},
    Accessor{"Style", Get<&Glyphon::Style>, Set<&Glyphon::SetStyle>},
    Accessor{"Tag", Get<&Glyphon::Tag>, Set<&Glyphon::SetTag>},
    Accessor{"ToolTipText", Get<&Glyphon::ToolTipText>, Set<&Glyphon::SetToolTipText>},
    Accessor{"UseMaskColor", Get<&Glyphon::UseMaskColor>, Set<&Glyphon::SetUseMaskColor>},
};

[[noreturn]] void RaiseNoSuchMember(std::string_view name) {
  RaiseError(kNoSuchMemberNumber, name, kNoSuchMemberMessage);
}

const Accessor& FindAccessor(std::string_view name) {
  for (const Accessor& accessor : kAccessors) {
    if (EqualsIgnoringCase(accessor.name, name)) return accessor;
  }
  RaiseNoSuchMember(name);
}

}  // namespace

PropertyValue GetPropertyByName(const Glyphon& button, std::string_view name) {
  return FindAccessor(name).get(button);
}

void SetPropertyByName(Glyphon& button, std::string_view name, const PropertyValue& value) {
  const Accessor& accessor = FindAccessor(name);
  if (accessor.set == nullptr) RaiseNoSuchMember(accessor.name);
  accessor.set(button, value, accessor.name);
}

void SetPropertyFromText(Glyphon& button, std::string_view name, std::string_view text) {
  const MemberInfo* member = FindMember(name, MemberKind::Property);
  if (member == nullptr) RaiseNoSuchMember(name);
  if (member->type == MemberType::Enumeration) {
    if (const EnumInfo* enumeration = FindEnumeration(member->enumeration)) {
      for (const EnumMemberInfo& constant : enumeration->members) {
        if (EqualsIgnoringCase(constant.name, text)) {
          SetPropertyByName(button, member->name, constant.value);
          return;
        }
      }
    }
  }
  SetPropertyByName(button, member->name, std::string(text));
}

}  // namespace glyphon
