#include <fstream>
#include <iostream>
#include <optional>

#include "apps/demo/demo_script.h"
#include "apps/demo/demo_window.h"
#include "apps/glyphon/commands.h"
#include "platform/automation_error.h"

namespace glyphon::apps {

namespace {

constexpr const char* kDemoUsage =
    "usage: glyphon demo [--form FILE] [--event-log FILE] [--screenshots FOLDER]\n"
    "       glyphon demo --headless --script FILE [--form FILE]";

struct DemoOptions {
  bool headless = false;
  std::optional<std::filesystem::path> script;
  std::optional<std::filesystem::path> form;
  DemoWindowOptions window;
};

// Nothing when the command line is wrong.
std::optional<DemoOptions> ParseDemoOptions(std::span<const std::string> arguments) {
  DemoOptions options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--headless") {
      options.headless = true;
      continue;
    }
    if (i + 1 >= arguments.size()) return std::nullopt;
    const std::string& value = arguments[++i];
    if (argument == "--script") {
      options.script = value;
    } else if (argument == "--form") {
      options.form = value;
      options.window.formFile = value;
    } else if (argument == "--event-log") {
      options.window.eventLog = value;
    } else if (argument == "--screenshots") {
      options.window.screenshotFolder = value;
    } else {
      return std::nullopt;
    }
  }
  if (options.headless != options.script.has_value()) return std::nullopt;
  return options;
}

int RunScript(DemoSession& session, const std::filesystem::path& file) {
  std::ifstream script(file);
  if (!script) {
    std::cerr << "glyphon demo: cannot read " << file.string() << "\n";
    return 1;
  }
  try {
    RunDemoScript(session, script, std::cout);
  } catch (const ScriptError& error) {
    std::cerr << "glyphon demo: " << file.string() << ": " << error.what() << "\n";
    return 1;
  } catch (const AutomationError& error) {
    std::cerr << "glyphon demo: " << error.Source() << ": " << error.Description() << "\n";
    return 2;
  }
  return 0;
}

}  // namespace

int RunDemo(std::span<const std::string> arguments) {
  const std::optional<DemoOptions> options = ParseDemoOptions(arguments);
  if (!options) {
    std::cerr << kDemoUsage << "\n";
    return 1;
  }
  DemoSession session;
  if (options->form && std::filesystem::exists(*options->form)) {
    try {
      session.LoadForm(*options->form);
    } catch (const std::exception& error) {
      std::cerr << "glyphon demo: " << error.what() << "\n";
      return 1;
    }
  }
  return options->headless ? RunScript(session, *options->script)
                           : RunDemoWindow(session, options->window);
}

}  // namespace glyphon::apps
