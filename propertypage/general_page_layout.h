// Where the General page's controls sit: two columns, the labelled boxes and lists on the left
// and the display options on the right, in pixels on a page of GeneralPage::kWidth by kHeight.
#pragma once

#include <string_view>

#include "propertypage/general_page.h"

// Internal to general_page.cpp.
namespace glyphon::general_page_layout {

using Kind = PageControlKind;

inline constexpr int kMargin = 8;
inline constexpr int kRowPitch = 27;
inline constexpr int kLabelWidth = 104;
inline constexpr int kEditorLeft = kMargin + kLabelWidth + 4;
inline constexpr int kEditorWidth = 196;
inline constexpr int kEditorHeight = 21;
inline constexpr int kTextHeight = 16;
inline constexpr int kOptionsLeft = kEditorLeft + kEditorWidth + 16;
inline constexpr int kOptionsWidth = GeneralPage::kWidth - kMargin - kOptionsLeft;
inline constexpr int kCheckPitch = 24;
inline constexpr int kCheckHeight = 18;

constexpr win::RECT Box(int left, int top, int width, int height) {
  return win::RECT{left, top, left + width, top + height};
}
constexpr PageControlInfo RowLabel(std::string_view name, std::string_view caption, int row) {
  return {name, Kind::Label, caption,
          Box(kMargin, kMargin + row * kRowPitch + 3, kLabelWidth, kTextHeight)};
}
constexpr PageControlInfo Editor(std::string_view name, Kind kind, int row) {
  return {name, kind, "", Box(kEditorLeft, kMargin + row * kRowPitch, kEditorWidth, kEditorHeight)};
}
constexpr PageControlInfo OptionsTitle(std::string_view name, std::string_view caption) {
  return {name, Kind::Label, caption, Box(kOptionsLeft, kMargin, kOptionsWidth, kTextHeight)};
}
constexpr PageControlInfo Option(std::string_view name, std::string_view caption, int index) {
  return {name, Kind::CheckBox, caption,
          Box(kOptionsLeft + 8, kMargin + 22 + index * kCheckPitch, kOptionsWidth - 8,
              kCheckHeight)};
}

}  // namespace glyphon::general_page_layout
