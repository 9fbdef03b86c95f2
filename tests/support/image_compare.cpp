#include "tests/support/image_compare.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include "platform/codec/bitmap_png.h"

namespace glyphon::testing {

namespace {

std::string Hex(const std::uint8_t* bgra) {
  char text[10];
  std::snprintf(text, sizeof text, "#%02X%02X%02X%02X", bgra[2], bgra[1], bgra[0], bgra[3]);
  return text;
}

std::filesystem::path Sibling(const std::filesystem::path& expected, const char* suffix) {
  std::filesystem::path path = expected;
  path.replace_filename(expected.stem().string() + suffix);
  return path;
}

bool UpdatingGoldens() {
  const char* value = std::getenv("GLYPHON_UPDATE_GOLDEN");
  return value != nullptr && std::strcmp(value, "1") == 0;
}

::testing::AssertionResult CompareWithFile(const std::optional<Image>& actual,
                                           const std::filesystem::path& expectedPath) {
  if (!actual) return ::testing::AssertionFailure() << "nothing to capture for " << expectedPath;
  std::string error;
  if (UpdatingGoldens()) {
    if (!WritePngFile(*actual, expectedPath, &error)) {
      return ::testing::AssertionFailure() << "cannot update " << expectedPath << ": " << error;
    }
    return ::testing::AssertionSuccess();
  }
  const std::filesystem::path actualPath = ActualPathFor(expectedPath);
  const std::optional<Image> expected = ReadPngFile(expectedPath, &error);
  if (!expected) {
    WritePngFile(*actual, actualPath);
    return ::testing::AssertionFailure()
           << "cannot read the expected image (" << error << "); wrote " << actualPath
           << " (run with GLYPHON_UPDATE_GOLDEN=1 to accept it)";
  }
  ::testing::AssertionResult result = ImagesEqual(*actual, *expected);
  if (result) return result;
  WritePngFile(*actual, actualPath);
  if (actual->width == expected->width && actual->height == expected->height) {
    const std::filesystem::path diffPath = DiffPathFor(expectedPath);
    WritePngFile(DiffImage(*actual, *expected), diffPath);
    return result << "; wrote " << actualPath << " and " << diffPath;
  }
  return result << "; wrote " << actualPath;
}

}  // namespace

Image DiffImage(const Image& actual, const Image& expected) {
  Image diff = Image::Blank(expected.width, expected.height);
  for (int y = 0; y < expected.height; ++y) {
    for (int x = 0; x < expected.width; ++x) {
      const std::uint8_t* e = expected.Pixel(x, y);
      std::uint8_t* d = diff.Pixel(x, y);
      if (std::memcmp(e, actual.Pixel(x, y), 4) != 0) {
        d[0] = 0, d[1] = 0, d[2] = 255;
      } else {
        const auto grey = static_cast<std::uint8_t>(192 + (e[0] + e[1] + e[2]) / 12);
        d[0] = d[1] = d[2] = grey;
      }
      d[3] = 255;
    }
  }
  return diff;
}

std::filesystem::path ActualPathFor(const std::filesystem::path& expected) {
  return Sibling(expected, ".actual.png");
}

std::filesystem::path DiffPathFor(const std::filesystem::path& expected) {
  return Sibling(expected, ".diff.png");
}

::testing::AssertionResult ImagesEqual(const Image& actual, const Image& expected) {
  if (actual.width != expected.width || actual.height != expected.height) {
    return ::testing::AssertionFailure()
           << "size is " << actual.width << "x" << actual.height << ", expected " << expected.width
           << "x" << expected.height;
  }
  long long count = 0;
  int firstX = -1;
  int firstY = -1;
  for (int y = 0; y < expected.height; ++y) {
    for (int x = 0; x < expected.width; ++x) {
      if (std::memcmp(actual.Pixel(x, y), expected.Pixel(x, y), 4) == 0) continue;
      if (count++ == 0) firstX = x, firstY = y;
    }
  }
  if (count == 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << count << " of " << static_cast<long long>(expected.width) * expected.height
         << " pixels differ; first at (" << firstX << ", " << firstY
         << "): " << Hex(actual.Pixel(firstX, firstY)) << ", expected "
         << Hex(expected.Pixel(firstX, firstY));
}

::testing::AssertionResult BitmapMatchesPng(win::HBITMAP bitmap,
                                            const std::filesystem::path& expected) {
  return CompareWithFile(CaptureBitmap(bitmap), expected);
}

::testing::AssertionResult DcMatchesPng(win::HDC hdc, const std::filesystem::path& expected) {
  return CompareWithFile(CaptureDc(hdc), expected);
}

::testing::AssertionResult DcAreaMatchesPng(win::HDC hdc, const win::RECT& area,
                                            const std::filesystem::path& expected) {
  return CompareWithFile(CaptureDc(hdc, area), expected);
}

::testing::AssertionResult BitmapsEqual(win::HBITMAP actual, win::HBITMAP expected) {
  const std::optional<Image> a = CaptureBitmap(actual);
  const std::optional<Image> e = CaptureBitmap(expected);
  if (!a || !e) return ::testing::AssertionFailure() << "not a bitmap";
  return ImagesEqual(*a, *e);
}

}  // namespace glyphon::testing
