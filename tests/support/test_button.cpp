#include "tests/support/test_button.h"

#include <algorithm>

#include "content/paint_content.h"
#include "control/access_key.h"
#include "styles/style_painters.h"
#include "surface/mod_colors.h"

namespace glyphon::testing {

void TestButton::SetBackColor(win::OLE_COLOR color) {
  backColor = color;
  win::COLORREF shadow = 0;
  win::COLORREF border = 0;
  win::COLORREF highlight = 0;
  modColors::DeriveButtonColors(color, shadow, border, highlight);
  shadowColor = shadow;
  borderColor = border;
  highlightColor = highlight;
}

void TestButton::SetCaption(const std::string& text) {
  caption = text;
  displayCaption = ParseAccessKey(text).displayCaption;
}

win::OLE_COLOR TestButton::ContainerBackColor() const {
  if (containerColors.empty()) {
    throw AutomationError(kControlErrorNumber, "Container", "Object required");
  }
  const std::size_t read = std::min(containerReads++, containerColors.size() - 1);
  return containerColors[read];
}

std::unique_ptr<Canvas> MakeFilledCanvas(int width, int height, win::OLE_COLOR fill) {
  auto canvas = std::make_unique<Canvas>();
  canvas->CreatehDC();
  canvas->InitProperties();
  const win::HDC screen = win::GetDC(nullptr);
  canvas->CreateBitmap(screen, width, height);
  win::ReleaseDC(nullptr, screen);
  canvas->BackColor(fill);
  canvas->Cls();
  return canvas;
}

std::unique_ptr<Canvas> PaintLook(const ButtonView& button, int width, int height,
                                  std::int32_t drawState) {
  auto canvas = MakeFilledCanvas(width, height, win::RGB(255, 0, 255));
  PaintBackground(*canvas, button, drawState);
  PaintFrame(*canvas, button, drawState);
  return canvas;
}

std::unique_ptr<Canvas> PaintButton(const ButtonView& button, int width, int height,
                                    std::int32_t drawState) {
  auto canvas = MakeFilledCanvas(width, height, win::RGB(255, 0, 255));
  PaintBackground(*canvas, button, drawState);
  PaintContent(*canvas, button, drawState);
  PaintFrame(*canvas, button, drawState);
  return canvas;
}

win::RECT DifferingArea(Canvas& a, Canvas& b) {
  win::RECT area{a.Width(), a.Height(), 0, 0};
  for (int y = 0; y < a.Height(); ++y) {
    for (int x = 0; x < a.Width(); ++x) {
      if (win::GetPixel(a.hdc(), x, y) == win::GetPixel(b.hdc(), x, y)) continue;
      area = {std::min<int>(area.left, x), std::min<int>(area.top, y),
              std::max<int>(area.right, x + 1), std::max<int>(area.bottom, y + 1)};
    }
  }
  return area.right == 0 ? win::RECT{0, 0, 0, 0} : area;
}

}  // namespace glyphon::testing
