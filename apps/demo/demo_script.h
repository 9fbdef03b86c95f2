// Scripts of user input for the demo without a display. One command a line; blank lines and
// lines starting with # are skipped. Coordinates are points of the form's client area.
//
//   move X Y                 press X Y [left|right|middle]     release X Y [left|right|middle]
//   click X Y                keydown KEY    keyup KEY    key KEY (down and up)
//   type TEXT                alt C (C typed with Alt held)      wait MILLISECONDS
//   select NAME              set NAME=VALUE (a property of the selected button)
//   screenshot FILE.png      save FILE.json      load FILE.json
//
// KEY is a letter, a digit, or one of TAB RETURN SPACE ESCAPE SHIFT CONTROL ALT.
#pragma once

#include <istream>
#include <ostream>
#include <stdexcept>

#include "apps/demo/demo_session.h"

namespace glyphon::apps {

// A line that cannot be run; what() names the line.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Runs the script, writing each event as "NAME: EVENT" to events as it happens. Throws
// ScriptError at the first bad line, and lets a setter's AutomationError through.
void RunDemoScript(DemoSession& session, std::istream& script, std::ostream& events);

// The virtual key of a KEY word, or 0.
int VirtualKeyNamed(std::string_view name);

}  // namespace glyphon::apps
