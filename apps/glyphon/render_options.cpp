#include "apps/glyphon/render_options.h"

#include <charconv>
#include <string_view>

namespace glyphon::apps {

namespace {

// The largest side a button may ask for; the engine refuses bigger surfaces anyway.
constexpr int kMaxSide = 16384;

int ParseSide(std::string_view text, std::string_view whole) {
  int value = -1;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < 0 || value > kMaxSide) {
    throw UsageError("--size wants WxH with sides from 0 to 16384, not '" + std::string(whole) +
                     "'");
  }
  return value;
}

void ParseSize(std::string_view text, RenderOptions& options) {
  const std::size_t x = text.find_first_of("xX");
  if (x == std::string_view::npos) {
    throw UsageError("--size wants WxH, not '" + std::string(text) + "'");
  }
  options.width = ParseSide(text.substr(0, x), text);
  options.height = ParseSide(text.substr(x + 1), text);
}

SceneState ParseState(std::string_view text) {
  if (text == "normal") return SceneState::Normal;
  if (text == "hot") return SceneState::Hot;
  if (text == "pressed") return SceneState::Pressed;
  throw UsageError("--state wants normal, hot or pressed, not '" + std::string(text) + "'");
}

win::OLE_COLOR ParseColor(std::string_view text) {
  std::string_view digits = text;
  int base = 10;
  if (digits.starts_with("0x") || digits.starts_with("0X")) {
    digits.remove_prefix(2);
    base = 16;
  }
  std::uint32_t value = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  if (digits.empty() || error != std::errc() || end != digits.data() + digits.size()) {
    throw UsageError("--container-color wants a colour such as 0xC8D0D4, not '" +
                     std::string(text) + "'");
  }
  return value;
}

PropertySetting ParseSetting(std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos || equals == 0) {
    throw UsageError("--set wants NAME=VALUE, not '" + std::string(text) + "'");
  }
  return {std::string(text.substr(0, equals)), std::string(text.substr(equals + 1))};
}

}  // namespace

RenderOptions ParseRenderOptions(std::span<const std::string> arguments) {
  RenderOptions options;
  bool haveOutput = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto value = [&]() -> const std::string& {
      if (i + 1 >= arguments.size()) throw UsageError(argument + " wants a value");
      return arguments[++i];
    };
    if (argument == "--size") {
      ParseSize(value(), options);
    } else if (argument == "--set") {
      options.settings.push_back(ParseSetting(value()));
    } else if (argument == "--props") {
      options.propertiesFile = value();
    } else if (argument == "--state") {
      options.state = ParseState(value());
    } else if (argument == "--focus") {
      options.focus = true;
    } else if (argument == "--design") {
      options.design = true;
    } else if (argument == "--container-color") {
      options.containerColor = ParseColor(value());
    } else if (argument.starts_with("-") && argument != "-") {
      throw UsageError("unknown option '" + argument + "'");
    } else if (haveOutput) {
      throw UsageError("one output file only; '" + argument + "' is a second");
    } else {
      options.output = argument;
      haveOutput = true;
    }
  }
  if (!haveOutput) throw UsageError("no output file");
  return options;
}

}  // namespace glyphon::apps
