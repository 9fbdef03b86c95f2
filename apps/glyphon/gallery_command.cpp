#include <filesystem>
#include <iostream>

#include "apps/glyphon/commands.h"
#include "apps/glyphon/content_sections.h"
#include "apps/glyphon/gallery_sheet.h"
#include "platform/codec/bitmap_png.h"
#include "surface/canvas.h"

namespace glyphon::apps {

int RunGallery(std::span<const std::string> arguments) {
  if (arguments.size() != 1 || arguments[0].starts_with("-")) {
    std::cerr << "usage: glyphon gallery OUT.png\n";
    return 1;
  }
  const std::filesystem::path out = arguments[0];
  std::vector<GallerySection> sections = {StyleSection()};
  for (GallerySection& section : ContentSections()) sections.push_back(std::move(section));
  const win::SIZE size = GallerySheetSize(sections);
  Canvas sheet;
  sheet.CreatehDC();
  sheet.InitProperties();
  const win::HDC screen = win::GetDC(nullptr);
  sheet.CreateBitmap(screen, size.cx, size.cy);
  win::ReleaseDC(nullptr, screen);
  PaintGallerySheet(sheet, sections);
  std::string error;
  if (!WriteDcPng(sheet.hdc(), out, &error)) {
    std::cerr << "glyphon gallery: cannot write " << out.string() << ": " << error << "\n";
    return 1;
  }
  std::cout << out.string() << "\n";
  return 0;
}

}  // namespace glyphon::apps
