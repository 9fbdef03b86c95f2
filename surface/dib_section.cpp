// cDIBSection lifecycle: palette, context and DIB, defaults, loading pictures.
#include "surface/dib_section.h"

namespace glyphon {

cDIBSection::cDIBSection() {
  const win::HDC screen = win::GetDC(nullptr);
  hPal_ = win::CreateHalftonePalette(screen);
  win::ReleaseDC(nullptr, screen);
}

cDIBSection::~cDIBSection() { Cleanup(); }

bool cDIBSection::CreateDIB(win::HDC lHDC, int lWidth, int lHeight, win::HBITMAP& hDib) {
  win::BITMAPINFOHEADER& header = info_.bmiHeader;
  header = win::BITMAPINFOHEADER{};
  header.biSize = sizeof(win::BITMAPINFOHEADER);
  header.biWidth = lWidth;
  header.biHeight = lHeight;
  header.biPlanes = 1;
  header.biBitCount = 24;
  header.biCompression = win::BI_RGB;
  header.biSizeImage = static_cast<win::DWORD>(BytesPerScanLine() * header.biHeight);
  void* bits = nullptr;
  hDib = win::CreateDIBSection(lHDC, &info_, win::DIB_RGB_COLORS, &bits, nullptr, 0);
  bits_ = static_cast<std::uint8_t*>(bits);
  return hDib != nullptr;
}

bool cDIBSection::Create(int lWidth, int lHeight) {
  // Also deletes the palette made at construction; later uses of it are ignored by the platform,
  // which leaves the masked copy without palette translation, as intended.
  Cleanup();
  bool created = false;
  hdc_ = win::CreateCompatibleDC(nullptr);
  if (hdc_ != nullptr) {
    if (CreateDIB(hdc_, lWidth, lHeight, hDib_)) {
      earlierBitmap_ = win::SelectObject(hdc_, hDib_);
      created = true;
    } else {
      win::DeleteObject(hdc_);
      hdc_ = nullptr;
    }
  }
  Initialize();
  return created;
}

void cDIBSection::Initialize() {
  RequireDc("Initialize");
  CaptureInitialObjects();
  BackColor(0);
  ForeColor(0xFFFFFF);
  DrawMode(win::R2_COPYPEN);
  DrawStyle(win::PS_SOLID);
  DrawWidth(1);
  FillColor(0x80000000u | win::COLOR_BTNFACE);
  FillStyle(1);
  FontTransparent(true);
  ForeColor(0);
}

void cDIBSection::Cleanup() {
  if (hdc_ != nullptr) {
    ReleaseDrawingObjects();
    if (hDib_ != nullptr) {
      win::SelectObject(hdc_, earlierBitmap_);
      win::DeleteObject(hDib_);
    }
    win::DeleteObject(hdc_);
  }
  hdc_ = nullptr;
  hDib_ = nullptr;
  earlierBitmap_ = nullptr;
  bits_ = nullptr;
  // The handle is kept: the palette stays deleted for the rest of the object's life.
  win::DeleteObject(hPal_);
}

void cDIBSection::CreateFromPicture(const StdPicture& picThis) {
  win::BITMAP description{};
  win::GetObjectA(picThis.Handle(), sizeof description, &description);
  if (!Create(description.bmWidth, description.bmHeight)) return;
  const win::HDC desktop = win::GetDC(nullptr);
  if (desktop == nullptr) return;
  const win::HDC source = win::CreateCompatibleDC(desktop);
  win::DeleteDC(desktop);
  if (source == nullptr) return;
  const win::HGDIOBJ previous = win::SelectObject(source, picThis.Handle());
  LoadPictureBlt(source, 0, 0, -1, -1, win::SRCCOPY);
  win::SelectObject(source, previous);
  win::DeleteObject(source);
}

void cDIBSection::LoadPictureBlt(win::HDC lHDC, int lSrcLeft, int lSrcTop, int lSrcWidth,
                                 int lSrcHeight, win::DWORD eRop) {
  win::BitBlt(hdc_, 0, 0, lSrcWidth < 0 ? Width() : lSrcWidth,
              lSrcHeight < 0 ? Height() : lSrcHeight, lHDC, lSrcLeft, lSrcTop, eRop);
}

}  // namespace glyphon
