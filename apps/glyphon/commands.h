// The commands of the glyphon program. Each takes the arguments after its name and returns the
// process exit code, writing its result or its complaint itself.
#pragma once

#include <span>
#include <string>

namespace glyphon::apps {

struct Command {
  const char* name;
  const char* arguments;  // for the usage line
  const char* summary;
  int (*run)(std::span<const std::string> arguments);
};

// Paints every look of the button onto one labelled sheet and writes it as a PNG.
int RunGallery(std::span<const std::string> arguments);

// The live demo form, in a window or replaying a script of input without one.
int RunDemo(std::span<const std::string> arguments);

// Paints one button, set up from the command line, and writes its client area as a PNG.
int RunRender(std::span<const std::string> arguments);

}  // namespace glyphon::apps
