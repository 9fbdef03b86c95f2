#include <cstdio>
#include <iostream>

#include "apps/glyphon/button_scene.h"
#include "apps/glyphon/commands.h"
#include "apps/glyphon/render_options.h"
#include "control/host/saved_form_bags.h"
#include "control/property_access.h"
#include "platform/automation_error.h"
#include "platform/codec/picture_error.h"
#include "platform/codec/picture_file.h"

namespace glyphon::apps {

namespace {

// The first control's bag of a saved form.
MemoryPropertyBag LoadProperties(const std::filesystem::path& file) {
  const SavedFormRead read = ReadSavedFormFile(file);
  for (const std::string& note : read.skipped) {
    std::cerr << "glyphon render: " << file.string() << ": skipped " << note << "\n";
  }
  if (read.form.controls.empty()) {
    throw std::runtime_error(file.string() + " holds no control");
  }
  return BagOfEntries(read.form.controls.front().properties);
}

// Through the control's own setters, by name; a value of @FILE is a picture file.
void Apply(Glyphon& button, const PropertySetting& setting) {
  if (setting.value.starts_with("@")) {
    SetPropertyByName(button, setting.name, LoadPictureFile(setting.value.substr(1)));
  } else {
    SetPropertyFromText(button, setting.name, setting.value);
  }
}

void ReportAutomationError(const AutomationError& error) {
  char number[16];
  std::snprintf(number, sizeof number, "0x%08X", static_cast<unsigned>(error.Number()));
  std::cerr << "glyphon render: error " << error.Number() << " (" << number << ") from "
            << error.Source() << ": " << error.Description() << "\n";
}

}  // namespace

int RunRender(std::span<const std::string> arguments) {
  RenderOptions options;
  try {
    options = ParseRenderOptions(arguments);
  } catch (const UsageError& error) {
    std::cerr << "glyphon render: " << error.what() << "\n" << kRenderUsage << "\n";
    return 1;
  }

  std::optional<MemoryPropertyBag> bag;
  try {
    if (options.propertiesFile) bag = LoadProperties(*options.propertiesFile);
  } catch (const std::exception& error) {
    std::cerr << "glyphon render: " << error.what() << "\n";
    return 1;
  }

  SceneOptions sceneOptions;
  sceneOptions.width = options.width;
  sceneOptions.height = options.height;
  sceneOptions.userMode = !options.design;
  sceneOptions.containerColor = options.containerColor;
  sceneOptions.properties = bag ? &*bag : nullptr;
  ButtonScene scene(sceneOptions);
  try {
    for (const PropertySetting& setting : options.settings) Apply(scene.Button(), setting);
  } catch (const AutomationError& error) {
    ReportAutomationError(error);
    return 2;
  } catch (const PictureError& error) {
    std::cerr << "glyphon render: " << error.what() << "\n";
    return 1;
  }
  if (options.focus) scene.Focus();
  scene.Reach(options.state);

  const std::optional<Image> image = scene.Capture();
  std::string error;
  if (!image || !WritePngFile(*image, options.output, &error)) {
    std::cerr << "glyphon render: cannot write " << options.output.string() << ": "
              << (image ? error : "the button has no pixels at this size") << "\n";
    return 1;
  }
  std::cout << options.output.string() << "\n";
  return 0;
}

}  // namespace glyphon::apps
