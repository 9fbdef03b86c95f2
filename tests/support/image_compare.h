// Exact image comparisons for tests. A failed comparison against an expected PNG writes
// NAME.actual.png and NAME.diff.png next to NAME.png (the diff shows differing pixels in red over
// a faded copy of the expected image) and reports the first differing pixel and the count.
// With the environment variable GLYPHON_UPDATE_GOLDEN set to 1, comparisons against a PNG instead
// (re)write the expected file and pass: that is the one way to regenerate golden images.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/codec/png_codec.h"
#include "platform/win32.h"

namespace glyphon::testing {

::testing::AssertionResult ImagesEqual(const Image& actual, const Image& expected);

// Differing pixels in red, equal ones as a faded grey copy of the expected image (same sizes).
Image DiffImage(const Image& actual, const Image& expected);

::testing::AssertionResult BitmapMatchesPng(win::HBITMAP bitmap,
                                            const std::filesystem::path& expected);
// The whole bitmap selected into a memory DC.
::testing::AssertionResult DcMatchesPng(win::HDC hdc, const std::filesystem::path& expected);
::testing::AssertionResult DcAreaMatchesPng(win::HDC hdc, const win::RECT& area,
                                            const std::filesystem::path& expected);

::testing::AssertionResult BitmapsEqual(win::HBITMAP actual, win::HBITMAP expected);

// The images a failed comparison against `expected` writes.
std::filesystem::path ActualPathFor(const std::filesystem::path& expected);
std::filesystem::path DiffPathFor(const std::filesystem::path& expected);

}  // namespace glyphon::testing
