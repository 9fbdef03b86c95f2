// What the page does with the button style: which style-dependent controls are enabled, and the
// defaults offered when the style is chosen. Styles outside the enumeration have no rules.
#pragma once

#include <cstdint>
#include <optional>

namespace glyphon {

enum class Enabling : std::uint8_t { Enable, Disable, Keep };

// chkShowDefault, chkShowFocus, and cboBorderStyle with its label.
struct StyleEnabling {
  Enabling showDefault;
  Enabling showFocus;
  Enabling borderStyle;
};

// The page filling itself from a button, and the user choosing a style, differ for Mac8x: filling
// disables ShowFocus, choosing leaves it as it was.
enum class EnablingPath : std::uint8_t { SelectionChanged, StyleClick };

std::optional<StyleEnabling> EnablingForStyle(std::int32_t style, EnablingPath path);

// The values the page proposes for a style; a check box without a value keeps its own.
struct StyleDefaults {
  std::int32_t borderStyle;
  bool showDefault;
  std::optional<bool> showFocus;
};

std::optional<StyleDefaults> DefaultsForStyle(std::int32_t style);

}  // namespace glyphon
