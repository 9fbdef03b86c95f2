// Paints the same thing through the native engine (the system's GDI; Wine's under test) and
// through the soft engine, and compares the pixels. A difference writes NAME.native.png,
// NAME.soft.png and NAME.diff.png (differing pixels in red) into parity/ under the working
// directory.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/codec/png_codec.h"
#include "platform/win32.h"

namespace glyphon::testing {

// What a scenario paints on.
enum class Target {
  kScreenBitmap,  // a bitmap compatible with the screen, as a repaint uses
  kDib32,         // 32-bit top-down DIB section
  kDib24,         // 24-bit bottom-up DIB section
  kMono,          // monochrome bitmap
};

// One scenario: a name, and how to produce its picture on whichever engine is current.
struct ParityCase {
  std::string name;
  std::function<Image()> render;
};
void PrintTo(const ParityCase& parityCase, std::ostream* out);
std::string ParityCaseName(const ::testing::TestParamInfo<ParityCase>& info);

// What the DC's bitmap holds; empty when it cannot be read.
Image Captured(win::HDC dc);

// Paints on a memory DC holding a fresh target of the given size, first filled white.
Image RenderOnTarget(Target target, int width, int height,
                     const std::function<void(win::HDC)>& paint);

// Each case renders through both engines, the soft one with the native system colours, and
// passes when the two images are equal; suites instantiate it with their cases.
class EngineParity : public ::testing::TestWithParam<ParityCase> {};

}  // namespace glyphon::testing
