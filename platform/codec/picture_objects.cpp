#include "platform/codec/picture_objects.h"

#include <cstring>
#include <string>

#include "platform/codec/image_limits.h"

namespace glyphon {

using namespace win;

namespace {

std::string SizeText(int width, int height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

// Deletes a temporary bitmap on every way out.
class ScopedBitmap {
 public:
  explicit ScopedBitmap(HBITMAP bitmap) : bitmap_(bitmap) {}
  ~ScopedBitmap() {
    if (bitmap_ != nullptr) DeleteObject(bitmap_);
  }
  ScopedBitmap(const ScopedBitmap&) = delete;
  ScopedBitmap& operator=(const ScopedBitmap&) = delete;
  HBITMAP Get() const { return bitmap_; }

 private:
  HBITMAP bitmap_;
};

BITMAPINFO Info32(int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;  // bottom-up
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

// A 32-bit DIB section holding the image, the fourth byte kept or cleared.
HBITMAP NewDibSection(const Image& image, bool keepAlpha) {
  const BITMAPINFO info = Info32(image.width, image.height);
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap == nullptr || bits == nullptr) {
    if (bitmap != nullptr) DeleteObject(bitmap);
    throw DecodeError("cannot create a bitmap of " + SizeText(image.width, image.height));
  }
  const std::size_t rowBytes = static_cast<std::size_t>(image.width) * 4;
  auto* out = static_cast<std::uint8_t*>(bits);
  for (int y = 0; y < image.height; ++y) {
    std::uint8_t* row = out + static_cast<std::size_t>(image.height - 1 - y) * rowBytes;
    std::memcpy(row, image.Pixel(0, y), rowBytes);
    if (!keepAlpha) {
      for (std::size_t i = 3; i < rowBytes; i += 4) row[i] = 0;
    }
  }
  return bitmap;
}

// A monochrome device bitmap (rows top-down, padded to 16 bits) with 1 where the mask is set.
HBITMAP NewMaskBitmap(const IconImage& icon) {
  const int width = icon.color.width;
  const int height = icon.color.height;
  const std::size_t stride = (static_cast<std::size_t>(width) + 15) / 16 * 2;
  std::vector<std::uint8_t> bits(stride * static_cast<std::size_t>(height), 0);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      if (icon.mask[static_cast<std::size_t>(y) * width + x] != 0) {
        bits[y * stride + x / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
      }
    }
  }
  HBITMAP mask = CreateBitmap(width, height, 1, 1, bits.data());
  if (mask == nullptr) throw DecodeError("cannot create an icon mask of " + SizeText(width, height));
  return mask;
}

// All pixels of a bitmap, top-down, as 32-bit pixels.
Image ReadPixels(HBITMAP bitmap, bool keepAlpha) {
  BITMAP description{};
  if (GetObjectA(bitmap, sizeof description, &description) == 0) {
    throw DecodeError("not a valid bitmap");
  }
  const int width = description.bmWidth;
  const int height = description.bmHeight;
  CheckPictureSize(width, height);
  BITMAPINFO info = Info32(width, height);
  std::vector<std::uint8_t> bottomUp(static_cast<std::size_t>(width) * height * 4);
  HDC dc = CreateCompatibleDC(nullptr);
  const int read = GetDIBits(dc, bitmap, 0, static_cast<UINT>(height), bottomUp.data(), &info,
                             DIB_RGB_COLORS);
  DeleteDC(dc);
  if (read != height) {
    throw DecodeError("cannot read the pixels of a " + SizeText(width, height) + " bitmap");
  }
  Image image;
  image.width = width;
  image.height = height;
  image.bgra.resize(bottomUp.size());
  const std::size_t rowBytes = static_cast<std::size_t>(width) * 4;
  for (int y = 0; y < height; ++y) {
    std::memcpy(image.Pixel(0, y), bottomUp.data() + static_cast<std::size_t>(height - 1 - y) * rowBytes,
                rowBytes);
  }
  if (!keepAlpha) {
    for (std::size_t i = 3; i < image.bgra.size(); i += 4) image.bgra[i] = 0;
  }
  return image;
}

Image Rows(const Image& image, int first, int count) {
  Image part;
  part.width = image.width;
  part.height = count;
  const auto begin = image.bgra.begin() + static_cast<std::ptrdiff_t>(first) * image.width * 4;
  part.bgra.assign(begin, begin + static_cast<std::ptrdiff_t>(count) * image.width * 4);
  return part;
}

std::vector<std::uint8_t> MaskFromWhite(const Image& image) {
  std::vector<std::uint8_t> mask(static_cast<std::size_t>(image.width) * image.height);
  for (std::size_t i = 0; i < mask.size(); ++i) mask[i] = image.bgra[i * 4] != 0 ? 1 : 0;
  return mask;
}

}  // namespace

StdPicture MakeBitmapPicture(const Image& image) {
  return StdPicture::FromBitmap(NewDibSection(image, false), true);
}

StdPicture MakeIconPicture(const IconImage& icon) {
  const ScopedBitmap color(NewDibSection(icon.color, true));
  const ScopedBitmap mask(NewMaskBitmap(icon));
  ICONINFO info{TRUE, 0, 0, mask.Get(), color.Get()};
  // The icon keeps copies of both bitmaps; ours go at the end of the scope.
  HICON handle = CreateIconIndirect(&info);
  if (handle == nullptr) {
    throw DecodeError("cannot create an icon of " + SizeText(icon.color.width, icon.color.height));
  }
  return StdPicture::FromIcon(handle, true);
}

Image ReadBitmapPixels(HBITMAP bitmap) { return ReadPixels(bitmap, false); }

IconImage ReadIconPixels(HICON icon) {
  ICONINFO info{};
  if (!GetIconInfo(icon, &info)) throw DecodeError("not a valid icon");
  const ScopedBitmap color(info.hbmColor);
  const ScopedBitmap mask(info.hbmMask);
  const Image maskPixels = ReadPixels(mask.Get(), false);
  IconImage result;
  if (color.Get() != nullptr) {
    result.color = ReadPixels(color.Get(), true);
    result.mask = MaskFromWhite(maskPixels);
    return result;
  }
  // A monochrome icon keeps the AND mask above the XOR bitmap in one bitmap of double height.
  const int height = maskPixels.height / 2;
  if (height == 0) throw DecodeError("icon mask too small to hold colours");
  result.mask = MaskFromWhite(Rows(maskPixels, 0, height));
  result.color = Rows(maskPixels, height, height);
  return result;
}

}  // namespace glyphon
