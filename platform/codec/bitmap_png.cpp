#include "platform/codec/bitmap_png.h"

#include <cstring>

namespace glyphon {

using namespace win;

namespace {

// A bitmap's alpha byte carries no meaning for most bitmaps (and GDI leaves it undefined), so
// captured images are opaque.
void MakeOpaque(Image& image) {
  for (std::size_t i = 3; i < image.bgra.size(); i += 4) image.bgra[i] = 0xFF;
}

BITMAPINFO TopDown32(int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

Image Crop(const Image& image, const RECT& area) {
  Image out = Image::Blank(area.right - area.left, area.bottom - area.top);
  const std::size_t rowBytes = static_cast<std::size_t>(out.width) * 4;
  for (int y = 0; y < out.height; ++y) {
    std::memcpy(out.Pixel(0, y), image.Pixel(area.left, area.top + y), rowBytes);
  }
  return out;
}

bool Inside(const RECT& area, int width, int height) {
  return area.left >= 0 && area.top >= 0 && area.right <= width && area.bottom <= height &&
         area.left < area.right && area.top < area.bottom;
}

// Copies an area of a window or screen DC through a 32-bit DIB section.
std::optional<Image> CaptureThroughBlit(HDC hdc, const RECT& area) {
  Image image = Image::Blank(area.right - area.left, area.bottom - area.top);
  if (image.Empty()) return std::nullopt;
  const BITMAPINFO info = TopDown32(image.width, image.height);
  void* bits = nullptr;
  HDC memory = CreateCompatibleDC(hdc);
  HBITMAP section = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  bool copied = false;
  if (memory != nullptr && section != nullptr) {
    HGDIOBJ previous = SelectObject(memory, section);
    copied =
        BitBlt(memory, 0, 0, image.width, image.height, hdc, area.left, area.top, SRCCOPY) != 0;
    if (copied) std::memcpy(image.bgra.data(), bits, image.bgra.size());
    SelectObject(memory, previous);
  }
  if (section != nullptr) DeleteObject(section);
  if (memory != nullptr) DeleteDC(memory);
  if (!copied) return std::nullopt;
  MakeOpaque(image);
  return image;
}

bool WriteCapture(const std::optional<Image>& image, const std::filesystem::path& path,
                  std::string* error) {
  if (!image) {
    if (error != nullptr) *error = "nothing to capture";
    return false;
  }
  return WritePngFile(*image, path, error);
}

}  // namespace

std::optional<Image> CaptureBitmap(HBITMAP bitmap) {
  BITMAP description{};
  if (GetObjectType(bitmap) != OBJ_BITMAP ||
      GetObjectA(bitmap, sizeof description, &description) < static_cast<int>(sizeof description)) {
    return std::nullopt;
  }
  Image image = Image::Blank(description.bmWidth, description.bmHeight);
  if (image.Empty()) return std::nullopt;
  BITMAPINFO info = TopDown32(image.width, image.height);
  HDC dc = CreateCompatibleDC(nullptr);
  const int rows = GetDIBits(dc, bitmap, 0, static_cast<UINT>(image.height), image.bgra.data(),
                             &info, DIB_RGB_COLORS);
  DeleteDC(dc);
  if (rows != image.height) return std::nullopt;
  MakeOpaque(image);
  return image;
}

std::optional<Image> CaptureDc(HDC hdc, const RECT& area) {
  if (GetObjectType(hdc) != OBJ_MEMDC) return CaptureThroughBlit(hdc, area);
  std::optional<Image> whole = CaptureDc(hdc);
  if (!whole || !Inside(area, whole->width, whole->height)) return std::nullopt;
  return Crop(*whole, area);
}

std::optional<Image> CaptureDc(HDC hdc) {
  if (GetObjectType(hdc) != OBJ_MEMDC) return std::nullopt;
  return CaptureBitmap(static_cast<HBITMAP>(GetCurrentObject(hdc, OBJ_BITMAP)));
}

bool WriteBitmapPng(HBITMAP bitmap, const std::filesystem::path& path, std::string* error) {
  return WriteCapture(CaptureBitmap(bitmap), path, error);
}

bool WriteDcPng(HDC hdc, const std::filesystem::path& path, std::string* error) {
  return WriteCapture(CaptureDc(hdc), path, error);
}

}  // namespace glyphon
