#include "activex/values.h"

#include <type_traits>

#include "activex/ole_objects.h"
#include "activex/text.h"
#include "activex/variant.h"

namespace glyphon::activex {

namespace {

void SetDispatch(VARIANT& result, IDispatch* object) {
  result.vt = VT_DISPATCH;
  result.pdispVal = object;
}

std::optional<PropertyValue> ObjectValue(IUnknown* object) {
  if (object == nullptr) return PropertyValue{};
  if (auto font = FontFromObject(object)) return PropertyValue{*font};
  if (auto picture = PictureFromObject(object)) return PropertyValue{*picture};
  return std::nullopt;
}

}  // namespace

void ValueToVariant(const PropertyValue& value, VARIANT& result) {
  VariantInit(&result);
  std::visit(
      [&](const auto& held) {
        using Held = std::decay_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::monostate>) {
          SetDispatch(result, nullptr);
        } else if constexpr (std::is_same_v<Held, bool>) {
          result.vt = VT_BOOL;
          result.boolVal = held ? VARIANT_TRUE : VARIANT_FALSE;
        } else if constexpr (std::is_same_v<Held, std::int16_t>) {
          result.vt = VT_I2;
          result.iVal = held;
        } else if constexpr (std::is_same_v<Held, std::int32_t>) {
          result.vt = VT_I4;
          result.lVal = held;
        } else if constexpr (std::is_same_v<Held, std::string>) {
          result.vt = VT_BSTR;
          result.bstrVal = MakeBstr(held);
        } else if constexpr (std::is_same_v<Held, StdFont>) {
          SetDispatch(result, MakeFontObject(held).Detach());
        } else {
          SetDispatch(result, MakePictureObject(held).Detach());
        }
      },
      value);
}

std::optional<PropertyValue> ValueFromVariant(const VARIANT& value) {
  Variant direct;
  if (FAILED(VariantCopyInd(&direct, const_cast<VARIANT*>(&value)))) return std::nullopt;
  switch (direct.vt) {
    case VT_EMPTY:
    case VT_NULL:
      return PropertyValue{};
    case VT_BOOL:
      return PropertyValue{direct.boolVal != VARIANT_FALSE};
    case VT_UI1:
      return PropertyValue{static_cast<std::int16_t>(direct.bVal)};
    case VT_I2:
      return PropertyValue{static_cast<std::int16_t>(direct.iVal)};
    case VT_UI2:
      return PropertyValue{static_cast<std::int32_t>(direct.uiVal)};
    case VT_I4:
    case VT_INT:
      return PropertyValue{static_cast<std::int32_t>(direct.lVal)};
    case VT_UI4:
    case VT_UINT:
      // Colours arrive this way: the bit pattern is the value.
      return PropertyValue{static_cast<std::int32_t>(direct.ulVal)};
    case VT_BSTR:
      return PropertyValue{FromBstr(direct.bstrVal)};
    case VT_DISPATCH:
      return ObjectValue(direct.pdispVal);
    case VT_UNKNOWN:
      return ObjectValue(direct.punkVal);
    default: {
      Variant number;
      if (!ChangeVariantType(direct, VT_I4, number)) return std::nullopt;
      return PropertyValue{static_cast<std::int32_t>(number.lVal)};
    }
  }
}

}  // namespace glyphon::activex
