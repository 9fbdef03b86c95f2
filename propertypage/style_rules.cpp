#include "propertypage/style_rules.h"

#include <array>

#include "control/glyphon_constants.h"

namespace glyphon {

namespace {

using enum Enabling;

// Indexed by style. Only Win3x offers a border style.
constexpr std::array<StyleEnabling, 6> kOnSelectionChanged{{
    {Enable, Enable, Disable},   // zonStyleWin9x
    {Enable, Enable, Enable},    // zonStyleWin3x
    {Disable, Enable, Disable},  // zonStyleWinXPBlue
    {Disable, Enable, Disable},  // zonStyleWinXPOliveGreen
    {Disable, Enable, Disable},  // zonStyleWinXPSilver
    {Enable, Disable, Disable},  // zonStyleMac8x
}};

constexpr std::array<StyleEnabling, 6> kOnStyleClick{{
    {Enable, Enable, Disable},
    {Enable, Enable, Enable},
    {Disable, Enable, Disable},
    {Disable, Enable, Disable},
    {Disable, Enable, Disable},
    {Enable, Keep, Disable},
}};

constexpr std::array<StyleDefaults, 6> kDefaults{{
    {zonBorderNone, true, true},
    {zonBorderSingle, true, true},
    {zonBorderSingle, true, true},
    {zonBorderSingle, true, true},
    {zonBorderSingle, true, true},
    {zonBorderSingle, true, std::nullopt},
}};

template <class Table>
std::optional<typename Table::value_type> Row(const Table& table, std::int32_t style) {
  if (style < 0 || style >= static_cast<std::int32_t>(table.size())) return std::nullopt;
  return table[static_cast<std::size_t>(style)];
}

}  // namespace

std::optional<StyleEnabling> EnablingForStyle(std::int32_t style, EnablingPath path) {
  return Row(path == EnablingPath::SelectionChanged ? kOnSelectionChanged : kOnStyleClick, style);
}

std::optional<StyleDefaults> DefaultsForStyle(std::int32_t style) { return Row(kDefaults, style); }

}  // namespace glyphon
