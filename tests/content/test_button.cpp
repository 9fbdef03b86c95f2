#include "tests/content/test_button.h"

#include <gtest/gtest.h>

#include "content/paint_content.h"
#include "control/access_key.h"
#include "tests/support/image_compare.h"

namespace glyphon::testing {

namespace {

std::unique_ptr<Canvas> NewCanvas(int width, int height, win::COLORREF face) {
  auto canvas = std::make_unique<Canvas>();
  canvas->CreatehDC();
  canvas->InitProperties();
  const win::HDC screen = win::GetDC(nullptr);
  canvas->CreateBitmap(screen, width, height);
  win::ReleaseDC(nullptr, screen);
  canvas->BackColor(face);
  canvas->Cls();
  return canvas;
}

}  // namespace

void TestButton::SetCaption(const std::string& text) {
  caption = text;
  displayCaption = ParseAccessKey(text).displayCaption;
}

std::unique_ptr<Canvas> FaceCanvas(const TestButton& button, int width, int height) {
  return NewCanvas(width, height, button.backColor);
}

std::unique_ptr<Canvas> RenderContent(const TestButton& button, int width, int height,
                                      std::int32_t drawState) {
  auto canvas = FaceCanvas(button, width, height);
  PaintContent(*canvas, button, drawState);
  return canvas;
}

ButtonSheet::ButtonSheet(int columns, int rows, int cellWidth, int cellHeight)
    : cellWidth_(cellWidth),
      cellHeight_(cellHeight),
      canvas_(NewCanvas(columns * (cellWidth + 1) + 1, rows * (cellHeight + 1) + 1,
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
