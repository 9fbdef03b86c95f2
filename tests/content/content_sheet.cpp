#include "tests/content/content_sheet.h"

#include "content/paint_content.h"
#include "tests/support/image_compare.h"

namespace glyphon::testing {

std::unique_ptr<Canvas> RenderContent(const TestButton& button, int width, int height,
                                      std::int32_t drawState) {
  auto canvas = MakeFilledCanvas(width, height, button.backColor);
  PaintContent(*canvas, button, drawState);
  return canvas;
}

ButtonSheet::ButtonSheet(int columns, int rows, int cellWidth, int cellHeight)
    : cellWidth_(cellWidth),
      cellHeight_(cellHeight),
      canvas_(MakeFilledCanvas(columns * (cellWidth + 1) + 1, rows * (cellHeight + 1) + 1,
                               win::RGB(64, 64, 64))) {}

void ButtonSheet::Put(int column, int row, const Canvas& cell) {
  win::BitBlt(canvas_->hdc(), 1 + column * (cellWidth_ + 1), 1 + row * (cellHeight_ + 1),
              cellWidth_, cellHeight_, cell.hdc(), 0, 0, win::SRCCOPY);
}

::testing::AssertionResult ButtonSheet::Matches(const std::string& goldenName) const {
  return DcMatchesPng(canvas_->hdc(),
                      std::string(GLYPHON_GOLDEN_DIR) + "/content/" + goldenName + ".png");
}

}  // namespace glyphon::testing
