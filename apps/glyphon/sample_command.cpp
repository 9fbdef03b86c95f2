#include <filesystem>
#include <iostream>

#include "apps/glyphon/commands.h"
#include "apps/glyphon/sample_sheet.h"
#include "platform/codec/bitmap_png.h"

namespace glyphon::apps {

int RunSample(std::span<const std::string> arguments) {
  if (arguments.size() != 1) {
    std::cerr << "usage: glyphon sample OUT.png\n";
    return 2;
  }
  const std::filesystem::path out = arguments[0];
  Canvas canvas;
  canvas.CreatehDC();
  canvas.InitProperties();
  const win::HDC screen = win::GetDC(nullptr);
  canvas.CreateBitmap(screen, kSampleSheetWidth, kSampleSheetHeight);
  win::ReleaseDC(nullptr, screen);
  PaintSampleSheet(canvas);
  std::string error;
  if (!WriteDcPng(canvas.hdc(), out, &error)) {
    std::cerr << "glyphon sample: cannot write " << out.string() << ": " << error << "\n";
    return 1;
  }
  std::cout << out.string() << "\n";
  return 0;
}

}  // namespace glyphon::apps
