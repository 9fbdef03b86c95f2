// A running demo: the form, the button the user last pressed (the selected one), the log of
// events, and the user's input given to the form as the soft engine's mouse and keyboard at
// points of the form. The window front end and the script player both drive it.
#pragma once

#include <deque>
#include <filesystem>
#include <memory>
#include <string>

#include "apps/demo/demo_form.h"
#include "platform/soft/user/user_system.h"

namespace glyphon::apps {

struct LogLine {
  std::string button;
  std::string line;
};

class DemoSession {
 public:
  static constexpr std::size_t kLogLimit = 2000;

  DemoSession();
  ~DemoSession();

  DemoForm& Form() { return *form_; }
  DemoButton* Selected();
  void Select(std::string_view name);
  // The latest kLogLimit lines; the first is line LoggedCount() - Log().size() of the whole log.
  const std::deque<LogLine>& Log() const { return log_; }
  std::size_t LoggedCount() const { return loggedCount_; }
  void ClearLog() { log_.clear(); }

  // Input at points of the form's client area.
  void MoveTo(int x, int y);
  void Press(win::soft::MouseButton button, int x, int y);
  void Release(win::soft::MouseButton button, int x, int y);
  void KeyDown(int virtualKey);
  void KeyUp(int virtualKey);
  void Char(char character);
  // Lets time pass for the timers (the tooltip's hover delay).
  void Advance(unsigned milliseconds);

  // Paints what is due and composes the screen; returns the form's pixels, top row first, BGRA.
  const std::vector<std::uint8_t>& Frame();
  // The form as a PNG. Throws std::runtime_error when it cannot be written.
  void Screenshot(const std::filesystem::path& path);

  // Throws FormFileError (and keeps the current form) when the file cannot be written or read.
  void SaveForm(const std::filesystem::path& path) const;
  void LoadForm(const std::filesystem::path& path);

 private:
  void Listen();
  win::POINT Screen(int x, int y) const;

  std::unique_ptr<DemoForm> form_;
  std::string selected_;
  std::deque<LogLine> log_;
  std::size_t loggedCount_ = 0;
  std::vector<std::uint8_t> frame_;
};

}  // namespace glyphon::apps
