// The demo in a real window: the form, live, with the log of the selected button's events
// beside it and the General page for that button, on SDL2 with Dear ImGui for the panels.
#pragma once

#include <filesystem>
#include <optional>

#include "apps/demo/demo_session.h"

namespace glyphon::apps {

struct DemoWindowOptions {
  // Every event is also written here as "NAME: EVENT", one a line, as it happens.
  std::optional<std::filesystem::path> eventLog;
  // F12 writes the form to glyphon-demo-N.png in this folder.
  std::filesystem::path screenshotFolder = ".";
  // Saved forms are written to and read from this file (F2 saves, F3 loads).
  std::filesystem::path formFile = "glyphon-form.json";
};

// Runs until the window is closed. Returns the process exit code; 1 when no window can be opened.
int RunDemoWindow(DemoSession& session, const DemoWindowOptions& options);

}  // namespace glyphon::apps
