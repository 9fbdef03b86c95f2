// An event sink that writes down, in order, what a control tells its container: its events, its
// property-changed notifications and its repaints, as short lines a test or a log pane can read:
//
//   "MouseMove(0,0,5,5)", "MouseDown(1,0,5,5)", "Click", "MouseOver", "KeyPress(97)", ...
//   "changed Caption"
//   "paint Hot", "paint Down", "paint Up"
//
// Handlers see each event after it is written down and may change its by-reference parameters.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "control/host/glyphon_events.h"

namespace glyphon {

struct EventHandlers {
  std::function<void()> click;
  std::function<void(std::int16_t&, std::int16_t&, float&, float&)> mouseMove;
  std::function<void(std::int16_t&, std::int16_t&, float&, float&)> mouseDown;
  std::function<void(std::int16_t&, std::int16_t&, float&, float&)> mouseUp;
  std::function<void(std::int16_t&, std::int16_t&)> keyDown;
  std::function<void(std::int16_t&)> keyPress;
  std::function<void(std::int16_t&, std::int16_t&)> keyUp;
  std::function<void()> mouseOver;
  std::function<void()> mouseOut;
};

class EventRecorder final : public GlyphonEvents {
 public:
  // Headless users that only render switch the log off; handlers run either way.
  explicit EventRecorder(bool record = true) : record_(record) {}

  void PropertyChanged(std::string_view name);
  void Repainted(std::int32_t drawState);

  EventHandlers& Handlers() { return handlers_; }
  const std::vector<std::string>& Log() const { return log_; }
  void ClearLog() { log_.clear(); }
  // The log so far, which is cleared.
  std::vector<std::string> TakeLog();
  // Called with every line as it is written down (a log pane follows the events with it).
  void SetListener(std::function<void(const std::string&)> listener) {
    listener_ = std::move(listener);
  }

  void Click() override;
  void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
  void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
  void KeyPress(std::int16_t& keyAscii) override;
  void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override;
  void MouseOver() override;
  void MouseOut() override;

 private:
  bool Recording() const { return record_ || listener_ != nullptr; }
  void Record(std::string entry);

  bool record_;
  EventHandlers handlers_;
  std::vector<std::string> log_;
  std::function<void(const std::string&)> listener_;
};

}  // namespace glyphon
