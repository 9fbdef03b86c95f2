#include "content/picture_source.h"

#include "platform/automation_error.h"

namespace glyphon {

namespace {
constexpr std::int32_t kInvalidPicture = 481;
}  // namespace

void RequireDrawablePicture(const StdPicture& picture, const char* operation) {
  const win::UINT type = picture.Type();
  if (type != win::PICTYPE_BITMAP && type != win::PICTYPE_ICON) {
    throw AutomationError(kInvalidPicture, operation, "Invalid picture");
  }
}

PictureSource::PictureSource(win::HDC screen, const StdPicture& picture, int xSrc, int ySrc,
                             int width, int height, win::COLORREF iconBackground,
                             win::HPALETTE palette) {
  if (picture.Type() == win::PICTYPE_ICON) {
    icon_.emplace(ScratchSurface::Color(screen, width, height, palette));
    const win::HBRUSH background = win::CreateSolidBrush(iconBackground);
    const win::RECT all{0, 0, width, height};
    win::FillRect(icon_->Dc(), &all, background);
    win::DeleteObject(background);
    win::DrawIconEx(icon_->Dc(), -xSrc, -ySrc, picture.Icon(), width, height, 0, nullptr,
                    win::DI_NORMAL);
    return;
  }
  x_ = xSrc;
  y_ = ySrc;
  dc_ = win::CreateCompatibleDC(screen);
  previousPalette_ = win::SelectPalette(dc_, palette, win::TRUE);
  win::RealizePalette(dc_);
  previousBitmap_ = win::SelectObject(dc_, picture.Bitmap());
}

PictureSource::~PictureSource() {
  if (dc_ == nullptr) return;
  win::SelectObject(dc_, previousBitmap_);
  win::SelectPalette(dc_, previousPalette_, win::TRUE);
  win::DeleteDC(dc_);
}

}  // namespace glyphon
