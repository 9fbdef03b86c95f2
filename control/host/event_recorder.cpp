#include "control/host/event_recorder.h"

#include <cstdio>
#include <utility>

namespace glyphon {

namespace {

const char* StateName(std::int32_t drawState) {
  switch (drawState) {
    case 0:
      return "Hot";
    case 1:
      return "Down";
    case 2:
      return "Up";
    default:
      return "?";
  }
}

std::string MouseRecord(const char* name, std::int16_t button, std::int16_t shift, float x,
                        float y) {
  char text[96];
  std::snprintf(text, sizeof text, "%s(%d,%d,%g,%g)", name, button, shift, static_cast<double>(x),
                static_cast<double>(y));
  return text;
}

std::string KeyRecord(const char* name, std::int16_t keyCode, std::int16_t shift) {
  return std::string(name) + "(" + std::to_string(keyCode) + "," + std::to_string(shift) + ")";
}

}  // namespace

void EventRecorder::Record(std::string entry) {
  if (listener_) listener_(entry);
  if (record_) log_.push_back(std::move(entry));
}

void EventRecorder::PropertyChanged(std::string_view name) {
  if (Recording()) Record("changed " + std::string(name));
}

void EventRecorder::Repainted(std::int32_t drawState) {
  if (Recording()) Record(std::string("paint ") + StateName(drawState));
}

std::vector<std::string> EventRecorder::TakeLog() { return std::exchange(log_, {}); }

void EventRecorder::Click() {
  if (Recording()) Record("Click");
  if (handlers_.click) handlers_.click();
}

void EventRecorder::MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  if (Recording()) Record(MouseRecord("MouseMove", button, shift, x, y));
  if (handlers_.mouseMove) handlers_.mouseMove(button, shift, x, y);
}

void EventRecorder::MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  if (Recording()) Record(MouseRecord("MouseDown", button, shift, x, y));
  if (handlers_.mouseDown) handlers_.mouseDown(button, shift, x, y);
}

void EventRecorder::MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  if (Recording()) Record(MouseRecord("MouseUp", button, shift, x, y));
  if (handlers_.mouseUp) handlers_.mouseUp(button, shift, x, y);
}

void EventRecorder::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
  if (Recording()) Record(KeyRecord("KeyDown", keyCode, shift));
  if (handlers_.keyDown) handlers_.keyDown(keyCode, shift);
}

void EventRecorder::KeyPress(std::int16_t& keyAscii) {
  if (Recording()) Record("KeyPress(" + std::to_string(keyAscii) + ")");
  if (handlers_.keyPress) handlers_.keyPress(keyAscii);
}

void EventRecorder::KeyUp(std::int16_t& keyCode, std::int16_t& shift) {
  if (Recording()) Record(KeyRecord("KeyUp", keyCode, shift));
  if (handlers_.keyUp) handlers_.keyUp(keyCode, shift);
}

void EventRecorder::MouseOver() {
  if (Recording()) Record("MouseOver");
  if (handlers_.mouseOver) handlers_.mouseOver();
}

void EventRecorder::MouseOut() {
  if (Recording()) Record("MouseOut");
  if (handlers_.mouseOut) handlers_.mouseOut();
}

}  // namespace glyphon
