#include "control/host/memory_host.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "control/ascii_case.h"
#include "control/host/memory_host_windows.h"

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

// The window holds the whole of a fractional client area.
int WholePixels(double size) { return size > 0 ? static_cast<int>(std::ceil(size)) : 0; }

}  // namespace

MemoryHost::MemoryHost(const MemoryHostOptions& options)
    : record_(options.record),
      left_(options.left), top_(options.top), width_(options.width), height_(options.height) {
  ambient_.userMode = options.userMode;
  const int formWidth = std::max(400, left_ + WholePixels(width_) + 40);
  const int formHeight = std::max(300, top_ + WholePixels(height_) + 40);
  form_ = CreateFormWindow(formWidth, formHeight);
  window_ = CreateControlWindow(form_, left_, top_, WholePixels(width_), WholePixels(height_));
  hdc_ = win::GetDC(window_);
  RegisterHostWindows(*this, form_, window_);
}

MemoryHost::~MemoryHost() {
  UnregisterHostWindows(form_, window_);
  win::ReleaseDC(window_, hdc_);
  win::DestroyWindow(window_);
  win::DestroyWindow(form_);
}

void MemoryHost::SetEnabled(bool enabled) {
  enabled_ = enabled;
  win::EnableWindow(window_, enabled ? win::TRUE : win::FALSE);
}

void MemoryHost::Record(std::string entry) {
  if (record_) log_.push_back(std::move(entry));
}

void MemoryHost::PropertyChanged(std::string_view name) { Record("changed " + std::string(name)); }

void MemoryHost::Repainted(std::int32_t drawState) {
  if (record_) Record(std::string("paint ") + StateName(drawState));
}

void MemoryHost::SetClientSize(double width, double height) {
  width_ = width;
  height_ = height;
  win::MoveWindow(window_, left_, top_, WholePixels(width), WholePixels(height), win::FALSE);
  if (control_ != nullptr) control_->Resize();
}

void MemoryHost::SetDisplayAsDefault(bool displayAsDefault) {
  ambient_.displayAsDefault = displayAsDefault;
  if (control_ != nullptr) control_->AmbientChanged("DisplayAsDefault");
}

bool MemoryHost::PressAccessKey(char key) {
  if (control_ == nullptr || !enabled_) return false;
  bool matches = false;
  for (const char accessKey : accessKeys_) {
    matches = matches || EqualsIgnoringCase(std::string_view(&accessKey, 1),
                                            std::string_view(&key, 1));
  }
  if (!matches) return false;
  if (win::GetFocus() != window_) win::SetFocus(window_);
  control_->AccessKeyPress(static_cast<std::int16_t>(static_cast<unsigned char>(key)));
  return true;
}

std::vector<std::string> MemoryHost::TakeLog() { return std::exchange(log_, {}); }

void MemoryHost::Click() {
  Record("Click");
  if (handlers_.click) handlers_.click();
}

void MemoryHost::MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  if (record_) Record(MouseRecord("MouseMove", button, shift, x, y));
  if (handlers_.mouseMove) handlers_.mouseMove(button, shift, x, y);
}

void MemoryHost::MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  if (record_) Record(MouseRecord("MouseDown", button, shift, x, y));
  if (handlers_.mouseDown) handlers_.mouseDown(button, shift, x, y);
}

void MemoryHost::MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
  if (record_) Record(MouseRecord("MouseUp", button, shift, x, y));
  if (handlers_.mouseUp) handlers_.mouseUp(button, shift, x, y);
}

void MemoryHost::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
  Record("KeyDown(" + std::to_string(keyCode) + "," + std::to_string(shift) + ")");
  if (handlers_.keyDown) handlers_.keyDown(keyCode, shift);
}

void MemoryHost::KeyPress(std::int16_t& keyAscii) {
  Record("KeyPress(" + std::to_string(keyAscii) + ")");
  if (handlers_.keyPress) handlers_.keyPress(keyAscii);
}

void MemoryHost::KeyUp(std::int16_t& keyCode, std::int16_t& shift) {
  Record("KeyUp(" + std::to_string(keyCode) + "," + std::to_string(shift) + ")");
  if (handlers_.keyUp) handlers_.keyUp(keyCode, shift);
}

void MemoryHost::MouseOver() {
  Record("MouseOver");
  if (handlers_.mouseOver) handlers_.mouseOver();
}

void MemoryHost::MouseOut() {
  Record("MouseOut");
  if (handlers_.mouseOut) handlers_.mouseOut();
}

}  // namespace glyphon
