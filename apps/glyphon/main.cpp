// glyphon: the command-line face of the control. `glyphon COMMAND ARGUMENTS...`
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "apps/glyphon/commands.h"

namespace {

using glyphon::apps::Command;

constexpr Command kCommands[] = {
    {"demo", "[--headless --script FILE] [OPTIONS]",
     "a live form of buttons in a window, or a script of input replayed without one",
     glyphon::apps::RunDemo},
    {"gallery", "OUT.png", "paint every look of the button onto one labelled PNG",
     glyphon::apps::RunGallery},
    {"render", "[OPTIONS] OUT.png", "paint one button as the options set it up to a PNG",
     glyphon::apps::RunRender},
};

int Usage() {
  std::cerr << "usage: glyphon COMMAND [ARGUMENTS]\n\ncommands:\n";
  for (const Command& command : kCommands) {
    std::cerr << "  " << command.name << " " << command.arguments << "\n      " << command.summary
              << "\n";
  }
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return Usage();
  const std::string_view name = argv[1];
  const std::vector<std::string> arguments(argv + 2, argv + argc);
  for (const Command& command : kCommands) {
    if (name != command.name) continue;
    try {
      return command.run(arguments);
    } catch (const std::exception& error) {
      std::cerr << "glyphon " << name << ": " << error.what() << "\n";
      return 1;
    }
  }
  std::cerr << "glyphon: unknown command '" << name << "'\n";
  return Usage();
}
