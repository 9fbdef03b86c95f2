// Content painted on a plain face, without background or frame, and a sheet that lays rendered
// buttons out in a grid for one golden image.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/test_button.h"

namespace glyphon::testing {

// PaintContent on a canvas of the button's size cleared to its BackColor, as the face before the
// content.
std::unique_ptr<Canvas> RenderContent(const TestButton& button, int width, int height,
                                      std::int32_t drawState);

// Cells of one size in a grid, one pixel of dark grey between them.
class ButtonSheet {
 public:
  ButtonSheet(int columns, int rows, int cellWidth, int cellHeight);
  void Put(int column, int row, const Canvas& cell);
  ::testing::AssertionResult Matches(const std::string& goldenName) const;
  win::HDC Dc() const { return canvas_->hdc(); }

 private:
  int cellWidth_;
  int cellHeight_;
  std::unique_ptr<Canvas> canvas_;
};

}  // namespace glyphon::testing
