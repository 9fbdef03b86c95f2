#include "activex/event_raiser.h"

#include <algorithm>
#include <vector>

namespace glyphon::activex {

namespace {

VARIANT Reference(std::int16_t& value) {
  VARIANT argument;
  VariantInit(&argument);
  argument.vt = VT_BYREF | VT_I2;
  argument.piVal = &value;
  return argument;
}

VARIANT Reference(float& value) {
  VARIANT argument;
  VariantInit(&argument);
  argument.vt = VT_BYREF | VT_R4;
  argument.pfltVal = &value;
  return argument;
}

}  // namespace

void EventRaiser::Raise(std::string_view name, std::initializer_list<VARIANT> arguments) {
  const MemberInfo* event = FindMember(name, MemberKind::Event);
  if (event == nullptr) return;
  // Dispatch takes its arguments last first.
  std::vector<VARIANT> reversed(arguments.begin(), arguments.end());
  std::reverse(reversed.begin(), reversed.end());
  DISPPARAMS parameters{reversed.empty() ? nullptr : reversed.data(), nullptr,
                        static_cast<UINT>(reversed.size()), 0};
  for (const ComPtr<IUnknown>& sink : events_.Sinks()) {
    ComPtr<IDispatch> dispatch;
    if (FAILED(sink.As(&dispatch))) continue;
    dispatch->Invoke(event->dispId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                     nullptr, nullptr, nullptr);
  }
}

void EventRaiser::RaiseMouse(std::string_view name, std::int16_t& button, std::int16_t& shift,
                             float& x, float& y) {
  Raise(name, {Reference(button), Reference(shift), Reference(x), Reference(y)});
}

void EventRaiser::RaiseKey(std::string_view name, std::int16_t& keyCode, std::int16_t& shift) {
  Raise(name, {Reference(keyCode), Reference(shift)});
}

void EventRaiser::Click() { Raise("Click", {}); }

void EventRaiser::MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  RaiseMouse("MouseMove", button, shift, x, y);
}

void EventRaiser::MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  RaiseMouse("MouseDown", button, shift, x, y);
}

void EventRaiser::MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  RaiseMouse("MouseUp", button, shift, x, y);
}

void EventRaiser::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
  RaiseKey("KeyDown", keyCode, shift);
}

void EventRaiser::KeyPress(std::int16_t& keyAscii) { Raise("KeyPress", {Reference(keyAscii)}); }

void EventRaiser::KeyUp(std::int16_t& keyCode, std::int16_t& shift) {
  RaiseKey("KeyUp", keyCode, shift);
}

void EventRaiser::MouseOver() { Raise("MouseOver", {}); }

void EventRaiser::MouseOut() { Raise("MouseOut", {}); }

}  // namespace glyphon::activex
