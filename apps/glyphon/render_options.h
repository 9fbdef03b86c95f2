// The command line of `glyphon render`:
//
//   glyphon render [--size WxH] [--set NAME=VALUE]... [--props FILE] [--state normal|hot|pressed]
//                  [--focus] [--design] [--container-color 0xBBGGRR] OUT.png
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "apps/glyphon/button_scene.h"

namespace glyphon::apps {

inline constexpr const char* kRenderUsage =
    "usage: glyphon render [--size WxH] [--set NAME=VALUE]... [--props FILE]\n"
    "                      [--state normal|hot|pressed] [--focus] [--design]\n"
    "                      [--container-color 0xBBGGRR] OUT.png";

// A command line that cannot be understood; what() says what is wrong.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct PropertySetting {
  std::string name;
  // As typed: a decimal or 0x-hexadecimal integer, true or false, an enumeration constant's
  // name, @FILE for a picture file, or any other text.
  std::string value;
};

struct RenderOptions {
  int width = 81;
  int height = 25;
  std::vector<PropertySetting> settings;
  std::optional<std::filesystem::path> propertiesFile;
  SceneState state = SceneState::Normal;
  bool focus = false;
  bool design = false;
  win::OLE_COLOR containerColor = 0x8000000F;
  std::filesystem::path output;
};

// Throws UsageError.
RenderOptions ParseRenderOptions(std::span<const std::string> arguments);

}  // namespace glyphon::apps
