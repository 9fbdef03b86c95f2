// A labelled contact sheet of button looks: sections of rows and columns, each cell one button
// brought to its look in a ButtonScene and copied onto the sheet, on the classic form colour.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "apps/glyphon/button_scene.h"

namespace glyphon {
class Canvas;
}

namespace glyphon::apps {

struct GalleryRow {
  std::string label;
  std::function<void(Glyphon&)> setUp;
};

struct GalleryColumn {
  std::string label;
  // Runs after the row's set-up: the look this column shows.
  std::function<void(ButtonScene&)> setUp;
};

struct GallerySection {
  std::string title;
  int buttonWidth = 81;
  int buttonHeight = 25;
  std::vector<GalleryRow> rows;
  std::vector<GalleryColumn> columns;
};

// The sheet's size for these sections.
win::SIZE GallerySheetSize(const std::vector<GallerySection>& sections);
// Paints the sections one under the other onto a canvas of GallerySheetSize.
void PaintGallerySheet(Canvas& sheet, const std::vector<GallerySection>& sections);

// The looks of every style: rows of styles, columns of states and flags.
GallerySection StyleSection();

// The columns of the states a user brings a button to, and of the disabled button.
std::vector<GalleryColumn> StateColumns();

}  // namespace glyphon::apps
