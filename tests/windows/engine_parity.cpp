#include "tests/windows/engine_parity.h"

#include <filesystem>
#include <optional>

#include "platform/codec/bitmap_png.h"
#include "platform/native/native_engine.h"
#include "platform/soft/soft_engine.h"
#include "tests/support/image_compare.h"
#include "tests/support/leak_check.h"

namespace glyphon::testing {

namespace {

using namespace win;

HBITMAP CreateTarget(HDC screen, Target target, int width, int height) {
  switch (target) {
    case Target::kScreenBitmap:
      return CreateCompatibleBitmap(screen, width, height);
    case Target::kMono:
      return CreateBitmap(width, height, 1, 1, nullptr);
    case Target::kDib32:
    case Target::kDib24: {
      BITMAPINFO info{};
      info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
      info.bmiHeader.biWidth = width;
      info.bmiHeader.biHeight = target == Target::kDib32 ? -height : height;
      info.bmiHeader.biPlanes = 1;
      info.bmiHeader.biBitCount = target == Target::kDib32 ? 32 : 24;
      void* bits = nullptr;
      return CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    }
  }
  return nullptr;
}

Image RenderWith(Engine& engine, const ParityCase& parityCase) {
  EngineScope scope(engine);
  return parityCase.render();
}

// The soft engine painting with the system colours of the native one, for the scope.
class NativeSystemColors {
 public:
  NativeSystemColors() {
    soft::SystemColors colors{};
    for (int index = 0; index < SYSTEM_COLOR_COUNT; ++index) {
      colors[static_cast<std::size_t>(index)] = native::TheNativeEngine().GetSysColor(index);
    }
    soft::ThreadSoftEngine().SetSystemColors(colors);
  }
  ~NativeSystemColors() { soft::ThreadSoftEngine().SetSystemColors(soft::ClassicSystemColors()); }
  NativeSystemColors(const NativeSystemColors&) = delete;
  NativeSystemColors& operator=(const NativeSystemColors&) = delete;
};

void Write(const Image& image, const std::filesystem::path& path) {
  std::string error;
  if (!WritePngFile(image, path, &error)) ADD_FAILURE() << error;
}

}  // namespace

Image Captured(HDC dc) {
  const std::optional<Image> image = CaptureDc(dc);
  return image ? *image : Image{};
}

void PrintTo(const ParityCase& parityCase, std::ostream* out) { *out << parityCase.name; }

std::string ParityCaseName(const ::testing::TestParamInfo<ParityCase>& info) {
  return info.param.name;
}

Image RenderOnTarget(Target target, int width, int height, const std::function<void(HDC)>& paint) {
  HDC screen = GetDC(nullptr);
  HDC dc = CreateCompatibleDC(screen);
  HBITMAP bitmap = CreateTarget(screen, target, width, height);
  ReleaseDC(nullptr, screen);
  HGDIOBJ original = SelectObject(dc, bitmap);
  // Not WHITENESS: on 32-bit bitmaps GDI sets the unused fourth byte with it, which the soft
  // engine keeps 0, and surface flood fills compare that byte too.
  const RECT all{0, 0, width, height};
  FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  paint(dc);
  Image image = Captured(dc);
  SelectObject(dc, original);
  DeleteObject(bitmap);
  DeleteDC(dc);
  return image;
}

namespace {

::testing::AssertionResult EnginesAgree(const ParityCase& parityCase) {
  const Image native = RenderWith(win::native::TheNativeEngine(), parityCase);
  NativeSystemColors colors;
  const Image soft = RenderWith(win::soft::ThreadSoftEngine(), parityCase);
  if (native.Empty()) return ::testing::AssertionFailure() << "nothing painted natively";
  ::testing::AssertionResult result = ImagesEqual(soft, native);
  if (result) return result;
  const std::filesystem::path dir = "parity";
  std::filesystem::create_directories(dir);
  Write(native, dir / (parityCase.name + ".native.png"));
  Write(soft, dir / (parityCase.name + ".soft.png"));
  if (soft.width == native.width && soft.height == native.height) {
    Write(DiffImage(soft, native), dir / (parityCase.name + ".diff.png"));
  }
  return result << " (soft against native; images in "
                << std::filesystem::absolute(dir / parityCase.name).string() << ".*.png)";
}

TEST_P(EngineParity, BothEnginesPaintTheSamePixels) {
  LeakCheck leaks;
  EXPECT_TRUE(EnginesAgree(GetParam()));
}

}  // namespace

}  // namespace glyphon::testing
